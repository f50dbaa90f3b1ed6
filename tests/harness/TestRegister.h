#pragma once

#include "store/SampleRegister.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>
#include <QVariantMap>

#include <memory>

namespace kartella::test {

class ServerDatabase;

// A fresh, empty register for one test: a temporary folder holding the register file and
// the options (XDG_CONFIG_HOME points into it while the object lives), seeded with the
// initial options and with DbLocation and Provider naming the register. The program's
// connections therefore reach this register. Failures throw kartella::Error.
//
//     TestRegister reg;
//     const qint32 id = reg.insert("tbl_Contacts", {{"FullName", "Ona Petraitienė"}});
//     QCOMPARE(reg.scalar("SELECT COUNT(*) FROM tbl_Contacts").toInt(), 1);
//
// TestRegister(TestRegister::Server) keeps the register in a throwaway database on the tests'
// PostgreSQL server instead (see ServerDatabase; check ServerDatabase::available() first).
class TestRegister
{
public:
    enum Where { File, Server };

    explicit TestRegister(const QString& fileName = QStringLiteral("Kartella.mdb"));
    explicit TestRegister(Where where);
    ~TestRegister();
    TestRegister(const TestRegister&) = delete;
    TestRegister& operator=(const TestRegister&) = delete;

    // The register's location (its file, or the postgresql:// location of its database) and
    // the temporary folder that holds the options.
    QString path() const { return m_path; }
    QString dir() const { return m_dir.path(); }
    // The connection string of the register, in the program's plain form.
    QString connectionString() const;

    // Runs one statement (Jet's dialect) on a connection of its own.
    void exec(const QString& sql) const;
    // The first field of the first row of sql; Null when it gives no row.
    QVariant scalar(const QString& sql) const;
    // Adds one row of the given field values (Null as an invalid QVariant, dates as QDate)
    // and returns its new key.
    qint32 insert(const QString& table, const QVariantMap& values) const;
    // Fills the register with sample data (files in sampleFilesFolder(path()), which for a
    // server register is a folder in dir()).
    void fillSample(const SampleOptions& options = {}) const;

private:
    void setUp(const QString& location);
    void restoreConfig() const;

    QTemporaryDir m_dir;
    std::unique_ptr<ServerDatabase> m_server;
    QString m_path;
    QByteArray m_previousConfig;
    bool m_hadConfig = false;
};

} // namespace kartella::test
