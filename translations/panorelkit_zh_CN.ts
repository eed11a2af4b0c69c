<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>没有活动的布局。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; 是活动布局。</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>单击可切换到下一个布局。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>下一个布局(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>上一个布局(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>与当前窗口的差异(&amp;W)：</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>快捷键槽位(&amp;R)：</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>与当前窗口的差异</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 的图片</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>无。窗口与此布局相同。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
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
        <translation>将所有布局写入文件</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>用文件中的布局替换所有布局</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>添加文件中的布局，并替换同名布局</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>组(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>您的同名布局：</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>导入布局</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&quot;%1&quot; 中的布局(&amp;L)：</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>文件中的布局</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>文件中：</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>保留两者(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>替换您的布局(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>跳过(&amp;S)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>全不选(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>文件中 &quot;%1&quot; 的图片</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>您的 &quot;%1&quot; 的图片</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>名称已被占用：</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>替换您的同名布局</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>添加为 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>已存在</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>不导入，名称已被占用</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>不导入</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>%1 中的布局属于此程序的其他版本，将保持不变。</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>该文件已损坏。</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>%1 中的部分布局已损坏，已被忽略。</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>该文件属于此程序的其他版本，或已损坏。</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>无法将布局保存到 %1：%2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>无法读取您的布局文件 %1。%2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>该文件已保留为 %1。</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>该文件将保持不变，本次运行期间不会保存布局。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>管理布局(&amp;M)...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>将 &quot;%1&quot; 重命名为 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>删除 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>删除布局</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>复制 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>复制布局</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>移动 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>移动布局</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>导入 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>已从 &quot;%1&quot; 导入：%2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>已导出到 &quot;%1&quot;：%2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>切换(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>重命名(&amp;N)</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>复制(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
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
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>移动到组(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>按所选布局排列窗口</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>槽位 %1</translation>
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
        <translation>活动</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>还没有布局。请在菜单“布局”中保存一个。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>锁定布局(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>不会意外移动、浮动或关闭任何内容</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>保存布局</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>保存 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>恢复到布局</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>恢复到 &quot;%1&quot;</translation>
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
        <translation>布局的名称</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>输入新名称，然后按回车键</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>新布局的名称</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>布局需要名称：请输入名称，然后按回车键。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>使用快捷键(&amp;H)</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 至 %2 可切换到分配了这些按键的布局</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>空槽位 %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; 不是文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入 &quot;%1&quot;：%2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>已将布局导出到 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>文件中没有布局</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>未导入 &quot;%1&quot;：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; 中没有适用于此程序的布局。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>无法读取 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>已导入 &quot;%1&quot; 中的布局。</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>已导入 &quot;%1&quot; 中的布局；损坏的部分已被忽略。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>左侧</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右侧</translation>
    </message>
    <message>
        <source>top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(无名称)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 不再是标签页</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>标签页 %1 现在位于最前</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 现在是与 %2 并列的标签页</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 在桌面上移动了位置</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 现在是独立窗口</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 不再是独立窗口</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 现在与相邻项左右排列</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 现在与相邻项上下排列</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 在相邻项中的位置已改变</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 从第 %2 行移到了第 %3 行</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 已添加</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 已移除</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 从%2移到了%3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 已打开</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 已关闭</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 的大小从 %2 变为 %3</translation>
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
        <translation>将 &quot;%1&quot; 重命名为 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>新建 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>删除 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>保存 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>重新排列布局</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>切换到 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>切换到组 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>恢复到 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>更改布局</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>导入 &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>无法从 &quot;%1&quot; 导入任何内容：%2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>已损坏，因此被忽略：%1。</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>不含其损坏的部分：%1。</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>属于本程序没有的组，因此被忽略：%1。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; 不能出现在 &quot;%2&quot; 中的此处</translation>
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
        <translation>&quot;%2&quot; 缺少属性 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; 有未知属性 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; 不能为 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 中不能有文本</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>&quot;%1&quot; 中的状态的位数不是偶数</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>布局需要名称。</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>名称不能包含控制字符。</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>已有同名的布局。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>文件超过了 %1 的上限</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>这不是常规文件</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>文件中没有布局</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>停靠窗口 &quot;%1&quot; 没有对象名称。</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>多个停靠窗口的对象名称都是 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>工具栏 &quot;%1&quot; 没有对象名称。</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>多个工具栏的对象名称都是 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>停靠窗口 &quot;%1&quot; 不在窗口的任何区域中。</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>窗口 &quot;%1&quot; 没有中央部件。</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>布局(&amp;L)</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>停靠窗口位于不存在的一侧</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>状态已损坏</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>停靠窗口嵌套过深</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>状态描述的内容超出了窗口所能容纳的范围</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>文档已损坏：%1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>不是布局文档：%1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>文档的版本 &quot;%1&quot; 未知</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>这不是窗口的状态</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>有布局没有名称</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>多个布局的名称都是 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>有停靠窗口或工具栏没有名称</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>多个停靠窗口或工具栏的名称都是 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>合并造成了停靠窗口或工具栏重复</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>停靠窗口以标签页形式浮动；合并此状态会丢失其工具栏</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>工具栏位于不存在的一侧</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>重做：%1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>在工具栏中显示按钮</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>没有命令 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>没有命令 &quot;%1&quot;；请参阅 &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>字节 %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>完好</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>不输出任何内容。</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>输出 JSON。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>没有组 &quot;%1&quot;；现有：%2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>没有布局 &quot;%1&quot;；现有：%2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>没有窗口 &quot;%1&quot;；现有：%2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view 与 --current 不能同时使用</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>仅此组。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>仅此布局。</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>仅组的当前布局。</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>仅此窗口；对于设置文件，为 SECTION/KEY 处的状态。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>既没有组也没有命名的布局</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>是单个窗口的状态，没有 ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>缺少文件</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>文件过多</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 被指定了多次</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>缺少选项 %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1；请参阅 &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>报告窗口能否安全地应用文件中的布局。</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>显示文件中布局的内容。</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>显示布局之间的差异。</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>将布局绘制为 PNG 或 SVG 图片。</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>去除合并造成的重复项和没有名称的布局。</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>将一个文档中的布局复制到另一个文档。</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>重命名布局，或重命名所有布局中的某个窗口。</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>将布局移到其所在组中的其他位置。</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>从文档中移除布局。</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>用法：panorel 命令 ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help 命令&quot; 显示命令的用法。FILE 可以是布局文档、单个窗口的状态，或包含此类状态的设置文件；&quot;-&quot; 表示标准输入。</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>启动 Qt 5 程序，并提供其窗口布局的菜单。</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>让桌面通过 &quot;panorel run&quot; 启动程序。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>无法写入标准输出</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>有多个布局；请用 --group 和 --view 选择一个</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>仅在 %1 中：%2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>没有差异</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>输出 JSON。</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>将 --view 指定的布局与此布局进行比较；如果没有 B，则使用同一文件中的布局。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>没有可比较的对象</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>要写入的文件；&quot;-&quot; 表示标准输出。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>布局所在的组。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>布局。</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>缺少选项 %1；现有：%2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>替换名称已存在的布局。</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>名称已存在时，以其他名称复制布局。</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace 与 --keep-both 不能同时使用</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>要在所有布局中重命名的窗口。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>新名称。</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>窗口会在所有布局中重命名</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>要移到哪个布局之前。</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>其他布局</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>移到所有其他布局之后。</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>需要 --before 或 --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 需要一个数字</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>不包含布局</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(无名称)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(当前布局)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(工具栏)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>读取不超过此大小 (MiB) 的文件，未指定时为 %1；0 表示不限制。</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>不是布局文档</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>由于文档类型或编码，将整体重新写入</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 已损坏</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>没有这样的启动器</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>不启动任何程序</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>启动的程序自带 Qt，不加载插件</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>是您自己的启动器，保持不变</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>切换布局时保持工具栏不变。</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>再次移除启动器。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>窗口布局</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size 需要不超过 %1 像素的宽度和高度，例如 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>图片过大；请用 --window 选择一个窗口</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>图片过大</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>要写入的图片：名称以 &quot;.svg&quot; 结尾时为 SVG，否则为 PNG。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>每个窗口的大小 (像素)；未指定时使用其自身大小，宽度最多为 %1。</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>宽x高</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>使用深色绘制。</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>不包含窗口的状态</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>无法启动</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>切换布局时保持工具栏不变。</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>显示哪些程序有布局，不启动任何程序。</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list 不能指定程序</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>缺少程序</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>插件未安装 (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>窗口 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>用户数据：%1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>组 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>布局 &quot;%1&quot; (活动)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>布局 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>当前布局</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>写入时的工具栏</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>输出 JSON。</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>左侧</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右侧</translation>
    </message>
    <message>
        <source>top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>底部</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(无名称)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>位于 %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(最前)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>标签页：</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左侧：</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右侧：</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>顶部：</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>底部：</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>位于不存在的一侧：</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>浮动：</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>已关闭：</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(浮动)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(隐藏)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>工具栏，%1，第 %2 行：</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>不是窗口的状态，或已损坏 (大小：%1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>中央区域：%1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>既没有停靠窗口也没有工具栏</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>有问题；请参阅 &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>已去除 %1：%2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>不能用状态覆盖其设置文件</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>写入此文件而不是标准输出。</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>保留没有名称的布局。</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>去除有问题的状态，并加以报告。</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>设置文件中 SECTION/KEY 处的状态。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window 仅用于设置文件</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>有多个状态；请用 --window 选择一个</translation>
    </message>
</context>
</TS>
