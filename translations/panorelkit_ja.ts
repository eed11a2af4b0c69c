<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>アクティブなレイアウトはありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; がアクティブです。</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>クリックすると次のレイアウトに切り替わります。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>次のレイアウト(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>前のレイアウト(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>現在のウィンドウとの違い(&amp;W):</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>ショートカットのスロット(&amp;R):</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>現在のウィンドウとの違い</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>&quot;%1&quot; の図</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>ありません。ウィンドウはこのレイアウトのとおりです。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::FileEntries</name>
    <message>
        <source>Writes all layouts to a file</source>
        <translation>すべてのレイアウトをファイルに書き出します</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>すべてのレイアウトをファイルのもので置き換えます</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>ファイルのレイアウトを追加し、同名のものは置き換えます</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>グループ(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>同名の既存のレイアウト:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>レイアウトのインポート</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&quot;%1&quot; のレイアウト(&amp;L):</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>ファイルのレイアウト</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>ファイル内:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>両方を残す(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>既存のものを置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>スキップ(&amp;S)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>すべて選択解除(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>ファイル内の &quot;%1&quot; の図</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>既存の &quot;%1&quot; の図</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>名前が使用されています:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>この名前の既存のレイアウトを置き換えます</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>&quot;%1&quot; として追加します</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>追加します</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>すでにあります</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>名前が使用されているためインポートしません</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>インポートしません</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>%1 のレイアウトはこのプログラムの別のバージョンのものです。そのまま残します。</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>ファイルが破損しています。</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>%1 のレイアウトの一部は破損していたため除外しました。</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>ファイルはこのプログラムの別のバージョンのものか、破損しています。</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>レイアウトを %1 に保存できませんでした: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>レイアウトのファイル %1 を読み込めません。%2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>ファイルは %1 として保管されます。</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>ファイルはそのまま残し、今回の実行ではレイアウトを保存しません。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>レイアウトを管理(&amp;M)...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot; の名前を &quot;%2&quot; に変更</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を削除</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>レイアウトを削除</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を複製</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>レイアウトを複製</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を移動</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>レイアウトを移動</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; をインポート</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot; からインポートしました: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot; にエクスポートしました: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>切り替え(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>名前の変更(&amp;N)</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>複製(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>下へ移動(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>グループへ移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>インポート(&amp;I)...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>選択したレイアウトのとおりにウィンドウを配置します</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>スロット %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>変更あり</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>アクティブ</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>レイアウトはまだありません。メニュー &quot;レイアウト&quot; で保存してください。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>レイアウトをロック(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>誤って移動、フローティング、閉じることができないようにします</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>レイアウトを保存</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を保存</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>レイアウトに戻す</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>&quot;%1&quot; に戻す</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>ほか</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>レイアウトの名前</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>新しい名前を入力して Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>新しいレイアウトの名前</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>レイアウトには名前が必要です。名前を入力して Enter キーを押してください。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>ショートカットを使用(&amp;H)</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 から %2 で、キーを割り当てたレイアウトに切り替えます</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>空きスロット %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; はファイルではありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; に書き込めません: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>レイアウトを &quot;%1&quot; にエクスポートしました。</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>ファイルにレイアウトがありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; をインポートしませんでした: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; にはこのプログラムのレイアウトがありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; を読み込めません。</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; のレイアウトをインポートしました。</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>&quot;%1&quot; のレイアウトをインポートしました。破損した部分は除外しました。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(名前なし)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 はタブではなくなりました</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>タブ %1 が前面になりました</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 は %2 と並ぶタブになりました</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 がデスクトップ上で移動しました</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 は独立したウィンドウになりました</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 は独立したウィンドウではなくなりました</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 は隣のものと左右に並ぶようになりました</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 は隣のものと上下に並ぶようになりました</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 の並び順が変わりました</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 が %2 行目から %3 行目に移動しました</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 が追加されました</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 が削除されました</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 が%2から%3に移動しました</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 が開いています</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 が閉じています</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 のサイズが %2 から %3 に変わりました</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::DifferencesNow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::History</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot; の名前を &quot;%2&quot; に変更</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を作成</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を削除</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; を保存</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>レイアウトの順序を変更</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>&quot;%1&quot; に切り替え</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>グループ &quot;%1&quot; に切り替え</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>&quot;%1&quot; に戻す</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>レイアウトを変更</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; をインポート</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>&quot;%1&quot; からは何もインポートできません: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>破損していたため除外しました: %1。</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>破損した部分を除いてあります: %1。</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>このプログラムにないグループのものなので除外しました: %1。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; は &quot;%2&quot; のこの位置には置けません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; はルート要素 &quot;ViewData&quot; ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%2&quot; に &quot;%1&quot; がありません</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; に属性 &quot;%1&quot; がありません</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; に不明な属性 &quot;%1&quot; があります</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; を &quot;%1&quot; にすることはできません</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>&quot;%1&quot; にテキストを含めることはできません</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>&quot;%1&quot; の状態の桁数が偶数ではありません</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>レイアウトには名前が必要です。</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>名前に制御文字は使えません。</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>この名前のレイアウトはすでにあります。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>ファイルが上限の %1 を超えています</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>ファイルにレイアウトがありません</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>ドックウィジェット &quot;%1&quot; にオブジェクト名がありません。</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>複数のドックウィジェットが同じオブジェクト名 &quot;%1&quot; を持っています。</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>ツールバー &quot;%1&quot; にオブジェクト名がありません。</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>複数のツールバーが同じオブジェクト名 &quot;%1&quot; を持っています。</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>ドックウィジェット &quot;%1&quot; はウィンドウのどの領域にもありません。</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>ウィンドウ &quot;%1&quot; に中央ウィジェットがありません。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>レイアウト(&amp;L)</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>レイアウト</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>ドックウィジェットが存在しない側にあります</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>状態が破損しています</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>ドックウィジェットの入れ子が深すぎます</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>状態の内容がウィンドウの限度を超えています</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>文書が破損しています: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>レイアウトの文書ではありません: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>文書のバージョン &quot;%1&quot; は不明です</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>ウィンドウの状態ではありません</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>名前のないレイアウトがあります</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>複数のレイアウトが同じ名前 &quot;%1&quot; を持っています</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>名前のないドックウィジェットまたはツールバーがあります</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>複数のドックウィジェットまたはツールバーが同じ名前 &quot;%1&quot; を持っています</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>マージによりドックウィジェットまたはツールバーが重複しています</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>ドックウィジェットがタブとしてフローティングしています。この状態をマージするとツールバーが失われます</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>ツールバーが存在しない側にあります</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>やり直す: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>ツールバーにボタンを表示</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>レイアウト</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>コマンド &quot;%1&quot; はありません</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>コマンド &quot;%1&quot; はありません。&quot;panorel help&quot; を参照してください</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>バイト %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>何も出力しません。</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON を出力します。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>グループ &quot;%1&quot; はありません。存在するもの: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>レイアウト &quot;%1&quot; はありません。存在するもの: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>ウィンドウ &quot;%1&quot; はありません。存在するもの: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view と --current は同時に指定できません</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>このグループのみ。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>このレイアウトのみ。</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>グループの現在のレイアウトのみ。</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>このウィンドウのみ。設定ファイルの場合は SECTION/KEY の状態。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>グループも名前付きのレイアウトもありません</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>単一のウィンドウの状態であり、ID がありません</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>ファイルが指定されていません</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>ファイルが多すぎます</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 が複数回指定されています</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>オプション %1 が指定されていません</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1。&quot;panorel help %2&quot; を参照してください</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>ファイルのレイアウトをウィンドウに問題なく適用できるかどうかを示します。</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>ファイルのレイアウトの内容を示します。</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>レイアウトの違いを示します。</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>レイアウトを PNG または SVG の画像として描画します。</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>マージで重複したものと名前のないレイアウトを除外します。</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>ある文書のレイアウトを別の文書にコピーします。</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>レイアウトの名前、またはすべてのレイアウトのウィンドウの名前を変更します。</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>レイアウトをグループ内の別の位置に移動します。</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>文書からレイアウトを削除します。</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>使い方: panorel コマンド ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help コマンド&quot; でコマンドの使い方を表示します。FILE はレイアウトの文書、単一のウィンドウの状態、またはそのような状態を含む設定ファイルです。&quot;-&quot; は標準入力です。</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>ウィンドウのレイアウトのメニューを付けて Qt 5 プログラムを起動します。</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>デスクトップからプログラムを &quot;panorel run&quot; で起動するようにします。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>標準出力に書き込めません</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>複数のレイアウトがあります。--group と --view で 1 つ選んでください</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>%1 のみ: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>違いはありません</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON を出力します。</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>--view のレイアウトをこのレイアウトと比較します。B がない場合は同じファイルのものと比較します。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>比較する対象がありません</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>書き込むファイル。&quot;-&quot; は標準出力です。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>レイアウトのグループ。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>レイアウト。</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>オプション %1 が指定されていません。存在するもの: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>同じ名前のレイアウトが既にある場合は置き換えます。</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>同じ名前のレイアウトが既にある場合は別の名前でコピーします。</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace と --keep-both は同時に指定できません</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>すべてのレイアウトで名前を変更するウィンドウ。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>新しい名前。</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>ウィンドウの名前はすべてのレイアウトで変更されます</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>移動先の直後にくるレイアウト。</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>別のレイアウト</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>ほかのすべてのレイアウトの後に移動します。</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>--before か --last のどちらかが必要です</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 には数値が必要です</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>レイアウトがありません</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(名前なし)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(現在のレイアウト)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(ツールバー)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>このサイズ (MiB) までのファイルを読み込みます。指定しない場合は %1、0 で無制限です。</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>レイアウトの文書ではありません</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>文書型またはエンコーディングのため、全体が書き直されます</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 が破損しています</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み込めません</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>そのようなランチャーはありません</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>プログラムを起動しません</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>独自の Qt を持ち、プラグインを読み込まないプログラムを起動します</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>自分で作成したランチャーなので、そのままにします</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>レイアウトの切り替え時にツールバーをそのままにします。</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>ランチャーを取り除きます。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>ウィンドウのレイアウト</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size には %1 ピクセルまでの幅と高さを指定してください (例: 800x600)</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>画像が大きすぎます。--window でウィンドウを 1 つ選んでください</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>画像が大きすぎます</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>書き込む画像。名前が &quot;.svg&quot; で終わる場合は SVG、それ以外は PNG です。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>各ウィンドウのサイズ (ピクセル)。指定しない場合は本来のサイズで、幅は最大 %1 です。</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>幅x高さ</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>暗い色で描画します。</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>ウィンドウの状態がありません</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>起動できません</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>レイアウトの切り替え時にツールバーをそのままにします。</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>レイアウトのあるプログラムを表示し、何も起動しません。</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list にプログラムは指定できません</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>プログラムが指定されていません</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>プラグインがインストールされていません (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>ウィンドウ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>ユーザーデータ: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>グループ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>レイアウト &quot;%1&quot; (アクティブ)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>レイアウト &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>現在のレイアウト</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>書き込み時のツールバー</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON を出力します。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(名前なし)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>位置 %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(前面)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>タブ:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>上:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>下:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>存在しない側:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>フローティング:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>閉じているもの:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(フローティング)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(非表示)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>ツールバー、%1、%2 行目:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>ウィンドウの状態ではないか、破損しています (サイズ: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>中央領域: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>ドックウィジェットもツールバーもありません</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>正常ではありません。&quot;panorel check&quot; を参照してください</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>除外しました: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>状態をその設定ファイルに上書きすることはできません</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>標準出力ではなくこのファイルに書き込みます。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>名前のないレイアウトを残します。</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>正常でない状態を除外し、その旨を示します。</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>設定ファイルの SECTION/KEY の状態。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window は設定ファイル用です</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>複数の状態があります。--window で 1 つ選んでください</translation>
    </message>
</context>
</TS>
