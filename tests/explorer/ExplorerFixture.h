#pragma once

#include "harness/TestRegister.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <memory>

class QTreeWidgetItem;

namespace kartella {
class MainWindow;
class ListModel;
} // namespace kartella

namespace kartella::test {

// A small register whose every row the explorer tests know by name, and a main window
// loaded on it.
class ExplorerFixture
{
public:
    // The register is a file, or a database on the tests' server.
    explicit ExplorerFixture(TestRegister::Where where = TestRegister::File);
    ~ExplorerFixture();

    TestRegister reg;
    // Keys of the rows added, by a short name ("contract", "Antanas", "Sutartys", ...).
    QHash<QString, qint32> id;
    QString existingFile; // a real text file of the "letter" document
    QDate thisMonth; // the 10th of the current month
    QDate lastMonth; // the 10th of the previous month

    // Creates and loads the main window.
    MainWindow& window();
    ListModel& documents() const;
    ListModel& related() const;
    QStringList documentTexts() const;
    QStringList columnCaptions(const ListModel& model) const;
    // Clicks a tree node with the mouse, found by its key.
    void clickNode(const QString& key);
    // Clicks the document list's item of a document with the mouse.
    void clickDocument(const QString& name);
    QString countText() const;

private:
    std::unique_ptr<MainWindow> m_window;
};

} // namespace kartella::test
