<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Elrendezések</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Jelenlegi elrendezés mentése másként...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Elrendezés törlése...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exportálás ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importálás ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importálás és egyesítés ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Indításkori elrendezés visszaállítása</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Alapértelmezett elrendezés visszaállítása</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Elrendezések mentése</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Elrendezésfájl (*.views);;Minden fájl (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Elrendezések betöltése</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Elrendezés mentése</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>Az elrendezés &amp;neve:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>A név nem lehet üres!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>A név már használatban van!</translation>
    </message>
</context>
</TS>
