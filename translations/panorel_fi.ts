<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi_FI" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Asettelut</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Tallenna nykyinen asettelu nimellä...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Poista asettelu...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Vie ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Tuo ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Tuo ja yhdistä ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Palauta käynnistyksen aikainen asettelu</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Palauta oletusasettelu</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Tallenna asettelut</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Asettelutiedosto (*.views);;Kaikki tiedostot (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Lataa asettelut</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Tallenna asettelu</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>Asettelun &amp;nimi:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Nimi ei saa olla tyhjä!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Nimi on jo käytössä!</translation>
    </message>
</context>
</TS>
