<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Oppsett</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Lagre gjeldende oppsett som...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Slett oppsett...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Eksporter ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importer ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importer og slå sammen ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Gjenopprett oppsettet fra programstart</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Gjenopprett standardoppsettet</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Lagre oppsett</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Oppsettsfil (*.views);;Alle filer (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Last inn oppsett</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Lagre oppsett</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Navn på oppsettet:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Navnet kan ikke være tomt!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Navnet er allerede i bruk!</translation>
    </message>
</context>
</TS>
