#pragma once

#include <QString>

#include <exception>

namespace kartella {

// A run-time error as the program reports it: a number, a description and the
// component it came from. Routines that have no error path of their own let it
// travel to the caller that shows it.
class Error : public std::exception
{
public:
    Error(long number, QString description, QString source = QStringLiteral("Kartella"))
        : m_number(number)
        , m_description(std::move(description))
        , m_source(std::move(source))
        , m_what(m_description.toUtf8())
    { }

    long number() const noexcept { return m_number; }
    const QString& description() const noexcept { return m_description; }
    const QString& source() const noexcept { return m_source; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    long m_number;
    QString m_description;
    QString m_source;
    QByteArray m_what;
};

// Error numbers the program relies on.
namespace ErrorNumber {
// Failure to open a database connection (OLE DB E_FAIL, 0x80004005).
constexpr long ConnectionFailed = -2147467259;
// A statement the database refused (DB_E_ERRORSINCOMMAND, 0x80040E14).
constexpr long CommandFailed = -2147217900;
// A row to change is no longer in the database: another program deleted it
// (DB_E_DELETEDROW, 0x80040E23).
constexpr long RowDeleted = -2147217885;
// A row to change holds other values than it did when it was read: another program changed
// it since (DB_E_CONCURRENCYVIOLATION, 0x80040E38).
constexpr long RowChanged = -2147217864;
// Operation not allowed in the object's present state (adErrIllegalOperation).
constexpr long IllegalOperation = 3219;
// Either BOF or EOF is true, or the current record has been deleted (adErrNoCurrentRecord).
constexpr long NoCurrentRecord = 3021;
// Item cannot be found in the collection (adErrItemNotFound).
constexpr long ItemNotFound = 3265;
// Type mismatch.
constexpr long TypeMismatch = 13;
// Overflow.
constexpr long Overflow = 6;
// A value that must be unique is there already (Jet's 3022, a duplicate in an index).
constexpr long DuplicateValue = 3022;
// Path/File access error.
constexpr long PathFileAccess = 75;
// Invalid use of Null.
constexpr long InvalidUseOfNull = 94;
} // namespace ErrorNumber

} // namespace kartella
