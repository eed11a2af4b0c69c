<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>将当前布局另存为...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>删除布局...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>导出 ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>导入 ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>导入并合并 ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>恢复启动时的布局</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>恢复默认布局</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>保存布局</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>布局文件 (*.views);;所有文件 (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>加载布局</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>保存布局</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>布局名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>名称不能为空！</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>名称已被使用！</translation>
    </message>
</context>
</TS>
