<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Компоновки</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Сохранить текущую компоновку как...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Удалить компоновку...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Экспорт ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Импорт ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Импорт и объединение ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Восстановить компоновку при запуске</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Восстановить компоновку по умолчанию</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Сохранить компоновки</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Файл компоновок (*.views);;Все файлы (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Загрузить компоновки</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Сохранить компоновку</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;Имя компоновки:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Имя не может быть пустым!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Это имя уже используется!</translation>
    </message>
</context>
</TS>
