<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Dispositions</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Enregistrer la disposition actuelle sous...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Supprimer une disposition...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exporter ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importer ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importer et fusionner ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Rétablir la disposition du lancement</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Rétablir la disposition par défaut</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Enregistrer les dispositions</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Fichier de dispositions (*.views);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Charger les dispositions</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Enregistrer la disposition</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Nom de la disposition&#xa0;:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Le nom ne peut pas être vide !</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Ce nom est déjà utilisé&#xa0;!</translation>
    </message>
</context>
</TS>
