#pragma once

#include <QObject>

// The contact import: the readers of vCard files and Outlook CSV exports
// (tst_contactreaders.cpp, tst_readeredges.cpp), and the import into a register
// (tst_contactimport.cpp, tst_importedges.cpp, and its transactions in tst_importcommits.cpp).
class ContactImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // readers
    void outlookVCard21WithQuotedPrintableWindows1252();
    void vCard40FromAnotherAddressBook();
    void vCardPhoneTypes_data();
    void vCardPhoneTypes();
    void vCardFirstFittingLineWins();
    void vCardBalticText_data();
    void vCardBalticText();
    void vCardNotes_data();
    void vCardNotes();
    void outlookCsvSeparators_data();
    void outlookCsvSeparators();
    void outlookCsvCodePages_data();
    void outlookCsvCodePages();
    void outlookCsvNotes_data();
    void outlookCsvNotes();
    void unreadableFiles();

    // reader edges (tst_readeredges.cpp)
    void vCardEdges_data();
    void vCardEdges();
    void codePageGuess_data();
    void codePageGuess();
    void codePageNames();

    // import
    void importWritesRowsInOrder();
    void duplicateRuleFoldsCaseOnly_data();
    void duplicateRuleFoldsCaseOnly();
    void cutsAndRepeatedRuns();
    void namesWithQuotesAndWildcards_data();
    void namesWithQuotesAndWildcards();
    void failedStepKeepsTheOtherRows_data();
    void failedStepKeepsTheOtherRows();
    void questionAndFileChoice();
    void commandLine_data();
    void commandLine();

    // import edges (tst_importedges.cpp)
    void sameNameTwiceInOneFile();
    void namesStoredMeanwhileAreSkipped();
    void importSpeaksLithuanian();
    void busyOnlyWhileWriting_data();
    void busyOnlyWhileWriting();
    void nameIndexAnswersAsItsStatement_data();
    void nameIndexAnswersAsItsStatement();

    // commits (tst_importcommits.cpp)
    void lostCommitWritesTheItemsAgain_data();
    void lostCommitWritesTheItemsAgain();
    void stopWhenACommitIsLost();
    void commitsOnceASecond_data();
    void commitsOnceASecond();
    void failedStepsOfOneItem();
    void cutsKeepPairsWhole_data();
    void cutsKeepPairsWhole();
};
