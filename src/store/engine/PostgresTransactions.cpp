// The PostgreSQL back end's transactions. PostgreSQL aborts a whole transaction at the
// first statement that fails and then turns its COMMIT into a ROLLBACK; SQLite undoes the
// failed statement only. So that both keep what was written before a failure, every
// statement inside a transaction here runs after a save point of its own, and a failure
// rolls back to it.
#include "store/StoreText.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/PostgresBackend.h"

#include <exception>
#include <libpq-fe.h>

namespace kartella::engine {

namespace {

// Translated when it is told, not before: a translation may come after the start.
QString notCommitted()
{
    return kartella::StoreText::tr(
        "The changes were not stored: the register server rolled the transaction back instead of "
        "committing it (after an earlier error), and nothing written in it was kept.");
}

} // namespace

PostgresBackend::StatementGuard::StatementGuard(PostgresBackend& backend)
    : m_backend(backend)
    , m_exceptions(std::uncaught_exceptions())
{
    // Only the outermost statement of a call is guarded: a catalog read inside a query is part of it.
    if (m_backend.m_guardNesting++ > 0 || m_backend.m_depth == 0)
        return;
    try {
        // The save point of the statement before is given up only now: one message a statement.
        const QString sql = m_backend.m_guardOpen
            ? QStringLiteral("RELEASE statement_start; SAVEPOINT statement_start")
            : QStringLiteral("SAVEPOINT statement_start");
        m_backend.m_guardOpen = false;
        m_backend.runText(sql, sql);
        m_backend.m_guardOpen = true;
    } catch (...) {
        --m_backend.m_guardNesting;
        throw;
    }
}

PostgresBackend::StatementGuard::~StatementGuard()
{
    if (--m_backend.m_guardNesting > 0 || !m_backend.m_guardOpen)
        return;
    if (std::uncaught_exceptions() > m_exceptions) {
        m_backend.m_guardOpen = false;
        // Nothing to report when this fails too: the statement's own error is on its way.
        PQclear(PQexec(m_backend.m_connection, "ROLLBACK TO statement_start; RELEASE statement_start"));
    }
}

void PostgresBackend::endTransaction()
{
    m_depth = 0;
    m_guardOpen = false;
    m_explicitKeys.clear();
    // A schema change may have been undone.
    m_catalogLoaded = false;
    if (PQtransactionStatus(m_connection) != PQTRANS_IDLE)
        PQclear(PQexec(m_connection, "ROLLBACK"));
}

void PostgresBackend::beginTransaction()
{
    QString sql = m_depth == 0 ? QStringLiteral("BEGIN")
                               : QStringLiteral("SAVEPOINT level") + QString::number(m_depth);
    // A statement's save point must not hold the new level: releasing it would end the level too.
    if (m_guardOpen)
        sql = QStringLiteral("RELEASE statement_start; ") + sql;
    m_guardOpen = false;
    runText(sql, sql);
    ++m_depth;
    if (m_depth == 1 && writesWithContext()) {
        // Read by the history's triggers; gone with the transaction.
        const QString context = QStringLiteral(
            "SELECT set_config('kartella.who', $1, true), set_config('kartella.command', $2, true)");
        try {
            run(context.toUtf8(), {WriteContext::user().toUtf8(), WriteContext::command().toUtf8()}, context);
        } catch (...) {
            endTransaction();
            throw;
        }
    }
}

void PostgresBackend::commitTransaction()
{
    if (m_depth == 0)
        throwError(ErrorNumber::CommandFailed, QStringLiteral("There is no transaction to commit."),
            ConnectionSource);
    // A statement's save point lies inside the level and ends with it.
    m_guardOpen = false;
    if (m_depth > 1) {
        const QString sql = QStringLiteral("RELEASE level") + QString::number(m_depth - 1);
        runText(sql, sql);
        --m_depth;
        return;
    }
    try {
        if (PQtransactionStatus(m_connection) != PQTRANS_INTRANS)
            throwError(ErrorNumber::CommandFailed, notCommitted() + QStringLiteral("\nStatement: COMMIT"),
                ConnectionSource);
        advanceKeyGenerators();
        const QString sql = QStringLiteral("COMMIT");
        const Result result = runText(sql, sql);
        // In a transaction the server has aborted, COMMIT succeeds and says ROLLBACK.
        if (qstrcmp(PQcmdStatus(result.get()), "COMMIT") != 0)
            throwError(ErrorNumber::CommandFailed, notCommitted() + QStringLiteral("\nStatement: COMMIT"),
                ConnectionSource);
    } catch (const Error&) {
        endTransaction();
        throw;
    }
    m_depth = 0;
}

void PostgresBackend::rollbackTransaction()
{
    // A failed commit ends the transaction: the caller's rollback after it has nothing to undo.
    if (m_depth == 0)
        return;
    m_guardOpen = false;
    if (m_depth == 1) {
        endTransaction();
        return;
    }
    const QString sql = QStringLiteral("ROLLBACK TO level%1; RELEASE level%1").arg(m_depth - 1);
    --m_depth;
    // A schema change may have been undone.
    m_catalogLoaded = false;
    runText(sql, sql);
}

} // namespace kartella::engine
