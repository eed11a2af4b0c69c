<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Disposiciones</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Guardar la disposición actual como...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Eliminar disposición...</translation>
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
        <translation>Importar y combinar ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Restablecer la disposición del inicio</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Restablecer la disposición predeterminada</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Guardar disposiciones</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Archivo de disposiciones (*.views);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Cargar disposiciones</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Guardar disposición</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Nombre de la disposición:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>¡El nombre no puede estar vacío!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>¡El nombre ya está en uso!</translation>
    </message>
</context>
</TS>
