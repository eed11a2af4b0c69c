<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Layouter</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Gem aktuelt layout som...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Slet layout...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Eksportér ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importér ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importér og flet ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Gendan layoutet fra programstart</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Gendan standardlayoutet</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Gem layouter</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Layoutfil (*.views);;Alle filer (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Indlæs layouter</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Gem layout</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Navn på layoutet:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Navnet må ikke være tomt!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Navnet er allerede i brug!</translation>
    </message>
</context>
</TS>
