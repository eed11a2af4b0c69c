<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>활성 레이아웃이 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot;이(가) 활성 레이아웃입니다.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>클릭하면 다음 레이아웃으로 이동합니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>다음 레이아웃(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>이전 레이아웃(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>현재 창과 다른 점(&amp;W):</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>단축키 슬롯(&amp;R):</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>현재 창과 다른 점</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>&quot;%1&quot;의 그림</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>없음. 창이 이 레이아웃과 같습니다.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
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
        <translation>모든 레이아웃을 파일에 씁니다</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>모든 레이아웃을 파일의 레이아웃으로 바꿉니다</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>파일의 레이아웃을 추가하고 이름이 같은 레이아웃은 바꿉니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>그룹(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>이름이 같은 기존 레이아웃:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>레이아웃 가져오기</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&quot;%1&quot;의 레이아웃(&amp;L):</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>파일의 레이아웃</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>파일에 있는 것:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>둘 다 유지(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>기존 것 바꾸기(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>건너뛰기(&amp;S)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>모두 선택(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>모두 선택 해제(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>가져오기(&amp;I)</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>파일에 있는 &quot;%1&quot;의 그림</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>기존 &quot;%1&quot;의 그림</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>이미 사용 중인 이름:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>이름이 같은 기존 레이아웃을 바꿉니다</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>&quot;%1&quot;(으)로 추가됩니다</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>추가됩니다</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>이미 있습니다</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>이름이 사용 중이므로 가져오지 않습니다</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>가져오지 않습니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>%1의 레이아웃은 이 프로그램의 다른 버전에 속합니다. 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>파일이 손상되었습니다.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>%1의 일부 레이아웃이 손상되어 제외되었습니다.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>파일이 이 프로그램의 다른 버전에 속하거나 손상되었습니다.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>레이아웃을 %1에 저장할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>레이아웃 파일 %1을(를) 읽을 수 없습니다. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>파일을 %1(으)로 보관합니다.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>파일은 그대로 유지되며 이번 실행에서는 레이아웃이 저장되지 않습니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>레이아웃 관리(&amp;M)...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot;의 이름을 &quot;%2&quot;(으)로 바꾸기</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 삭제</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>레이아웃 삭제</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 복제</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>레이아웃 복제</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 이동</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>레이아웃 이동</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 가져오기</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot;에서 가져왔습니다: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot;(으)로 내보냈습니다: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>레이아웃</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>전환(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>이름 바꾸기(&amp;N)</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>복제(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>위로 이동(&amp;U)</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>아래로 이동(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>내보내기(&amp;E)...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>그룹으로 이동(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>가져오기(&amp;I)...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>선택한 레이아웃대로 창을 배치합니다</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>슬롯 %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>수정됨</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>활성</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>아직 레이아웃이 없습니다. &quot;레이아웃&quot; 메뉴에서 저장하십시오.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>레이아웃 잠그기(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>실수로 옮기거나 떼어 내거나 닫을 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>레이아웃 저장</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 저장</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>레이아웃으로 되돌리기</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>&quot;%1&quot;(으)로 되돌리기</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>기타</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>레이아웃의 이름</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>새 이름을 입력하고 Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>새 레이아웃의 이름</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>레이아웃에는 이름이 필요합니다. 이름을 입력한 다음 Enter 키를 누르십시오.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>단축키 사용(&amp;H)</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1부터 %2까지의 키로 해당 키가 지정된 레이아웃으로 전환합니다</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>빈 슬롯 %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot;은(는) 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot;을(를) 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>레이아웃을 &quot;%1&quot;(으)로 내보냈습니다.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>파일에 레이아웃이 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot;을(를) 가져오지 않았습니다: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot;에 이 프로그램의 레이아웃이 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot;을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>&quot;%1&quot;의 레이아웃을 가져왔습니다.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>&quot;%1&quot;의 레이아웃을 가져왔습니다. 손상된 부분은 제외되었습니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>top</source>
        <translation>위쪽</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>아래쪽</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(이름 없음)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1이(가) 더 이상 탭이 아님</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>%1 탭이 이제 맨 앞에 있음</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1이(가) 이제 %2와(과) 나란한 탭임</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1이(가) 바탕 화면에서 이동함</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1이(가) 이제 별도의 창임</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1이(가) 더 이상 별도의 창이 아님</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1이(가) 이제 이웃 항목과 좌우로 배치됨</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1이(가) 이제 이웃 항목과 위아래로 배치됨</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1의 이웃 항목 사이 위치가 바뀜</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1이(가) %2번째 줄에서 %3번째 줄로 이동함</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1이(가) 추가됨</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1이(가) 제거됨</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1이(가) %2에서 %3(으)로 이동함</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1이(가) 열려 있음</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1이(가) 닫혀 있음</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1의 크기가 %2에서 %3(으)로 바뀜</translation>
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
        <translation>&quot;%1&quot;의 이름을 &quot;%2&quot;(으)로 바꾸기</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 만들기</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 삭제</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 저장</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>레이아웃 순서 바꾸기</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>&quot;%1&quot;(으)로 전환</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>그룹 &quot;%1&quot;(으)로 전환</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>&quot;%1&quot;(으)로 되돌리기</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>레이아웃 변경</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 가져오기</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>&quot;%1&quot;에서 가져올 수 있는 것이 없습니다: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>손상되어 제외되었습니다: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>손상된 부분을 뺐습니다: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>이 프로그램에 없는 그룹이므로 제외되었습니다: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot;은(는) &quot;%2&quot;의 이 위치에 있을 수 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot;은(는) 루트 요소 &quot;ViewData&quot;가 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%2&quot;에 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot;에 속성 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot;에 알 수 없는 속성 &quot;%1&quot;이(가) 있습니다</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot;는 &quot;%1&quot;일 수 없습니다</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>&quot;%1&quot;에는 텍스트가 있을 수 없습니다</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>&quot;%1&quot;의 상태 자릿수가 짝수가 아닙니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>레이아웃에는 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>이름에 제어 문자를 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>이 이름의 레이아웃이 이미 있습니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>파일이 제한 크기 %1보다 큽니다</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>파일이 비어 있습니다</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>파일에 레이아웃이 없습니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>도킹 창 &quot;%1&quot;에 객체 이름이 없습니다.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>여러 도킹 창의 객체 이름이 &quot;%1&quot;입니다.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>도구 모음 &quot;%1&quot;에 객체 이름이 없습니다.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>여러 도구 모음의 객체 이름이 &quot;%1&quot;입니다.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>도킹 창 &quot;%1&quot;이(가) 창의 어느 영역에도 없습니다.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>창 &quot;%1&quot;에 중앙 위젯이 없습니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>레이아웃(&amp;L)</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>레이아웃</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>도킹 창이 존재하지 않는 쪽에 있습니다</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>상태가 손상되었습니다</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>도킹 창이 너무 깊이 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>상태가 창이 가질 수 있는 것보다 많은 내용을 담고 있습니다</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>문서가 손상되었습니다: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>레이아웃 문서가 아닙니다: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>문서의 버전 &quot;%1&quot;을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>창의 상태가 아닙니다</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>이름이 없는 레이아웃이 있습니다</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>여러 레이아웃의 이름이 &quot;%1&quot;입니다</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>이름이 없는 도킹 창 또는 도구 모음이 있습니다</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>여러 도킹 창 또는 도구 모음의 이름이 &quot;%1&quot;입니다</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>병합으로 도킹 창 또는 도구 모음이 중복되었습니다</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>도킹 창이 탭으로 떠 있습니다. 이 상태를 병합하면 도구 모음이 사라집니다</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>도구 모음이 존재하지 않는 쪽에 있습니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>실행 취소: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>다시 실행: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>도구 모음에 단추 표시</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>레이아웃</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 명령이 없습니다</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>&quot;%1&quot; 명령이 없습니다. &quot;panorel help&quot;를 참조하십시오</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>바이트 %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>아무것도 출력하지 않습니다.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON을 출력합니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>&quot;%1&quot; 그룹이 없습니다. 있는 그룹: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>&quot;%1&quot; 레이아웃이 없습니다. 있는 레이아웃: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>&quot;%1&quot; 창이 없습니다. 있는 창: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view와 --current는 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>이 그룹만.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>이 레이아웃만.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>그룹의 현재 레이아웃만.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>이 창만. 설정 파일에서는 SECTION/KEY의 상태.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>그룹도 이름 있는 레이아웃도 없습니다</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>ID가 없는 단일 창의 상태입니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>버전을 표시합니다.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>파일이 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>파일이 너무 많습니다</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1이(가) 두 번 이상 지정되었습니다</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>옵션 %1이(가) 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1. &quot;panorel help %2&quot;를 참조하십시오</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>파일의 레이아웃을 창에 문제없이 적용할 수 있는지 알려 줍니다.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>파일의 레이아웃 내용을 알려 줍니다.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>레이아웃의 차이점을 알려 줍니다.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>레이아웃을 PNG 또는 SVG 그림으로 그립니다.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>병합으로 중복된 항목과 이름이 없는 레이아웃을 제외합니다.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>한 문서의 레이아웃을 다른 문서에 복사합니다.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>레이아웃의 이름 또는 모든 레이아웃에 있는 창의 이름을 바꿉니다.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>레이아웃을 그룹 안의 다른 위치로 옮깁니다.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>문서에서 레이아웃을 제거합니다.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>사용법: panorel 명령 ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help 명령&quot;은 명령의 사용법을 알려 줍니다. FILE은 레이아웃 문서, 단일 창의 상태 또는 그러한 상태가 들어 있는 설정 파일입니다. &quot;-&quot;는 표준 입력입니다.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>창의 레이아웃 메뉴가 있는 Qt 5 프로그램을 시작합니다.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>데스크톱이 &quot;panorel run&quot;으로 프로그램을 시작하게 합니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>표준 출력에 쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>레이아웃이 여러 개 있습니다. --group과 --view로 하나를 선택하십시오</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>%1에만 있음: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>차이점 없음</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON을 출력합니다.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>--view의 레이아웃을 이 레이아웃과 비교합니다. B가 없으면 같은 파일의 레이아웃과 비교합니다.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>비교할 대상이 없습니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>쓸 파일. &quot;-&quot;는 표준 출력입니다.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>레이아웃의 그룹.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>레이아웃.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>옵션 %1이(가) 지정되지 않았습니다. 있는 그룹: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>이름이 이미 있는 레이아웃을 바꿉니다.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>이름이 이미 있는 레이아웃은 다른 이름으로 복사합니다.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace와 --keep-both는 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>모든 레이아웃에서 이름을 바꿀 창.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>새 이름.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>창의 이름은 모든 레이아웃에서 바뀝니다</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>이 레이아웃 앞으로 옮깁니다.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>다른_레이아웃</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>다른 모든 레이아웃 뒤로 옮깁니다.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>--before 또는 --last가 필요합니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1에는 숫자가 필요합니다</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>레이아웃이 없습니다</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(이름 없음)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(현재 레이아웃)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(도구 모음)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>이 크기(MiB)까지의 파일을 읽습니다. 지정하지 않으면 %1이며 0은 제한을 없앱니다.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>레이아웃 문서가 아닙니다</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>문서 유형 또는 인코딩 때문에 전체를 다시 씁니다</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>손상되었습니다</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1이(가) 손상되었습니다</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>읽을 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>그런 실행기가 없습니다</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>프로그램을 시작하지 않습니다</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>플러그인을 불러오지 않는 자체 Qt가 있는 프로그램을 시작합니다</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>직접 만든 실행기이므로 그대로 둡니다</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>레이아웃을 전환할 때 도구 모음을 그대로 둡니다.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>실행기를 다시 제거합니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>창 레이아웃</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size에는 최대 %1픽셀의 너비와 높이가 필요합니다(예: 800x600)</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>그림이 너무 큽니다. --window로 창 하나를 선택하십시오</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>그림이 너무 큽니다</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>쓸 그림. 이름이 &quot;.svg&quot;로 끝나면 SVG, 그렇지 않으면 PNG입니다.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>각 창의 크기(픽셀). 지정하지 않으면 창 자체의 크기이며 너비는 최대 %1입니다.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>너비x높이</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>어두운 색으로 그립니다.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>창의 상태가 없습니다</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>시작할 수 없습니다</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>레이아웃을 전환할 때 도구 모음을 그대로 둡니다.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>레이아웃이 있는 프로그램을 보여 주고 아무것도 시작하지 않습니다.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list에는 프로그램을 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>프로그램이 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>플러그인이 설치되어 있지 않습니다 (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>창 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>사용자 데이터: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>그룹 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>레이아웃 &quot;%1&quot;(활성)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>레이아웃 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>현재 레이아웃</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>기록 당시의 도구 모음</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON을 출력합니다.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>top</source>
        <translation>위쪽</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>아래쪽</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(이름 없음)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>위치 %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(맨 앞)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>탭:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>왼쪽:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>오른쪽:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>위쪽:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>아래쪽:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>존재하지 않는 쪽:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>떠 있음:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>닫힘:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(떠 있음)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(숨김)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>도구 모음, %1, %2번째 줄:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>창의 상태가 아니거나 손상되었습니다(크기: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>중앙 영역: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>도킹 창도 도구 모음도 없음</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>정상이 아닙니다. &quot;panorel check&quot;를 참조하십시오</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>제외함: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>상태를 해당 설정 파일에 덮어쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>표준 출력 대신 이 파일에 씁니다.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>이름이 없는 레이아웃을 유지합니다.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>정상이 아닌 상태를 제외하고 이를 알려 줍니다.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>설정 파일의 SECTION/KEY에 있는 상태.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window는 설정 파일에 사용합니다</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>상태가 여러 개 있습니다. --window로 하나를 선택하십시오</translation>
    </message>
</context>
</TS>
