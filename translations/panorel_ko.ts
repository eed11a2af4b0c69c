<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>레이아웃</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>현재 레이아웃을 다른 이름으로 저장...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>레이아웃 삭제...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>내보내기 ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>가져오기 ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>가져오기 및 병합 ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>프로그램 시작 시 레이아웃으로 되돌리기</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>기본 레이아웃으로 되돌리기</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>레이아웃 저장</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>레이아웃 파일 (*.views);;모든 파일 (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>레이아웃 불러오기</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>레이아웃 저장</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>레이아웃 이름(&amp;N):</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>이름은 비워 둘 수 없습니다.</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>이미 사용 중인 이름입니다.</translation>
    </message>
</context>
</TS>
