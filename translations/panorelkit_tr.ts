<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Etkin yerleşim yok.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; etkin.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Tıklamak sonraki yerleşime geçirir.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Sonraki yerleşim</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>Önceki &amp;yerleşim</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>Şu &amp;anki pencerelerden farkları:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Kısayol yuvası:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Şu anki pencerelerden farkları</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>&quot;%1&quot; resmi</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Yok. Pencereler bu yerleşimdeki gibi.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
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
        <translation>Tüm yerleşimleri bir dosyaya yazar</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Tüm yerleşimleri bir dosyadakilerle değiştirir</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Bir dosyadaki yerleşimleri ekler, aynı adlı olanların yerine geçirir</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grup</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Sizin aynı adlı yerleşiminiz:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Yerleşimleri içe aktar</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&quot;%1&quot; &amp;içindeki yerleşimler:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Dosyadaki yerleşimler</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>Dosyada:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>İkisini &amp;de tut</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Sizinkini değiştir</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Atla</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tümünü seç</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Hiçbirini seçme</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>İç&amp;e aktar</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Dosyadaki &quot;%1&quot; resmi</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Sizin &quot;%1&quot; yerleşiminizin resmi</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Bu ad kullanılıyor:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Bu addaki yerleşiminizin yerine geçer</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>&quot;%1&quot; olarak eklenir</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Eklenir</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Zaten var</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>İçe aktarılmaz, ad kullanılıyor</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>İçe aktarılmaz</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>%1 içindeki yerleşimler bu programın başka bir sürümüne ait. Oldukları gibi kalacaklar.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Dosya hasarlı.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>%1 içindeki bazı yerleşimler hasarlı olduğundan dışarıda bırakıldı.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Dosya bu programın başka bir sürümüne ait veya hasarlı.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Yerleşimler %1 içine kaydedilemedi: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Yerleşimlerinizi içeren %1 dosyası okunamıyor. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Dosya %1 olarak saklandı.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Dosya olduğu gibi kalacak ve program kapanana kadar yerleşimler kaydedilmeyecek.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>Y&amp;erleşimleri yönet...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot; adını &quot;%2&quot; yap</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; sil</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Yerleşimleri sil</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>&quot;%1&quot; çoğalt</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Yerleşimleri çoğalt</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>&quot;%1&quot; taşı</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Yerleşimleri taşı</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; içe aktar</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot; dosyasından içe aktarıldı: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot; dosyasına dışa aktarıldı: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Yerleşimler</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Geç</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Yeniden adlandır</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>Ç&amp;oğalt</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Yukarı &amp;taşı</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>A&amp;şağı taşı</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Dışa aktar...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>G&amp;ruba taşı</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>İç&amp;e aktar...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Pencereleri seçili yerleşimdeki gibi düzenler</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Yuva %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>değiştirildi</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Etkin</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Henüz yerleşim yok. &quot;Yerleşimler&quot; menüsünden bir yerleşim kaydedin.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>Yerleşimi &amp;kilitle</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Hiçbir şey yanlışlıkla taşınamaz, ayrılamaz veya kapatılamaz</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Yerleşimi kaydet</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; kaydet</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Yerleşime dön</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>&quot;%1&quot; yerleşimine dön</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>ve dahası</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Yerleşimin adı</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Yeni ad, ardından Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Yeni yerleşimin adı</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Yerleşimin bir adı olmalı: adı yazın ve Enter tuşuna basın.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>Kıs&amp;ayolları kullan</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 - %2 bu tuşların atandığı yerleşimlere geçer</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Boş yuva %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; bir dosya değil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; yazılamıyor: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Yerleşimler &quot;%1&quot; dosyasına dışa aktarıldı.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>dosyada yerleşim yok</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; içe aktarılmadı: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; içinde bu program için yerleşim yok.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; okunamıyor.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; içindeki yerleşimler içe aktarıldı.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>&quot;%1&quot; içindeki yerleşimler içe aktarıldı; hasarlı bölümler dışarıda bırakıldı.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>sol</translation>
    </message>
    <message>
        <source>right</source>
        <translation>sağ</translation>
    </message>
    <message>
        <source>top</source>
        <translation>üst</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>alt</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(adsız)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 artık bir sekme değil</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>%1 sekmesi artık önde</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 artık %2 yanında bir sekme</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 masaüstünde taşındı</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 artık ayrı bir pencere</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 artık ayrı bir pencere değil</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 artık komşularının yanında</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 artık komşularının üstünde veya altında</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 komşuları arasında başka bir yerde</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 taşındı: satır %2 yerine satır %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 eklendi</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 kaldırıldı</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 taşındı: %2 yerine %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 açık</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 kapalı</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 boyutu değişti: %2 yerine %3</translation>
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
        <translation>&quot;%1&quot; adını &quot;%2&quot; yap</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>&quot;%1&quot; oluştur</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; sil</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; kaydet</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Yerleşimleri yeniden sırala</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>&quot;%1&quot; yerleşimine geç</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>&quot;%1&quot; grubuna geç</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>&quot;%1&quot; yerleşimine dön</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Yerleşimleri değiştir</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; içe aktar</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>&quot;%1&quot; içinden hiçbir şey içe aktarılamaz: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Hasarlı olduğu için dışarıda bırakıldı: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Hasarlı bölümleri olmadan: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Bu programda olmayan gruplardan olduğu için dışarıda bırakıldı: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot;, &quot;%2&quot; içinde burada olamaz</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot;, &quot;ViewData&quot; kök ögesi değil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%2&quot; içinde &quot;%1&quot; eksik</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; içinde &quot;%1&quot; özniteliği eksik</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; içinde bilinmeyen &quot;%1&quot; özniteliği var</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; değeri &quot;%1&quot; olamaz</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>&quot;%1&quot; içinde metin olamaz</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>&quot;%1&quot; içindeki durumun basamak sayısı çift değil</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Yerleşimin bir adı olmalı.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Bir adda denetim karakterleri olamaz.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Bu adda bir yerleşim zaten var.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Dosya %1 sınırından büyük</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Bu olağan bir dosya değil</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Dosya boş</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Dosyada yerleşim yok</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>&quot;%1&quot; yanaştırılabilir penceresinin nesne adı yok.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Birden çok yanaştırılabilir pencerenin nesne adı &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>&quot;%1&quot; araç çubuğunun nesne adı yok.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Birden çok araç çubuğunun nesne adı &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>&quot;%1&quot; yanaştırılabilir penceresi, pencerenin hiçbir alanında değil.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>&quot;%1&quot; penceresinin merkezi parçacığı yok.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Yerleşimler</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Yerleşimler</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Yanaştırılabilir pencereler var olmayan bir kenarda</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Durum hasarlı</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Yanaştırılabilir pencereler çok derin iç içe geçmiş</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Durum, bir pencerenin içerebileceğinden fazlasını tanımlıyor</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Belge hasarlı: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Belge bir yerleşim belgesi değil: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Belgenin &quot;%1&quot; sürümü bilinmiyor</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Bu bir pencerenin durumu değil</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Bir yerleşimin adı yok</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Birden çok yerleşimin adı &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Bir yanaştırılabilir pencerenin veya araç çubuğunun adı yok</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Birden çok yanaştırılabilir pencerenin veya araç çubuğunun adı &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Birleştirme, yanaştırılabilir pencereleri veya araç çubuklarını yinelemiş</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Yanaştırılabilir pencereler sekme olarak yüzüyor; bu durum birleştirilirse araç çubukları kaybolur</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Araç çubukları var olmayan bir kenarda</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Geri al: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Yinele: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Düğmeyi bir araç çubuğunda göster</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Yerleşimler</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>&quot;%1&quot; komutu yok</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>&quot;%1&quot; komutu yok; bkz. &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>bayt %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>belge</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>sağlam</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Hiçbir şey yazdırmaz.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON yazdırır.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>&quot;%1&quot; grubu yok; olanlar: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>&quot;%1&quot; yerleşimi yok; olanlar: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>&quot;%1&quot; penceresi yok; olanlar: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view ve --current birlikte kullanılamaz</translation>
    </message>
    <message>
        <source>none</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Yalnızca bu grup.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>AD</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Yalnızca bu yerleşim.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Yalnızca bir grubun geçerli yerleşimi.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Yalnızca bu pencere; ayar dosyasında BÖLÜM/ANAHTAR konumundaki durum.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>ne grup ne de adlandırılmış yerleşim içeriyor</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>kimliği olmayan tek bir pencerenin durumu</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Bu yardımı gösterir.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Sürümü gösterir.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>bir dosya eksik</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>çok fazla dosya</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 birden çok kez verilmiş</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>%1 seçeneği eksik</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; bkz. &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Dosyalardaki yerleşimlerin pencerelere zararsızca uygulanıp uygulanamayacağını bildirir.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Bir dosyadaki yerleşimlerin ne içerdiğini bildirir.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Yerleşimlerin nerelerde farklı olduğunu bildirir.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Bir yerleşimi PNG veya SVG resmi olarak çizer.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Birleştirmenin yinelediklerini ve adsız yerleşimleri çıkarır.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Bir belgedeki yerleşimleri başka bir belgeye kopyalar.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Bir yerleşimi veya tüm yerleşimlerdeki bir pencereyi yeniden adlandırır.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Bir yerleşimi grubunda başka bir yere taşır.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Bir belgeden yerleşimleri kaldırır.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Kullanım: panorel KOMUT ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help KOMUT&quot; bir komutun nasıl kullanıldığını anlatır. FILE; bir yerleşim belgesi, tek bir pencerenin durumu veya böyle durumlar içeren bir ayar dosyasıdır; &quot;-&quot; standart girdidir.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Bir Qt 5 programını, pencerelerinin yerleşimleri için bir menüyle başlatır.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Masaüstünün bir programı &quot;panorel run&quot; ile başlatmasını sağlar.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>standart çıktıya yazılamıyor</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>birden çok yerleşim içeriyor; --group ve --view ile birini seçin</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Yalnızca %1 içinde: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Fark yok</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON yazdırır.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>--view yerleşimini bununla karşılaştırır; B yoksa aynı dosyadakini kullanır.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>AD</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>karşılaştırılacak bir şey yok</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Yazılacak dosya; &quot;-&quot; standart çıktıdır.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ÇIKTI</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Yerleşimin grubu.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>AD</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Yerleşim.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>%1 seçeneği eksik; olanlar: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Adları zaten var olan yerleşimleri değiştirir.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Adları zaten varsa yerleşimleri başka bir adla kopyalar.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace ve --keep-both birlikte kullanılamaz</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Tüm yerleşimlerde yeniden adlandırılacak pencere.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Yeni ad.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>pencere tüm yerleşimlerde yeniden adlandırılır</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Önüne taşınacağı yerleşim.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>DİĞERİ</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Diğerlerinin hepsinin arkasına taşır.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>--before veya --last gerekli</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 bir sayı gerektirir</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>yerleşim içermiyor</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(adsız)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(geçerli yerleşim)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(araç çubukları)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>MiB olarak bu boyuta kadar olan dosyaları okur, verilmezse %1; 0 sınırı kaldırır.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>bir yerleşim belgesi değil</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>belge türü veya kodlaması nedeniyle bütünüyle yeniden yazılıyor</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>hasarlı</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 hasarlı</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>okunamıyor</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>böyle bir başlatıcı yok</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>hiçbir program başlatmıyor</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>kendi Qt kitaplığı olan ve eklenti yüklemeyen bir program başlatıyor</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>kendi oluşturduğunuz bir başlatıcı ve olduğu gibi kalır</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Yerleşim değişirken araç çubuklarını olduğu gibi bırakır.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Başlatıcıyı yeniden kaldırır.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Pencere yerleşimi</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size en çok %1 piksellik bir genişlik ve yükseklik gerektirir, örneğin 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>resim çok büyük; --window ile bir pencere seçin</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>resim çok büyük</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Yazılacak resim: ad &quot;.svg&quot; ile bitiyorsa SVG, yoksa PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ÇIKTI</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Her pencerenin piksel olarak boyutu; verilmezse kendi boyutu, en çok %1 genişlikte.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>GxY</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Koyu renklerle çizer.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>pencere durumu içermiyor</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>başlatılamıyor</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Yerleşim değişirken araç çubuklarını olduğu gibi bırakır.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Hangi programların yerleşimleri olduğunu gösterir, hiçbirini başlatmaz.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list program almaz</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>bir program eksik</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>eklenti kurulu değil (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Pencere &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Kullanıcı verisi: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Grup &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Yerleşim &quot;%1&quot; (etkin)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Yerleşim &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Geçerli yerleşim</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Yazıldığı andaki araç çubukları</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON yazdırır.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>sol</translation>
    </message>
    <message>
        <source>right</source>
        <translation>sağ</translation>
    </message>
    <message>
        <source>top</source>
        <translation>üst</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>alt</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(adsız)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>konum %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(önde)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Sekmeler:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Sol:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Sağ:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Üst:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Alt:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Var olmayan bir kenarda:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Yüzen:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Kapalı:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(yüzen)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(gizli)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Araç çubukları, %1, satır %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Bir pencerenin durumu değil veya hasarlı (boyut: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Merkezi alan: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Ne yanaştırılabilir pencere ne de araç çubuğu var</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>sağlam değil; bkz. &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>çıkarıldı: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>bir durum kendi ayar dosyasının üzerine yazılmaz</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Standart çıktı yerine bu dosyaya yazar.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ÇIKTI</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Adsız yerleşimleri korur.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Sağlam olmayan durumları çıkarır ve bunu bildirir.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Bir ayar dosyasının BÖLÜM/ANAHTAR konumundaki durum.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window ayar dosyaları içindir</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>birden çok durum içeriyor; --window ile birini seçin</translation>
    </message>
</context>
</TS>
