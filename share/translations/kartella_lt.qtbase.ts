<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt_LT" sourcelanguage="en">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Gerai</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Įrašyti</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Įrašyti viską</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Atverti</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Taip</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Taip &amp;visiems</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;e visiems</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Nutraukti</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Kartoti</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Nepaisyti</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Uždaryti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Atmesti</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Žinynas</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Taikyti</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Atstatyti</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Atkurti numatytąsias</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Gerai</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Į&amp;rašyti</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Atsisakyti</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Uždaryti</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Uždaryti neįrašius</translation>
    </message>
</context>
</TS>
