#pragma once

#include <QObject>

// The trash, the versions and their windows; the windows' cases are in TrashWindowTests.cpp.
class TrashTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deleteAndRestoreGiveBackEveryRowAndFile_data();
    void deleteAndRestoreGiveBackEveryRowAndFile();
    void restoreOverATakenPathTakesTheNextFreeName();
    void documentRestoredIntoADeletedCategoryBringsItBack();
    void purgeTakesOnlyItemsOlderThanTheLimit_data();
    void purgeTakesOnlyItemsOlderThanTheLimit();
    void deleteForGoodAndEmpty();
    void aFileThatCantMoveKeepsEverything();
    void theTrashIsSharedByEveryConnection_data();
    void theTrashIsSharedByEveryConnection();
    void commandLineListsRestoresAndPurges();
    void deletedItemsNodeByKeysAndMouse();
    void versionsKeepReplaceRestoreAndLimit();
    void newVersionFromTheMenu();
    void newVersionByDroppingWithShift();
    void settingsTabStoresTheLimits();
    void anOlderRegisterDeletesAsBeforeUntilUpgraded();
    void aServerRegisterAsksForTheSharedFolderOnce();
    void aServerRegisterAsksForTheVersionsFolder();
    void contactFromTheAddressBookComesBackWhole();
    void restoreInTheWindowTellsOfATakenPath();
    void deletedItemsWindowSpeaksLithuanian();
    void startPurgesItemsOlderThanTheLimit();
};
