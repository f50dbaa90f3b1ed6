<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt_LT" sourcelanguage="en">
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
    <name>kartella::ScanWorker</name>
    <message>
        <source>No scanner is open.</source>
        <translation>Neatvertas joks skeneris.</translation>
    </message>
    <message>
        <source>There is no paper in the feeder.</source>
        <translation>Tiektuve nėra popieriaus.</translation>
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
</TS>
