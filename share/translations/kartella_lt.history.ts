<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt_LT" sourcelanguage="en">
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
    <name>kartella::FieldBinder</name>
    <message>
        <source>&quot;%1&quot; in &quot;%2&quot; isn&apos;t a date. Type the date as %3, please.</source>
        <translation>„%1“ lauke „%2“ nėra data. Įveskite datą taip: %3.</translation>
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
    <name>kartella::RecordsetModel</name>
    <message>
        <source>This row was deleted by another user; your change was not saved.</source>
        <translation>Šią eilutę pašalino kitas naudotojas; jūsų pakeitimas neįrašytas.</translation>
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
</context>
</TS>
