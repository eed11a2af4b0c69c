<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Układy</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Zapisz bieżący układ jako...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Usuń układ...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Eksportuj ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importuj ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importuj i scal ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Przywróć układ z chwili uruchomienia programu</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Przywróć układ domyślny</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Zapisz układy</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Plik układów (*.views);;Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Wczytaj układy</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Zapisz układ</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Nazwa układu:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Nazwa nie może być pusta!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Nazwa jest już używana!</translation>
    </message>
</context>
</TS>
