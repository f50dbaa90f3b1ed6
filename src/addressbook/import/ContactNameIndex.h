#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

namespace kartella {

class Connection;

// The import's duplicate lookup: the ContactID of a contact whose FullName equals a name
// but for letter case (every letter, accents not folded), or Null.
//
// It answers as "SELECT ... WHERE tbl_Contacts.FullName Like <the name, quoted, its
// wildcards literal>" would, but from the names read once when the index is loaded and
// kept up to date with add(), so that a run over many contacts needs no statement per
// contact. While the names have not been loaded, that statement answers.
class ContactNameIndex
{
public:
    explicit ContactNameIndex(Connection& connection);

    // Reads the names of tbl_Contacts. Throws kartella::Error.
    void load();
    // Reads the names of the contacts stored since the names were read (by another program:
    // a key past every key read so far). Throws kartella::Error.
    void refresh();
    // Throws kartella::Error when the statement fails.
    QVariant find(const QString& name) const;
    // A contact just stored.
    void add(const QString& name, const QVariant& contactId);
    // A contact whose row was not kept after all.
    void forget(const QString& name);

    // The key names are compared by: each character with its case folded as Like does.
    static QString folded(const QString& name);

private:
    QVariant findWithStatement(const QString& name) const;

    Connection& m_connection;
    // Reads the names of the contacts whose key passes the condition.
    void read(const QString& condition);

    QHash<QString, QVariant> m_ids;
    qint64 m_highestKey = 0;
    bool m_loaded = false;
};

} // namespace kartella
