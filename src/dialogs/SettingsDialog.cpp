#include "dialogs/SettingsDialog.h"

#include "base/Error.h"
#include "dialogs/CaptureSettingsPage.h"
#include "dialogs/LanguageChoice.h"
#include "dialogs/SettingsStore.h"
#include "dialogs/TrashSettingsPage.h"
#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "registration/RegIndex.h"
#include "registration/ValueConversions.h"
#include "store/DueReminders.h"
#include "support/EnterAsTab.h"
#include "support/ShellDialogs.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kartella {

namespace {

QLabel* makeLabel(const QString& name, const QString& caption, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(caption, parent);
    label->setObjectName(name);
    label->setBuddy(buddy);
    return label;
}

QCheckBox* makeCheckBox(const QString& name, const QString& caption, QWidget* parent)
{
    auto* box = new QCheckBox(caption, parent);
    box->setObjectName(name);
    return box;
}

// A flag or index option that can't be read counts as 0 (false, no button).
bool flagOption(const char* name)
{
    try {
        return toTruthValue(getRegValue(QString::fromLatin1(name)));
    } catch (const Error&) {
        return false;
    }
}

int indexOption(const char* name)
{
    try {
        return toInteger16(getRegValue(QString::fromLatin1(name)));
    } catch (const Error&) {
        return 0;
    }
}

// How a register on a server is written, under the location box.
QString serverLocationHint()
{
    return QCoreApplication::translate("kartella::SettingsDialog",
        "A register on a PostgreSQL server: postgresql://user@host:port/database. Its password comes "
        "from %1 or PGPASSWORD, never from these settings.")
        .arg(serverPasswordFileName());
}

void selectButton(QButtonGroup* group, int id)
{
    if (QAbstractButton* button = group->button(id))
        button->setChecked(true);
}

} // namespace

SettingsDialog::SettingsDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmSettings"));
    setWindowTitle(tr("Application Settings"));

    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("SSTab1"));
    m_tabs->addTab(buildDefaultFolderTab(), tr("Default Folder"));
    m_tabs->addTab(buildAddressTab(), tr("Your Address"));
    m_tabs->addTab(buildIndexTab(), tr("Registration Index"));
    m_tabs->addTab(buildDatabaseTab(), tr("Database Location"));
    m_tabs->addTab(buildFileNameTab(), tr("File Name"));
    m_tabs->addTab(new CaptureSettingsPage(this), tr("Incoming Files"));
    m_tabs->addTab(new TrashSettingsPage(this), tr("Trash and Versions"));

    auto* buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName(QStringLiteral("btnOk"));
    m_ok->setDefault(true);
    m_cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    m_cancel->setObjectName(QStringLiteral("btnCancel"));
    connect(m_ok, &QPushButton::clicked, this, &SettingsDialog::save);
    connect(m_cancel, &QPushButton::clicked, this, &SettingsDialog::cancel);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(buttons);

    m_keys = new EnterAsTab(this);
    m_keys->onEscape([this] {
        askBeforeClosing();
        return true;
    });

    resize(600, 420);

    connectEvents();
    load();
}

SettingsDialog::~SettingsDialog() = default;

QLineEdit* SettingsDialog::addTextBox(const QString& name, const QString& accessibleName)
{
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    if (!accessibleName.isEmpty())
        box->setAccessibleName(accessibleName);
    return box;
}

QWidget* SettingsDialog::buildDefaultFolderTab()
{
    auto* page = new QWidget(this);
    m_defaultFolder = addTextBox(QStringLiteral("visidok"), tr("Default folder"));
    auto* choose = new QPushButton(tr("Default Folder"), page);
    choose->setObjectName(QStringLiteral("btnDefaultFolder"));
    choose->setToolTip(tr("Location of New Documents"));
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &SettingsDialog::chooseDefaultFolder);
    m_filterByDate = makeCheckBox(QStringLiteral("FilterByDate"), tr("Filter by Date  On"), page);
    m_network = makeCheckBox(QStringLiteral("network"), tr("Network"), page);
    m_showReminders
        = makeCheckBox(QStringLiteral("chkShowReminders"), tr("Show due reminders at start"), page);

    auto* folderRow = new QHBoxLayout;
    folderRow->addWidget(m_defaultFolder, 1);
    folderRow->addWidget(choose);
    auto* layout = new QVBoxLayout(page);
    layout->addLayout(folderRow);
    layout->addWidget(m_filterByDate);
    layout->addWidget(m_network);
    layout->addWidget(m_showReminders);
    auto* language = new LanguageChoice(page);
    connect(language, &LanguageChoice::changed, this, &SettingsDialog::markChanged);
    layout->addWidget(language);
    layout->addStretch(1);
    return page;
}

QWidget* SettingsDialog::buildAddressTab()
{
    auto* page = new QWidget(this);
    auto* form = new QFormLayout(page);
    const auto addRow = [&](const QString& name, const QString& label, const QString& caption) {
        QLineEdit* box = addTextBox(name);
        form->addRow(makeLabel(label, caption, box, page), box);
        return box;
    };
    m_name = addRow(QStringLiteral("name"), QStringLiteral("Label5"), tr("Name:"));
    m_street = addRow(QStringLiteral("address"), QStringLiteral("Label6"), tr("Street:"));
    m_city = addRow(QStringLiteral("city"), QStringLiteral("Label7"), tr("City:"));
    m_country = addRow(QStringLiteral("Country"), QStringLiteral("Label8"), tr("Country:"));
    m_state = addRow(QStringLiteral("State"), QStringLiteral("Label9"), tr("State/Province:"));
    m_postalCode = addRow(QStringLiteral("post"), QStringLiteral("Label10"), tr("Zip/Postal Code:"));
    m_company = addRow(QStringLiteral("txtCompany"), QStringLiteral("Label11"), tr("Company:"));
    return page;
}

QWidget* SettingsDialog::buildIndexTab()
{
    auto* page = new QWidget(this);

    auto* index = new QGroupBox(tr("Reg. Index"), page);
    m_createIndexAuto = makeCheckBox(QStringLiteral("chkCreateIndexAuto"), tr("Create Automatically"), index);
    m_useMnemonic = makeCheckBox(QStringLiteral("chkUseMnemonic"), tr("Use Mnemonic"), index);
    auto* indexLayout = new QVBoxLayout(index);
    indexLayout->addWidget(m_createIndexAuto);
    indexLayout->addWidget(m_useMnemonic);

    auto* separators = new QGroupBox(tr("Separators"), page);
    m_separator1 = addTextBox(QStringLiteral("Separ1"));
    m_separator2 = addTextBox(QStringLiteral("Separ2"));
    auto* separatorLayout = new QFormLayout(separators);
    separatorLayout->addRow(
        makeLabel(QStringLiteral("Label2"), tr("Separator1"), m_separator1, separators), m_separator1);
    separatorLayout->addRow(
        makeLabel(QStringLiteral("Label3"), tr("Separator2"), m_separator2, separators), m_separator2);

    auto* dateStyle = new QGroupBox(tr("Date Style"), page);
    auto* styleLayout = new QVBoxLayout(dateStyle);
    m_dateStyles = new QButtonGroup(this);
    const QStringList styles
        = {QStringLiteral("yyyymmdd"), QStringLiteral("mmddyyyy"), QStringLiteral("ddmmyyyy"),
            QStringLiteral("yymmdd"), QStringLiteral("mmddyy"), QStringLiteral("ddmmyy")};
    for (int style = 1; style <= styles.size(); ++style) {
        auto* button = new QRadioButton(styles[style - 1], dateStyle);
        button->setObjectName(QStringLiteral("Option_%1").arg(style));
        m_dateStyles->addButton(button, style);
        styleLayout->addWidget(button);
    }

    m_sample = addTextBox(QStringLiteral("txtSample"));
    m_sample->setReadOnly(true);
    auto* sampleLabel = makeLabel(QStringLiteral("Label4"), tr("Sample"), m_sample, page);

    auto* grid = new QGridLayout(page);
    grid->addWidget(index, 0, 0);
    grid->addWidget(separators, 1, 0);
    grid->addWidget(dateStyle, 0, 1, 2, 1);
    grid->addWidget(sampleLabel, 2, 0);
    grid->addWidget(m_sample, 3, 0, 1, 2);
    grid->setRowStretch(4, 1);
    return page;
}

QWidget* SettingsDialog::buildDatabaseTab()
{
    auto* page = new QWidget(this);
    m_dbType = new QComboBox(page);
    m_dbType->setObjectName(QStringLiteral("cboDbType"));
    m_dbType->setEditable(true);
    m_dbType->setInsertPolicy(QComboBox::NoInsert);
    m_dbType->addItems({QStringLiteral("MS Access 2000"), QStringLiteral("MS Access 97")});
    m_dbType->setCurrentIndex(-1);
    m_dbLocation = addTextBox(QStringLiteral("txtDbLocation"), tr("Register location"));
    auto* choose = new QPushButton(tr("Database File"), page);
    choose->setObjectName(QStringLiteral("btnDbName"));
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &SettingsDialog::chooseDatabaseFile);

    // A register file is chosen with the button or typed; one on a server is typed.
    auto* serverHint = new QLabel(serverLocationHint(), page);
    serverHint->setObjectName(QStringLiteral("lblServerLocation"));
    serverHint->setWordWrap(true);
    serverHint->setTextFormat(Qt::PlainText);
    m_dbLocation->setAccessibleDescription(serverHint->text());

    auto* locationRow = new QHBoxLayout;
    locationRow->addWidget(m_dbLocation, 1);
    locationRow->addWidget(choose);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(makeLabel(QStringLiteral("Label1"), tr("Database Type:"), m_dbType, page));
    layout->addWidget(m_dbType);
    layout->addLayout(locationRow);
    layout->addWidget(serverHint);
    layout->addStretch(1);
    return page;
}

QWidget* SettingsDialog::buildFileNameTab()
{
    auto* page = new QWidget(this);
    auto* frame = new QGroupBox(tr("The File Name of New Document "), page);
    auto* frameLayout = new QVBoxLayout(frame);
    m_fileNames = new QButtonGroup(this);
    const QStringList systems = {tr("Mnemonic+Number"), tr("First 25 letters of document Description+Number"),
        tr("Like Registration Index")};
    for (int system = 0; system < systems.size(); ++system) {
        auto* button = new QRadioButton(systems[system], frame);
        button->setObjectName(QStringLiteral("optFileName_%1").arg(system));
        m_fileNames->addButton(button, system);
        frameLayout->addWidget(button);
    }
    const auto addText = [page](const QString& name, const QString& text) {
        auto* label = new QLabel(text, page);
        label->setObjectName(name);
        label->setWordWrap(true);
        return label;
    };
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(addText(QStringLiteral("Label14"),
        tr("For File Names of New Documents you can use three different naming systems. Select one, "
           "that you like, please.")));
    layout->addWidget(frame);
    layout->addWidget(addText(QStringLiteral("Label12"), tr("Sample:  AGR00001.doc")));
    layout->addWidget(addText(QStringLiteral("Label13"), tr("Sample:  DocDescription125.doc")));
    layout->addStretch(1);
    return page;
}

void SettingsDialog::connectEvents()
{
    // Stored at once, shown in the sample, counted as a change.
    connect(m_separator1, &QLineEdit::textChanged, this, [this](const QString& text) {
        setRegValue(QStringLiteral("Separator1"), text);
        refreshSample();
        markChanged();
    });
    connect(m_separator2, &QLineEdit::textChanged, this, [this](const QString& text) {
        setRegValue(QStringLiteral("Separator2"), text);
        refreshSample();
        markChanged();
    });
    connect(m_useMnemonic, &QCheckBox::toggled, this, [this](bool checked) {
        setRegValue(QStringLiteral("UseMnemonic"), checked ? 1 : 0);
        refreshSample();
        markChanged();
    });
    // Stored at once without counting as a change: Esc closes without a question.
    connect(m_showReminders, &QCheckBox::toggled, this,
        [](bool checked) { setShowDueRemindersAtStart(checked); });
    connect(m_createIndexAuto, &QCheckBox::toggled, this,
        [](bool checked) { setRegValue(QStringLiteral("AutoRegIndex"), checked ? 1 : 0); });
    connect(m_dateStyles, &QButtonGroup::idToggled, this, [this](int style, bool checked) {
        if (!checked)
            return;
        setRegValue(QStringLiteral("IndexStyle"), style);
        refreshSample();
    });
    connect(m_fileNames, &QButtonGroup::idToggled, this, [](int system, bool checked) {
        if (checked)
            setRegValue(QStringLiteral("FileName"), system);
    });
    // Written by OK only; these count as a change.
    for (QLineEdit* box : {m_defaultFolder, m_name, m_street, m_city, m_country, m_postalCode})
        connect(box, &QLineEdit::textChanged, this, &SettingsDialog::markChanged);
    connect(m_dbType->lineEdit(), &QLineEdit::textEdited, this, [this] {
        m_typedDatabaseType = true;
        markChanged();
    });
    connect(m_dbType, &QComboBox::activated, this, [this] { m_typedDatabaseType = false; });
    connect(m_dbLocation, &QLineEdit::textChanged, this, [this] {
        markChanged();
        m_databaseChanged = true;
    });
}

void SettingsDialog::load()
{
    // 1. The ini file's keys. A missing folder shows the ini file's default; a missing part
    // of the address shows empty, so that nothing stands in for the user's own words.
    m_defaultFolder->setText(getIniValue(QStringLiteral("AllDocs")));
    m_storedAddressKeys.clear();
    for (const auto& [key, box] : addressBoxes()) {
        const std::optional<QString> value = findIniValue(key);
        if (value)
            m_storedAddressKeys.append(key);
        box->setText(value.value_or(QString()));
    }
    // 2 to 4 go through the controls' reactions, which store the values again.
    m_separator1->setText(getRegValue(QStringLiteral("Separator1")));
    m_separator2->setText(getRegValue(QStringLiteral("Separator2")));
    m_useMnemonic->setChecked(flagOption("UseMnemonic"));
    m_createIndexAuto->setChecked(flagOption("AutoRegIndex"));
    selectButton(m_dateStyles, indexOption("IndexStyle"));
    selectButton(m_fileNames, indexOption("FileName"));
    // A reaction doesn't run when a value equals the control's empty start.
    refreshSample();
    // 5 to 7.
    m_dbType->setCurrentIndex(listIndexForProvider(getRegValue(QStringLiteral("Provider"))));
    m_typedDatabaseType = false;
    m_dbLocation->setText(getRegValue(QStringLiteral("DbLocation")));
    m_filterByDate->setChecked(flagOption("Filter"));
    m_network->setChecked(flagOption("Network"));
    {
        // Shown as stored, not stored again: an option left unset stays so.
        const QSignalBlocker quiet(m_showReminders);
        m_showReminders->setChecked(showDueRemindersAtStart());
    }
    // 8. The load itself is no change.
    m_settingsChanged = false;
    m_databaseChanged = false;
}

QList<QPair<QString, QLineEdit*>> SettingsDialog::addressBoxes() const
{
    return {{QStringLiteral("Company"), m_company}, {QStringLiteral("Name"), m_name},
        {QStringLiteral("Address"), m_street}, {QStringLiteral("City"), m_city},
        {QStringLiteral("Country"), m_country}, {QStringLiteral("State"), m_state},
        {QStringLiteral("Postal_Code"), m_postalCode}};
}

void SettingsDialog::refreshSample()
{
    try {
        m_sample->setText(regIndexSample());
    } catch (const Error&) {
        m_sample->clear();
    }
}

int SettingsDialog::databaseTypeIndex() const
{
    return m_typedDatabaseType ? -1 : m_dbType->currentIndex();
}

void SettingsDialog::chooseDefaultFolder()
{
    const QString folder = chooseFolder(tr("Select the Default Folder for new documents"));
    if (folder.isEmpty())
        return;
    m_defaultFolder->setText(folder);
    markChanged();
}

void SettingsDialog::chooseDatabaseFile()
{
    const QString file = showOpenDialog(
        {tr("Select the Database File"), {}, tr("Access databases (*.mdb)"), QStringLiteral("*.mdb")});
    if (!file.isEmpty())
        m_dbLocation->setText(file);
}

bool SettingsDialog::refusePasswordInLocation()
{
    if (!locationHoldsPassword(m_dbLocation->text()))
        return false;
    msgBox(tr("The register location holds a password. It is not stored, since the settings file would "
              "keep it for anyone to read.\r\rWrite the location without it "
              "(postgresql://user@host:port/database) and put the password in %1 or in the environment "
              "variable PGPASSWORD.")
               .arg(serverPasswordFileName()),
        MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, windowTitle());
    m_tabs->setCurrentWidget(m_dbLocation->parentWidget());
    m_dbLocation->setFocus();
    return true;
}

void SettingsDialog::save()
{
    if (refusePasswordInLocation())
        return;
    ConfirmedSettings settings;
    settings.defaultFolder = m_defaultFolder->text();
    settings.filterByDate = m_filterByDate->isChecked();
    settings.network = m_network->isChecked();
    // An address key the file lacks is written once the user has typed something for it.
    const auto address = [this](const QString& key) -> std::optional<QString> {
        for (const auto& [name, box] : addressBoxes()) {
            if (name == key && (m_storedAddressKeys.contains(key) || !box->text().isEmpty()))
                return box->text();
        }
        return std::nullopt;
    };
    settings.company = address(QStringLiteral("Company"));
    settings.name = address(QStringLiteral("Name"));
    settings.address = address(QStringLiteral("Address"));
    settings.city = address(QStringLiteral("City"));
    settings.country = address(QStringLiteral("Country"));
    settings.state = address(QStringLiteral("State"));
    settings.postalCode = address(QStringLiteral("Postal_Code"));
    settings.databaseType = databaseTypeIndex();
    settings.dbLocation = m_dbLocation->text();
    if (!writeConfirmedSettings(settings)) {
        // The dialog stays, with what was typed, for another OK once the cause is mended.
        msgBox(tr("Unable to write the settings file %1\r\rThe settings that wait for OK are not stored. "
                  "The dialog stays open: make the file writable and press OK again, or Cancel.")
                   .arg(iniFilePath()),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, windowTitle());
        return;
    }

    findChild<TrashSettingsPage*>()->save();
    findChild<LanguageChoice*>()->save();
    // The main window answers after this dialog has closed: its refresh is queued.
    if (m_databaseChanged)
        Q_EMIT databaseLocationChanged();
    m_settingsChanged = false;
    m_databaseChanged = false;
    accept();
}

void SettingsDialog::cancel()
{
    reject();
}

void SettingsDialog::askBeforeClosing()
{
    if (!m_settingsChanged) {
        cancel();
        return;
    }
    const int answer = msgBox(
        tr("You have settings changes that have not applied.\r\n\r\nDo you want to apply these now?"),
        MsgBoxStyle::YesNoCancel | MsgBoxStyle::Exclamation, tr("Warning"));
    if (answer == MsgBoxResult::Yes)
        save();
    else if (answer == MsgBoxResult::No)
        cancel();
}

} // namespace kartella
