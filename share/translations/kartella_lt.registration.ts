<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt_LT" sourcelanguage="en">
<context>
    <name>kartella::AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>Apie „%1“</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Programos ženklelis</translation>
    </message>
    <message>
        <source>The Documents Management Application for single users and small workgroups.</source>
        <translation>Dokumentų tvarkymo programa pavieniams naudotojams ir nedidelėms darbo grupėms.</translation>
    </message>
    <message>
        <source>Warning: this program is provided as is, without warranty of any kind. Keep copies of your register and documents.</source>
        <translation>Įspėjimas: ši programa teikiama tokia, kokia yra, be jokių garantijų. Laikykite registro ir dokumentų kopijas.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Gerai</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>&amp;Sistemos informacija...</translation>
    </message>
</context>
<context>
    <name>kartella::CaptureSettingsPage</name>
    <message>
        <source>No inbox</source>
        <translation>Be gautųjų</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Naršyti...</translation>
    </message>
    <message>
        <source>Tesseract&apos;s language codes joined by &quot;+&quot;, as in &quot;lit+eng&quot;</source>
        <translation>„Tesseract“ kalbų kodai, sujungti „+“, pvz., „lit+eng“</translation>
    </message>
    <message>
        <source>&amp;Inbox folder:</source>
        <translation>&amp;Gautųjų aplankas:</translation>
    </message>
    <message>
        <source>Files put in this folder wait in the Inbox at the top of the tree. Leave it empty for no inbox.</source>
        <translation>Į šį aplanką įdėti failai laukia Gautuosiuose medžio viršuje. Palikite tuščią, jei gautųjų nereikia.</translation>
    </message>
    <message>
        <source>&amp;OCR languages:</source>
        <translation>&amp;OCR kalbos:</translation>
    </message>
    <message>
        <source>Select the inbox folder</source>
        <translation>Pasirinkite gautųjų aplanką</translation>
    </message>
    <message>
        <source>Application Settings</source>
        <translation>Programos nuostatos</translation>
    </message>
    <message>
        <source>The inbox folder &quot;%1&quot; is not there. The inbox stays as it was.</source>
        <translation>Gautųjų aplanko „%1“ nėra. Gautieji lieka kaip buvo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; are no OCR languages: write Tesseract&apos;s codes joined by &quot;+&quot;, as in &quot;lit+eng&quot;. The languages stay as they were.</source>
        <translation>„%1“ nėra OCR kalbos: rašykite „Tesseract“ kodus, sujungtus „+“, pvz., „lit+eng“. Kalbos lieka kaip buvo.</translation>
    </message>
</context>
<context>
    <name>kartella::CategoryDialog</name>
    <message>
        <source>Category</source>
        <translation>Kategorija</translation>
    </message>
    <message>
        <source>To edit template double click this field</source>
        <translation>Šabloną taisykite dukart spustelėję šį lauką</translation>
    </message>
    <message>
        <source>You have category details changes that have not applied.</source>
        <translation>Kategorijos duomenų pakeitimai dar neįrašyti.</translation>
    </message>
    <message>
        <source>This category no longer exists.</source>
        <translation>Šios kategorijos nebėra.</translation>
    </message>
    <message>
        <source>category</source>
        <translation>kategorija</translation>
    </message>
</context>
<context>
    <name>kartella::CategoryDialogBase</name>
    <message>
        <source>Path To Files</source>
        <translation>Failų aplankas</translation>
    </message>
    <message>
        <source>Word Template</source>
        <translation>Word šablonas</translation>
    </message>
    <message>
        <source>Excel Template</source>
        <translation>Excel šablonas</translation>
    </message>
    <message>
        <source>PowerPoint Template</source>
        <translation>PowerPoint šablonas</translation>
    </message>
    <message>
        <source>Title of Category:</source>
        <translation>Kategorijos pavadinimas:</translation>
    </message>
    <message>
        <source>Mnemonic:</source>
        <translation>Trumpinys:</translation>
    </message>
    <message>
        <source>Path To &amp;Files:</source>
        <translation>&amp;Failų aplankas:</translation>
    </message>
    <message>
        <source>&amp;Word Template:</source>
        <translation>&amp;Word šablonas:</translation>
    </message>
    <message>
        <source>E&amp;xcel Template:</source>
        <translation>E&amp;xcel šablonas:</translation>
    </message>
    <message>
        <source>P&amp;owerPoint Template:</source>
        <translation>P&amp;owerPoint šablonas:</translation>
    </message>
    <message>
        <source>Subcategories</source>
        <translation>Pakategorės</translation>
    </message>
    <message>
        <source>&amp;Add New SubCategory</source>
        <translation>&amp;Nauja pakategorė</translation>
    </message>
    <message>
        <source>&amp;Delete SubCategory</source>
        <translation>Ša&amp;linti pakategorę</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Gerai</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Įspėjimas</translation>
    </message>
</context>
<context>
    <name>kartella::CategoryFields</name>
    <message>
        <source>There is no category with the key %1 in the register.</source>
        <translation>Registre nėra kategorijos su raktu %1.</translation>
    </message>
</context>
<context>
    <name>kartella::CategoryTexts</name>
    <message>
        <source>Select a folder in which to place the new files of SubCategory:</source>
        <translation>Pasirinkite aplanką naujiems pakategorės failams:</translation>
    </message>
    <message>
        <source>Select a Word Template</source>
        <translation>Pasirinkite Word šabloną</translation>
    </message>
    <message>
        <source>Word templates (*.dot)</source>
        <translation>Word šablonai (*.dot)</translation>
    </message>
    <message>
        <source>Select a Excel Template</source>
        <translation>Pasirinkite Excel šabloną</translation>
    </message>
    <message>
        <source>Excel templates (*.xlt)</source>
        <translation>Excel šablonai (*.xlt)</translation>
    </message>
    <message>
        <source>Select a PowerPoint Template</source>
        <translation>Pasirinkite PowerPoint šabloną</translation>
    </message>
    <message>
        <source>PowerPoint templates (*.pot)</source>
        <translation>PowerPoint šablonai (*.pot)</translation>
    </message>
    <message>
        <source>Select the Word Template</source>
        <translation>Pasirinkite Word šabloną</translation>
    </message>
    <message>
        <source>Select the Excel Template</source>
        <translation>Pasirinkite Excel šabloną</translation>
    </message>
    <message>
        <source>Select the PowerPoint Template</source>
        <translation>Pasirinkite PowerPoint šabloną</translation>
    </message>
    <message>
        <source>SubCategory</source>
        <translation>Pakategorė</translation>
    </message>
    <message>
        <source>Path To Files</source>
        <translation>Failų aplankas</translation>
    </message>
    <message>
        <source>Word Template</source>
        <translation>Word šablonas</translation>
    </message>
    <message>
        <source>Excel Template</source>
        <translation>Excel šablonas</translation>
    </message>
    <message>
        <source>PowerPoint Template</source>
        <translation>PowerPoint šablonas</translation>
    </message>
    <message>
        <source>Title of Category</source>
        <translation>Kategorijos pavadinimas</translation>
    </message>
    <message>
        <source>Mnemonic</source>
        <translation>Trumpinys</translation>
    </message>
    <message>
        <source>SubCategory Path To Files</source>
        <translation>Pakategorės failų aplankas</translation>
    </message>
    <message>
        <source>SubCategory Word Template</source>
        <translation>Pakategorės Word šablonas</translation>
    </message>
    <message>
        <source>SubCategory Excel Template</source>
        <translation>Pakategorės Excel šablonas</translation>
    </message>
    <message>
        <source>SubCategory PowerPoint Template</source>
        <translation>Pakategorės PowerPoint šablonas</translation>
    </message>
    <message>
        <source>Select a folder in which to place the new files of - %1 - category:</source>
        <translation>Pasirinkite aplanką naujiems kategorijos „%1“ failams:</translation>
    </message>
    <message>
        <source>

Do you want to apply these now?</source>
        <translation>

Ar norite juos įrašyti dabar?</translation>
    </message>
</context>
<context>
    <name>kartella::CopyFileDialog</name>
    <message>
        <source>Copy/Move File</source>
        <translation>Kopijuoti ar perkelti failą</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Paskirties aplankas</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Paskirtis</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopijuoti</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Perkelti</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Uždaryti</translation>
    </message>
    <message>
        <source>Document Description:</source>
        <translation>Dok. aprašymas:</translation>
    </message>
    <message>
        <source>Current Location:</source>
        <translation>Dabartinė vieta:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Dydis:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Select a document with a file first, please!</source>
        <translation>Pirmiausia pasirinkite dokumentą su failu!</translation>
    </message>
    <message>
        <source>The file of this document can&apos;t be found:
%1</source>
        <translation>Šio dokumento failo nepavyko rasti:
%1</translation>
    </message>
    <message>
        <source>Select a Folder in which you&apos;ll to copy/move:</source>
        <translation>Pasirinkite aplanką, į kurį kopijuosite ar perkelsite:</translation>
    </message>
    <message>
        <source>Select the destination folder, please!</source>
        <translation>Pasirinkite paskirties aplanką!</translation>
    </message>
    <message>
        <source>The folder %1 holds a folder named %2, so the file can&apos;t be moved there.</source>
        <translation>Aplanke %1 yra aplankas, pavadintas %2, todėl failo ten perkelti negalima.</translation>
    </message>
    <message>
        <source>

The file was moved back to %1.</source>
        <translation>

Failas perkeltas atgal į %1.</translation>
    </message>
    <message>
        <source>

The file could not be moved back; it is now at %1.</source>
        <translation>

Failo nepavyko perkelti atgal; dabar jis yra %1.</translation>
    </message>
</context>
<context>
    <name>kartella::DocumentDetailsDialog</name>
    <message>
        <source>Description</source>
        <translation>Aprašymas</translation>
    </message>
    <message>
        <source>Sender/Receiver</source>
        <translation>Siuntėjas ar gavėjas</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Vieta</translation>
    </message>
    <message>
        <source>Send/Receive Date</source>
        <translation>Siuntimo ar gavimo data</translation>
    </message>
    <message>
        <source>Registration Date</source>
        <translation>Registracijos data</translation>
    </message>
    <message>
        <source>Registration Index</source>
        <translation>Registracijos indeksas</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorija</translation>
    </message>
    <message>
        <source>Subcategory</source>
        <translation>Pakategorė</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Kryptis</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Pastabos</translation>
    </message>
    <message>
        <source>Reminder date</source>
        <translation>Priminimo data</translation>
    </message>
    <message>
        <source>Reminder text</source>
        <translation>Priminimo tekstas</translation>
    </message>
    <message>
        <source>Document Description</source>
        <translation>Dokumento aprašymas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Bendra</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Priminimai</translation>
    </message>
    <message>
        <source>Tickler</source>
        <translation>Priminimai</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Istorija</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Gerai</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Taikyti</translation>
    </message>
    <message>
        <source>File icon</source>
        <translation>Failo ženklelis</translation>
    </message>
    <message>
        <source>Short Description of Document</source>
        <translation>Trumpas dokumento aprašymas</translation>
    </message>
    <message>
        <source>Location of File</source>
        <translation>Failo vieta</translation>
    </message>
    <message>
        <source>Date, Index</source>
        <translation>Data, indeksas</translation>
    </message>
    <message>
        <source>Send/Receive Date:</source>
        <translation>Siuntimo ar gavimo data:</translation>
    </message>
    <message>
        <source>Registration Date:</source>
        <translation>Registracijos data:</translation>
    </message>
    <message>
        <source>Registration Index:</source>
        <translation>Registracijos indeksas:</translation>
    </message>
    <message>
        <source>Category of Document</source>
        <translation>Dokumento kategorija</translation>
    </message>
    <message>
        <source>SubCategory of Document</source>
        <translation>Dokumento pakategorė</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Aprašymas:</translation>
    </message>
    <message>
        <source>Sender/Receiver:</source>
        <translation>Siuntėjas ar gavėjas:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Vieta:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekstas</translation>
    </message>
    <message>
        <source>This document no longer exists.</source>
        <translation>Šio dokumento nebėra.</translation>
    </message>
    <message>
        <source>%1 Description</source>
        <translation>%1 – aprašymas</translation>
    </message>
    <message>
        <source>document</source>
        <translation>dokumentas</translation>
    </message>
    <message>
        <source>You have details changes that have not applied.

Do you want to apply these now?</source>
        <translation>Duomenų pakeitimai dar neįrašyti.

Ar norite juos įrašyti dabar?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Įspėjimas</translation>
    </message>
</context>
<context>
    <name>kartella::DocumentFileName</name>
    <message>
        <source>Can&apos;t create a file, because the Registration Index is empty. Enter valid Registration Index, please.</source>
        <translation>Failo sukurti negalima, nes registracijos indeksas tuščias. Įveskite tinkamą registracijos indeksą.</translation>
    </message>
    <message>
        <source>The file name must be like Registration Index</source>
        <translation>Failo pavadinimas turi būti kaip registracijos indeksas</translation>
    </message>
    <message>
        <source>FileNumber can&apos;t go past 32767</source>
        <translation>FileNumber negali viršyti 32767</translation>
    </message>
    <message>
        <source>The File with name %1 exist. Depending on the File Name style, check Doc. Description, Registration Index or other parameters.</source>
        <translation>Failas %1 jau yra. Pagal failų pavadinimų sistemą patikrinkite dok. aprašymą, registracijos indeksą ar kitus duomenis.</translation>
    </message>
</context>
<context>
    <name>kartella::FileTextStatus</name>
    <message>
        <source>Whether the text of the file was read for the search</source>
        <translation>Ar failo tekstas perskaitytas paieškai</translation>
    </message>
    <message>
        <source>Text of the file:</source>
        <translation>Failo tekstas:</translation>
    </message>
</context>
<context>
    <name>kartella::LanguageChoice</name>
    <message>
        <source>The desktop&apos;s language</source>
        <translation>Darbalaukio kalba</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>Kalba pasikeis kitą kartą paleidus programą.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Kalba:</translation>
    </message>
</context>
<context>
    <name>kartella::MissingRegister</name>
    <message>
        <source>The register %1 cannot be found.<byte value="xd"/><byte value="xd"/>If it is on a drive or a network share that isn&apos;t connected yet, connect it and choose Try Again. You can also choose another register, or open the settings.</source>
        <translation>Registro %1 nepavyko rasti.<byte value="xd"/><byte value="xd"/>Jei jis yra dar neprijungtame diske ar tinklo aplanke, prijunkite jį ir pasirinkite „Bandyti dar kartą“. Taip pat galite pasirinkti kitą registrą arba atverti nuostatas.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Bandyti dar kartą</translation>
    </message>
    <message>
        <source>Choose Another...</source>
        <translation>Pasirinkti kitą...</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Atverti nuostatas</translation>
    </message>
    <message>
        <source>Register not found</source>
        <translation>Registras nerastas</translation>
    </message>
    <message>
        <source>Select the Database File</source>
        <translation>Pasirinkite duomenų bazės failą</translation>
    </message>
    <message>
        <source>Access databases (*.mdb)</source>
        <translation>Access duomenų bazės (*.mdb)</translation>
    </message>
</context>
<context>
    <name>kartella::NewCategoryDialog</name>
    <message>
        <source>Add New Category of Document</source>
        <translation>Nauja dokumentų kategorija</translation>
    </message>
    <message>
        <source>Changes to contact have not applied.</source>
        <translation>Pakeitimai dar neįrašyti.</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Duomenų klaida: </translation>
    </message>
</context>
<context>
    <name>kartella::NewDocumentDialog</name>
    <message>
        <source>New Document</source>
        <translation>Naujas dokumentas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Bendra</translation>
    </message>
    <message>
        <source>Tickler</source>
        <translation>Priminimai</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Pastabos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Gerai</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>Date, Index</source>
        <translation>Data, indeksas</translation>
    </message>
    <message>
        <source>Send/Receive Date:</source>
        <translation>Siuntimo ar gavimo data:</translation>
    </message>
    <message>
        <source>Registration Date:</source>
        <translation>Registracijos data:</translation>
    </message>
    <message>
        <source>Registration Index:</source>
        <translation>Registracijos indeksas:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Aprašymas:</translation>
    </message>
    <message>
        <source>Sender/Receiver:</source>
        <translation>Siuntėjas ar gavėjas:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Vieta:</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>&amp;Skenuoti</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekstas</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be taken back to &quot;%2&quot;.</source>
        <translation>Failo „%1“ nepavyko grąžinti į „%2“.</translation>
    </message>
    <message>
        <source>Unable to create a New Word Document</source>
        <translation>Nepavyko sukurti naujo Word dokumento</translation>
    </message>
    <message>
        <source>Unable to create a New Excel Document</source>
        <translation>Nepavyko sukurti naujo Excel dokumento</translation>
    </message>
    <message>
        <source>Unable to create a New PowerPoint Document</source>
        <translation>Nepavyko sukurti naujo PowerPoint dokumento</translation>
    </message>
    <message>
        <source>Select any Category, please!</source>
        <translation>Pasirinkite kategoriją!</translation>
    </message>
    <message>
        <source>Document Description Required!</source>
        <translation>Būtinas dokumento aprašymas!</translation>
    </message>
    <message>
        <source>Unable to scan a New Document</source>
        <translation>Nepavyko nuskenuoti naujo dokumento</translation>
    </message>
    <message>
        <source>The document has its file already: %1</source>
        <translation>Dokumentas jau turi failą: %1</translation>
    </message>
    <message>
        <source>Select Document</source>
        <translation>Pasirinkite dokumentą</translation>
    </message>
    <message>
        <source>All files (*.*)</source>
        <translation>Visi failai (*.*)</translation>
    </message>
    <message>
        <source>Discard the new document and delete the file &quot;%1&quot; made for it?</source>
        <translation>Atsisakyti naujo dokumento ir pašalinti jam sukurtą failą „%1“?</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be deleted: %2</source>
        <translation>Failo „%1“ pašalinti nepavyko: %2</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Priminimai</translation>
    </message>
</context>
<context>
    <name>kartella::OfficeDocuments</name>
    <message>
        <source>LibreOffice, which makes the Word, Excel and PowerPoint files, isn&apos;t installed.</source>
        <translation>Neįdiegta „LibreOffice“, kuri kuria Word, Excel ir PowerPoint failus.</translation>
    </message>
    <message>
        <source>LibreOffice didn&apos;t finish making the file in time and was stopped.</source>
        <translation>„LibreOffice“ laiku nesukūrė failo ir buvo sustabdyta.</translation>
    </message>
    <message>
        <source><byte value="xd"/><byte value="xd"/>To make these files and to open and edit them, install the packages libreoffice-writer, libreoffice-calc and libreoffice-impress.</source>
        <translation><byte value="xd"/><byte value="xd"/>Kad galėtumėte kurti, atverti ir taisyti šiuos failus, įdiekite paketus libreoffice-writer, libreoffice-calc ir libreoffice-impress.</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>Biuro dokumentai</translation>
    </message>
    <message>
        <source>Can&apos;t achieve desired template %1.<byte value="xd"/><byte value="xd"/>If you want to continue without template click OK</source>
        <translation>Nepavyko rasti norimo šablono %1.<byte value="xd"/><byte value="xd"/>Jei norite tęsti be šablono, spustelėkite „Gerai“</translation>
    </message>
    <message>
        <source>Warning: Desired template not found</source>
        <translation>Įspėjimas: norimas šablonas nerastas</translation>
    </message>
    <message>
        <source>Can&apos;t create a file</source>
        <translation>Failo sukurti nepavyko</translation>
    </message>
    <message>
        <source>Can&apos;t create a file. Try again.</source>
        <translation>Failo sukurti nepavyko. Bandykite dar kartą.</translation>
    </message>
</context>
<context>
    <name>kartella::RegIndex</name>
    <message>
        <source>The register already has a document with the index &quot;%1&quot;.</source>
        <translation>Registre jau yra dokumentas su indeksu „%1“.</translation>
    </message>
</context>
<context>
    <name>kartella::RegIndexOffer</name>
    <message>
        <source>The register already has a document with the index &quot;%1&quot;. Store this one as &quot;%2&quot;?</source>
        <translation>Registre jau yra dokumentas su indeksu „%1“. Įrašyti šį kaip „%2“?</translation>
    </message>
</context>
<context>
    <name>kartella::RelatedDocumentDialog</name>
    <message>
        <source>New Related Document</source>
        <translation>Naujas susijęs dokumentas</translation>
    </message>
    <message>
        <source>Description of Related Document</source>
        <translation>Susijusio dokumento aprašymas</translation>
    </message>
    <message>
        <source>Select a Contact</source>
        <translation>Pasirinkite kontaktą</translation>
    </message>
    <message>
        <source>Location of File</source>
        <translation>Failo vieta</translation>
    </message>
    <message>
        <source>Parent Document:</source>
        <translation>Pagrindinis dokumentas:</translation>
    </message>
    <message>
        <source>Related Document Description:</source>
        <translation>Susijusio dokumento aprašymas:</translation>
    </message>
    <message>
        <source>Send/Receive Date:</source>
        <translation>Siuntimo ar gavimo data:</translation>
    </message>
    <message>
        <source>Sender/Receiver:</source>
        <translation>Siuntėjas ar gavėjas:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Vieta:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Gerai</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Duomenų klaida: </translation>
    </message>
    <message>
        <source>This document no longer exists.</source>
        <translation>Šio dokumento nebėra.</translation>
    </message>
    <message>
        <source>This related document no longer exists.</source>
        <translation>Šio susijusio dokumento nebėra.</translation>
    </message>
    <message>
        <source>Unable to create a new Word Document</source>
        <translation>Nepavyko sukurti naujo Word dokumento</translation>
    </message>
    <message>
        <source>SubDocument Description Required!</source>
        <translation>Būtinas susijusio dokumento aprašymas!</translation>
    </message>
    <message>
        <source>Unable to create a new Excel Document</source>
        <translation>Nepavyko sukurti naujo Excel dokumento</translation>
    </message>
    <message>
        <source>Document Description Required!</source>
        <translation>Būtinas dokumento aprašymas!</translation>
    </message>
    <message>
        <source>Unable to create a new PowerPoint Document</source>
        <translation>Nepavyko sukurti naujo PowerPoint dokumento</translation>
    </message>
    <message>
        <source>Select any Category, please!</source>
        <translation>Pasirinkite kategoriją!</translation>
    </message>
    <message>
        <source>Select the Document</source>
        <translation>Pasirinkite dokumentą</translation>
    </message>
    <message>
        <source>All files (*.*)</source>
        <translation>Visi failai (*.*)</translation>
    </message>
    <message>
        <source>A related document needs its document: select one in the list first, please!</source>
        <translation>Susijusiam dokumentui reikia pagrindinio dokumento: pirmiausia pasirinkite jį sąraše!</translation>
    </message>
    <message>
        <source>document</source>
        <translation>dokumentas</translation>
    </message>
    <message>
        <source>Related Document Description</source>
        <translation>Susijusio dokumento aprašymas</translation>
    </message>
    <message>
        <source>Send/Receive Date</source>
        <translation>Siuntimo ar gavimo data</translation>
    </message>
    <message>
        <source>Sender/Receiver</source>
        <translation>Siuntėjas ar gavėjas</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Vieta</translation>
    </message>
    <message>
        <source>related document</source>
        <translation>susijęs dokumentas</translation>
    </message>
</context>
<context>
    <name>kartella::SettingsDialog</name>
    <message>
        <source>A register on a PostgreSQL server: postgresql://user@host:port/database. Its password comes from %1 or PGPASSWORD, never from these settings.</source>
        <translation>Registras PostgreSQL serveryje: postgresql://user@host:port/database. Jo slaptažodis imamas iš %1 arba PGPASSWORD, niekada iš šių nuostatų.</translation>
    </message>
    <message>
        <source>Application Settings</source>
        <translation>Programos nuostatos</translation>
    </message>
    <message>
        <source>Default Folder</source>
        <translation>Numatytasis aplankas</translation>
    </message>
    <message>
        <source>Your Address</source>
        <translation>Jūsų adresas</translation>
    </message>
    <message>
        <source>Registration Index</source>
        <translation>Registracijos indeksas</translation>
    </message>
    <message>
        <source>Database Location</source>
        <translation>Duomenų bazės vieta</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Failo pavadinimas</translation>
    </message>
    <message>
        <source>Incoming Files</source>
        <translation>Gaunami failai</translation>
    </message>
    <message>
        <source>Trash and Versions</source>
        <translation>Šiukšlinė ir versijos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Gerai</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>Default folder</source>
        <translation>Numatytasis aplankas</translation>
    </message>
    <message>
        <source>Location of New Documents</source>
        <translation>Naujų dokumentų vieta</translation>
    </message>
    <message>
        <source>Filter by Date  On</source>
        <translation>Filtruoti pagal datą</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Tinklas</translation>
    </message>
    <message>
        <source>Show due reminders at start</source>
        <translation>Paleidžiant rodyti suėjusius priminimus</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Vardas:</translation>
    </message>
    <message>
        <source>Street:</source>
        <translation>Gatvė:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Miestas:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Šalis:</translation>
    </message>
    <message>
        <source>State/Province:</source>
        <translation>Apskritis:</translation>
    </message>
    <message>
        <source>Zip/Postal Code:</source>
        <translation>Pašto kodas:</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>Įmonė:</translation>
    </message>
    <message>
        <source>Reg. Index</source>
        <translation>Reg. indeksas</translation>
    </message>
    <message>
        <source>Create Automatically</source>
        <translation>Kurti automatiškai</translation>
    </message>
    <message>
        <source>Use Mnemonic</source>
        <translation>Naudoti trumpinį</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Skirtukai</translation>
    </message>
    <message>
        <source>Separator1</source>
        <translation>Skirtukas 1</translation>
    </message>
    <message>
        <source>Separator2</source>
        <translation>Skirtukas 2</translation>
    </message>
    <message>
        <source>Date Style</source>
        <translation>Datos forma</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Pavyzdys</translation>
    </message>
    <message>
        <source>Register location</source>
        <translation>Registro vieta</translation>
    </message>
    <message>
        <source>Database File</source>
        <translation>Duomenų bazės failas</translation>
    </message>
    <message>
        <source>Database Type:</source>
        <translation>Duomenų bazės tipas:</translation>
    </message>
    <message>
        <source>The File Name of New Document </source>
        <translation>Naujo dokumento failo pavadinimas </translation>
    </message>
    <message>
        <source>Mnemonic+Number</source>
        <translation>Trumpinys+numeris</translation>
    </message>
    <message>
        <source>First 25 letters of document Description+Number</source>
        <translation>Pirmosios 25 dokumento aprašymo raidės+numeris</translation>
    </message>
    <message>
        <source>Like Registration Index</source>
        <translation>Kaip registracijos indeksas</translation>
    </message>
    <message>
        <source>For File Names of New Documents you can use three different naming systems. Select one, that you like, please.</source>
        <translation>Naujų dokumentų failams galite naudoti tris pavadinimų sistemas. Pasirinkite jums tinkamą.</translation>
    </message>
    <message>
        <source>Sample:  AGR00001.doc</source>
        <translation>Pavyzdys:  AGR00001.doc</translation>
    </message>
    <message>
        <source>Sample:  DocDescription125.doc</source>
        <translation>Pavyzdys:  DokAprasymas125.doc</translation>
    </message>
    <message>
        <source>Select the Default Folder for new documents</source>
        <translation>Pasirinkite numatytąjį naujų dokumentų aplanką</translation>
    </message>
    <message>
        <source>Select the Database File</source>
        <translation>Pasirinkite duomenų bazės failą</translation>
    </message>
    <message>
        <source>Access databases (*.mdb)</source>
        <translation>Access duomenų bazės (*.mdb)</translation>
    </message>
    <message>
        <source>The register location holds a password. It is not stored, since the settings file would keep it for anyone to read.<byte value="xd"/><byte value="xd"/>Write the location without it (postgresql://user@host:port/database) and put the password in %1 or in the environment variable PGPASSWORD.</source>
        <translation>Registro vietoje yra slaptažodis. Ji neįrašoma, nes nuostatų failas jį laikytų atvirą visiems.<byte value="xd"/><byte value="xd"/>Parašykite vietą be jo (postgresql://user@host:port/database), o slaptažodį įrašykite į %1 arba į aplinkos kintamąjį PGPASSWORD.</translation>
    </message>
    <message>
        <source>Unable to write the settings file %1<byte value="xd"/><byte value="xd"/>The settings that wait for OK are not stored. The dialog stays open: make the file writable and press OK again, or Cancel.</source>
        <translation>Nepavyko įrašyti nuostatų failo %1<byte value="xd"/><byte value="xd"/>Nuostatos, laukiančios „Gerai“, neįrašytos. Langas lieka atvertas: leiskite rašyti į failą ir vėl spauskite „Gerai“ arba „Atsisakyti“.</translation>
    </message>
    <message>
        <source>You have settings changes that have not applied.<byte value="xd"/>
<byte value="xd"/>
Do you want to apply these now?</source>
        <translation>Nuostatų pakeitimai dar neįrašyti.<byte value="xd"/>
<byte value="xd"/>
Ar norite juos įrašyti dabar?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Įspėjimas</translation>
    </message>
</context>
<context>
    <name>kartella::SettingsStore</name>
    <message>
        <source>Source : %1   </source>
        <translation>Šaltinis: %1   </translation>
    </message>
</context>
<context>
    <name>kartella::SystemInfo</name>
    <message>
        <source>Version %1.%2.%3</source>
        <translation>Versija %1.%2.%3</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Sistemos informacija šiuo metu negalima</translation>
    </message>
</context>
<context>
    <name>kartella::TrashSettingsPage</name>
    <message>
        <source>&amp;Keep deleted items for (days):</source>
        <translation>&amp;Laikyti pašalintus elementus (dienų):</translation>
    </message>
    <message>
        <source>Earlier &amp;versions kept per document:</source>
        <translation>Ankstesnių &amp;versijų vienam dokumentui:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Na&amp;ršyti...</translation>
    </message>
    <message>
        <source>&amp;Shared folder of a register on a server:</source>
        <translation>&amp;Bendras serverio registro aplankas:</translation>
    </message>
    <message>
        <source>A register file keeps its deleted files and earlier versions in folders beside it.</source>
        <translation>Registro failas pašalintus failus ir ankstesnes versijas laiko šalia esančiuose aplankuose.</translation>
    </message>
    <message>
        <source>Shared folder of the trash and versions</source>
        <translation>Bendras šiukšlinės ir versijų aplankas</translation>
    </message>
</context>
<context>
    <name>kartella::ValueConversions</name>
    <message>
        <source>Type mismatch: %1</source>
        <translation>Netinkamas tipas: %1</translation>
    </message>
    <message>
        <source>Overflow: %1</source>
        <translation>Perpildymas: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t a date</source>
        <translation>„%1“ nėra data</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t a truth value</source>
        <translation>„%1“ nėra loginė reikšmė</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t a number</source>
        <translation>„%1“ nėra skaičius</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>„%1“ nepatenka į leistinas ribas</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>reikšmė tuščia</translation>
    </message>
    <message>
        <source>the value isn&apos;t a number</source>
        <translation>reikšmė nėra skaičius</translation>
    </message>
    <message>
        <source>%1 is out of range</source>
        <translation>%1 nepatenka į leistinas ribas</translation>
    </message>
</context>
</TS>
