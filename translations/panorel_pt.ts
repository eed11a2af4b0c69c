<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Disposições</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Guardar a disposição atual como...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Eliminar disposição...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Exportar ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Importar ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Importar e combinar ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Repor a disposição do arranque</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Repor a disposição predefinida</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Guardar disposições</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Ficheiro de disposições (*.views);;Todos os ficheiros (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Carregar disposições</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Guardar disposição</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Nome da disposição:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>O nome não pode estar vazio!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>O nome já está a ser utilizado!</translation>
    </message>
</context>
</TS>
