<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ca_ES" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Disposicions</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Desa la disposició actual com a...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Suprimeix una disposició...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exporta ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importa ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importa i fusiona ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Restableix la disposició de l’inici</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Restableix la disposició per defecte</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Desa les disposicions</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Fitxer de disposicions (*.views);;Tots els fitxers (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Carrega les disposicions</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Desa la disposició</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Nom de la disposició:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>El nom no pot estar buit!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>El nom ja està en ús!</translation>
    </message>
</context>
</TS>
