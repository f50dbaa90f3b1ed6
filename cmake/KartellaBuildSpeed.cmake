# What keeps a clean build of the program and its tests quick on a machine of two cores.
#
# Precompiled headers: the Qt and standard headers that most of our files include are parsed
# once per library, and once for all the tests, instead of once per file; parsing them was
# most of each file's compile time. GCC checks each use of a precompiled header against the
# macros it was made with (-Winvalid-pch, an error with our warnings), so the header a group
# of targets shares is made by a target with no macros of its own beyond those the group has
# in common: QtTest's per-folder macros are left out of it.
#
# The linker: lld, where the compiler can use it, links a test executable in a fifth of the
# time of the default linker.
option(KARTELLA_PRECOMPILED_HEADERS "Precompile the common Qt and standard headers" ON)
option(KARTELLA_FAST_LINKER "Link with lld where the compiler can" ON)

if(KARTELLA_FAST_LINKER AND NOT MSVC)
    include(CheckLinkerFlag)
    check_linker_flag(CXX -fuse-ld=lld KARTELLA_HAVE_LLD)
    if(KARTELLA_HAVE_LLD)
        add_link_options(-fuse-ld=lld)
    endif()
endif()

set(KARTELLA_CORE_HEADERS
    <algorithm> <functional> <memory> <optional> <vector>
    <QByteArray> <QCoreApplication> <QDate> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash>
    <QList> <QLocale> <QObject> <QProcess> <QRegularExpression> <QStandardPaths> <QString>
    <QStringList> <QTemporaryDir> <QTextStream> <QTimer> <QUrl> <QVariant>)
set(KARTELLA_GUI_HEADERS
    ${KARTELLA_CORE_HEADERS}
    <QAction> <QApplication> <QComboBox> <QDialog> <QHBoxLayout> <QHeaderView> <QKeyEvent>
    <QLabel> <QLineEdit> <QMenu> <QPainter> <QPlainTextEdit> <QPushButton> <QTableView>
    <QTreeView> <QVBoxLayout> <QWidget>)

# kartella_precompile(<target> CORE|GUI): gives a library its own precompiled header.
function(kartella_precompile target kind)
    if(KARTELLA_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE ${KARTELLA_${kind}_HEADERS})
    endif()
endfunction()

# kartella_test_precompiled_header(<target> CORE|GUI): a test executable uses the header made
# once for the tests of its kind, by a target compiled with the tests' own options.
function(kartella_test_precompiled_header target kind)
    if(NOT KARTELLA_PRECOMPILED_HEADERS)
        return()
    endif()
    string(TOLOWER ${kind} suffix)
    set(maker kartella_test_headers_${suffix})
    if(NOT TARGET ${maker})
        add_library(${maker} OBJECT ${PROJECT_SOURCE_DIR}/cmake/empty.cpp)
        kartella_warnings(${maker})
        target_compile_options(${maker} PRIVATE ${KARTELLA_TEST_CODE_OPTIONS})
        if(kind STREQUAL GUI)
            target_link_libraries(${maker} PRIVATE kartella_gui Qt6::Widgets)
        else()
            target_link_libraries(${maker} PRIVATE kartella_core)
        endif()
        target_precompile_headers(${maker} PRIVATE ${KARTELLA_${kind}_HEADERS})
    endif()
    target_precompile_headers(${target} REUSE_FROM ${maker})
endfunction()
