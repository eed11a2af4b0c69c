<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk_SK" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Rozloženia</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Uložiť aktuálne rozloženie ako...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Odstrániť rozloženie...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exportovať ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importovať ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importovať a zlúčiť ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Obnoviť rozloženie zo spustenia programu</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Obnoviť predvolené rozloženie</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Uložiť rozloženia</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Súbor rozložení (*.views);;Všetky súbory (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Načítať rozloženia</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Uložiť rozloženie</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Názov rozloženia:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Názov nesmie byť prázdny!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Názov sa už používa!</translation>
    </message>
</context>
</TS>
