#include "AddressBookFixture.h"

#include "store/engine/Recordset.h"
#include "support/RecordsetModel.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

namespace kartella::test {

AddressBookFixture::AddressBookFixture(bool withContacts)
{
    if (!withContacts)
        return;
    ona = reg.insert("tbl_Contacts",
        {{"FullName", "Ona Petraitiene"}, {"CompanyName", "Lina"}, {"City", "Vilnius"},
            {"EmailName", "ona@example.lt"}});
    jonas = reg.insert("tbl_Contacts", {{"FullName", "Jonas Jonaitis"}, {"City", "Kaunas"}});
    company = reg.insert("tbl_Contacts", {{"FullName", QVariant()}, {"CompanyName", "UAB Medis"}});
    nameless = reg.insert("tbl_Contacts", {{"FullName", QVariant()}, {"Dear", "Sir"}});
    reg.insert(
        "tbl_Phones", {{"ContactID", ona}, {"PhoneName", "Office"}, {"PhoneNumber", "+370 (5) 212-3456"}});
    reg.insert("tbl_Phones", {{"ContactID", ona}, {"PhoneName", "Mobile"}, {"PhoneNumber", "8 612 34567"}});
    reg.insert("tbl_Phones", {{"ContactID", jonas}, {"PhoneName", "Home"}, {"PhoneNumber", "37 22 11"}});
    reg.insert("tbl_HomePages", {{"ContactID", ona}, {"Description", "Own"}, {"HomeWWW", "www.example.lt"}});
    document = reg.insert("tbl_Documents", {{"DokAntraste", "Lease"}, {"ContactID", ona}});
}

int AddressBookFixture::count(const QString& table) const
{
    return reg.scalar("SELECT COUNT(*) FROM " + table).toInt();
}

QStringList AddressBookFixture::column(const QString& sql) const
{
    Recordset rows;
    rows.open(sql, reg.connectionString(), CursorTypeEnum::Static, LockTypeEnum::ReadOnly);
    QStringList texts;
    for (int row = 0; row < rows.recordCount(); ++row)
        texts << rows.rowValue(row, 0).toString();
    return texts;
}

Shown::Shown(QWidget* shown)
    : widget(shown)
{
    widget->show();
    widget->activateWindow();
    if (!QTest::qWaitForWindowActive(widget))
        qWarning("The window didn't become active");
}

QLineEdit* Shown::box(int index) const
{
    return widget->findChild<QLineEdit*>("txtFields_" + QString::number(index));
}

QPlainTextEdit* Shown::textBox(int index) const
{
    return widget->findChild<QPlainTextEdit*>("txtFields_" + QString::number(index));
}

QTableView* Shown::grid(const char* name) const
{
    return widget->findChild<QTableView*>(name);
}

QAction* Shown::action(const char* name) const
{
    return widget->findChild<QAction*>(name);
}

QTreeWidget* Shown::list() const
{
    return widget->findChild<QTreeWidget*>("lvwFullNames");
}

QLineEdit* Shown::lineEdit(const char* name) const
{
    return widget->findChild<QLineEdit*>(name);
}

void Shown::click(const char* button) const
{
    QTest::mouseClick(widget->findChild<QPushButton*>(button), Qt::LeftButton);
}

QStringList Shown::lines() const
{
    QStringList texts;
    for (int i = 0; i < list()->topLevelItemCount(); ++i)
        texts << list()->topLevelItem(i)->text(0);
    return texts;
}

void Shown::clickLine(const QString& text) const
{
    const QList<QTreeWidgetItem*> items = list()->findItems(text, Qt::MatchExactly);
    if (items.isEmpty()) {
        QTest::qFail(qPrintable("No line " + text), __FILE__, __LINE__);
        return;
    }
    list()->scrollToItem(items.first());
    const QRect rect = list()->visualItemRect(items.first());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rect.center());
}

QStringList Shown::column(const char* name, int column) const
{
    const auto* model = qobject_cast<const RecordsetModel*>(grid(name)->model());
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row) {
        if (!model->isNewRowLine(row))
            texts << model->data(model->index(row, column)).toString();
    }
    return texts;
}

QString Shown::status() const
{
    return widget->findChild<QStatusBar*>("StatusBar1")->currentMessage();
}

void Shown::typeCell(const char* name, int row, int column, const QString& text) const
{
    QTableView* view = grid(name);
    const QModelIndex index = view->model()->index(row, column);
    view->setFocus();
    view->setCurrentIndex(index);
    view->edit(index);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (!editor) {
        QTest::qFail("No cell editor", __FILE__, __LINE__);
        return;
    }
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Tab);
}

} // namespace kartella::test
