<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he_IL" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>פריסות</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>שמירת הפריסה הנוכחית בשם...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>מחיקת פריסה...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>ייצוא ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>ייבוא ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>ייבוא ומיזוג ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>שחזור הפריסה מהפעלת התוכנית</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>שחזור פריסת ברירת המחדל</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>שמירת פריסות</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>קובץ פריסות (*.views);;כל הקבצים (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>טעינת פריסות</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>שמירת פריסה</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;שם הפריסה:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>השם אינו יכול להיות ריק!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>השם כבר נמצא בשימוש!</translation>
    </message>
</context>
</TS>
