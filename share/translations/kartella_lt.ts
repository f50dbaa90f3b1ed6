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
    <name>kartella::AddressBookWindow</name>
    <message>
        <source>Contact</source>
        <translation>Kontaktas</translation>
    </message>
    <message>
        <source>Delete Contact</source>
        <translation>Šalinti kontaktą</translation>
    </message>
    <message>
        <source>New Contact</source>
        <translation>Naujas kontaktas</translation>
    </message>
    <message>
        <source>Dial</source>
        <translation>Skambinti</translation>
    </message>
    <message>
        <source>Dialing Number</source>
        <translation>Renkamas numeris</translation>
    </message>
    <message>
        <source>Browse URL</source>
        <translation>Atverti URL</translation>
    </message>
    <message>
        <source>Mail to</source>
        <translation>Rašyti laišką</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtras</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Visi</translation>
    </message>
    <message>
        <source>phone</source>
        <translation>telefonas</translation>
    </message>
    <message>
        <source>web page</source>
        <translation>tinklalapis</translation>
    </message>
    <message>
        <source>Company Name:</source>
        <translation>Įmonė:</translation>
    </message>
    <message>
        <source>Contact Title:</source>
        <translation>Pareigos:</translation>
    </message>
    <message>
        <source>Dear:</source>
        <translation>Kreipinys:</translation>
    </message>
    <message>
        <source>Contact Name:</source>
        <translation>Vardas, pavardė:</translation>
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
        <source>State/Province:</source>
        <translation>Regionas:</translation>
    </message>
    <message>
        <source>Postal/Zip code:</source>
        <translation>Pašto kodas:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Šalis:</translation>
    </message>
    <message>
        <source>EMail Address:</source>
        <translation>El. pašto adresas:</translation>
    </message>
    <message>
        <source>Phones:</source>
        <translation>Telefonai:</translation>
    </message>
    <message>
        <source>Web Pages URL&apos;s:</source>
        <translation>Tinklalapių adresai:</translation>
    </message>
    <message>
        <source>Address Book</source>
        <translation>Adresų knyga</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Įrašų: %1</translation>
    </message>
    <message>
        <source>Do you want to save changes you made to Contact?</source>
        <translation>Ar įrašyti kontakto pakeitimus?</translation>
    </message>
    <message>
        <source>Saving Contact Changes</source>
        <translation>Kontakto pakeitimų įrašymas</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>kontaktas</translation>
    </message>
    <message>
        <source>Delete the contact %1 with its phones and web pages?</source>
        <translation>Šalinti kontaktą %1 kartu su jo telefonais ir tinklalapiais?</translation>
    </message>
    <message>
        <source>Confirm Deletion</source>
        <translation>Šalinimo patvirtinimas</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontaktai</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>Tinklalapio adresas</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Telefonai</translation>
    </message>
    <message>
        <source>PhoneName</source>
        <translation>Pavadinimas</translation>
    </message>
    <message>
        <source>PhoneNumber</source>
        <translation>Numeris</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Aprašymas</translation>
    </message>
    <message>
        <source>HomeWWW</source>
        <translation>Adresas</translation>
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
    <name>kartella::ChangedRowPrompt</name>
    <message>
        <source>(empty)</source>
        <translation>(tuščia)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>This document was changed by another user since you opened it.</source>
        <translation>Kol dokumentas buvo atvertas, jį pakeitė kitas naudotojas.</translation>
    </message>
    <message>
        <source>This related document was changed by another user since you opened it.</source>
        <translation>Kol susijęs dokumentas buvo atvertas, jį pakeitė kitas naudotojas.</translation>
    </message>
    <message>
        <source>This contact was changed by another user since you opened it.</source>
        <translation>Kol kontaktas buvo atvertas, jį pakeitė kitas naudotojas.</translation>
    </message>
    <message>
        <source>This category was changed by another user since you opened it.</source>
        <translation>Kol kategorija buvo atverta, ją pakeitė kitas naudotojas.</translation>
    </message>
    <message>
        <source>This %1 was changed by another user since you opened it.</source>
        <translation>Kol šis įrašas (%1) buvo atvertas, jį pakeitė kitas naudotojas.</translation>
    </message>
    <message>
        <source>%1: stored %2, yours %3</source>
        <translation>%1: įrašyta %2, jūsų %3</translation>
    </message>
    <message>
        <source>Reload shows what is stored now, and you may type again. Keep Mine stores yours over it. Cancel goes back to what you typed.</source>
        <translation>„Įkelti iš naujo“ parodys, kas įrašyta dabar, ir galėsite įvesti dar kartą. „Palikti mano“ įrašys jūsų reikšmes vietoj jų. „Atsisakyti“ grąžins tai, ką įvedėte.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Į&amp;kelti iš naujo</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Palikti mano</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
</context>
<context>
    <name>kartella::ContactEditor</name>
    <message>
        <source>New Contact</source>
        <translation>Naujas kontaktas</translation>
    </message>
    <message>
        <source>Contact Info</source>
        <translation>Kontakto duomenys</translation>
    </message>
    <message>
        <source>Add &amp;Phone</source>
        <translation>Pridėti &amp;telefoną</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Telefonai</translation>
    </message>
    <message>
        <source>Add &amp;URL</source>
        <translation>Pridėti &amp;URL</translation>
    </message>
    <message>
        <source>Home pages</source>
        <translation>Tinklalapiai</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Pastabos</translation>
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
        <source>Company Name:</source>
        <translation>Įmonė:</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Pareigos:</translation>
    </message>
    <message>
        <source>Dear:</source>
        <translation>Kreipinys:</translation>
    </message>
    <message>
        <source>FullName:</source>
        <translation>Vardas, pavardė:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresas:</translation>
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
        <translation>Regionas:</translation>
    </message>
    <message>
        <source>Zip/Postal Code:</source>
        <translation>Pašto kodas:</translation>
    </message>
    <message>
        <source>EmailName:</source>
        <translation>El. paštas:</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Duomenų klaida: </translation>
    </message>
    <message>
        <source>Company Name</source>
        <translation>Įmonė</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Pareigos</translation>
    </message>
    <message>
        <source>Dear</source>
        <translation>Kreipinys</translation>
    </message>
    <message>
        <source>FullName</source>
        <translation>Vardas, pavardė</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresas</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Miestas</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Šalis</translation>
    </message>
    <message>
        <source>State/Province</source>
        <translation>Regionas</translation>
    </message>
    <message>
        <source>Zip/Postal Code</source>
        <translation>Pašto kodas</translation>
    </message>
    <message>
        <source>EmailName</source>
        <translation>El. paštas</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefonas</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Telefono numeris</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Tinklalapis</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>Tinklalapio adresas</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>kontaktas</translation>
    </message>
    <message>
        <source>Changes to contact have not applied.

Do you want to apply these now?</source>
        <translation>Kontakto pakeitimai nepritaikyti.

Ar pritaikyti juos dabar?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Įspėjimas</translation>
    </message>
    <message>
        <source>PhoneName</source>
        <translation>Pavadinimas</translation>
    </message>
    <message>
        <source>PhoneNumber</source>
        <translation>Numeris</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Aprašymas</translation>
    </message>
    <message>
        <source>HomeWWW</source>
        <translation>Adresas</translation>
    </message>
</context>
<context>
    <name>kartella::ContactFile</name>
    <message>
        <source>The contact file &quot;%1&quot; could not be read: %2.</source>
        <translation>Kontaktų failo „%1“ nepavyko perskaityti: %2.</translation>
    </message>
    <message>
        <source>The contact file &quot;%1&quot; is neither a vCard file nor an Outlook CSV export.</source>
        <translation>Kontaktų failas „%1“ nėra nei vCard failas, nei Outlook CSV eksportas.</translation>
    </message>
</context>
<context>
    <name>kartella::ContentProgress</name>
    <message>
        <source>The text of the documents&apos; files being read for the search</source>
        <translation>Skaitomas dokumentų failų tekstas paieškai</translation>
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
    <message>
        <source>The file %1 was not replaced: an earlier version of it could not be kept.

%2</source>
        <translation>Failas %1 nepakeistas: nepavyko išsaugoti ankstesnės jo versijos.

%2</translation>
    </message>
</context>
<context>
    <name>kartella::DeletedItemsNode</name>
    <message>
        <source>Deleted items</source>
        <translation>Pašalinti elementai</translation>
    </message>
</context>
<context>
    <name>kartella::DeletedItemsWindow</name>
    <message>
        <source>Deleted items</source>
        <translation>Pašalinti elementai</translation>
    </message>
    <message>
        <source>&amp;Deleted items:</source>
        <translation>&amp;Pašalinti elementai:</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Elementas</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Rūšis</translation>
    </message>
    <message>
        <source>Deleted by</source>
        <translation>Pašalino</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Kada</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Atkurti</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>Ša&amp;linti</translation>
    </message>
    <message>
        <source>&amp;Empty Trash</source>
        <translation>&amp;Išvalyti šiukšlinę</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; for good? It can&apos;t be restored afterwards.</source>
        <translation>Pašalinti „%1“ visam laikui? Vėliau jo nebus galima atkurti.</translation>
    </message>
    <message>
        <source>Confirm Deletion</source>
        <translation>Šalinimo patvirtinimas</translation>
    </message>
    <message>
        <source>Delete all %1 deleted items for good? They can&apos;t be restored afterwards.</source>
        <translation>Pašalinti visus pašalintus elementus (%1) visam laikui? Vėliau jų nebus galima atkurti.</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Išvalyti šiukšlinę</translation>
    </message>
</context>
<context>
    <name>kartella::DesktopShell</name>
    <message>
        <source>Moving File</source>
        <translation>Failas perkeliamas</translation>
    </message>
    <message>
        <source>Copying File</source>
        <translation>Failas kopijuojamas</translation>
    </message>
    <message>
        <source>Moving &apos;%1&apos; to &apos;%2&apos;...</source>
        <translation>„%1“ perkeliamas į „%2“...</translation>
    </message>
    <message>
        <source>Copying &apos;%1&apos; to &apos;%2&apos;...</source>
        <translation>„%1“ kopijuojamas į „%2“...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>No program on this desktop opens files of the type %1.<byte value="xd"/><byte value="xd"/>Install a program for this type of file, or choose one for it in the desktop&apos;s settings, then open the document again.</source>
        <translation>Šiame darbalaukyje nėra programos, kuri atvertų šio tipo failus: %1.<byte value="xd"/><byte value="xd"/>Įdiekite programą šio tipo failams arba pasirinkite ją darbalaukio nuostatose, tada dokumentą atverkite dar kartą.</translation>
    </message>
    <message>
        <source>Unable to open Document</source>
        <translation>Nepavyko atverti dokumento</translation>
    </message>
</context>
<context>
    <name>kartella::Dialing</name>
    <message>
        <source>Dial number isn&apos;t selected!</source>
        <translation>Nepasirinktas renkamas numeris!</translation>
    </message>
    <message>
        <source>Unable to dial</source>
        <translation>Nepavyko skambinti</translation>
    </message>
    <message>
        <source>Unable to dial number %1: no program on this desktop takes phone calls (none is set for tel: links).<byte value="xd"/><byte value="xd"/>Install a softphone or a phone link that handles tel: links, then dial again.</source>
        <translation>Nepavyko surinkti numerio %1: šiame darbalaukyje nėra programos, priimančios skambučius (tel: nuorodoms nenustatyta jokia).<byte value="xd"/><byte value="xd"/>Įdiekite programinį telefoną arba telefono nuorodą, kuri apdoroja tel: nuorodas, ir skambinkite dar kartą.</translation>
    </message>
    <message>
        <source>Dial Number Error</source>
        <translation>Numerio rinkimo klaida</translation>
    </message>
    <message>
        <source>Please pickup the phone and choose OK to dial %1</source>
        <translation>Pakelkite ragelį ir spauskite „Gerai“, kad būtų surinktas numeris %1</translation>
    </message>
    <message>
        <source>Dial Number</source>
        <translation>Numerio rinkimas</translation>
    </message>
    <message>
        <source>Unable to dial number %1<byte value="xd"/><byte value="xd"/>Make sure no other devices are using the Com port</source>
        <translation>Nepavyko surinkti numerio %1<byte value="xd"/><byte value="xd"/>Įsitikinkite, kad COM prievado nenaudoja kiti įrenginiai</translation>
    </message>
</context>
<context>
    <name>kartella::DialogParts</name>
    <message>
        <source>Category</source>
        <translation>Kategorija</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Kryptis</translation>
    </message>
    <message>
        <source>Inner</source>
        <translation>Vidinis</translation>
    </message>
    <message>
        <source>Outgoing</source>
        <translation>Siunčiamas</translation>
    </message>
    <message>
        <source>Incoming</source>
        <translation>Gaunamas</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Kitas</translation>
    </message>
    <message>
        <source>Create With</source>
        <translation>Sukurti su</translation>
    </message>
    <message>
        <source>&amp;Add Existing</source>
        <translation>Pr&amp;idėti esamą</translation>
    </message>
    <message>
        <source>You have details changes that have not applied.

Do you want to apply these now?</source>
        <translation>Yra nepritaikytų išsamios informacijos pakeitimų.

Ar pritaikyti juos dabar?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Įspėjimas</translation>
    </message>
    <message>
        <source>Error: %1 %2</source>
        <translation>Klaida: %1 %2</translation>
    </message>
    <message>
        <source>This document was deleted by another user; your changes were not saved.</source>
        <translation>Dokumentą pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.</translation>
    </message>
    <message>
        <source>This related document was deleted by another user; your changes were not saved.</source>
        <translation>Susijusį dokumentą pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.</translation>
    </message>
    <message>
        <source>This contact was deleted by another user; your changes were not saved.</source>
        <translation>Kontaktą pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.</translation>
    </message>
    <message>
        <source>This category was deleted by another user; your changes were not saved.</source>
        <translation>Kategoriją pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.</translation>
    </message>
    <message>
        <source>This %1 was deleted by another user; your changes were not saved.</source>
        <translation>Šį įrašą (%1) pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.</translation>
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
    <name>kartella::DocumentFills</name>
    <message>
        <source>There aren&apos;t any data to display!</source>
        <translation>Nėra duomenų, kuriuos būtų galima parodyti!</translation>
    </message>
    <message>
        <source>Found in the file</source>
        <translation>Rasta faile</translation>
    </message>
    <message>
        <source>Doc. description</source>
        <translation>Dok. aprašymas</translation>
    </message>
    <message>
        <source>Reg.index</source>
        <translation>Reg. indeksas</translation>
    </message>
    <message>
        <source>Sender/Receiver</source>
        <translation>Siuntėjas / gavėjas</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Pastabos</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorija</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumentai</translation>
    </message>
    <message>
        <source>%1 object(s)</source>
        <translation>Objektų: %1</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Ieškoma…</translation>
    </message>
    <message>
        <source>Doc. Description</source>
        <translation>Dok. aprašymas</translation>
    </message>
</context>
<context>
    <name>kartella::FieldBinder</name>
    <message>
        <source>&quot;%1&quot; in &quot;%2&quot; isn&apos;t a date. Type the date as %3, please.</source>
        <translation>„%1“ lauke „%2“ nėra data. Įveskite datą taip: %3.</translation>
    </message>
</context>
<context>
    <name>kartella::FileDrops</name>
    <message>
        <source>Only files can be registered; these are not files:
%1</source>
        <translation>Registruoti galima tik failus; šie nėra failai:
%1</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Naujas dokumentas</translation>
    </message>
</context>
<context>
    <name>kartella::FileInfo</name>
    <message>
        <source>API Error</source>
        <translation>API klaida</translation>
    </message>
    <message>
        <source>Operating System Error</source>
        <translation>Operacinės sistemos klaida</translation>
    </message>
</context>
<context>
    <name>kartella::FilePropertiesDialog</name>
    <message>
        <source>%1 Properties</source>
        <translation>%1 – savybės</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Pavadinimas:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Tipas:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Dydis:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Aplankas:</translation>
    </message>
    <message>
        <source>&amp;Modified:</source>
        <translation>Pa&amp;keistas:</translation>
    </message>
    <message>
        <source>&amp;Created:</source>
        <translation>&amp;Sukurtas:</translation>
    </message>
    <message>
        <source>&amp;Permissions:</source>
        <translation>&amp;Leidimai:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Uždaryti</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 baitas</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 (%2 bytes)</source>
        <translation>%1 (%2 B)</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Skaityti ir rašyti</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Tik skaityti</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>Tik rašyti</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Prieigos nėra</translation>
    </message>
    <message>
        <source>%1, executable</source>
        <translation>%1, vykdomasis</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Nuoroda</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nėra</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nežinoma</translation>
    </message>
</context>
<context>
    <name>kartella::FileShell</name>
    <message>
        <source>The file was copied to &apos;%1&apos;, but the original couldn&apos;t be removed: %2</source>
        <translation>Failas nukopijuotas į „%1“, bet originalo pašalinti nepavyko: %2</translation>
    </message>
    <message>
        <source>Do you want to permanently delete the file &apos;%1&apos;?</source>
        <translation>Ar tikrai visam laikui pašalinti failą „%1“?</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; already exists in &apos;%2&apos;. Do you want to replace it?</source>
        <translation>Failas „%1“ aplanke „%2“ jau yra. Ar jį pakeisti?</translation>
    </message>
    <message>
        <source>Error Deleting File</source>
        <translation>Klaida šalinant failą</translation>
    </message>
    <message>
        <source>Can&apos;t delete &apos;%1&apos;: the file can&apos;t be found.</source>
        <translation>Nepavyko pašalinti „%1“: failas nerastas.</translation>
    </message>
    <message>
        <source>Can&apos;t delete &apos;%1&apos;: it is a folder.</source>
        <translation>Nepavyko pašalinti „%1“: tai aplankas.</translation>
    </message>
    <message>
        <source>Can&apos;t delete &apos;%1&apos;: %2</source>
        <translation>Nepavyko pašalinti „%1“: %2</translation>
    </message>
    <message>
        <source>Error Moving File</source>
        <translation>Klaida perkeliant failą</translation>
    </message>
    <message>
        <source>Error Copying File</source>
        <translation>Klaida kopijuojant failą</translation>
    </message>
    <message>
        <source>Can&apos;t move &apos;%1&apos;: %2</source>
        <translation>Nepavyko perkelti „%1“: %2</translation>
    </message>
    <message>
        <source>Can&apos;t copy &apos;%1&apos;: %2</source>
        <translation>Nepavyko nukopijuoti „%1“: %2</translation>
    </message>
    <message>
        <source>the file can&apos;t be found.</source>
        <translation>failas nerastas.</translation>
    </message>
    <message>
        <source>the folder &apos;%1&apos; doesn&apos;t exist.</source>
        <translation>aplanko „%1“ nėra.</translation>
    </message>
    <message>
        <source>the source and the target are the same file.</source>
        <translation>šaltinis ir paskirtis yra tas pats failas.</translation>
    </message>
    <message>
        <source>a folder of that name exists in &apos;%1&apos;.</source>
        <translation>aplanke „%1“ yra tokio pavadinimo aplankas.</translation>
    </message>
    <message>
        <source>Delete File</source>
        <translation>Failo šalinimas</translation>
    </message>
    <message>
        <source>Confirm File Replace</source>
        <translation>Failo pakeitimo patvirtinimas</translation>
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
    <name>kartella::HistoryTab</name>
    <message>
        <source>When</source>
        <translation>Kada</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Kas</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Komanda</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Kas pakeista</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Pakeitimas</translation>
    </message>
    <message>
        <source>&amp;Changes:</source>
        <translation>&amp;Pakeitimai:</translation>
    </message>
    <message>
        <source>Earlier &amp;versions of the file:</source>
        <translation>Ankstesnės failo &amp;versijos:</translation>
    </message>
</context>
<context>
    <name>kartella::HistoryText</name>
    <message>
        <source>Description</source>
        <translation>Aprašymas</translation>
    </message>
    <message>
        <source>Sender/Receiver</source>
        <translation>Siuntėjas / gavėjas</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Vieta</translation>
    </message>
    <message>
        <source>Send/Receive Date</source>
        <translation>Siuntimo / gavimo data</translation>
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
        <source>Executor</source>
        <translation>Vykdytojas</translation>
    </message>
    <message>
        <source>Execution mark</source>
        <translation>Įvykdymo žyma</translation>
    </message>
    <message>
        <source>Related Document Description</source>
        <translation>Susijusio dokumento aprašymas</translation>
    </message>
    <message>
        <source>Parent Document</source>
        <translation>Pagrindinis dokumentas</translation>
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
        <source>Done</source>
        <translation>Atlikta</translation>
    </message>
    <message>
        <source>Category (plural)</source>
        <translation>Kategorija (daugiskaita)</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Šablonas</translation>
    </message>
    <message>
        <source>Spreadsheet template</source>
        <translation>Skaičiuoklės šablonas</translation>
    </message>
    <message>
        <source>Presentation template</source>
        <translation>Pateikties šablonas</translation>
    </message>
    <message>
        <source>Folder of files</source>
        <translation>Failų aplankas</translation>
    </message>
    <message>
        <source>Company Name</source>
        <translation>Įmonės pavadinimas</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Pareigos</translation>
    </message>
    <message>
        <source>Dear</source>
        <translation>Kreipinys</translation>
    </message>
    <message>
        <source>FullName</source>
        <translation>Vardas ir pavardė</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresas</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Miestas</translation>
    </message>
    <message>
        <source>State/Province</source>
        <translation>Apskritis / provincija</translation>
    </message>
    <message>
        <source>Zip/Postal Code</source>
        <translation>Pašto kodas</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Regionas</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Šalis</translation>
    </message>
    <message>
        <source>EmailName</source>
        <translation>El. paštas</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefonas</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Telefono numeris</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Tinklalapis</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>Tinklalapio adresas</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(tuščia)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Inner</source>
        <translation>Vidinis</translation>
    </message>
    <message>
        <source>Outgoing</source>
        <translation>Siunčiamas</translation>
    </message>
    <message>
        <source>Incoming</source>
        <translation>Gaunamas</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Kitas</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokumentas</translation>
    </message>
    <message>
        <source>Document added</source>
        <translation>Pridėtas dokumentas</translation>
    </message>
    <message>
        <source>Document deleted</source>
        <translation>Pašalintas dokumentas</translation>
    </message>
    <message>
        <source>Document changed</source>
        <translation>Pakeistas dokumentas</translation>
    </message>
    <message>
        <source>Related document</source>
        <translation>Susijęs dokumentas</translation>
    </message>
    <message>
        <source>Related document added</source>
        <translation>Pridėtas susijęs dokumentas</translation>
    </message>
    <message>
        <source>Related document deleted</source>
        <translation>Pašalintas susijęs dokumentas</translation>
    </message>
    <message>
        <source>Related document changed</source>
        <translation>Pakeistas susijęs dokumentas</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Priminimas</translation>
    </message>
    <message>
        <source>Reminder added</source>
        <translation>Pridėtas priminimas</translation>
    </message>
    <message>
        <source>Reminder deleted</source>
        <translation>Pašalintas priminimas</translation>
    </message>
    <message>
        <source>Reminder changed</source>
        <translation>Pakeistas priminimas</translation>
    </message>
    <message>
        <source>Category added</source>
        <translation>Pridėta kategorija</translation>
    </message>
    <message>
        <source>Category deleted</source>
        <translation>Pašalinta kategorija</translation>
    </message>
    <message>
        <source>Category changed</source>
        <translation>Pakeista kategorija</translation>
    </message>
    <message>
        <source>Subcategory added</source>
        <translation>Pridėta pakategorė</translation>
    </message>
    <message>
        <source>Subcategory deleted</source>
        <translation>Pašalinta pakategorė</translation>
    </message>
    <message>
        <source>Subcategory changed</source>
        <translation>Pakeista pakategorė</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontaktas</translation>
    </message>
    <message>
        <source>Contact added</source>
        <translation>Pridėtas kontaktas</translation>
    </message>
    <message>
        <source>Contact deleted</source>
        <translation>Pašalintas kontaktas</translation>
    </message>
    <message>
        <source>Contact changed</source>
        <translation>Pakeistas kontaktas</translation>
    </message>
    <message>
        <source>Phone added</source>
        <translation>Pridėtas telefonas</translation>
    </message>
    <message>
        <source>Phone deleted</source>
        <translation>Pašalintas telefonas</translation>
    </message>
    <message>
        <source>Phone changed</source>
        <translation>Pakeistas telefonas</translation>
    </message>
    <message>
        <source>Web page added</source>
        <translation>Pridėtas tinklalapis</translation>
    </message>
    <message>
        <source>Web page deleted</source>
        <translation>Pašalintas tinklalapis</translation>
    </message>
    <message>
        <source>Web page changed</source>
        <translation>Pakeistas tinklalapis</translation>
    </message>
    <message>
        <source>New Document</source>
        <comment>command</comment>
        <translation>Naujas dokumentas</translation>
    </message>
    <message>
        <source>Copy/Move</source>
        <comment>command</comment>
        <translation>Kopijuoti / perkelti</translation>
    </message>
    <message>
        <source>Related</source>
        <comment>command</comment>
        <translation>Susiję dokumentai</translation>
    </message>
    <message>
        <source>Details</source>
        <comment>command</comment>
        <translation>Išsami informacija</translation>
    </message>
    <message>
        <source>Category</source>
        <comment>command</comment>
        <translation>Kategorija</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>command</comment>
        <translation>Šalinti</translation>
    </message>
    <message>
        <source>Reminders Done</source>
        <comment>command</comment>
        <translation>Priminimai atlikti</translation>
    </message>
    <message>
        <source>Contact</source>
        <comment>command</comment>
        <translation>Kontaktas</translation>
    </message>
    <message>
        <source>Import</source>
        <comment>command</comment>
        <translation>Importuoti</translation>
    </message>
    <message>
        <source>Restore</source>
        <comment>command</comment>
        <translation>Atkurti</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>kita programa</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>Pridėta: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation>Pašalinta: %1</translation>
    </message>
    <message>
        <source>%1 was %2</source>
        <translation>%1 buvo %2</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>Pakeista: %1</translation>
    </message>
    <message>
        <source>%1 changed from %2 to %3</source>
        <translation>%1: pakeista iš %2 į %3</translation>
    </message>
</context>
<context>
    <name>kartella::InboxView</name>
    <message>
        <source>Inbox</source>
        <translation>Gautieji</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Pavadinimas</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dydis</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>%1 object(s)</source>
        <translation>Objektų: %1</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no longer in the inbox.</source>
        <translation>Failo „%1“ gautuosiuose nebėra.</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; from the inbox to the trash?</source>
        <translation>Perkelti „%1“ iš gautųjų į šiukšlinę?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be moved to the trash: %2</source>
        <translation>„%1“ negalima perkelti į šiukšlinę: %2</translation>
    </message>
</context>
<context>
    <name>kartella::IncomingFile</name>
    <message>
        <source>Select any Category, please!</source>
        <translation>Pasirinkite kategoriją!</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no longer there.</source>
        <translation>Failo „%1“ ten nebėra.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be copied to &quot;%2&quot;: %3</source>
        <translation>Failo „%1“ nepavyko nukopijuoti į „%2“: %3</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be moved to &quot;%2&quot;: %3</source>
        <translation>Failo „%1“ nepavyko perkelti į „%2“: %3</translation>
    </message>
</context>
<context>
    <name>kartella::KeptFilesCopy</name>
    <message>
        <source>%1 could not be copied to %2.</source>
        <translation>%1 nepavyko nukopijuoti į %2.</translation>
    </message>
    <message>
        <source>The files of the deleted items and earlier versions stay in %1: the new register has no folder for them until a shared folder for the trash is named in Settings.</source>
        <translation>Pašalintų elementų failai ir ankstesnės versijos lieka aplanke %1: naujasis registras neturi jiems aplanko, kol nuostatose nenurodytas bendras šiukšlinės aplankas.</translation>
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
    <name>kartella::LibreOfficeConverter</name>
    <message>
        <source>LibreOffice did not finish the conversion in %1 seconds and was stopped.</source>
        <translation>LibreOffice nebaigė keitimo per %1 s ir buvo sustabdyta.</translation>
    </message>
    <message>
        <source>LibreOffice could not be started: </source>
        <translation>Nepavyko paleisti LibreOffice: </translation>
    </message>
    <message>
        <source>LibreOffice made no PDF of the file: </source>
        <translation>LibreOffice nesukūrė failo PDF: </translation>
    </message>
    <message>
        <source>(no output)</source>
        <translation>(jokios išvesties)</translation>
    </message>
</context>
<context>
    <name>kartella::LibreOfficeSuite</name>
    <message>
        <source>LibreOffice can&apos;t be found: there is no program &quot;soffice&quot; on the PATH. Install the Debian packages libreoffice-writer-nogui, libreoffice-calc-nogui and libreoffice-impress-nogui.</source>
        <translation>LibreOffice nerasta: PATH kelyje nėra programos „soffice“. Įdiekite Debian paketus libreoffice-writer-nogui, libreoffice-calc-nogui ir libreoffice-impress-nogui.</translation>
    </message>
    <message>
        <source>(no output)</source>
        <translation>(nieko neišvesta)</translation>
    </message>
    <message>
        <source>LibreOffice (%1) couldn&apos;t be started: %2</source>
        <translation>Nepavyko paleisti LibreOffice (%1): %2</translation>
    </message>
    <message>
        <source>LibreOffice didn&apos;t finish making %1 within %2 seconds and was stopped.</source>
        <translation>LibreOffice nebaigė kurti %1 per %2 s ir buvo sustabdyta.</translation>
    </message>
    <message>
        <source>LibreOffice failed making %1 (exit code %2): %3</source>
        <translation>LibreOffice nepavyko sukurti %1 (išėjimo kodas %2): %3</translation>
    </message>
    <message>
        <source>The new document has no path.</source>
        <translation>Naujam dokumentui nenurodytas kelias.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; already exists.</source>
        <translation>Failas „%1“ jau yra.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; doesn&apos;t exist.</source>
        <translation>Aplanko „%1“ nėra.</translation>
    </message>
    <message>
        <source>The template &apos;%1&apos; can&apos;t be found.</source>
        <translation>Šablonas „%1“ nerastas.</translation>
    </message>
    <message>
        <source>No temporary folder for LibreOffice: %1</source>
        <translation>Nėra laikinojo aplanko LibreOffice programai: %1</translation>
    </message>
    <message>
        <source>The empty document couldn&apos;t be written: %1</source>
        <translation>Nepavyko įrašyti tuščio dokumento: %1</translation>
    </message>
    <message>
        <source>LibreOffice couldn&apos;t make %1 from &apos;%2&apos;: %3</source>
        <translation>LibreOffice nepavyko sukurti %1 iš „%2“: %3</translation>
    </message>
    <message>
        <source>The new document couldn&apos;t be moved to &apos;%1&apos;: %2</source>
        <translation>Nepavyko perkelti naujo dokumento į „%1“: %2</translation>
    </message>
    <message>
        <source>No program could be started to show &apos;%1&apos;.</source>
        <translation>Nepavyko paleisti programos „%1“ parodyti.</translation>
    </message>
</context>
<context>
    <name>kartella::MainWindow</name>
    <message>
        <source>Band</source>
        <translation>Juosta</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Kryptis</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Visi</translation>
    </message>
    <message>
        <source>Inner</source>
        <translation>Vidiniai</translation>
    </message>
    <message>
        <source>Outgoing</source>
        <translation>Siunčiami</translation>
    </message>
    <message>
        <source>Incoming</source>
        <translation>Gaunami</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Kiti</translation>
    </message>
    <message>
        <source>Set Start Date</source>
        <translation>Nustatyti pradžios datą</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Pradžios data</translation>
    </message>
    <message>
        <source>Set End Date</source>
        <translation>Nustatyti pabaigos datą</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Pabaigos data</translation>
    </message>
    <message>
        <source>Navigation tree</source>
        <translation>Naršymo medis</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumentai</translation>
    </message>
    <message>
        <source>Click on column header to sort list entries in alternating sequence.</source>
        <translation>Spustelėkite stulpelio antraštę, kad sąrašas būtų rikiuojamas pakaitomis didėjimo ir mažėjimo tvarka.</translation>
    </message>
    <message>
        <source>Related documents</source>
        <translation>Susiję dokumentai</translation>
    </message>
    <message>
        <source>Object(s) count</source>
        <translation>Objektų skaičius</translation>
    </message>
    <message>
        <source>Location of Data Source </source>
        <translation>Duomenų šaltinio vieta </translation>
    </message>
    <message>
        <source>There is no register at %1 yet.

Create an empty register there?</source>
        <translation>Vietoje %1 registro dar nėra.

Sukurti ten tuščią registrą?</translation>
    </message>
    <message>
        <source>Select Start Date LESS then End Date, please</source>
        <translation>Pasirinkite pradžios datą, ANKSTESNĘ už pabaigos datą</translation>
    </message>
    <message>
        <source>Select End Date GREATHER then Start Date, please.</source>
        <translation>Pasirinkite pabaigos datą, VĖLESNĘ už pradžios datą.</translation>
    </message>
    <message>
        <source>Date Set Error</source>
        <translation>Datos nustatymo klaida</translation>
    </message>
    <message>
        <source>Error: %1 %2<byte value="xd"/>Select correct database type and file, please!</source>
        <translation>Klaida: %1 %2<byte value="xd"/>Pasirinkite tinkamą duomenų bazės tipą ir failą!</translation>
    </message>
    <message>
        <source>Connection to database error:</source>
        <translation>Prisijungimo prie duomenų bazės klaida:</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a register: the file is empty.</source>
        <translation>„%1“ nėra registras: failas tuščias.</translation>
    </message>
    <message>
        <source>The database &apos;%1&apos; holds no register.</source>
        <translation>Duomenų bazėje „%1“ registro nėra.</translation>
    </message>
    <message>
        <source>Exploring Category — %1</source>
        <translation>Naršoma kategorija — %1</translation>
    </message>
    <message>
        <source>Exploring  — %1</source>
        <translation>Naršoma — %1</translation>
    </message>
    <message>
        <source>Exploring Contact  — %1</source>
        <translation>Naršomas kontaktas — %1</translation>
    </message>
    <message>
        <source>Print Setup</source>
        <translation>Spausdinimo nuostatos</translation>
    </message>
    <message>
        <source>Path to Location of this Document not included!</source>
        <translation>Šio dokumento vietos kelias nenurodytas!</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Failas nerastas</translation>
    </message>
    <message>
        <source>Path to file is invalid!</source>
        <translation>Netinkamas failo kelias!</translation>
    </message>
    <message>
        <source>Unable to open Document</source>
        <translation>Nepavyko atverti dokumento</translation>
    </message>
    <message>
        <source>Select document, please!</source>
        <translation>Pasirinkite dokumentą!</translation>
    </message>
    <message>
        <source>Unable to delete as requested</source>
        <translation>Nepavyko pašalinti, kaip prašyta</translation>
    </message>
    <message>
        <source>This related document has no file. A related document is deleted together with its file.</source>
        <translation>Šis susijęs dokumentas neturi failo. Susijęs dokumentas šalinamas kartu su jo failu.</translation>
    </message>
    <message>
        <source>The file of this related document was not found:
%1
A related document is deleted together with its file.</source>
        <translation>Šio susijusio dokumento failas nerastas:
%1
Susijęs dokumentas šalinamas kartu su jo failu.</translation>
    </message>
    <message>
        <source>Delete the related document &quot;%1&quot; and its file?</source>
        <translation>Šalinti susijusį dokumentą „%1“ ir jo failą?</translation>
    </message>
    <message>
        <source>Delete the document &quot;%1&quot;</source>
        <translation>Šalinti dokumentą „%1“</translation>
    </message>
    <message>
        <source> and its file</source>
        <translation> ir jo failą</translation>
    </message>
    <message>
        <source>, with its related document and its file</source>
        <translation>, kartu su susijusiu dokumentu ir jo failu</translation>
    </message>
    <message>
        <source>, with its %1 related documents and their files</source>
        <translation>, kartu su susijusiais dokumentais (%1) ir jų failais</translation>
    </message>
    <message>
        <source>Confirm Deletion</source>
        <translation>Šalinimo patvirtinimas</translation>
    </message>
    <message>
        <source>The file could not be moved to the trash:
%1
%2</source>
        <translation>Failo nepavyko perkelti į šiukšlinę:
%1
%2</translation>
    </message>
    <message>
        <source>Do you wish to delete Category and SubCategories?</source>
        <translation>Ar norite šalinti kategoriją ir jos pakategores?</translation>
    </message>
    <message>
        <source>Do you wish to delete SubCategory?</source>
        <translation>Ar norite šalinti pakategorę?</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Naujas dokumentas</translation>
    </message>
    <message>
        <source>Copy/Move File</source>
        <translation>Failo kopijavimas / perkėlimas</translation>
    </message>
    <message>
        <source>New Related Document</source>
        <translation>Naujas susijęs dokumentas</translation>
    </message>
    <message>
        <source>Document Details</source>
        <translation>Dokumento duomenys</translation>
    </message>
    <message>
        <source>Category Options</source>
        <translation>Kategorijos nuostatos</translation>
    </message>
    <message>
        <source>New Contact</source>
        <translation>Naujas kontaktas</translation>
    </message>
    <message>
        <source>New Category</source>
        <translation>Nauja kategorija</translation>
    </message>
    <message>
        <source>Address Book</source>
        <translation>Adresų knyga</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Nuostatos</translation>
    </message>
    <message>
        <source>About Kartella</source>
        <translation>Apie Kartella</translation>
    </message>
    <message>
        <source>report</source>
        <translation>ataskaita</translation>
    </message>
    <message>
        <source>contact import</source>
        <translation>kontaktų importas</translation>
    </message>
    <message>
        <source>The %1 dialog is not available in this version.</source>
        <translation>Dialogo „%1“ šioje versijoje nėra.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Failas</translation>
    </message>
    <message>
        <source>&amp;New Document</source>
        <translation>&amp;Naujas dokumentas</translation>
    </message>
    <message>
        <source>Sc&amp;an New Document...</source>
        <translation>&amp;Skenuoti naują dokumentą...</translation>
    </message>
    <message>
        <source>&amp;Open Document</source>
        <translation>&amp;Atverti dokumentą</translation>
    </message>
    <message>
        <source>&amp;Copy Document</source>
        <translation>&amp;Kopijuoti dokumentą</translation>
    </message>
    <message>
        <source>&amp;Move Document</source>
        <translation>&amp;Perkelti dokumentą</translation>
    </message>
    <message>
        <source>New &amp;Version...</source>
        <translation>Nauja &amp;versija...</translation>
    </message>
    <message>
        <source>&amp;Delete Document</source>
        <translation>Ša&amp;linti dokumentą</translation>
    </message>
    <message>
        <source>De&amp;lete Category</source>
        <translation>Šalinti kate&amp;goriją</translation>
    </message>
    <message>
        <source>Print Set&amp;up</source>
        <translation>Spausdinimo nu&amp;ostatos</translation>
    </message>
    <message>
        <source>&amp;Print Document</source>
        <translation>Spa&amp;usdinti dokumentą</translation>
    </message>
    <message>
        <source>Ne&amp;w Related Document</source>
        <translation>Naujas susi&amp;jęs dokumentas</translation>
    </message>
    <message>
        <source>&amp;Show Details</source>
        <translation>Rodyti &amp;duomenis</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>Sav&amp;ybės</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Baigti</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Rodinys</translation>
    </message>
    <message>
        <source>By Category</source>
        <translation>Pagal kategorijas</translation>
    </message>
    <message>
        <source>By Contacts</source>
        <translation>Pagal kontaktus</translation>
    </message>
    <message>
        <source>Lar&amp;ge Icons</source>
        <translation>&amp;Didelės piktogramos</translation>
    </message>
    <message>
        <source>S&amp;mall Icons</source>
        <translation>&amp;Mažos piktogramos</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Sąrašas</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Išsamiai</translation>
    </message>
    <message>
        <source>Pre&amp;view Pane</source>
        <translation>&amp;Peržiūros sritis</translation>
    </message>
    <message>
        <source>Arrange &amp;Icons</source>
        <translation>&amp;Rikiuoti piktogramas</translation>
    </message>
    <message>
        <source>by &amp;Document description</source>
        <translation>pagal &amp;dokumento aprašymą</translation>
    </message>
    <message>
        <source>by &amp;Registration Index</source>
        <translation>pagal &amp;registracijos indeksą</translation>
    </message>
    <message>
        <source>by &amp;Correspondent</source>
        <translation>pagal &amp;korespondentą</translation>
    </message>
    <message>
        <source>by D&amp;ate</source>
        <translation>pagal d&amp;atą</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Atnaujinti</translation>
    </message>
    <message>
        <source>&amp;Category Options</source>
        <translation>&amp;Kategorijos nuostatos</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Eiti</translation>
    </message>
    <message>
        <source>&amp;New Contact</source>
        <translation>&amp;Naujas kontaktas</translation>
    </message>
    <message>
        <source>Ne&amp;w Category</source>
        <translation>Nauja &amp;kategorija</translation>
    </message>
    <message>
        <source>&amp;Address Book</source>
        <translation>&amp;Adresų knyga</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Priemonės</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Nuostatos</translation>
    </message>
    <message>
        <source>&amp;Import Address Book from Outlook</source>
        <translation>&amp;Importuoti adresų knygą iš Outlook</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Ataskaitos</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Kategorijos</translation>
    </message>
    <message>
        <source>&amp;Documents List&apos;s</source>
        <translation>&amp;Dokumentų sąrašai</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>Šis mėnuo</translation>
    </message>
    <message>
        <source>Previous Month</source>
        <translation>Praėjęs mėnuo</translation>
    </message>
    <message>
        <source>P&amp;hones</source>
        <translation>&amp;Telefonai</translation>
    </message>
    <message>
        <source>&amp;Contacts</source>
        <translation>&amp;Kontaktai</translation>
    </message>
    <message>
        <source>&amp;Reminder</source>
        <translation>&amp;Priminimai</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Žinynas</translation>
    </message>
    <message>
        <source>&amp;About Kartella</source>
        <translation>&amp;Apie Kartella</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Įrankių juosta</translation>
    </message>
    <message>
        <source>New Document (Ctrl+N)</source>
        <translation>Naujas dokumentas (Ctrl+N)</translation>
    </message>
    <message>
        <source>Open Document (Ctrl+O)</source>
        <translation>Atverti dokumentą (Ctrl+O)</translation>
    </message>
    <message>
        <source>Copy Document (Ctrl+C)</source>
        <translation>Kopijuoti dokumentą (Ctrl+C)</translation>
    </message>
    <message>
        <source>Move Document (Ctrl+M)</source>
        <translation>Perkelti dokumentą (Ctrl+M)</translation>
    </message>
    <message>
        <source>Delete Document (Del)</source>
        <translation>Šalinti dokumentą (Del)</translation>
    </message>
    <message>
        <source>Print (Ctrl+P)</source>
        <translation>Spausdinti (Ctrl+P)</translation>
    </message>
    <message>
        <source>Show Details (F3)</source>
        <translation>Rodyti duomenis (F3)</translation>
    </message>
    <message>
        <source>Properties (F4)</source>
        <translation>Savybės (F4)</translation>
    </message>
    <message>
        <source>Lar&amp;ge</source>
        <translation>&amp;Didelės</translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation>&amp;Mažos</translation>
    </message>
    <message>
        <source>View Type</source>
        <translation>Rodinio tipas</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Atverti</translation>
    </message>
    <message>
        <source>&amp;Copy/Move</source>
        <translation>&amp;Kopijuoti / perkelti</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Šalinti</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>S&amp;pausdinti</translation>
    </message>
    <message>
        <source>Ne&amp;w Related</source>
        <translation>Naujas susi&amp;jęs</translation>
    </message>
    <message>
        <source>&amp;Edit Details</source>
        <translation>&amp;Taisyti duomenis</translation>
    </message>
    <message>
        <source>Next Pane</source>
        <translation>Kita sritis</translation>
    </message>
    <message>
        <source>Previous Pane</source>
        <translation>Ankstesnė sritis</translation>
    </message>
    <message>
        <source>Find Documents</source>
        <translation>Rasti dokumentus</translation>
    </message>
    <message>
        <source>Search — %1</source>
        <translation>Paieška — %1</translation>
    </message>
    <message>
        <source>New Version</source>
        <translation>Nauja versija</translation>
    </message>
    <message>
        <source>Scan New Vers&amp;ion...</source>
        <translation>Skenuoti naują ve&amp;rsiją...</translation>
    </message>
    <message>
        <source>Scanned pages make a PDF file, so they can replace only a PDF file; %1 is not one.</source>
        <translation>Nuskenuoti puslapiai sudaro PDF failą, todėl jie gali pakeisti tik PDF failą; %1 nėra PDF failas.</translation>
    </message>
    <message>
        <source>No temporary folder could be made for the scanned pages: %1</source>
        <translation>Nepavyko sukurti laikinojo aplanko nuskenuotiems puslapiams: %1</translation>
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
    <name>kartella::NetworkShare</name>
    <message>
        <source>a network drive</source>
        <translation>tinklo diskas</translation>
    </message>
    <message>
        <source>The register is on a network share (%1), whose locks several writers can&apos;t rely on: a workgroup is safer on a PostgreSQL server. Move it there with: kartella-db copy &quot;%2&quot; postgresql://USER@HOST:PORT/DATABASE</source>
        <translation>Registras yra bendrame tinklo aplanke (%1), kurio užraktais keli rašantieji pasikliauti negali: darbo grupei saugiau PostgreSQL serveryje. Perkelkite jį ten komanda: kartella-db copy &quot;%2&quot; postgresql://USER@HOST:PORT/DATABASE</translation>
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
    <name>kartella::OptionStore</name>
    <message>
        <source>ERROR # %1 : 0<byte value="xd"/>Please exit and try again.</source>
        <translation>KLAIDA Nr. %1 : 0<byte value="xd"/>Baikite darbą ir bandykite dar kartą.</translation>
    </message>
    <message>
        <source>Unable to set Registry Value %1</source>
        <translation>Nepavyko nustatyti nuostatos reikšmės %1</translation>
    </message>
    <message>
        <source>Unable to get Registry Value %1</source>
        <translation>Nepavyko gauti nuostatos reikšmės %1</translation>
    </message>
    <message>
        <source>The option %1 can&apos;t be read: it holds &quot;%2&quot; (%3).<byte value="xd"/><byte value="xd"/>Correct it in %4, then try again.</source>
        <translation>Nuostatos %1 perskaityti nepavyko: jos reikšmė „%2“ (%3).<byte value="xd"/><byte value="xd"/>Pataisykite ją %4 ir bandykite dar kartą.</translation>
    </message>
</context>
<context>
    <name>kartella::OutlookImport</name>
    <message>
        <source>An error occured while importing data. The error was error number %1: %2Would you like to continue trying to import data?</source>
        <translation>Importuojant duomenis įvyko klaida. Klaidos numeris %1: %2Ar bandyti importuoti toliau?</translation>
    </message>
    <message>
        <source>%1 added, %2 skipped as already there, %3 failed</source>
        <translation>Pridėta: %1, praleista (jau yra): %2, nepavyko: %3</translation>
    </message>
    <message>
        <source>, %1 passed over without a name</source>
        <translation>, praleista be vardo: %1</translation>
    </message>
    <message>
        <source>Importing data will bring in ALL contacts from Outlook. Do you wish to continue?</source>
        <translation>Bus importuoti VISI Outlook kontaktai. Ar tęsti?</translation>
    </message>
    <message>
        <source>Contact Manager</source>
        <translation>Kontaktų tvarkyklė</translation>
    </message>
    <message>
        <source>Import Contacts</source>
        <translation>Importuoti kontaktus</translation>
    </message>
    <message>
        <source>vCard and Outlook CSV files</source>
        <translation>vCard ir Outlook CSV failai</translation>
    </message>
    <message>
        <source>An error occured while importing data.  %1</source>
        <translation>Importuojant duomenis įvyko klaida.  %1</translation>
    </message>
    <message>
        <source>Unable to find Outlook Contacts folder</source>
        <translation>Nepavyko rasti Outlook kontaktų aplanko</translation>
    </message>
    <message>
        <source>Error in ImportOutlookData()</source>
        <translation>Klaida ImportOutlookData()</translation>
    </message>
    <message>
        <source>Contacts successfully imported.</source>
        <translation>Kontaktai sėkmingai importuoti.</translation>
    </message>
    <message>
        <source>Contacts did not import.</source>
        <translation>Kontaktai neimportuoti.</translation>
    </message>
    <message>
        <source>Import Contacts from Outlook</source>
        <translation>Kontaktų importas iš Outlook</translation>
    </message>
</context>
<context>
    <name>kartella::PathUtils</name>
    <message>
        <source>The system cannot find the file specified.</source>
        <translation>Sistema nerado nurodyto failo.</translation>
    </message>
    <message>
        <source>The system cannot find the path specified.</source>
        <translation>Sistema nerado nurodyto kelio.</translation>
    </message>
    <message>
        <source>Access is denied.</source>
        <translation>Prieiga uždrausta.</translation>
    </message>
    <message>
        <source>The filename, directory name, or volume label syntax is incorrect.</source>
        <translation>Neteisinga failo, aplanko ar tomo žymės sintaksė.</translation>
    </message>
    <message>
        <source>The specified path is invalid.</source>
        <translation>Nurodytas kelias neteisingas.</translation>
    </message>
    <message>
        <source>The filename or extension is too long.</source>
        <translation>Failo vardas arba plėtinys per ilgas.</translation>
    </message>
</context>
<context>
    <name>kartella::PdfViewer</name>
    <message>
        <source>Zoom Out (Ctrl+-)</source>
        <translation>Mažinti (Ctrl+-)</translation>
    </message>
    <message>
        <source>Zoom In (Ctrl++)</source>
        <translation>Didinti (Ctrl++)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Puslapis %1 iš %2</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Mažinti</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Didinti</translation>
    </message>
</context>
<context>
    <name>kartella::PreviewContent</name>
    <message>
        <source>The image can&apos;t be read: </source>
        <translation>Nepavyko perskaityti paveikslo: </translation>
    </message>
    <message>
        <source>The PDF is protected by a password.</source>
        <translation>PDF apsaugotas slaptažodžiu.</translation>
    </message>
    <message>
        <source>The file can&apos;t be opened.</source>
        <translation>Nepavyko atverti failo.</translation>
    </message>
    <message>
        <source>The PDF is damaged or not a PDF.</source>
        <translation>PDF sugadintas arba tai ne PDF.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read: </source>
        <translation>Nepavyko perskaityti failo: </translation>
    </message>
</context>
<context>
    <name>kartella::PreviewPane</name>
    <message>
        <source>File not found. It is no longer in its folder:
</source>
        <translation>Failas nerastas. Jo nebėra aplanke:
</translation>
    </message>
    <message>
        <source>Making a preview of the document…</source>
        <translation>Ruošiama dokumento peržiūra…</translation>
    </message>
    <message>
        <source>No preview for this kind of file</source>
        <translation>Šios rūšies failų peržiūros nėra</translation>
    </message>
    <message>
        <source>No preview: </source>
        <translation>Peržiūros nėra: </translation>
    </message>
    <message>
        <source>No preview: the converted document can&apos;t be kept in </source>
        <translation>Peržiūros nėra: konvertuoto dokumento nepavyko išlaikyti aplanke </translation>
    </message>
</context>
<context>
    <name>kartella::RecordsetModel</name>
    <message>
        <source>This row was deleted by another user; your change was not saved.</source>
        <translation>Šią eilutę pašalino kitas naudotojas; jūsų pakeitimas neįrašytas.</translation>
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
    <name>kartella::RegisterUpgradeOffer</name>
    <message>
        <source>The register &quot;%1&quot; was made by an earlier version of Kartella. Upgrade it to this version now?<byte value="xd"/><byte value="xd"/>Every document, category and contact is kept.</source>
        <translation>Registras „%1“ sukurtas ankstesne Kartella versija. Atnaujinti jį iki šios versijos dabar?<byte value="xd"/><byte value="xd"/>Visi dokumentai, kategorijos ir kontaktai išliks.</translation>
    </message>
    <message>
        <source>The register &quot;%1&quot; was made by an earlier version of Kartella and was not upgraded. Upgrade it, or choose another register.</source>
        <translation>Registras „%1“ sukurtas ankstesne Kartella versija ir nebuvo atnaujintas. Atnaujinkite jį arba pasirinkite kitą registrą.</translation>
    </message>
    <message>
        <source>The register &quot;%1&quot; could not be upgraded; it is left as it was. %2</source>
        <translation>Registro „%1“ atnaujinti nepavyko; jis paliktas, koks buvo. %2</translation>
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
    <name>kartella::RemindersCommand</name>
    <message>
        <source>No reminders due</source>
        <translation>Priminimų nėra</translation>
    </message>
    <message>
        <source>1 reminder due</source>
        <translation>Priminimų: 1</translation>
    </message>
    <message>
        <source>%1 reminders due</source>
        <translation>Priminimų: %1</translation>
    </message>
    <message>
        <source>&amp;Reminders</source>
        <translation>&amp;Priminimai</translation>
    </message>
    <message>
        <source>The reminders due today and overdue</source>
        <translation>Šiandienos ir pavėluoti priminimai</translation>
    </message>
    <message>
        <source>Due reminders (Ctrl+R shows them)</source>
        <translation>Laukiantys priminimai (Ctrl+R juos parodo)</translation>
    </message>
</context>
<context>
    <name>kartella::RemindersModel</name>
    <message>
        <source>Date unreadable</source>
        <translation>Data neįskaitoma</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Pavėluotas</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Šiandien</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Terminas</translation>
    </message>
    <message>
        <source>Registration Index</source>
        <translation>Registracijos indeksas</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Aprašymas</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekstas</translation>
    </message>
</context>
<context>
    <name>kartella::RemindersWindow</name>
    <message>
        <source>Reminders</source>
        <translation>Priminimai</translation>
    </message>
    <message>
        <source>Due reminders</source>
        <translation>Laukiantys priminimai</translation>
    </message>
    <message>
        <source>No reminders are due.</source>
        <translation>Laukiančių priminimų nėra.</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Atlikta</translation>
    </message>
    <message>
        <source>Mark the selected reminders done: they are not shown again</source>
        <translation>Pažymėti pasirinktus priminimus atliktais: jie daugiau nerodomi</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Vėliau</translation>
    </message>
    <message>
        <source>Close; the reminders show again at the next start</source>
        <translation>Uždaryti; priminimai vėl bus parodyti kitą kartą paleidus programą</translation>
    </message>
    <message>
        <source>This register was made by an older Kartella and can&apos;t keep a reminder done until it is upgraded. Nothing in it is lost by the upgrade.<byte value="xd"/><byte value="xd"/>Upgrade it now?</source>
        <translation>Šis registras sukurtas senesne Kartella ir negali įsiminti atlikto priminimo, kol nebus atnaujintas. Atnaujinant niekas neprarandama.<byte value="xd"/><byte value="xd"/>Atnaujinti dabar?</translation>
    </message>
    <message>
        <source>A reminder was changed by another user since the list was shown; it is not marked done. The list shows it as it is now.</source>
        <translation>Kitas naudotojas pakeitė priminimą po to, kai sąrašas buvo parodytas; jis nepažymėtas atliktu. Sąraše jis rodomas toks, koks yra dabar.</translation>
    </message>
    <message>
        <source>A reminder was deleted by another user since the list was shown; it has left the list.</source>
        <translation>Kitas naudotojas ištrynė priminimą po to, kai sąrašas buvo parodytas; jis pašalintas iš sąrašo.</translation>
    </message>
</context>
<context>
    <name>kartella::ReportLayouts</name>
    <message>
        <source>Categories</source>
        <translation>Kategorijos</translation>
    </message>
    <message>
        <source>CATEGORIES</source>
        <translation>KATEGORIJOS</translation>
    </message>
    <message>
        <source>Mnem</source>
        <translation>Trump.</translation>
    </message>
    <message>
        <source>Location of files</source>
        <translation>Failų vieta</translation>
    </message>
    <message>
        <source>WORD Template</source>
        <translation>WORD šablonas</translation>
    </message>
    <message>
        <source>EXCEL Template</source>
        <translation>EXCEL šablonas</translation>
    </message>
    <message>
        <source>POWERPOINT Template</source>
        <translation>POWERPOINT šablonas</translation>
    </message>
    <message>
        <source>List by Contacts</source>
        <translation>Sąrašas pagal kontaktus</translation>
    </message>
    <message>
        <source>List of Documents by Contacts</source>
        <translation>Dokumentų sąrašas pagal kontaktus</translation>
    </message>
    <message>
        <source>Doc. Description</source>
        <translation>Dok. aprašymas</translation>
    </message>
    <message>
        <source>Reg. Date</source>
        <translation>Reg. data</translation>
    </message>
    <message>
        <source>Reg. Index</source>
        <translation>Reg. indeksas</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorija</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>Telefonai</translation>
    </message>
    <message>
        <source>List of Documents by Category</source>
        <translation>Dokumentų sąrašas pagal kategoriją</translation>
    </message>
    <message>
        <source>Sender/Receiver</source>
        <translation>Siuntėjas / gavėjas</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Priminimas</translation>
    </message>
    <message>
        <source>Telephone List</source>
        <translation>Telefonų sąrašas</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Adresai</translation>
    </message>
    <message>
        <source>Address Book</source>
        <translation>Adresų knyga</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>Šis mėnuo</translation>
    </message>
    <message>
        <source>List Of documents By Categories</source>
        <translation>Dokumentų sąrašas pagal kategorijas</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Spausdinta:</translation>
    </message>
    <message>
        <source>page</source>
        <translation>puslapis</translation>
    </message>
    <message>
        <source>of</source>
        <translation>iš</translation>
    </message>
</context>
<context>
    <name>kartella::ReportPages</name>
    <message>
        <source>The report could not be printed.</source>
        <translation>Ataskaitos nepavyko išspausdinti.</translation>
    </message>
</context>
<context>
    <name>kartella::ReportPdf</name>
    <message>
        <source>Can&apos;t write the file &quot;%1&quot;: %2.</source>
        <translation>Nepavyko įrašyti failo „%1“: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the register the report reads; choose another file for the report.</source>
        <translation>„%1“ yra registras, iš kurio skaitoma ataskaita; ataskaitai pasirinkite kitą failą.</translation>
    </message>
    <message>
        <source>the PDF could not be started</source>
        <translation>nepavyko pradėti PDF</translation>
    </message>
    <message>
        <source>the PDF could not be made</source>
        <translation>nepavyko sukurti PDF</translation>
    </message>
    <message>
        <source>it is not a plain file</source>
        <translation>tai ne paprastas failas</translation>
    </message>
</context>
<context>
    <name>kartella::ReportPreview</name>
    <message>
        <source>Save as PDF...</source>
        <translation>Įrašyti kaip PDF...</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Įrašyti kaip PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF failai (*.pdf)</translation>
    </message>
</context>
<context>
    <name>kartella::SaneScanner</name>
    <message>
        <source>Scanning needs SANE, which is not installed. Install the Debian package libsane1.</source>
        <translation>Skenuoti reikia SANE, kuri neįdiegta. Įdiekite Debian paketą libsane1.</translation>
    </message>
    <message>
        <source>No scanner was found. Check that the scanner is connected and switched on; the command scanimage -L (Debian package sane-utils) lists the scanners SANE sees.</source>
        <translation>Skeneris nerastas. Patikrinkite, ar skeneris prijungtas ir įjungtas; komanda scanimage -L (Debian paketas sane-utils) išvardija skenerius, kuriuos mato SANE.</translation>
    </message>
    <message>
        <source>SANE could not start: %1.</source>
        <translation>Nepavyko paleisti SANE: %1.</translation>
    </message>
    <message>
        <source>The scanner %1 can&apos;t be opened: %2.</source>
        <translation>Nepavyko atverti skenerio %1: %2.</translation>
    </message>
    <message>
        <source>No scanner is open.</source>
        <translation>Neatvertas joks skeneris.</translation>
    </message>
    <message>
        <source>The scanner can&apos;t start: %1.</source>
        <translation>Skeneris negali pradėti: %1.</translation>
    </message>
    <message>
        <source>The scanner sends its colours in three passes, which Kartella can&apos;t read. Choose another colour mode.</source>
        <translation>Skeneris siunčia spalvas trimis perėjimais, kurių Kartella negali perskaityti. Pasirinkite kitą spalvų režimą.</translation>
    </message>
    <message>
        <source>The scanner stopped in the middle of a page: %1. The pages scanned before it are kept.</source>
        <translation>Skeneris sustojo puslapio viduryje: %1. Anksčiau nuskenuoti puslapiai išlaikyti.</translation>
    </message>
    <message>
        <source>The scanner sent an empty page.</source>
        <translation>Skeneris atsiuntė tuščią puslapį.</translation>
    </message>
    <message>
        <source>There is no paper in the feeder.</source>
        <translation>Tiektuve nėra popieriaus.</translation>
    </message>
</context>
<context>
    <name>kartella::ScanDialog</name>
    <message>
        <source>Scan</source>
        <translation>Skenavimas</translation>
    </message>
    <message>
        <source>Looking for scanners...</source>
        <translation>Ieškoma skenerių...</translation>
    </message>
    <message>
        <source>Scan &amp;Page</source>
        <translation>Skenuoti &amp;puslapį</translation>
    </message>
    <message>
        <source>Scan &amp;Feeder</source>
        <translation>Skenuoti iš &amp;tiektuvo</translation>
    </message>
    <message>
        <source>R&amp;otate</source>
        <translation>Pas&amp;ukti</translation>
    </message>
    <message>
        <source>&amp;Delete Page</source>
        <translation>Ša&amp;linti puslapį</translation>
    </message>
    <message>
        <source>Sca&amp;n Again</source>
        <translation>Skenuoti iš &amp;naujo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Atlikta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>Sc&amp;anner:</source>
        <translation>S&amp;keneris:</translation>
    </message>
    <message>
        <source>&amp;Source:</source>
        <translation>Š&amp;altinis:</translation>
    </message>
    <message>
        <source>&amp;Colour mode:</source>
        <translation>&amp;Spalvų režimas:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Raiška:</translation>
    </message>
    <message>
        <source>Opening the scanner...</source>
        <translation>Atveriamas skeneris...</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 dpi</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Skenuojama...</translation>
    </message>
    <message>
        <source>Scanning... %1 pages</source>
        <translation>Skenuojama... Puslapių: %1</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Puslapis %1</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>Puslapių: %1</translation>
    </message>
    <message>
        <source>Scan at least one page, or press Cancel.</source>
        <translation>Nuskenuokite bent vieną puslapį arba spauskite „Atsisakyti“.</translation>
    </message>
    <message>
        <source>Reading the words of the pages and saving them...</source>
        <translation>Atpažįstamas puslapių tekstas ir įrašomi puslapiai...</translation>
    </message>
    <message>
        <source>Scanned pages</source>
        <translation>Nuskenuoti puslapiai</translation>
    </message>
</context>
<context>
    <name>kartella::ScanSession</name>
    <message>
        <source>The scanning program %1 stopped or could not be started. Reinstalling Kartella puts it back.</source>
        <translation>Skenavimo programa %1 sustojo arba nepasileido. Iš naujo įdiegus Kartella, ji bus atkurta.</translation>
    </message>
    <message>
        <source>The scanner sent nothing for %1 seconds and was stopped. The pages scanned before are kept; close the scan window and open it again to go on scanning.</source>
        <translation>Skeneris %1 s nieko nesiuntė ir buvo sustabdytas. Anksčiau nuskenuoti puslapiai lieka; norėdami skenuoti toliau, uždarykite skenavimo langą ir atverkite jį iš naujo.</translation>
    </message>
</context>
<context>
    <name>kartella::SchemaStep</name>
    <message>
        <source>tables, indexes, views and triggers of the register</source>
        <translation>registro lentelės, indeksai, rodiniai ir trigeriai</translation>
    </message>
    <message>
        <source>name columns readable by any SQLite tool</source>
        <translation>pavadinimų stulpeliai, kuriuos skaito bet kuri SQLite priemonė</translation>
    </message>
    <message>
        <source>search index of the documents&apos; texts</source>
        <translation>dokumentų tekstų paieškos indeksas</translation>
    </message>
    <message>
        <source>reminders that can be marked done</source>
        <translation>priminimai, kuriuos galima pažymėti atliktais</translation>
    </message>
    <message>
        <source>one counter of the day&apos;s registration indexes for every user</source>
        <translation>kiekvienam naudotojui atskiras dienos registracijos indeksų skaitiklis</translation>
    </message>
    <message>
        <source>an index for the lists of one direction</source>
        <translation>vienos krypties sąrašų indeksas</translation>
    </message>
    <message>
        <source>the text read from the documents&apos; files</source>
        <translation>tekstas, perskaitytas iš dokumentų failų</translation>
    </message>
    <message>
        <source>search index of the words of the documents&apos; files</source>
        <translation>dokumentų failų žodžių paieškos indeksas</translation>
    </message>
    <message>
        <source>the history of every change</source>
        <translation>kiekvieno pakeitimo istorija</translation>
    </message>
    <message>
        <source>the trash of deleted items</source>
        <translation>pašalintų elementų šiukšlinė</translation>
    </message>
    <message>
        <source>indexes for the lists of a category&apos;s directions and subcategories</source>
        <translation>kategorijos krypčių ir pakategorių sąrašų indeksai</translation>
    </message>
    <message>
        <source>indexes that give a server&apos;s lists in their order, Nulls first</source>
        <translation>indeksai, pagal kuriuos serveris pateikia sąrašus jų tvarka, tuščias reikšmes pirmiau</translation>
    </message>
</context>
<context>
    <name>kartella::SearchBox</name>
    <message>
        <source>Search documents</source>
        <translation>Ieškoti dokumentų</translation>
    </message>
    <message>
        <source>Search documents (Ctrl+F); Esc clears</source>
        <translation>Ieškoti dokumentų (Ctrl+F); Esc išvalo</translation>
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
    <name>kartella::ShareNotice</name>
    <message>
        <source>Network share notice</source>
        <translation>Pranešimas apie tinklo aplanką</translation>
    </message>
</context>
<context>
    <name>kartella::StoreText</name>
    <message>
        <source>This register was made by an older Kartella and has no place to keep a reminder done. Upgrade it first.</source>
        <translation>Šį registrą sukūrė senesnė Kartella, jame negalima pažymėti priminimo atliktu. Pirmiausia jį atnaujinkite.</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 sekundę</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>The connection string names no provider.</source>
        <translation>Prisijungimo eilutėje nenurodytas tiekėjas (Provider).</translation>
    </message>
    <message>
        <source>Provider cannot be found: &apos;%1&apos;.</source>
        <translation>Tiekėjas nerastas: „%1“.</translation>
    </message>
    <message>
        <source>Set the Provider option to %1 or %2.</source>
        <translation>Nuostatai Provider nurodykite %1 arba %2.</translation>
    </message>
    <message>
        <source>Could not connect to &apos;%1&apos;: out of memory.</source>
        <translation>Nepavyko prisijungti prie „%1“: trūksta atminties.</translation>
    </message>
    <message>
        <source>Could not connect to the register server &apos;%1&apos;: %2</source>
        <translation>Nepavyko prisijungti prie registro serverio „%1“: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a database but not a register: it has no table tbl_Documents.</source>
        <translation>„%1“ yra duomenų bazė, bet ne registras: joje nėra lentelės tbl_Documents.</translation>
    </message>
    <message>
        <source>The register is in use by %1, which kept it locked for %2; try again.</source>
        <translation>Registrą naudoja %1 ir laikė jį užrakintą %2; bandykite dar kartą.</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>kita programa</translation>
    </message>
    <message>
        <source>Another program was changing the same rows at the same moment; try again.</source>
        <translation>Tuo pačiu metu tas pačias eilutes keitė kita programa; bandykite dar kartą.</translation>
    </message>
    <message>
        <source>The connection to the register server was lost: %1</source>
        <translation>Nutrūko ryšys su registro serveriu: %1</translation>
    </message>
    <message>
        <source>No register file is named: the connection string has no Data Source.</source>
        <translation>Nenurodytas registro failas: prisijungimo eilutėje nėra Data Source.</translation>
    </message>
    <message>
        <source>Could not find file &apos;%1&apos;.</source>
        <translation>Nerastas failas „%1“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a register file. Choose the register file itself.</source>
        <translation>„%1“ yra aplankas, o ne registro failas. Pasirinkite patį registro failą.</translation>
    </message>
    <message>
        <source>Could not read file &apos;%1&apos;: %2</source>
        <translation>Nepavyko perskaityti failo „%1“: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a Microsoft Access database, not a register. Convert it into a register with &quot;kartella-db migrate&quot; and open the new register.</source>
        <translation>„%1“ yra Microsoft Access duomenų bazė, o ne registras. Paverskite ją registru komanda „kartella-db migrate“ ir atverkite naująjį registrą.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a register: it isn&apos;t a database file that Kartella can read, or it is damaged.</source>
        <translation>„%1“ nėra registras: tai ne duomenų bazės failas, kurį Kartella gali perskaityti, arba jis sugadintas.</translation>
    </message>
    <message>
        <source>Could not open the register &apos;%1&apos;: %2</source>
        <translation>Nepavyko atverti registro „%1“: %2</translation>
    </message>
    <message>
        <source>Could not prepare the register &apos;%1&apos;: %2</source>
        <translation>Nepavyko parengti registro „%1“: %2</translation>
    </message>
    <message>
        <source>The register &apos;%1&apos; is in use by another program, which kept it locked; try again once it is done.</source>
        <translation>Registrą „%1“ naudoja kita programa ir laiko jį užrakintą; bandykite dar kartą, kai ji baigs.</translation>
    </message>
    <message>
        <source>The register &apos;%1&apos; can&apos;t be read: %2. The file may be damaged, or locked by another program.</source>
        <translation>Registro „%1“ nepavyksta perskaityti: %2. Failas gali būti sugadintas arba užrakintas kitos programos.</translation>
    </message>
    <message>
        <source>The register is in use by another program, which kept it locked for %1; try again.</source>
        <translation>Registrą naudoja kita programa ir laikė jį užrakintą %1; bandykite dar kartą.</translation>
    </message>
    <message>
        <source>The disk that holds the register is full, and the change was not stored. Make room on it and try again.</source>
        <translation>Diskas, kuriame yra registras, pilnas, pakeitimas neįrašytas. Atlaisvinkite vietos ir bandykite dar kartą.</translation>
    </message>
    <message>
        <source>The register can&apos;t be written: its file or its folder is read-only, or you may not change them. The change was not stored (%1).</source>
        <translation>Į registrą negalima rašyti: jo failas ar aplankas tik skaitomas arba jums neleidžiama jų keisti. Pakeitimas neįrašytas (%1).</translation>
    </message>
    <message>
        <source>The disk that holds the register failed to read or write, and the change was not stored (%1).</source>
        <translation>Diskui, kuriame yra registras, nepavyko skaityti ar rašyti, pakeitimas neįrašytas (%1).</translation>
    </message>
    <message>
        <source>%1: missing from the old file</source>
        <translation>%1: senajame faile nėra</translation>
    </message>
    <message>
        <source>%1: %2 read, %3 written</source>
        <translation>%1: perskaityta %2, įrašyta %3</translation>
    </message>
    <message>
        <source>  the old file counts %1 rows in this table</source>
        <translation>  senasis failas šioje lentelėje nurodo %1 eil.</translation>
    </message>
    <message>
        <source>  fields missing from the old file (left empty): %1</source>
        <translation>  laukai, kurių senajame faile nėra (palikti tušti): %1</translation>
    </message>
    <message>
        <source>  fields of the old file not migrated: %1</source>
        <translation>  neperkelti senojo failo laukai: %1</translation>
    </message>
    <message>
        <source>Other tables of the old file, not migrated: %1</source>
        <translation>Kitos senojo failo lentelės, neperkeltos: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>„%1“ nėra sveikasis skaičius</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date</source>
        <translation>„%1“ nėra data</translation>
    </message>
    <message>
        <source>%1, row %2, field %3: %4.</source>
        <translation>%1, eilutė %2, laukas %3: %4.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no Kartella register: it carries no schema version. Nothing was copied.</source>
        <translation>„%1“ nėra Kartellos registras: jame nėra schemos versijos. Niekas nenukopijuota.</translation>
    </message>
    <message>
        <source>The register &quot;%1&quot; has an older form (schema version %2; this program&apos;s is %3). Bring it up to date with &quot;kartella-db upgrade&quot; first, then copy it. Nothing was copied.</source>
        <translation>Registras „%1“ yra senesnės formos (schemos versija %2, šios programos – %3). Pirmiausia jį atnaujinkite komanda „kartella-db upgrade“, tada kopijuokite. Niekas nenukopijuota.</translation>
    </message>
    <message>
        <source>The register &quot;%1&quot; was made by a newer Kartella (schema version %2; this program knows versions up to %3). Nothing was copied.</source>
        <translation>Registrą „%1“ sukūrė naujesnė Kartella (schemos versija %2, ši programa žino versijas iki %3). Niekas nenukopijuota.</translation>
    </message>
    <message>
        <source>The table %1 of the source has no key column %2.</source>
        <translation>Šaltinio lentelėje %1 nėra rakto stulpelio %2.</translation>
    </message>
    <message>
        <source>%1, row %2, field %3 holds binary data, which a register doesn&apos;t keep.</source>
        <translation>%1, eilutė %2, laukas %3: jame dvejetainiai duomenys, kurių registras nesaugo.</translation>
    </message>
    <message>
        <source>Nothing was copied: the database &quot;%1&quot; holds the register&apos;s tables without rows.</source>
        <translation>Niekas nenukopijuota: duomenų bazėje „%1“ liko registro lentelės be eilučių.</translation>
    </message>
    <message>
        <source>Nothing was copied: the new register &quot;%1&quot; is removed again.</source>
        <translation>Niekas nenukopijuota: naujasis registras „%1“ vėl pašalintas.</translation>
    </message>
    <message>
        <source>Nothing was copied, but the new register &quot;%1&quot; could not be removed; delete it.</source>
        <translation>Niekas nenukopijuota, bet naujojo registro „%1“ pašalinti nepavyko; pašalinkite jį patys.</translation>
    </message>
    <message>
        <source>%1: %2 copied</source>
        <translation>%1: nukopijuota %2</translation>
    </message>
    <message>
        <source>%1: %2 in the source, %3 in the copy: the counts differ</source>
        <translation>%1: šaltinyje %2, kopijoje %3: skaičiai nesutampa</translation>
    </message>
    <message>
        <source>  columns the new register lacks, not copied: %1</source>
        <translation>  stulpeliai, kurių naujajame registre nėra, nenukopijuoti: %1</translation>
    </message>
    <message>
        <source>  dates that lost their time of day (a register on a server keeps the day): %1</source>
        <translation>  datos, netekusios paros laiko (serverio registras saugo tik dieną): %1</translation>
    </message>
    <message>
        <source>A copy goes into a new register only. Nothing was copied.</source>
        <translation>Kopijuojama tik į naują registrą. Niekas nenukopijuota.</translation>
    </message>
    <message>
        <source>The sample needs a valid day to count back from.</source>
        <translation>Pavyzdiniam registrui reikia tinkamos dienos, nuo kurios skaičiuojama atgal.</translation>
    </message>
    <message>
        <source>The register &quot;%1&quot; already holds data; a sample goes into an empty one.</source>
        <translation>Registre „%1“ jau yra duomenų; pavyzdys įrašomas tik į tuščią registrą.</translation>
    </message>
    <message>
        <source>Can&apos;t create the folder &quot;%1&quot;</source>
        <translation>Nepavyksta sukurti aplanko „%1“</translation>
    </message>
    <message>
        <source>Can&apos;t write the file &quot;%1&quot;</source>
        <translation>Nepavyksta įrašyti failo „%1“</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; already holds tables. A register is made only in an empty database.</source>
        <translation>Duomenų bazėje „%1“ jau yra lentelių. Registras kuriamas tik tuščioje duomenų bazėje.</translation>
    </message>
    <message>
        <source>A file named &quot;%1&quot; already exists.</source>
        <translation>Failas „%1“ jau yra.</translation>
    </message>
    <message>
        <source>Can&apos;t create &quot;%1&quot;: %2</source>
        <translation>Nepavyksta sukurti „%1“: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not made by Kartella: it carries no schema version. It is left as it is.</source>
        <translation>„%1“ sukurtas ne Kartella: jame nėra schemos versijos. Jis paliktas koks buvo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was made by a newer Kartella (schema version %2; this program knows versions up to %3). It is left as it is.</source>
        <translation>„%1“ sukūrė naujesnė Kartella (schemos versija %2, ši programa žino versijas iki %3). Jis paliktas koks buvo.</translation>
    </message>
    <message>
        <source>Row cannot be located for updating: another user may have deleted it (%1)</source>
        <translation>Eilutės, kurią reikia atnaujinti, nepavyksta rasti: gal ją pašalino kitas naudotojas (%1)</translation>
    </message>
    <message>
        <source>Row cannot be located for updating. Some values may have been changed since it was last read. (%1)</source>
        <translation>Eilutės, kurią reikia atnaujinti, nepavyksta rasti. Kai kurios reikšmės galėjo būti pakeistos po paskutinio skaitymo. (%1)</translation>
    </message>
    <message>
        <source>The changes were not stored: the register server rolled the transaction back instead of committing it (after an earlier error), and nothing written in it was kept.</source>
        <translation>Pakeitimai neįrašyti: registro serveris atšaukė transakciją, užuot ją patvirtinęs (po ankstesnės klaidos), ir niekas, kas joje įrašyta, neišsaugota.</translation>
    </message>
    <message>
        <source>The changes were not stored: the register ended the transaction before its commit (after an earlier error), and nothing written in it was kept.</source>
        <translation>Pakeitimai neįrašyti: registras užbaigė transakciją prieš ją patvirtinant (po ankstesnės klaidos), ir niekas, kas joje įrašyta, neišsaugota.</translation>
    </message>
    <message>
        <source>The register has no table &apos;%1&apos;</source>
        <translation>Registre nėra lentelės „%1“</translation>
    </message>
    <message>
        <source>Type mismatch: &apos;%1&apos; is not %2 (field %3).</source>
        <translation>Tipų neatitikimas: „%1“ nėra %2 (laukas %3).</translation>
    </message>
    <message>
        <source>Overflow: %1 doesn&apos;t fit field %2.</source>
        <translation>Perpildymas: %1 netelpa lauke %2.</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>sveikasis skaičius</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>skaičius</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>data</translation>
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
    <name>kartella::TextIndexer</name>
    <message>
        <source>Reading files: %1 of %2</source>
        <translation>Skaitomi failai: %1 iš %2</translation>
    </message>
</context>
<context>
    <name>kartella::TextRecognition</name>
    <message>
        <source>No language is chosen for text recognition (option OcrLanguages).</source>
        <translation>Teksto atpažinimui nepasirinkta kalba (nuostata OcrLanguages).</translation>
    </message>
    <message>
        <source>Text recognition has no data for the language &quot;%1&quot; in %2. Install the Debian package %3.</source>
        <translation>Teksto atpažinimas neturi kalbos „%1“ duomenų aplanke %2. Įdiekite Debian paketą %3.</translation>
    </message>
    <message>
        <source>Text recognition needs the C numeric locale (LC_NUMERIC).</source>
        <translation>Teksto atpažinimui reikia C skaičių lokalės (LC_NUMERIC).</translation>
    </message>
    <message>
        <source>Text recognition could not load the languages &quot;%1&quot;.</source>
        <translation>Teksto atpažinimui nepavyko įkelti kalbų „%1“.</translation>
    </message>
    <message>
        <source>Text recognition was cancelled.</source>
        <translation>Teksto atpažinimas atšauktas.</translation>
    </message>
    <message>
        <source>Text recognition failed on a page.</source>
        <translation>Nepavyko atpažinti puslapio teksto.</translation>
    </message>
    <message>
        <source>A scanned page could not be saved in %1.</source>
        <translation>Nuskenuoto puslapio nepavyko įrašyti į %1.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already.</source>
        <translation>Failas „%1“ jau yra.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be written.</source>
        <translation>Failo „%1“ nepavyko įrašyti.</translation>
    </message>
    <message>
        <source>There are no pages to save.</source>
        <translation>Nėra puslapių, kuriuos reikėtų įrašyti.</translation>
    </message>
    <message>
        <source>No temporary folder for the scanned pages.</source>
        <translation>Nėra laikinojo aplanko nuskenuotiems puslapiams.</translation>
    </message>
    <message>
        <source>The PDF &quot;%1&quot; can&apos;t be begun.</source>
        <translation>Nepavyko pradėti PDF „%1“.</translation>
    </message>
    <message>
        <source>A scanned page could not be read back.</source>
        <translation>Nepavyko perskaityti nuskenuoto puslapio.</translation>
    </message>
    <message>
        <source>Page %1 could not be added to the PDF.</source>
        <translation>%1 puslapio nepavyko pridėti į PDF.</translation>
    </message>
    <message>
        <source>Saving the scanned pages was cancelled.</source>
        <translation>Nuskenuotų puslapių įrašymas atšauktas.</translation>
    </message>
    <message>
        <source>The PDF &quot;%1&quot; can&apos;t be completed.</source>
        <translation>Nepavyko užbaigti PDF „%1“.</translation>
    </message>
</context>
<context>
    <name>kartella::TextRecognitionPass</name>
    <message>
        <source>Recognising text: %1 of %2</source>
        <translation>Atpažįstamas tekstas: %1 iš %2</translation>
    </message>
</context>
<context>
    <name>kartella::TextStore</name>
    <message>
        <source>damaged</source>
        <translation>pažeistas</translation>
    </message>
    <message>
        <source>password-protected</source>
        <translation>apsaugotas slaptažodžiu</translation>
    </message>
    <message>
        <source>file not found</source>
        <translation>failas nerastas</translation>
    </message>
    <message>
        <source>LibreOffice or catdoc is not installed</source>
        <translation>neįdiegta LibreOffice arba catdoc</translation>
    </message>
    <message>
        <source>can&apos;t be opened</source>
        <translation>negalima atverti</translation>
    </message>
    <message>
        <source>larger than %1 MB</source>
        <translation>didesnis nei %1 MB</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Perskaitytas</translation>
    </message>
    <message>
        <source>No text in this kind of file</source>
        <translation>Šios rūšies failuose teksto nėra</translation>
    </message>
    <message>
        <source>Needs text recognition (a scanned PDF)</source>
        <translation>Reikia atpažinti tekstą (nuskaitytas PDF)</translation>
    </message>
    <message>
        <source>Not read: %1</source>
        <translation>Neperskaitytas: %1</translation>
    </message>
    <message>
        <source>unknown reason</source>
        <translation>priežastis nežinoma</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>Dar neperskaitytas</translation>
    </message>
</context>
<context>
    <name>kartella::Trash</name>
    <message>
        <source>The document is no longer in the register: another user may have deleted it.</source>
        <translation>Dokumento registre nebėra: galbūt jį pašalino kitas naudotojas.</translation>
    </message>
    <message>
        <source>The related document is no longer in the register: another user may have deleted it.</source>
        <translation>Susijusio dokumento registre nebėra: galbūt jį pašalino kitas naudotojas.</translation>
    </message>
    <message>
        <source>The category is no longer in the register: another user may have deleted it.</source>
        <translation>Kategorijos registre nebėra: galbūt ją pašalino kitas naudotojas.</translation>
    </message>
    <message>
        <source>The subcategory is no longer in the register: another user may have deleted it.</source>
        <translation>Pakategorės registre nebėra: galbūt ją pašalino kitas naudotojas.</translation>
    </message>
    <message>
        <source>The contact is no longer in the register: another user may have deleted it.</source>
        <translation>Kontakto registre nebėra: galbūt jį pašalino kitas naudotojas.</translation>
    </message>
    <message>
        <source>No folder is named for the trash of this register: its files can&apos;t be kept.</source>
        <translation>Šio registro šiukšlinei nenurodytas aplankas: jo failų išsaugoti negalima.</translation>
    </message>
    <message>
        <source>The file could not be moved to the trash:
%1
(to %2)</source>
        <translation>Failo nepavyko perkelti į šiukšlinę:
%1
(į %2)</translation>
    </message>
    <message>
        <source>Choose the shared folder where the register keeps deleted files and earlier versions</source>
        <translation>Pasirinkite bendrą aplanką, kuriame registras laikys pašalintus failus ir ankstesnes versijas</translation>
    </message>
    <message>
        <source>Unable to delete as requested</source>
        <translation>Nepavyko pašalinti, kaip prašyta</translation>
    </message>
    <message>
        <source>Another file took the place of a restored one meanwhile; the restored file got a new name:</source>
        <translation>Tuo metu atkurto failo vietą užėmė kitas failas; atkurtas failas gavo naują pavadinimą:</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Atkurti</translation>
    </message>
    <message>
        <source>The deleted item is no longer in the register: another user may have deleted it.</source>
        <translation>Pašalinto elemento registre nebėra: galbūt jį pašalino kitas naudotojas.</translation>
    </message>
    <message>
        <source>No folder is named for the trash of this register: the files of &quot;%1&quot; can&apos;t be put back.</source>
        <translation>Šio registro šiukšlinei nenurodytas aplankas: „%1“ failų grąžinti negalima.</translation>
    </message>
    <message>
        <source>The file of &quot;%1&quot; is missing from the trash:
%2</source>
        <translation>Šiukšlinėje nėra „%1“ failo:
%2</translation>
    </message>
    <message>
        <source>The file could not be put back:
%1</source>
        <translation>Failo nepavyko grąžinti:
%1</translation>
    </message>
    <message>
        <source>The rows of a deleted item could not be read: %1</source>
        <translation>Nepavyko perskaityti pašalinto elemento eilučių: %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>dokumentas</translation>
    </message>
    <message>
        <source>related document</source>
        <translation>susijęs dokumentas</translation>
    </message>
    <message>
        <source>category</source>
        <translation>kategorija</translation>
    </message>
    <message>
        <source>subcategory</source>
        <translation>pakategorė</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>kontaktas</translation>
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
    <name>kartella::TreeFills</name>
    <message>
        <source>CATEGORIES</source>
        <translation>KATEGORIJOS</translation>
    </message>
    <message>
        <source>CONTACTS</source>
        <translation>KONTAKTAI</translation>
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
<context>
    <name>kartella::VersionList</name>
    <message>
        <source>&amp;Earlier versions of the file:</source>
        <translation>A&amp;nkstesnės failo versijos:</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Išsaugota</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dydis</translation>
    </message>
    <message>
        <source>Replaced by</source>
        <translation>Pakeitė</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Atverti</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>Atku&amp;rti</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Atkurti</translation>
    </message>
</context>
<context>
    <name>kartella::Versions</name>
    <message>
        <source>New Version</source>
        <translation>Nauja versija</translation>
    </message>
    <message>
        <source>Select document, please!</source>
        <translation>Pasirinkite dokumentą!</translation>
    </message>
    <message>
        <source>This document has no file to replace.</source>
        <translation>Šis dokumentas neturi failo, kurį būtų galima pakeisti.</translation>
    </message>
    <message>
        <source>New version of %1</source>
        <translation>Nauja %1 versija</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Visi failai</translation>
    </message>
    <message>
        <source>This is the document&apos;s own file.</source>
        <translation>Tai paties dokumento failas.</translation>
    </message>
    <message>
        <source>The file could not be copied to %1.</source>
        <translation>Failo nepavyko nukopijuoti į %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be replaced.</source>
        <translation>Failo %1 nepavyko pakeisti.</translation>
    </message>
    <message>
        <source>No folder is named for the versions of this register&apos;s files.</source>
        <translation>Šio registro failų versijoms nenurodytas aplankas.</translation>
    </message>
    <message>
        <source>An earlier version of the file could not be kept in %1.</source>
        <translation>Ankstesnės failo versijos nepavyko išsaugoti aplanke %1.</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation>Failas %1 nerastas.</translation>
    </message>
    <message>
        <source>The version %1 is no longer kept.</source>
        <translation>Versija %1 nebesaugoma.</translation>
    </message>
    <message>
        <source>The version %1 could not be read.</source>
        <translation>Versijos %1 nepavyko perskaityti.</translation>
    </message>
    <message>
        <source>Put %1 in place of %2, keeping %2 as an earlier version?</source>
        <translation>Įdėti %1 vietoj %2, o %2 išlaikyti kaip ankstesnę versiją?</translation>
    </message>
</context>
<context>
    <name>kartella::tool::ToolText</name>
    <message>
        <source>no PATH given</source>
        <translation>nenurodytas KELIAS</translation>
    </message>
    <message>
        <source>no WORD given</source>
        <translation>nenurodytas ŽODIS</translation>
    </message>
    <message>
        <source>Usage: kartella-db create LOCATION
       kartella-db sample PATH [--documents N] [--seed S]
       kartella-db info PATH
       kartella-db upgrade PATH
       kartella-db copy FROM TO
       kartella-db migrate OLD.mdb NEW [--codepage CP]
       kartella-db report --list
       kartella-db report NAME PATH.pdf [--register FILE] [--previous-month] [--overwrite]
       kartella-db import PATH FILE [--codepage NAME]
       kartella-db search PATH WORD...
       kartella-db index PATH
       kartella-db trash PATH
       kartella-db restore PATH INDEX
       kartella-db purge PATH --older-than DAYS
       kartella-db history PATH [INDEX]
       kartella-db --help
</source>
        <extracomment>The commands and options stay as they are; the words in capitals name what is given and are the same in the help, the usage lines and the usage errors.</extracomment>
        <translation>Naudojimas: kartella-db create VIETA
            kartella-db sample KELIAS [--documents N] [--seed S]
            kartella-db info KELIAS
            kartella-db upgrade KELIAS
            kartella-db copy IŠ Į
            kartella-db migrate SENAS.mdb NAUJAS [--codepage KP]
            kartella-db report --list
            kartella-db report PAVADINIMAS KELIAS.pdf [--register FAILAS] [--previous-month] [--overwrite]
            kartella-db import KELIAS FAILAS [--codepage KODUOTĖ]
            kartella-db search KELIAS ŽODIS...
            kartella-db index KELIAS
            kartella-db trash KELIAS
            kartella-db restore KELIAS INDEKSAS
            kartella-db purge KELIAS --older-than DIENOS
            kartella-db history KELIAS [INDEKSAS]
            kartella-db --help
</translation>
    </message>
    <message>
        <source>  create   makes a new, empty register at LOCATION: a file (an existing file
           is refused) or an empty database on a server
  sample   makes a new register at PATH and fills it with sample data;
           its files go into the folder &quot;&lt;name&gt; files&quot; beside it
           (N documents, default 400; the same seed S gives the same data)
  info     counts the rows of each table of the register at PATH
  upgrade  brings the register at PATH, made by an earlier Kartella, to this
           version&apos;s form, keeping every row
  copy     copies the whole register FROM, keys kept, into a new register
           at TO (a file that doesn&apos;t exist yet, or an empty database on a
           server), then counts the rows of each table in both; FROM must
           be up to date (see upgrade). On a failure nothing is kept at TO
  migrate  copies every row of the Jet register OLD.mdb into a new register
           at NEW, keys kept; the text of a Jet 3 file is read in the code
           page CP (default CP1257, the Baltic one; CP1252 for Western)
  report   writes the report NAME to the PDF file PATH, from FILE or the
           register the options name; --list names the reports. An
           existing PATH is replaced only with --overwrite, never the register
  import   adds the contacts of FILE (vCard or Outlook CSV export) to the
           register at PATH, skipping names it holds already; text that
           is not UTF-8 is read in code page NAME (default: guessed)
  search   prints the documents of the register at PATH that hold every WORD
           (in description, index, notes, contact or file path; case and
           accents aside): index, date and description, tab-separated
  index    reads the text of the files of the documents of the register at
           PATH that are new or changed since they were last read, showing
           its progress, then counts the files read and those skipped, and why
  trash    lists the deleted items of the register at PATH, newest first:
           kind, registration index or name, who deleted it and when (UTC)
  restore  puts the deleted document of the registration index INDEX back,
           with its related documents, reminders and files
  purge    deletes for good the items deleted more than DAYS days ago
  history  prints the changes of the register at PATH, or of the document
           whose registration index is INDEX with its related documents and
           reminders, newest first: when, who, the command, what and the
           change, tab-separated
</source>
        <translation>  create   sukuria naują tuščią registrą VIETA: failą (esamas failas
           atmetamas) arba tuščią serverio duomenų bazę
  sample   sukuria naują registrą KELIAS ir užpildo jį pavyzdiniais
           duomenimis; jo failai dedami į šalia esantį aplanką
           „&lt;pavadinimas&gt; files“ (N dokumentų, numatyta 400; ta pati sėkla S
           duoda tuos pačius duomenis)
  info     suskaičiuoja kiekvienos registro KELIAS lentelės eilutes
  upgrade  ankstesnės Kartellos sukurtą registrą KELIAS perkelia į šios
           versijos formą, išsaugodama kiekvieną eilutę
  copy     nukopijuoja visą registrą IŠ su raktais į naują registrą Į
           (dar neesantį failą arba tuščią serverio duomenų bazę), tada
           suskaičiuoja abiejų kiekvienos lentelės eilutes; IŠ turi būti
           atnaujintas (žr. upgrade). Nepavykus Į nieko nepaliekama
  migrate  nukopijuoja kiekvieną Jet registro SENAS.mdb eilutę su raktais
           į naują registrą NAUJAS; Jet 3 failo tekstas skaitomas koduote
           KP (numatyta CP1257, Baltijos; Vakarų – CP1252)
  report   įrašo ataskaitą PAVADINIMAS į PDF failą KELIAS iš registro FAILAS
           arba nuostatose nurodyto registro; --list išvardija ataskaitas.
           Esamas KELIAS pakeičiamas tik su --overwrite, registras – niekada
  import   prideda failo FAILAS kontaktus (vCard ar Outlook CSV eksportą)
           į registrą KELIAS, praleisdama jame jau esančius vardus; ne UTF-8
           tekstas skaitomas koduote KODUOTĖ (numatyta: atspėjama)
  search   išspausdina registro KELIAS dokumentus, kuriuose yra kiekvienas
           ŽODIS (aprašyme, indekse, pastabose, kontakte ar failo kelyje;
           neskiriant raidžių dydžio ir diakritikų): indeksą, datą ir
           aprašymą, atskirtus tabuliacija
  index    perskaito registro KELIAS dokumentų failų, naujų ar pakeistų po
           paskutinio skaitymo, tekstą, rodydama eigą, tada suskaičiuoja
           perskaitytus ir praleistus failus bei nurodo priežastis
  trash    išvardija registro KELIAS pašalintus elementus, naujausius pirma:
           rūšį, registracijos indeksą ar pavadinimą, kas ir kada (UTC) pašalino
  restore  grąžina pašalintą dokumentą su registracijos indeksu INDEKSAS
           kartu su susijusiais dokumentais, priminimais ir failais
  purge    pašalina visam laikui elementus, pašalintus prieš daugiau nei
           DIENOS dienų
  history  išspausdina registro KELIAS arba dokumento su registracijos
           indeksu INDEKSAS, jo susijusių dokumentų ir priminimų pakeitimus,
           naujausius pirma: kada, kas, komanda, kas pakeista ir pakeitimas,
           atskirtus tabuliacija
</translation>
    </message>
    <message>
        <source>Every register named (LOCATION, FROM, TO, NEW, the register&apos;s PATH or FILE)
is a file or a database on a PostgreSQL server, written
postgresql://USER@HOST:PORT/DATABASE; the password comes from ~/.pgpass or
the environment variable PGPASSWORD. The sample files of a register on a
server go into &quot;&lt;database&gt; files&quot; in the current folder.
</source>
        <translation>Kiekvienas nurodytas registras (VIETA, IŠ, Į, NAUJAS, registro KELIAS ar FAILAS)
yra failas arba PostgreSQL serverio duomenų bazė, rašoma
postgresql://NAUDOTOJAS@SERVERIS:PRIEVADAS/DUOMENŲ_BAZĖ; slaptažodis imamas
iš ~/.pgpass arba aplinkos kintamojo PGPASSWORD. Serverio registro pavyzdiniai
failai dedami į aplanką „&lt;duomenų bazė&gt; files“ dabartiniame aplanke.
</translation>
    </message>
    <message>
        <source>Exit codes: 0 success, 1 failure, 2 usage error.
</source>
        <translation>Išėjimo kodai: 0 – pavyko, 1 – nepavyko, 2 – neteisingas naudojimas.
</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>nenurodyta komanda</translation>
    </message>
    <message>
        <source>--help takes no arguments</source>
        <translation>--help nepriima argumentų</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;</source>
        <translation>nežinoma komanda „%1“</translation>
    </message>
    <message>
        <source>unknown option or missing value: &quot;%1&quot;</source>
        <translation>nežinomas parametras arba trūksta reikšmės: „%1“</translation>
    </message>
    <message>
        <source>--older-than needs a whole number of days, 0 or more</source>
        <translation>--older-than reikia sveikojo dienų skaičiaus, 0 ar daugiau</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>nežinomas parametras „%1“</translation>
    </message>
    <message>
        <source>--documents needs a whole number of 0 or more</source>
        <translation>--documents reikia sveikojo skaičiaus, 0 ar daugiau</translation>
    </message>
    <message>
        <source>--seed needs a whole number from 0 to 4294967295</source>
        <translation>--seed reikia sveikojo skaičiaus nuo 0 iki 4294967295</translation>
    </message>
    <message>
        <source>migrate needs OLD.mdb and NEW</source>
        <translation>migrate reikia SENAS.mdb ir NAUJAS</translation>
    </message>
    <message>
        <source>copy needs FROM and TO</source>
        <translation>copy reikia IŠ ir Į</translation>
    </message>
    <message>
        <source>purge needs --older-than DAYS</source>
        <translation>purge reikia --older-than DIENOS</translation>
    </message>
    <message>
        <source>restore needs PATH and INDEX</source>
        <translation>restore reikia KELIAS ir INDEKSAS</translation>
    </message>
    <message>
        <source>import needs PATH and FILE</source>
        <translation>import reikia KELIAS ir FAILAS</translation>
    </message>
    <message>
        <source>more than one PATH given</source>
        <translation>nurodytas daugiau nei vienas KELIAS</translation>
    </message>
    <message>
        <source>Created %1 with %2 documents; files in %3</source>
        <translation>Sukurtas %1, dokumentų: %2; failai aplanke %3</translation>
    </message>
    <message>
        <source>copying %1: %2 of %3 rows</source>
        <translation>kopijuojama %1: %2 iš %3 eilučių</translation>
    </message>
    <message>
        <source>the row counts differ. %1</source>
        <translation>eilučių skaičiai nesutampa. %1</translation>
    </message>
    <message>
        <source>Copied %1 to %2</source>
        <translation>Nukopijuota iš %1 į %2</translation>
    </message>
    <message>
        <source>history takes PATH and at most one INDEX</source>
        <translation>history priima KELIAS ir ne daugiau kaip vieną INDEKSAS</translation>
    </message>
    <message>
        <source>no document has the registration index &quot;%1&quot;</source>
        <translation>nė vienas dokumentas neturi registracijos indekso „%1“</translation>
    </message>
    <message>
        <source>unknown code page &quot;%1&quot;</source>
        <translation>nežinoma koduotė „%1“</translation>
    </message>
    <message>
        <source>the contact file &quot;%1&quot; holds no contacts</source>
        <translation>kontaktų faile „%1“ nėra kontaktų</translation>
    </message>
    <message>
        <source>error %1: %2</source>
        <translation>klaida %1: %2</translation>
    </message>
    <message>
        <source>%1 contacts added, %2 skipped, %3 failed</source>
        <translation>kontaktų pridėta: %1, praleista: %2, nepavyko: %3</translation>
    </message>
    <message>
        <source>Files read: %1</source>
        <translation>Perskaityta failų: %1</translation>
    </message>
    <message>
        <source>Unchanged since last read: %1</source>
        <translation>Nepakeista nuo paskutinio skaitymo: %1</translation>
    </message>
    <message>
        <source>No text in their kind: %1</source>
        <translation>Tokios rūšies failuose nėra teksto: %1</translation>
    </message>
    <message>
        <source>Needing OCR (PDF without text): %1</source>
        <translation>Reikia OCR (PDF be teksto): %1</translation>
    </message>
    <message>
        <source>Not read: %1</source>
        <translation>Neperskaityta: %1</translation>
    </message>
    <message>
        <source>Can&apos;t read &quot;%1&quot;: %2</source>
        <translation>Nepavyksta perskaityti „%1“: %2</translation>
    </message>
    <message>
        <source>no file at &quot;%1&quot;</source>
        <translation>nėra failo „%1“</translation>
    </message>
    <message>
        <source>it is not a Jet (Access) database</source>
        <translation>tai ne Jet (Access) duomenų bazė</translation>
    </message>
    <message>
        <source>its list of tables is unreadable</source>
        <translation>jos lentelių sąrašas neperskaitomas</translation>
    </message>
    <message>
        <source>Access 2007 or later</source>
        <translation>Access 2007 ar naujesnė</translation>
    </message>
    <message>
        <source>the table %1 is unreadable</source>
        <translation>lentelė %1 neperskaitoma</translation>
    </message>
    <message>
        <source>a value of %1 is too long to be read whole</source>
        <translation>lauko %1 reikšmė per ilga, kad ją būtų galima perskaityti visą</translation>
    </message>
    <message>
        <source>Read %1 (%2)</source>
        <translation>Perskaityta %1 (%2)</translation>
    </message>
    <message>
        <source>Everything arrived in %1</source>
        <translation>Viskas perkelta į %1</translation>
    </message>
    <message>
        <source>Not everything arrived in %1</source>
        <translation>Ne viskas perkelta į %1</translation>
    </message>
    <message>
        <source>no register at &quot;%1&quot;</source>
        <translation>nėra registro „%1“</translation>
    </message>
    <message>
        <source>Usage: kartella-db report --list
       kartella-db report NAME PATH.pdf [--register FILE] [--previous-month] [--overwrite]
</source>
        <translation>Naudojimas: kartella-db report --list
            kartella-db report PAVADINIMAS KELIAS.pdf [--register FAILAS] [--previous-month] [--overwrite]
</translation>
    </message>
    <message>
        <source>--register needs a FILE</source>
        <translation>--register reikia FAILAS</translation>
    </message>
    <message>
        <source>report needs a NAME and a PATH.pdf (or --list)</source>
        <translation>report reikia PAVADINIMAS ir KELIAS.pdf (arba --list)</translation>
    </message>
    <message>
        <source>no report named &quot;%1&quot; (kartella-db report --list names them)</source>
        <translation>nėra ataskaitos „%1“ (jas išvardija kartella-db report --list)</translation>
    </message>
    <message>
        <source>--previous-month goes with the this-month report only</source>
        <translation>--previous-month tinka tik ataskaitai this-month</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists; --overwrite replaces it with the report</source>
        <translation>„%1“ jau yra; --overwrite pakeičia jį ataskaita</translation>
    </message>
    <message>
        <source>pages: %1</source>
        <translation>puslapių: %1</translation>
    </message>
    <message>
        <source>no word to search for</source>
        <translation>nėra žodžio, kurio ieškoti</translation>
    </message>
    <message>
        <source>the register at %1 has no trash: it was made by an earlier Kartella (see kartella-db upgrade)</source>
        <translation>registras %1 neturi šiukšlinės: jį sukūrė ankstesnė Kartella (žr. kartella-db upgrade)</translation>
    </message>
    <message>
        <source>The trash is empty.</source>
        <translation>Šiukšlinė tuščia.</translation>
    </message>
    <message>
        <source>the trash holds no document with the registration index &quot;%1&quot;</source>
        <translation>šiukšlinėje nėra dokumento su registracijos indeksu „%1“</translation>
    </message>
    <message>
        <source>Restored %1 &quot;%2&quot;</source>
        <translation>Atkurta: %1 „%2“</translation>
    </message>
    <message>
        <source>The path %1 was taken; the file is now %2</source>
        <translation>Kelias %1 buvo užimtas; dabar failas yra %2</translation>
    </message>
    <message>
        <source>Deleted for good: %1 item</source>
        <translation>Pašalinta visam laikui elementų: %1</translation>
    </message>
    <message>
        <source>Deleted for good: %1 items</source>
        <translation>Pašalinta visam laikui elementų: %1</translation>
    </message>
    <message>
        <source>The register is up to date (schema version %1).</source>
        <translation>Registras jau atnaujintas (schemos versija %1).</translation>
    </message>
    <message>
        <source>Step %1: %2</source>
        <translation>%1 žingsnis: %2</translation>
    </message>
    <message>
        <source>The register is at schema version %1.</source>
        <translation>Registro schemos versija dabar %1.</translation>
    </message>
    <message>
        <source>Copied %1 files of deleted items and earlier versions</source>
        <translation>Nukopijuota pašalintų elementų ir ankstesnių versijų failų: %1</translation>
    </message>
    <message>
        <source>The register was copied; the files of its deleted items and earlier versions are not all there.</source>
        <translation>Registras nukopijuotas, tačiau ne visi jo pašalintų elementų ir ankstesnių versijų failai.</translation>
    </message>
    <message>
        <source>the register at %1 has no history: it was made by an earlier Kartella (see kartella-db upgrade)</source>
        <translation>registras %1 neturi keitimų istorijos: jį sukūrė ankstesnė Kartella (žr. kartella-db upgrade)</translation>
    </message>
</context>
</TS>
