<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Yerleşimler</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Geçerli Yerleşimi Farklı Kaydet...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Yerleşimi Sil...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Dışa Aktar ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>İçe Aktar ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>İçe Aktar ve Birleştir ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Başlangıçtaki Yerleşime Dön</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Varsayılan Yerleşime Dön</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Yerleşimleri Kaydet</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Yerleşim Dosyası (*.views);;Tüm Dosyalar (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Yerleşimleri Yükle</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Yerleşimi Kaydet</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>Yerleşimin &amp;adı:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Ad boş olamaz!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Ad zaten kullanılıyor!</translation>
    </message>
</context>
</TS>
