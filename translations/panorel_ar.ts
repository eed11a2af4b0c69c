<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>التخطيطات</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>حفظ التخطيط الحالي باسم...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>حذف تخطيط...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>تصدير ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>استيراد ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>استيراد ودمج ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>استعادة تخطيط بدء التشغيل</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>استعادة التخطيط الافتراضي</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>حفظ التخطيطات</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>ملف تخطيطات (*.views);;كل الملفات (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>تحميل التخطيطات</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>حفظ التخطيط</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>&amp;اسم التخطيط:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>يجب ألا يكون الاسم فارغًا!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>الاسم مستخدم بالفعل!</translation>
    </message>
</context>
</TS>
