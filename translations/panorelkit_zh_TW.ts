<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>沒有使用中的版面配置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; 使用中。</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>按一下即可切換到下一個版面配置。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>下一個版面配置(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>上一個版面配置(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>與目前視窗的差異(&amp;W)：</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>快速鍵位置(&amp;R)：</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>與目前視窗的差異</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 的圖片</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>無。視窗與此版面配置相同。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::FileEntries</name>
    <message>
        <source>Writes all layouts to a file</source>
        <translation>將所有版面配置寫入檔案</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>以檔案中的版面配置取代所有版面配置</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>加入檔案中的版面配置，並取代同名的版面配置</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>群組(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>您的同名版面配置：</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>匯入版面配置</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&quot;%1&quot; 中的版面配置(&amp;L)：</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>檔案中的版面配置</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>檔案中：</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>兩者皆保留(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>取代您的版面配置(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>略過(&amp;S)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全選(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>全不選(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>匯入(&amp;I)</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>檔案中 &quot;%1&quot; 的圖片</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>您的 &quot;%1&quot; 的圖片</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>名稱已被使用：</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>取代您的同名版面配置</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>加入為 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>加入</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>已經存在</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>不匯入，名稱已被使用</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>不匯入</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>%1 中的版面配置來自本程式的其他版本，將維持原狀。</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>檔案已損毀。</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>%1 中的部分版面配置已損毀，因此已略過。</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>檔案來自本程式的其他版本，或已損毀。</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>無法將版面配置儲存在 %1：%2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>無法讀取存放您版面配置的檔案 %1。%2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>檔案已保留為 %1。</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>檔案將維持原狀，這次執行期間不會儲存版面配置。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>管理版面配置(&amp;M)...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>將 &quot;%1&quot; 重新命名為 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>刪除 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>刪除版面配置</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>複製 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>複製版面配置</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>移動 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>移動版面配置</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>匯入 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>已從 &quot;%1&quot; 匯入：%2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>已匯出至 &quot;%1&quot;：%2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>版面配置</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>取消復原</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>切換(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>重新命名(&amp;N)</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>複製(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>下移(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>匯出(&amp;E)...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>移至群組(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>匯入(&amp;I)...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>依所選的版面配置排列視窗</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>位置 %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>已修改</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>使用中</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>還沒有版面配置。請在選單「版面配置」中儲存。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>鎖定版面配置(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>不會意外移動、浮動或關閉任何項目</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>儲存版面配置</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>儲存 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>回復到版面配置</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>回復到 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>等</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>版面配置的名稱</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>輸入新名稱後按 Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>新版面配置的名稱</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>版面配置需要名稱：請輸入名稱，然後按 Enter 鍵。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>使用快速鍵(&amp;H)</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 至 %2 可切換到已指派這些按鍵的版面配置</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>空的位置 %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; 不是檔案。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>無法寫入 &quot;%1&quot;：%2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>已將版面配置匯出至 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>檔案中沒有版面配置</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>未匯入 &quot;%1&quot;：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; 中沒有適用於本程式的版面配置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>無法讀取 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>已匯入 &quot;%1&quot; 中的版面配置。</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>已匯入 &quot;%1&quot; 中的版面配置；已略過損毀的部分。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>左側</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右側</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下方</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(沒有名稱)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 不再是分頁</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>分頁 %1 現在位於最前面</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 現在是 %2 旁的分頁</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 在桌面上移動了位置</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 現在是獨立視窗</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 不再是獨立視窗</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 現在位於相鄰項目的旁邊</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 現在位於相鄰項目的上方或下方</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 在相鄰項目之間的位置已變更</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 已從第 %2 列移至第 %3 列</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>已加入 %1</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>已移除 %1</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 已從%2移至%3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 已開啟</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 已關閉</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 的大小已從 %2 變更為 %3</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::DifferencesNow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::History</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>將 &quot;%1&quot; 重新命名為 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>新增 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>刪除 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>儲存 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>重新排列版面配置</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>切換至 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>切換至群組 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>回復到 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>變更版面配置</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>匯入 &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>無法從 &quot;%1&quot; 匯入任何項目：%2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>已損毀，因此略過：%1。</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>不含損毀的部分：%1。</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>屬於此程式沒有的群組，因此略過：%1。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; 不可出現在 &quot;%2&quot; 中的此處</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; 不是根元素 &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%2&quot; 中缺少 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; 缺少屬性 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; 含有不明的屬性 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; 不可為 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 中不可有文字</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>&quot;%1&quot; 中狀態的位數不是偶數</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>版面配置需要名稱。</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>名稱不能包含控制字元。</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>已有同名的版面配置。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>檔案大小超過上限 %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>這不是一般檔案</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>檔案是空的</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>檔案中沒有版面配置</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>停駐視窗 &quot;%1&quot; 沒有物件名稱。</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>有多個停駐視窗的物件名稱為 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>工具列 &quot;%1&quot; 沒有物件名稱。</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>有多個工具列的物件名稱為 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>停駐視窗 &quot;%1&quot; 不在視窗的任何區域中。</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>視窗 &quot;%1&quot; 沒有中央元件。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>版面配置(&amp;L)</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>版面配置</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>停駐視窗位於不存在的一側</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>狀態已損毀</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>停駐視窗的巢狀層次過深</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>狀態所描述的內容超出視窗所能容納的範圍</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>文件已損毀：%1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>文件不是版面配置文件：%1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>文件的版本 &quot;%1&quot; 不明</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>這不是視窗的狀態</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>有版面配置沒有名稱</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>有多個版面配置的名稱為 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>有停駐視窗或工具列沒有名稱</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>有多個停駐視窗或工具列的名稱為 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>合併時產生了重複的停駐視窗或工具列</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>停駐視窗以分頁形式浮動；合併此狀態會遺失其工具列</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>工具列位於不存在的一側</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>復原：%1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>取消復原</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>取消復原：%1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>在工具列中顯示按鈕</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>版面配置</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>沒有 &quot;%1&quot; 這個命令</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>沒有 &quot;%1&quot; 這個命令；請參閱 &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>位元組 %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>完好</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>不輸出任何內容。</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>輸出 JSON。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>沒有群組 &quot;%1&quot;；現有：%2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>沒有版面配置 &quot;%1&quot;；現有：%2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>沒有視窗 &quot;%1&quot;；現有：%2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view 與 --current 不可同時使用</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>僅限此群組。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>僅限此版面配置。</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>僅限群組的目前版面配置。</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>僅限此視窗；若為設定檔，則為位於「區段/鍵」的狀態。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>沒有群組，也沒有已命名的版面配置</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>是單一視窗的狀態，該視窗沒有 ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>顯示此說明。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>顯示版本。</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>缺少檔案</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>檔案過多</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 被指定了多次</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>缺少選項 %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1；請參閱 &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>檢查視窗是否可以安全地套用檔案中的版面配置。</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>顯示檔案中版面配置的內容。</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>顯示版面配置之間的差異。</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>將版面配置繪製成 PNG 或 SVG 圖片。</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>略過合併時產生的重複項目，以及沒有名稱的版面配置。</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>將一份文件中的版面配置複製到另一份文件。</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>重新命名版面配置，或重新命名所有版面配置中的某個視窗。</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>將版面配置移到其群組中的其他位置。</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>從文件中移除版面配置。</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>用法：panorel 命令 ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help 命令&quot; 會說明命令的用法。FILE 可以是版面配置文件、單一視窗的狀態，或含有此類狀態的設定檔；&quot;-&quot; 代表標準輸入。</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>啟動 Qt 5 程式，並提供其視窗版面配置的選單。</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>讓桌面以 &quot;panorel run&quot; 啟動程式。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>無法寫入標準輸出</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>含有多個版面配置；請以 --group 與 --view 選擇其中一個</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>僅在 %1 中：%2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>沒有差異</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>輸出 JSON。</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>將 --view 指定的版面配置與此版面配置比較；若沒有 B，則取自同一個檔案。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>沒有可供比較的對象</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>要寫入的檔案；&quot;-&quot; 代表標準輸出。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>版面配置所屬的群組。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>版面配置。</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>缺少選項 %1；現有：%2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>取代名稱已存在的版面配置。</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>若名稱已存在，則以其他名稱複製版面配置。</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace 與 --keep-both 不可同時使用</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>要在所有版面配置中重新命名的視窗。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>新名稱。</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>視窗會在所有版面配置中重新命名</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>要移到其前面的版面配置。</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>移到所有其他項目之後。</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>需要 --before 或 --last 其中之一</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 需要數字</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>不含版面配置</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(沒有名稱)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(目前版面配置)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(工具列)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>讀取不超過此大小 (MiB) 的檔案，未指定時為 %1；0 表示沒有上限。</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>不是版面配置文件</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>由於文件類型或編碼，將整體重新寫入</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>已損毀</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 已損毀</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>無法讀取</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>沒有這個啟動器</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>不會啟動任何程式</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>啟動的程式有自己的 Qt，不會載入外掛程式</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>是您自己的啟動器，保持不變</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>切換版面配置時保持工具列不變。</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>再次移除啟動器。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>視窗版面配置</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size 需要不超過 %1 像素的寬度與高度，例如 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>圖片過大；請以 --window 選擇一個視窗</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>圖片過大</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>要寫入的圖片：若名稱以 &quot;.svg&quot; 結尾則為 SVG，否則為 PNG。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>每個視窗的大小 (像素)；未指定時為視窗本身的大小，寬度不超過 %1。</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>寬x高</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>以深色繪製。</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>不含視窗的狀態</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>無法啟動</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>切換版面配置時保持工具列不變。</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>顯示哪些程式有版面配置，不啟動任何程式。</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list 不能指定程式</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>缺少程式</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>外掛程式未安裝 (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>視窗 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>使用者資料：%1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>群組 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>版面配置 &quot;%1&quot; (使用中)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>版面配置 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>目前版面配置</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>寫入文件時的工具列</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>輸出 JSON。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>左側</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右側</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下方</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(沒有名稱)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>位於 %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(最前面)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>分頁：</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左側：</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右側：</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>上方：</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>下方：</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>位於不存在的一側：</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>浮動：</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>已關閉：</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(浮動)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(隱藏)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>工具列，%1，第 %2 列：</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>不是視窗的狀態，或已損毀 (大小：%1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>中央區域：%1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>沒有停駐視窗，也沒有工具列</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>有問題；請參閱 &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>已略過 %1：%2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>不能以狀態覆寫其設定檔</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>寫入此檔案，而非標準輸出。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>保留沒有名稱的版面配置。</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>略過有問題的狀態，並顯示訊息。</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>設定檔中位於「區段/鍵」的狀態。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window 僅適用於設定檔</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>含有多個狀態；請以 --window 選擇其中一個</translation>
    </message>
</context>
</TS>
