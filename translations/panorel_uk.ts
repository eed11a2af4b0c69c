<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Компонування</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Зберегти поточне компонування як...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Видалити компонування...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Експорт ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Імпорт ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Імпорт і об’єднання ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Відновити компонування на момент запуску</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Відновити типове компонування</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Зберегти всі компонування</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Файл компонувань (*.views);;Усі файли (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Завантажити компонування</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Зберегти компонування</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Назва компонування:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Назва не може бути порожньою!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Ця назва вже використовується!</translation>
    </message>
</context>
</TS>
