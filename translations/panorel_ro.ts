<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro_RO" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Aranjamente</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Salvează aranjamentul curent ca...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Șterge un aranjament...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exportă ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importă ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importă și îmbină ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Restabilește aranjamentul de la pornire</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Restabilește aranjamentul implicit</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Salvează aranjamentele</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Fișier de aranjamente (*.views);;Toate fișierele (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Încarcă aranjamentele</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Salvează aranjamentul</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Numele aranjamentului:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Numele nu poate fi gol!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Numele este deja folosit!</translation>
    </message>
</context>
</TS>
