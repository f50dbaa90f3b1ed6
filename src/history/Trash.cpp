#include "history/Trash.h"

#include "base/Error.h"
#include "history/TrashParts.h"
#include "platform/Clock.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSysInfo>
#include <QUuid>

namespace kartella {

QString TrashKind::shownName(const QString& kind)
{
    static const char* const kinds[] = {QT_TRANSLATE_NOOP("kartella::Trash", "document"),
        QT_TRANSLATE_NOOP("kartella::Trash", "related document"),
        QT_TRANSLATE_NOOP("kartella::Trash", "category"), QT_TRANSLATE_NOOP("kartella::Trash", "subcategory"),
        QT_TRANSLATE_NOOP("kartella::Trash", "contact")};
    for (const char* known : kinds) {
        if (kind == QLatin1String(known))
            return QCoreApplication::translate("kartella::Trash", known);
    }
    return kind;
}

using namespace trash;

Trash::Trash(Connection& connection, QString folder)
    : m_connection(connection)
    , m_folder(std::move(folder))
{ }

bool Trash::inRegister(Connection& connection)
{
    return hasTable(connection, TrashTable);
}

QString Trash::whoIsWorking()
{
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        user = qEnvironmentVariable("USERNAME");
    if (user.isEmpty())
        user = QStringLiteral("unknown");
    return user + u'@' + QSysInfo::machineHostName();
}

qint64 Trash::deleteDocument(qint64 id)
{
    Transaction transaction(m_connection);
    QList<TableRows> rows {readRows(m_connection, QStringLiteral("tbl_Documents"), QStringLiteral("RastasID"),
        QStringLiteral("RastasID"), {id})};
    if (rows.first().rows.isEmpty())
        throw gone(QCoreApplication::translate("kartella::Trash",
            "The document is no longer in the register: another user may have deleted it."));
    rows << readRows(m_connection, QStringLiteral("tbl_Sub_Documents"), QStringLiteral("SubRastasID"),
        QStringLiteral("RastasID"), {id});
    rows << readRows(m_connection, QStringLiteral("tbl_Tickler"), QStringLiteral("TicklerID"),
        QStringLiteral("RastasID"), {id});
    if (hasTable(m_connection, QStringLiteral("tbl_Document_Text")))
        rows << readRows(m_connection, QStringLiteral("tbl_Document_Text"), QStringLiteral("RastasID"),
            QStringLiteral("RastasID"), {id});
    const QJsonObject document = rows.first().rows.first().toObject();
    TrashItem item {0, TrashKind::Document, id, textOf(document, QStringLiteral("DokRegistracIndeksas")),
        textOf(document, QStringLiteral("DokAntraste")), {}, {}};
    QList<TrashedFile> files = filesOf(rows, QStringLiteral("tbl_Documents"), QStringLiteral("RastoKel"));
    files << filesOf(rows, QStringLiteral("tbl_Sub_Documents"), QStringLiteral("SubRastoKelias"));
    return moveToTrash(item, rows, files, [&transaction] { transaction.commit(); });
}

qint64 Trash::deleteRelatedDocument(qint64 id)
{
    Transaction transaction(m_connection);
    const QList<TableRows> rows {readRows(m_connection, QStringLiteral("tbl_Sub_Documents"),
        QStringLiteral("SubRastasID"), QStringLiteral("SubRastasID"), {id})};
    if (rows.first().rows.isEmpty())
        throw gone(QCoreApplication::translate("kartella::Trash",
            "The related document is no longer in the register: another user may have deleted it."));
    const QJsonObject related = rows.first().rows.first().toObject();
    Recordset parent;
    parent.open(QStringLiteral("SELECT DokRegistracIndeksas FROM tbl_Documents WHERE RastasID=")
            + QString::number(keyOf(related, QStringLiteral("RastasID"))),
        m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    const QString index = parent.eof() || isNull(parent.collect(QStringLiteral("DokRegistracIndeksas")))
        ? QString()
        : parent.collect(QStringLiteral("DokRegistracIndeksas")).toString();
    parent.close();
    const TrashItem item {
        0, TrashKind::RelatedDocument, id, index, textOf(related, QStringLiteral("SubDocDescript")), {}, {}};
    return moveToTrash(item, rows,
        filesOf(rows, QStringLiteral("tbl_Sub_Documents"), QStringLiteral("SubRastoKelias")),
        [&transaction] { transaction.commit(); });
}

qint64 Trash::deleteCategory(qint64 id)
{
    Transaction transaction(m_connection);
    const QList<TableRows> rows {readRows(m_connection, QStringLiteral("tbl_Document_Categories"),
                                     QStringLiteral("KategID"), QStringLiteral("KategID"), {id}),
        readRows(m_connection, QStringLiteral("tbl_Sub_Categories"), QStringLiteral("SubKategID"),
            QStringLiteral("KategID"), {id})};
    if (rows.first().rows.isEmpty())
        throw gone(QCoreApplication::translate("kartella::Trash",
            "The category is no longer in the register: another user may have deleted it."));
    const TrashItem item {0, TrashKind::Category, id, {},
        textOf(rows.first().rows.first().toObject(), QStringLiteral("DokKategorija")), {}, {}};
    return moveToTrash(item, rows, {}, [&transaction] { transaction.commit(); });
}

qint64 Trash::deleteSubCategory(qint64 id)
{
    Transaction transaction(m_connection);
    const QList<TableRows> rows {readRows(m_connection, QStringLiteral("tbl_Sub_Categories"),
        QStringLiteral("SubKategID"), QStringLiteral("SubKategID"), {id})};
    if (rows.first().rows.isEmpty())
        throw gone(QCoreApplication::translate("kartella::Trash",
            "The subcategory is no longer in the register: another user may have deleted it."));
    const TrashItem item {0, TrashKind::SubCategory, id, {},
        textOf(rows.first().rows.first().toObject(), QStringLiteral("DokSubKategorija")), {}, {}};
    return moveToTrash(item, rows, {}, [&transaction] { transaction.commit(); });
}

qint64 Trash::deleteContact(qint64 id)
{
    Transaction transaction(m_connection);
    const QList<TableRows> rows {
        readRows(m_connection, QStringLiteral("tbl_Contacts"), QStringLiteral("ContactID"),
            QStringLiteral("ContactID"), {id}),
        readRows(m_connection, QStringLiteral("tbl_Phones"), QStringLiteral("PhoneID"),
            QStringLiteral("ContactID"), {id}),
        readRows(m_connection, QStringLiteral("tbl_HomePages"), QStringLiteral("HomeID"),
            QStringLiteral("ContactID"), {id}),
    };
    if (rows.first().rows.isEmpty())
        throw gone(QCoreApplication::translate("kartella::Trash",
            "The contact is no longer in the register: another user may have deleted it."));
    const QJsonObject contact = rows.first().rows.first().toObject();
    QString name = textOf(contact, QStringLiteral("FullName"));
    if (name.isEmpty())
        name = textOf(contact, QStringLiteral("CompanyName"));
    return moveToTrash(
        {0, TrashKind::Contact, id, {}, name, {}, {}}, rows, {}, [&transaction] { transaction.commit(); });
}

qint64 Trash::deleteItem(const QString& kind, qint64 key)
{
    if (kind == TrashKind::Document)
        return deleteDocument(key);
    if (kind == TrashKind::RelatedDocument)
        return deleteRelatedDocument(key);
    if (kind == TrashKind::Category)
        return deleteCategory(key);
    if (kind == TrashKind::SubCategory)
        return deleteSubCategory(key);
    return deleteContact(key);
}

QList<Trash::TrashedFile> Trash::filesOf(
    const QList<TableRows>& rows, const QString& table, const QString& column)
{
    QList<TrashedFile> files;
    const TableRows* tableRows = rowsOf(rows, table);
    if (!tableRows)
        return files;
    for (const QJsonValue& value : tableRows->rows) {
        const QJsonObject row = value.toObject();
        const QString path = textOf(row, column);
        if (path.isEmpty() || !QFileInfo(path).isFile() || namedElsewhere(path, rows))
            continue;
        files.append({table, keyOf(row, tableRows->key), column, path, {}});
    }
    return files;
}

bool Trash::namedElsewhere(const QString& path, const QList<TableRows>& leaving)
{
    const auto notAmong = [](const QString& column, const QList<qint64>& keys) {
        QString clause;
        for (qint64 key : keys)
            clause += QStringLiteral(" AND %1<>%2").arg(column).arg(key);
        return clause;
    };
    const QString documents = QStringLiteral("SELECT COUNT(*) AS Uses FROM tbl_Documents WHERE RastoKel=")
        + quoted(path)
        + notAmong(QStringLiteral("RastasID"), keysOf(leaving, QStringLiteral("tbl_Documents")));
    const QString related
        = QStringLiteral("SELECT COUNT(*) AS Uses FROM tbl_Sub_Documents WHERE SubRastoKelias=")
        + quoted(path)
        + notAmong(QStringLiteral("SubRastasID"), keysOf(leaving, QStringLiteral("tbl_Sub_Documents")));
    for (const QString& sql : {documents, related}) {
        Recordset uses;
        uses.open(sql, m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        const bool used = uses.collect(QStringLiteral("Uses")).toInt() > 0;
        uses.close();
        if (used)
            return true;
    }
    return false;
}

qint64 Trash::moveToTrash(const TrashItem& item, const QList<TableRows>& rows,
    const QList<TrashedFile>& files, const std::function<void()>& commit)
{
    if (!files.isEmpty() && m_folder.isEmpty() && m_askFolder)
        m_folder = m_askFolder();
    if (!files.isEmpty() && m_folder.isEmpty())
        throw Error(ErrorNumber::PathFileAccess,
            QCoreApplication::translate("kartella::Trash",
                "No folder is named for the trash of this register: its files can't be kept."));
    const QString itemFolder = QUuid::createUuid().toString(QUuid::WithoutBraces);
    QJsonArray fileList;
    QList<QPair<QString, QString>> moved;
    try {
        for (qsizetype i = 0; i < files.size(); ++i) {
            const TrashedFile& file = files[i];
            const QString stored
                = QStringLiteral("%1/%2-%3").arg(itemFolder).arg(i + 1).arg(QFileInfo(file.path).fileName());
            const QString target = QDir(m_folder).filePath(stored);
            if (!moveFile(file.path, target))
                throw Error(ErrorNumber::PathFileAccess,
                    QCoreApplication::translate(
                        "kartella::Trash", "The file could not be moved to the trash:\n%1\n(to %2)")
                        .arg(QDir::toNativeSeparators(file.path), QDir::toNativeSeparators(target)));
            moved.append({file.path, target});
            fileList.append(QJsonObject {{QStringLiteral("table"), file.table},
                {QStringLiteral("key"), file.key}, {QStringLiteral("column"), file.column},
                {QStringLiteral("path"), file.path}, {QStringLiteral("stored"), stored}});
        }
        for (auto it = rows.crbegin(); it != rows.crend(); ++it)
            deleteRows(m_connection, *it);
        Backend& backend = m_connection.backend();
        const QJsonObject filesJson {
            {QStringLiteral("folder"), itemFolder}, {QStringLiteral("files"), fileList}};
        const QVariant id = backend.insertRow(backend.tableSchema(TrashTable),
            {QStringLiteral("Kind"), QStringLiteral("ItemKey"), QStringLiteral("ItemIndex"),
                QStringLiteral("Title"), QStringLiteral("DeletedBy"), QStringLiteral("DeletedAt"),
                QStringLiteral("ItemRows"), QStringLiteral("ItemFiles")},
            {item.kind, item.key, item.registrationIndex.isEmpty() ? QVariant() : item.registrationIndex,
                item.title, whoIsWorking(), Clock::instance().now().toUTC().toString(Qt::ISODate),
                QString::fromUtf8(rowsToJson(rows)),
                QString::fromUtf8(QJsonDocument(filesJson).toJson(QJsonDocument::Compact))});
        // A commit that fails brings the files back too.
        commit();
        return id.toLongLong();
    } catch (...) {
        moveBack(moved);
        QDir(QDir(m_folder).filePath(itemFolder)).removeRecursively();
        throw;
    }
}

} // namespace kartella
