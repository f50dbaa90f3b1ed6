#pragma once

#include "history/TrashRows.h"

#include <QDateTime>
#include <QList>
#include <QPair>
#include <QString>

#include <functional>

namespace kartella {

class Connection;

// What kind of thing a deleted item is.
namespace TrashKind {
inline const QString Document = QStringLiteral("document");
inline const QString RelatedDocument = QStringLiteral("related document");
inline const QString Category = QStringLiteral("category");
inline const QString SubCategory = QStringLiteral("subcategory");
inline const QString Contact = QStringLiteral("contact");
// A kind as a user reads it, in the interface's language; the register keeps the names above.
QString shownName(const QString& kind);
} // namespace TrashKind

// One deleted item: its kind, the key it had, what it was (a document's description and
// registration index, a category's or contact's name), who deleted it and when (UTC).
struct TrashItem
{
    qint64 id = 0;
    QString kind;
    qint64 key = 0;
    QString registrationIndex; // a document's, a related document's parent's
    QString title;
    QString deletedBy;
    QDateTime deletedAt;
};

// What a restore did beyond putting things back as they were: the paths that were taken
// meanwhile and the free names their files went to instead (old path, new path).
struct RestoreOutcome
{
    QList<TrashItem> restored; // the item, and a category restored with its document
    QList<QPair<QString, QString>> renamed;
};

// The register's trash. A delete takes the rows of an item (a document with its related
// documents, reminders and read text; a category with its subcategories; a contact with its
// phones and web pages) out of their tables into one row of tbl_Trash, and its files into
// the trash folder, in one transaction: the files move before the commit and move back when
// anything fails, so that nothing is ever half deleted. A file another row still names stays
// where it is. Restore puts every row back with its keys, and every file at its path or, when
// the path was taken meanwhile, at the next free name beside it.
//
// The trash is the register's, so every connection to it sees the same items; the folder is
// given by the caller (see trashFolderFor). Failures throw kartella::Error and leave the
// register and the files as they were.
class Trash
{
public:
    Trash(Connection& connection, QString folder);

    // Gives the folder when a delete has files to move and none was given (a register on a
    // server whose shared folder isn't named yet); empty: the delete is refused.
    void setFolderQuestion(std::function<QString()> ask) { m_askFolder = std::move(ask); }
    // The versions folder (see Versions): a document deleted for good takes its versions too.
    void setVersionsFolder(const QString& folder) { m_versionsFolder = folder; }

    // Whether the register has a trash; an older one deletes for good as it always did.
    static bool inRegister(Connection& connection);
    // Who is deleting: the desktop user and the host name.
    static QString whoIsWorking();

    qint64 deleteDocument(qint64 id);
    qint64 deleteRelatedDocument(qint64 id);
    qint64 deleteCategory(qint64 id);
    qint64 deleteSubCategory(qint64 id);
    qint64 deleteContact(qint64 id);
    // One of the above by the item's kind (a TrashKind name).
    qint64 deleteItem(const QString& kind, qint64 key);

    // The deleted items, newest first.
    QList<TrashItem> items();
    // The deleted document of a registration index, the newest; 0 when there is none.
    qint64 findDocument(const QString& registrationIndex);

    // Puts the item back. A document or subcategory whose category is in the trash brings it
    // back too.
    RestoreOutcome restore(qint64 itemId);
    // Deletes the item and its files for good.
    void deleteForGood(qint64 itemId);
    void empty();
    // Deletes for good the items deleted more than days days before nowUtc; gives how many.
    int purgeOlderThan(int days, const QDateTime& nowUtc);

private:
    struct TrashedFile
    {
        QString table;
        qint64 key = 0;
        QString column;
        QString path;
        QString stored; // its name inside the trash folder
    };

    qint64 moveToTrash(const TrashItem& item, const QList<TableRows>& rows, const QList<TrashedFile>& files,
        const std::function<void()>& commit);
    QList<TrashedFile> filesOf(const QList<TableRows>& rows, const QString& table, const QString& column);
    bool namedElsewhere(const QString& path, const QList<TableRows>& leaving);
    void restoreInside(qint64 itemId, RestoreOutcome& outcome, QList<QPair<QString, QString>>& moved);
    void restoreCategoryOf(
        const QList<TableRows>& rows, RestoreOutcome& outcome, QList<QPair<QString, QString>>& moved);
    bool rowExists(const QString& table, const QString& key, qint64 value);
    TrashItem item(qint64 itemId);
    int removeItems(const QString& where);

    Connection& m_connection;
    QString m_folder;
    std::function<QString()> m_askFolder;
    QString m_versionsFolder;
};

} // namespace kartella
