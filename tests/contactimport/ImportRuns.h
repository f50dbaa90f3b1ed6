#pragma once

// Runs of the import as the user starts it, and what they left in the register.
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace kartella::test {

extern const QString Question;
extern const QString Success;
extern const QString Failure;
extern const QString ClosingTitle;

// The closing message: its first line and what the run did.
QString closing(const QString& first, int added, int alreadyThere, int failed, int unnamed = 0);

// The rows of sql, each as its fields joined by '|' (Null as "<null>").
QStringList rows(const TestRegister& reg, const QString& sql);
QStringList contactNames(const TestRegister& reg);

// One card per name, without phones.
QByteArray cards(const QStringList& names);

// Runs the import of path answering Yes and, when it ends, OK; the answers between are
// the caller's. Returns the import's result.
bool importFile(ScriptedPrompter& prompter, const QString& path, QList<int> errorAnswers = {});

// A register file and, when the tests have one, a server register.
void places();

// Makes the register refuse a new contact named "Refused", as a failing disk or a rule
// of the server would.
void refuseName(const TestRegister& reg, TestRegister::Where where);

} // namespace kartella::test
