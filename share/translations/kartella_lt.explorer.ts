<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt_LT" sourcelanguage="en">
<context>
    <name>kartella::ContentProgress</name>
    <message>
        <source>The text of the documents&apos; files being read for the search</source>
        <translation>Skaitomas dokumentų failų tekstas paieškai</translation>
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
        <source>Doc. Description</source>
        <translation>Dok. aprašymas</translation>
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
    <name>kartella::ShareNotice</name>
    <message>
        <source>Network share notice</source>
        <translation>Pranešimas apie tinklo aplanką</translation>
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
</TS>
