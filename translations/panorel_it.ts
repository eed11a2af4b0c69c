<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Salva il layout corrente con nome...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Elimina layout...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Esporta ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importa ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importa e unisci ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Ripristina il layout di avvio</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Ripristina il layout predefinito</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Salva i layout</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>File di layout (*.views);;Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Carica i layout</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Salva il layout</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Nome del layout:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Il nome non può essere vuoto!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Il nome è già in uso!</translation>
    </message>
</context>
</TS>
