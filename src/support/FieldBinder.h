#pragma once

#include "store/engine/Recordset.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

class QLineEdit;
class QPlainTextEdit;
class QTextEdit;
class QWidget;

namespace kartella {

class BoundList;

// Binds the boxes of a dialog to the fields of its row recordset, by field name: each box
// shows the field of the current row and follows the recordset when it moves or its rows
// change; what is typed (or set by code) goes straight into the field with Field::setValue,
// so that update or updateBatch store it. Boxes may be hidden (key fields, codes).
//
// A date box shows its field in a display format ("yyyy.MM.dd") and reads typed text in
// that format or in the other forms a date may be typed in (the system's short form, ISO).
// Text that reads as no date leaves the field as it was and is remembered: Validate() then
// fails with a message naming the box, so a dialog's save stops before anything is stored.
//
//     FieldBinder binder(rowRecordset);
//     binder.Bind(txtDescription, "DokAntraste");
//     binder.bindDate(txtDate, "DokRegistracData", "yyyy.MM.dd");
//     binder.Bind(categoryList, "KategID");
//     ...
//     binder.Validate();  // throws kartella::Error 13 for an unreadable date
//     rowRecordset->updateBatch(AffectEnum::All);
class FieldBinder : public QObject
{
    Q_OBJECT

public:
    explicit FieldBinder(Recordset* recordset, QObject* parent = nullptr);
    ~FieldBinder() override;

    Recordset* recordset() const { return m_recordset; }

    void bind(QLineEdit* box, const QString& field);
    void bind(QPlainTextEdit* box, const QString& field);
    void bind(QTextEdit* box, const QString& field);
    void bind(BoundList* list, const QString& field);
    void bindDate(QLineEdit* box, const QString& field, const QString& displayFormat);

    // Shows the current row's values in every bound box (empty boxes when there is none).
    void show();
    // Throws kartella::Error 13 (type mismatch) naming the first box whose text its field
    // couldn't take.
    void validate() const;
    // Whether every bound box's text went into its field.
    bool isValid() const;

    // The date of text as a date box reads it: the display format first, then ISO
    // ("yyyy-MM-dd"), "yyyy.MM.dd", the short date forms of the system's and of the
    // application's locale (a two-digit year in the century nearest to today), "M/d/yyyy". Invalid when
    // none reads it.
    static QDate readDate(const QString& text, const QString& displayFormat);

Q_SIGNALS:
    // A bound box's value changed by typing or by code (not by showing a row).
    void changed();

private:
    struct Binding;

    void add(Binding* binding);
    void showBinding(Binding& binding);
    void write(Binding& binding);
    void onFieldChanged(const QString& name);
    static QString labelOf(const QWidget* widget);

    QPointer<Recordset> m_recordset;
    QList<Binding*> m_bindings;
    bool m_showing = false;
    Binding* m_writing = nullptr;
};

} // namespace kartella
