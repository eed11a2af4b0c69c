<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Layouter</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Spara aktuell layout som...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Ta bort layout...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exportera ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importera ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importera och slå samman ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Återställ layouten från programstart</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Återställ standardlayouten</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Spara layouter</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Layoutfil (*.views);;Alla filer (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Läs in layouter</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Spara layout</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Namn på layouten:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Namnet får inte vara tomt!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Namnet används redan!</translation>
    </message>
</context>
</TS>
