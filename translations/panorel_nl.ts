<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Indelingen</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Huidige indeling opslaan als...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Indeling verwijderen...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exporteren ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importeren ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importeren en samenvoegen ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Indeling bij programmastart herstellen</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Standaardindeling herstellen</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Indelingen opslaan</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Indelingsbestand (*.views);;Alle bestanden (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Indelingen laden</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Indeling opslaan</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Naam van de indeling:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>De naam mag niet leeg zijn!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>De naam is al in gebruik!</translation>
    </message>
</context>
</TS>
