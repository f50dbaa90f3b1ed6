#include "support/DialogParts.h"

#include "base/Error.h"
#include "platform/Prompter.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kartella {

QPushButton* makeDialogButton(const QString& name, const QString& caption, QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QLabel* makeBuddyLabel(const QString& caption, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(caption, parent);
    label->setBuddy(buddy);
    return label;
}

QLineEdit* makeFieldBox(int index, QWidget* parent)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(QStringLiteral("txtFields_") + QString::number(index));
    return box;
}

CategoryFrame makeCategoryFrame(QWidget* parent)
{
    auto* frame = new QGroupBox(QCoreApplication::translate("kartella::DialogParts", "Category"), parent);
    frame->setObjectName(QStringLiteral("fraCategory"));
    auto* category = new QComboBox(frame);
    category->setObjectName(QStringLiteral("cmbCategory"));
    category->setAccessibleName(QStringLiteral("Category"));
    auto* subCategory = new QComboBox(frame);
    subCategory->setObjectName(QStringLiteral("cmbSubCategory"));
    subCategory->setAccessibleName(QStringLiteral("Subcategory"));
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(category);
    layout->addWidget(subCategory);
    return {frame, category, subCategory};
}

DirectionFrame makeDirectionFrame(QWidget* parent, const std::function<void(int code)>& chosen)
{
    auto* frame = new QGroupBox(QCoreApplication::translate("kartella::DialogParts", "Direction"), parent);
    frame->setObjectName(QStringLiteral("fraDirection"));
    auto* layout = new QVBoxLayout(frame);
    const auto addDirection = [&](const QString& caption, int code) {
        auto* option = new QRadioButton(caption, frame);
        option->setObjectName(QStringLiteral("Option_") + QString::number(code));
        QObject::connect(option, &QRadioButton::toggled, option, [chosen, code](bool checked) {
            if (checked)
                chosen(code);
        });
        layout->addWidget(option);
        return option;
    };
    QRadioButton* inner = addDirection(QCoreApplication::translate("kartella::DialogParts", "Inner"), 1);
    QRadioButton* outgoing
        = addDirection(QCoreApplication::translate("kartella::DialogParts", "Outgoing"), 2);
    QRadioButton* incoming
        = addDirection(QCoreApplication::translate("kartella::DialogParts", "Incoming"), 3);
    QRadioButton* other = addDirection(QCoreApplication::translate("kartella::DialogParts", "Other"), 4);
    return {frame, inner, outgoing, incoming, other};
}

QGroupBox* makeCreateWithFrame(QWidget* parent, const CreateWithActions& actions)
{
    auto* frame = new QGroupBox(QCoreApplication::translate("kartella::DialogParts", "Create With"), parent);
    frame->setObjectName(QStringLiteral("fraCreateWith"));
    auto* layout = new QVBoxLayout(frame);
    const auto addButton
        = [&](const QString& name, const QString& caption, const std::function<void()>& action) {
              QPushButton* button = makeDialogButton(name, caption, frame);
              QObject::connect(button, &QPushButton::clicked, button, action);
              layout->addWidget(button);
          };
    addButton(QStringLiteral("cmdWord"), QStringLiteral("&Word"), actions.word);
    addButton(QStringLiteral("cmdExcel"), QStringLiteral("&Excel"), actions.excel);
    addButton(QStringLiteral("cmdPower"), QStringLiteral("&PowerPoint"), actions.powerPoint);
    addButton(QStringLiteral("cmdAddExisting"),
        QCoreApplication::translate("kartella::DialogParts", "&Add Existing"), actions.addExisting);
    return frame;
}

int askToApplyChanges()
{
    return msgBox(QCoreApplication::translate("kartella::DialogParts",
                      "You have details changes that have not applied.\n\n"
                      "Do you want to apply these now?"),
        MsgBoxStyle::YesNoCancel | MsgBoxStyle::Exclamation,
        QCoreApplication::translate("kartella::DialogParts", "Warning"));
}

void restoreDefaultCursor()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

void reportStoreError(long number, const QString& description, const QString& title)
{
    msgBox(QCoreApplication::translate("kartella::DialogParts", "Error: %1 %2")
               .arg(QString::number(number), description),
        MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, title);
}

bool rowWasDeleted(const Error& error)
{
    return error.number() == ErrorNumber::RowDeleted;
}

namespace {

// Whole sentences for the rows the dialogs name, so that a language can decline the noun.
QString deletedRowText(const QString& what)
{
    static const std::pair<const char*, const char*> known[] = {
        {"document",
            QT_TRANSLATE_NOOP("kartella::DialogParts",
                "This document was deleted by another user; your changes were not saved.")},
        {"related document",
            QT_TRANSLATE_NOOP("kartella::DialogParts",
                "This related document was deleted by another user; your changes were not saved.")},
        {"contact",
            QT_TRANSLATE_NOOP("kartella::DialogParts",
                "This contact was deleted by another user; your changes were not saved.")},
        {"category",
            QT_TRANSLATE_NOOP("kartella::DialogParts",
                "This category was deleted by another user; your changes were not saved.")},
    };
    for (const auto& [noun, text] : known) {
        if (what == QLatin1String(noun))
            return QCoreApplication::translate("kartella::DialogParts", text);
    }
    return QCoreApplication::translate(
        "kartella::DialogParts", "This %1 was deleted by another user; your changes were not saved.")
        .arg(what);
}

} // namespace

void reportDeletedRow(const QString& what, const QString& title)
{
    msgBox(deletedRowText(what), MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, title);
}

} // namespace kartella
