<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt_LT" sourcelanguage="en">
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
        <translation>Pavyzdžiui reikia tinkamos dienos, nuo kurios skaičiuoti atgal.</translation>
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
</context>
</TS>
