<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>現在のレイアウトに名前を付けて保存...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>レイアウトを削除...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>エクスポート ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>インポート ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>インポートしてマージ ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>起動時の状態に戻す</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>初期設定に戻す</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>レイアウトを保存</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>レイアウトファイル (*.views);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>レイアウトを読み込む</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>レイアウトを保存</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>レイアウトの名前(&amp;N):</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>名前を空にすることはできません。</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>この名前は既に使用されています。</translation>
    </message>
</context>
</TS>
