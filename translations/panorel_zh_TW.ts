<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>版面配置</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>將目前的版面配置另存為...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>刪除版面配置...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>匯出 ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>匯入 ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>匯入並合併 ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>還原啟動時的版面配置</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>還原預設版面配置</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>儲存版面配置</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>版面配置檔 (*.views);;所有檔案 (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>載入版面配置</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>儲存版面配置</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>版面配置名稱(&amp;N)：</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>名稱不可為空！</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>名稱已被使用！</translation>
    </message>
</context>
</TS>
