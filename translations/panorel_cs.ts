<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Rozložení</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Uložit aktuální rozložení jako...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Odstranit rozložení...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exportovat ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importovat ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importovat a sloučit ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Obnovit rozložení ze spuštění programu</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Obnovit výchozí rozložení</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Uložit rozložení</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Soubor rozložení (*.views);;Všechny soubory (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Načíst rozložení</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Uložit rozložení</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Název rozložení:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Název nesmí být prázdný!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Název se již používá!</translation>
    </message>
</context>
</TS>
