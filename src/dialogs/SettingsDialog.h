#pragma once

#include <QDialog>
#include <QList>
#include <QPair>
#include <QStringList>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

namespace kartella {

class EnterAsTab;

// frmSettings, "Application Settings": the options and the ini file's keys in five tabs.
// The registration index settings and the naming system are stored the moment they are
// touched, and Cancel doesn't undo them; the ini keys, the database type and location and
// the two flags of the first tab are written only by OK. Esc asks first when a change of
// the kind that counts is pending. A confirmed change of the register's location ends in
// databaseLocationChanged(), after which the main window rebuilds its tree.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    // Loads the dialog: the controls from the options and the ini file.
    explicit SettingsDialog(QWidget* parent = nullptr);
    ~SettingsDialog() override;

    // Esc asks before closing while this is set.
    bool settingsChanged() const { return m_settingsChanged; }
    // Set by an edit of the register's location; OK then announces the change.
    bool databaseChanged() const { return m_databaseChanged; }

public Q_SLOTS:
    void chooseDefaultFolder();
    void chooseDatabaseFile();
    // Writes the ini keys and the confirmed options, then closes.
    void save();
    // Closes; what was stored at once stays stored.
    void cancel();

Q_SIGNALS:
    // OK stored a changed register location (DbLocation holds it already).
    void databaseLocationChanged();

private:
    QWidget* buildDefaultFolderTab();
    QWidget* buildAddressTab();
    QWidget* buildIndexTab();
    QWidget* buildDatabaseTab();
    QWidget* buildFileNameTab();
    QLineEdit* addTextBox(const QString& name, const QString& accessibleName = {});
    void load();
    // The ini file's address keys and their boxes, in the file's order.
    QList<QPair<QString, QLineEdit*>> addressBoxes() const;
    void connectEvents();
    void markChanged() { m_settingsChanged = true; }
    void refreshSample();
    void askBeforeClosing();
    // Says why a location with a password in it isn't stored; true when it did.
    bool refusePasswordInLocation();
    // The list index of the database type: -1 while typed text stands in the box.
    int databaseTypeIndex() const;

    bool m_settingsChanged = false;
    bool m_databaseChanged = false;
    bool m_typedDatabaseType = false;
    // The address keys the ini file held when the dialog opened.
    QStringList m_storedAddressKeys;

    QTabWidget* m_tabs = nullptr;
    QLineEdit* m_defaultFolder = nullptr;
    QCheckBox* m_filterByDate = nullptr;
    QCheckBox* m_network = nullptr;
    QLineEdit* m_name = nullptr;
    QLineEdit* m_street = nullptr;
    QLineEdit* m_city = nullptr;
    QLineEdit* m_country = nullptr;
    QLineEdit* m_state = nullptr;
    QLineEdit* m_postalCode = nullptr;
    QLineEdit* m_company = nullptr;
    QCheckBox* m_createIndexAuto = nullptr;
    QCheckBox* m_showReminders = nullptr; // stored at once, no change for Esc
    QCheckBox* m_useMnemonic = nullptr;
    QLineEdit* m_separator1 = nullptr;
    QLineEdit* m_separator2 = nullptr;
    // The date styles 1 to 6 and the naming systems 0 to 2, by their option values.
    QButtonGroup* m_dateStyles = nullptr;
    QButtonGroup* m_fileNames = nullptr;
    QLineEdit* m_sample = nullptr;
    QComboBox* m_dbType = nullptr;
    QLineEdit* m_dbLocation = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
    EnterAsTab* m_keys = nullptr;
};

} // namespace kartella
