<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt_LT" sourcelanguage="en">
<context>
    <name>kartella::Translations</name>
    <message>
        <source>English</source>
        <translation>Anglų</translation>
    </message>
</context>
</TS>
