<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Fensterlayouts</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Aktuelles Fensterlayout speichern unter...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Fensterlayout löschen...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exportieren ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importieren ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importieren und zusammenführen ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Fensterlayouts auf Stand beim Programmstart zurücksetzen</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Fensterlayouts auf Werkseinstellung zurücksetzen</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Fensterlayouts speichern</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Fensterlayout-Datei (*.views);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Fensterlayouts laden</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Fensterlayout speichern</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Name des Fensterlayouts:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Der Name darf nicht leer sein!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Der Name wird bereits verwendet!</translation>
    </message>
</context>
</TS>
