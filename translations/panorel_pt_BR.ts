<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Layouts de janela</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Salvar layout atual como...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Excluir layout...</translation>
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
        <translation>Importar e mesclar ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Restaurar o layout da inicialização</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Restaurar o layout padrão</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Salvar layouts</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Arquivo de layouts (*.views);;Todos os arquivos (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Carregar layouts</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Salvar layout</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Nome do layout:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>O nome não pode estar vazio!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>O nome já está em uso!</translation>
    </message>
</context>
</TS>
