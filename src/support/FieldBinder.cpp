#include "support/FieldBinder.h"

#include "base/Error.h"
#include "store/engine/DateText.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"
#include "support/BoundList.h"

#include <QComboBox>
#include <QDate>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace kartella {

struct FieldBinder::Binding
{
    enum class Kind { Line, Date, PlainText, RichText, List };

    Kind kind;
    QPointer<QObject> target;
    QString field;
    QString format; // display format of a date box
    QString problem; // why the box's text isn't in the field; empty when it is

    QString text() const
    {
        switch (kind) {
        case Kind::Line:
        case Kind::Date:
            return static_cast<QLineEdit*>(target.data())->text();
        case Kind::PlainText:
            return static_cast<QPlainTextEdit*>(target.data())->toPlainText();
        case Kind::RichText:
            return static_cast<QTextEdit*>(target.data())->toPlainText();
        case Kind::List:
            return static_cast<BoundList*>(target.data())->value();
        }
        return {};
    }

    void setText(const QString& text) const
    {
        switch (kind) {
        case Kind::Line:
        case Kind::Date:
            static_cast<QLineEdit*>(target.data())->setText(text);
            break;
        case Kind::PlainText:
            static_cast<QPlainTextEdit*>(target.data())->setPlainText(text);
            break;
        case Kind::RichText:
            static_cast<QTextEdit*>(target.data())->setPlainText(text);
            break;
        case Kind::List:
            static_cast<BoundList*>(target.data())->setValue(text);
            break;
        }
    }

    QWidget* widget() const
    {
        if (kind == Kind::List)
            return static_cast<BoundList*>(target.data())->box();
        return qobject_cast<QWidget*>(target);
    }

    // The field's value as the box shows it.
    QString display(const QVariant& value) const
    {
        if (isNull(value))
            return {};
        if (kind == Kind::Date && value.typeId() == QMetaType::QDate)
            return value.toDate().toString(format);
        if (kind == Kind::Date && value.typeId() == QMetaType::QDateTime)
            return value.toDateTime().date().toString(format);
        return value.toString();
    }
};

namespace {

// A date of a form whose year has two digits, moved into the century that puts it
// nearest to today (a tie goes to the past).
QDate readWithFormat(const QString& text, const QString& format, const QLocale* locale = nullptr)
{
    QDate date = locale ? locale->toDate(text, format) : QDate::fromString(text, format);
    if (!date.isValid() || format.contains(QLatin1String("yyyy")) || !format.contains(QLatin1String("yy")))
        return date;
    return engine::inCenturyNearToday(date);
}

} // namespace

FieldBinder::FieldBinder(Recordset* recordset, QObject* parent)
    : QObject(parent)
    , m_recordset(recordset)
{
    if (!recordset)
        return;
    connect(recordset, &Recordset::moveComplete, this, &FieldBinder::show);
    connect(recordset, &Recordset::recordsetChangeComplete, this, &FieldBinder::show);
    connect(recordset, &Recordset::fieldChangeComplete, this, &FieldBinder::onFieldChanged);
}

FieldBinder::~FieldBinder()
{
    qDeleteAll(m_bindings);
}

void FieldBinder::bind(QLineEdit* box, const QString& field)
{
    add(new Binding {Binding::Kind::Line, box, field, {}, {}});
    connect(box, &QLineEdit::textChanged, this, [this, binding = m_bindings.last()] { write(*binding); });
}

void FieldBinder::bindDate(QLineEdit* box, const QString& field, const QString& displayFormat)
{
    add(new Binding {Binding::Kind::Date, box, field, displayFormat, {}});
    connect(box, &QLineEdit::textChanged, this, [this, binding = m_bindings.last()] { write(*binding); });
}

void FieldBinder::bind(QPlainTextEdit* box, const QString& field)
{
    add(new Binding {Binding::Kind::PlainText, box, field, {}, {}});
    connect(
        box, &QPlainTextEdit::textChanged, this, [this, binding = m_bindings.last()] { write(*binding); });
}

void FieldBinder::bind(QTextEdit* box, const QString& field)
{
    add(new Binding {Binding::Kind::RichText, box, field, {}, {}});
    connect(box, &QTextEdit::textChanged, this, [this, binding = m_bindings.last()] { write(*binding); });
}

void FieldBinder::bind(BoundList* list, const QString& field)
{
    add(new Binding {Binding::Kind::List, list, field, {}, {}});
    connect(list, &BoundList::changed, this, [this, binding = m_bindings.last()] { write(*binding); });
}

void FieldBinder::add(Binding* binding)
{
    m_bindings.append(binding);
    showBinding(*binding);
}

void FieldBinder::show()
{
    for (Binding* binding : std::as_const(m_bindings))
        showBinding(*binding);
}

void FieldBinder::showBinding(Binding& binding)
{
    if (!binding.target)
        return;
    QVariant value;
    if (m_recordset && m_recordset->isOpen() && !m_recordset->eof() && !m_recordset->bof()) {
        try {
            value = m_recordset->fields(binding.field).value();
        } catch (const Error&) {
            value = QVariant(); // a deleted row or an unknown field shows as empty
        }
    }
    const bool wasShowing = m_showing;
    m_showing = true;
    binding.setText(binding.display(value));
    binding.problem.clear();
    m_showing = wasShowing;
}

void FieldBinder::write(Binding& binding)
{
    if (m_showing || !binding.target || !m_recordset)
        return;
    const QString text = binding.text();
    QVariant value;
    binding.problem.clear();
    if (binding.kind == Binding::Kind::Date && !text.trimmed().isEmpty()) {
        const QDate date = readDate(text, binding.format);
        if (!date.isValid()) {
            binding.problem = tr("\"%1\" in \"%2\" isn't a date. Type the date as %3, please.")
                                  .arg(text, labelOf(binding.widget()), binding.format);
            Q_EMIT changed();
            return;
        }
        value = date;
    } else if (!text.isEmpty()) {
        value = text;
    }
    Binding* const outer = m_writing;
    m_writing = &binding;
    try {
        m_recordset->fields(binding.field).setValue(value);
    } catch (const Error& error) {
        binding.problem = labelOf(binding.widget()) % QStringLiteral(": ") % error.description();
    }
    m_writing = outer;
    Q_EMIT changed();
}

void FieldBinder::onFieldChanged(const QString& name)
{
    for (Binding* binding : std::as_const(m_bindings)) {
        if (binding != m_writing && binding->field.compare(name, Qt::CaseInsensitive) == 0)
            showBinding(*binding);
    }
}

void FieldBinder::validate() const
{
    for (const Binding* binding : m_bindings) {
        if (binding->target && !binding->problem.isEmpty())
            throw Error(ErrorNumber::TypeMismatch, binding->problem);
    }
}

bool FieldBinder::isValid() const
{
    for (const Binding* binding : m_bindings) {
        if (binding->target && !binding->problem.isEmpty())
            return false;
    }
    return true;
}

QDate FieldBinder::readDate(const QString& text, const QString& displayFormat)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {};
    const QLocale system = QLocale::system();
    const QLocale application;
    QDate date = readWithFormat(trimmed, displayFormat);
    for (const QString& format :
        {QStringLiteral("yyyy-MM-dd"), QStringLiteral("yyyy.MM.dd"), QStringLiteral("yyyy.M.d")}) {
        if (!date.isValid())
            date = readWithFormat(trimmed, format);
    }
    for (const QLocale* locale : {&system, &application}) {
        if (!date.isValid())
            date = readWithFormat(trimmed, locale->dateFormat(QLocale::ShortFormat), locale);
    }
    if (!date.isValid())
        date = readWithFormat(trimmed, QStringLiteral("M/d/yyyy"));
    return date;
}

QString FieldBinder::labelOf(const QWidget* widget)
{
    if (!widget)
        return {};
    const QList<QLabel*> labels = widget->window()->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->buddy() == widget) {
            QString text = label->text().remove(u'&').trimmed();
            if (text.endsWith(u':'))
                text.chop(1);
            return text;
        }
    }
    return widget->accessibleName().isEmpty() ? widget->objectName() : widget->accessibleName();
}

} // namespace kartella
