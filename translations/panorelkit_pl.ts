<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Żaden układ nie jest aktywny.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>Aktywny jest układ &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Kliknięcie przełącza na następny układ.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Następny układ</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Poprzedni układ</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Różnice względem obecnych okien:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Miejsce skrótu:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Różnice względem obecnych okien</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Obraz &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Brak. Okna wyglądają jak w tym układzie.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
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
        <translation>Zapisuje wszystkie układy do pliku</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Zastępuje wszystkie układy układami z pliku</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Dodaje układy z pliku, zastępując układy o tych samych nazwach</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grupa</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Własny o tej samej nazwie:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importowanie układów</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Układy w &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Układy z pliku</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>W pliku:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Zachowaj oba</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>Zastąp &amp;własny</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Pomiń</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Z&amp;aznacz wszystkie</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Odznacz wszystkie</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Obraz &quot;%1&quot; z pliku</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Obraz własnego &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Nazwa jest zajęta:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Zastępuje własny układ o tej nazwie</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Zostanie dodany jako &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Zostanie dodany</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Już istnieje</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Nie zostanie zaimportowany, nazwa jest zajęta</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Nie zostanie zaimportowany</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Układy w %1 pochodzą z innej wersji tego programu. Pozostaną bez zmian.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Plik jest uszkodzony.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Niektóre układy w %1 są uszkodzone i zostały pominięte.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Plik pochodzi z innej wersji tego programu lub jest uszkodzony.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Nie można zapisać układów w %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Nie można odczytać pliku z układami %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Plik zachowano jako %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Plik pozostanie bez zmian, a układy nie będą zapisywane do zakończenia programu.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>Z&amp;arządzaj układami...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Zmień nazwę &quot;%1&quot; na &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Usuń &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Usuń układy</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Powiel &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Powiel układy</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Przenieś &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Przenieś układy</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importuj &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Zaimportowano z &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Wyeksportowano do &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Układy</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Przełącz</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Zmień nazwę</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>P&amp;owiel</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Przenieś &amp;w górę</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Przenieś w &amp;dół</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Eksportuj...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Przenieś do &amp;grupy</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importuj...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Rozmieszcza okna jak w wybranym układzie</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Miejsce %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>zmieniony</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Aktywny</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Nie ma jeszcze układów. Układ można zapisać w menu &quot;Układy&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Zablokuj układ</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Niczego nie można przypadkowo przesunąć, odłączyć ani zamknąć</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Zapisz układ</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Zapisz &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Wróć do układu</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Wróć do &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>i inne</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Nazwa układu</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nowa nazwa, potem Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Nazwa nowego układu</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Układ musi mieć nazwę: należy ją wpisać i nacisnąć Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Używaj skrótów klawiszowych</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 do %2 przełączają na układy, którym przypisano te klawisze</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Puste miejsce %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; nie jest plikiem.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Nie można zapisać &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Wyeksportowano układy do &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>plik nie zawiera układów</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>Nie zaimportowano &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; nie zawiera układów dla tego programu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>Nie można odczytać &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Zaimportowano układy z &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Zaimportowano układy z &quot;%1&quot;; uszkodzone części pominięto.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>po lewej</translation>
    </message>
    <message>
        <source>right</source>
        <translation>po prawej</translation>
    </message>
    <message>
        <source>top</source>
        <translation>u góry</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>u dołu</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(bez nazwy)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 nie jest już kartą</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Karta %1 jest teraz na wierzchu</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 jest teraz kartą obok %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>Przesunięto %1 na pulpicie</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 jest teraz osobnym oknem</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 nie jest już osobnym oknem</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 jest teraz obok sąsiadów</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 jest teraz nad sąsiadami lub pod nimi</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 ma inne miejsce wśród sąsiadów</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>Przeniesiono %1 z wiersza %2 do wiersza %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Dodano %1</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Usunięto %1</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>Przeniesiono %1 (było %2, jest %3)</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>Otwarto %1</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>Zamknięto %1</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>Zmieniono rozmiar %1 z %2 na %3</translation>
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
        <translation>Zmień nazwę &quot;%1&quot; na &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Utwórz &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Usuń &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Zapisz &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Zmień kolejność układów</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Przełącz na &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Przełącz na grupę &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Wróć do &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Zmień układy</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importuj &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Z &quot;%1&quot; nie można nic zaimportować: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Uszkodzone, więc pominięte: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Bez uszkodzonych części: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Z grup, których ten program nie ma, więc pominięte: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; nie może znajdować się tu w &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; nie jest elementem głównym &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>Brak &quot;%1&quot; w &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>W &quot;%2&quot; brakuje atrybutu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; ma nieznany atrybut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>Wartością &quot;Active&quot; nie może być &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>W &quot;%1&quot; nie może być tekstu</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Stan w &quot;%1&quot; nie ma parzystej liczby cyfr</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Układ musi mieć nazwę.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Nazwa nie może zawierać znaków sterujących.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Układ o tej nazwie już istnieje.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Plik jest większy niż dozwolone %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>To nie jest zwykły plik</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Plik jest pusty</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>W pliku nie ma układów</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Okno dokowalne &quot;%1&quot; nie ma nazwy obiektu.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Kilka okien dokowalnych ma nazwę obiektu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Pasek narzędzi &quot;%1&quot; nie ma nazwy obiektu.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Kilka pasków narzędzi ma nazwę obiektu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Okno dokowalne &quot;%1&quot; nie znajduje się w żadnym z obszarów okna.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Okno &quot;%1&quot; nie ma widżetu centralnego.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Układy</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Układy</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Okna dokowalne znajdują się po stronie, która nie istnieje</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Stan jest uszkodzony</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Okna dokowalne są zbyt głęboko zagnieżdżone</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Stan opisuje więcej, niż może mieć okno</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Dokument jest uszkodzony: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>To nie jest dokument układów: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Dokument ma nieznaną wersję &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>To nie jest stan okna</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Układ nie ma nazwy</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Kilka układów ma nazwę &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Okno dokowalne lub pasek narzędzi nie ma nazwy</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Kilka okien dokowalnych lub pasków narzędzi ma nazwę &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Scalanie powtórzyło okna dokowalne lub paski narzędzi</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Okna dokowalne są odłączone jako karty; scalenie tego stanu spowoduje utratę jego pasków narzędzi</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Paski narzędzi znajdują się po stronie, która nie istnieje</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Cofnij: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Ponów: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Pokaż przycisk na pasku narzędzi</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Układy</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>nie ma polecenia &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>nie ma polecenia &quot;%1&quot;; zobacz &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>bajt %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>dokument</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>w porządku</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Niczego nie wypisuje.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Wypisuje JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>nie ma grupy &quot;%1&quot;; dostępne: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>nie ma układu &quot;%1&quot;; dostępne: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>nie ma okna &quot;%1&quot;; dostępne: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view i --current wykluczają się wzajemnie</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Tylko ta grupa.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAZWA</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Tylko ten układ.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Tylko bieżący układ grupy.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Tylko to okno; w pliku ustawień stan pod SEKCJA/KLUCZ.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>nie ma ani grup, ani nazwanych układów</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>jest stanem jednego okna, które nie ma identyfikatora</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Wyświetla tę pomoc.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Wyświetla wersję.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>brakuje pliku</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>za dużo plików</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 podano więcej niż raz</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>brakuje opcji %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; zobacz &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Informuje, czy układy z plików można bezpiecznie zastosować w oknach.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Informuje, co zawierają układy z pliku.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Informuje, czym różnią się układy.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Rysuje układ jako obraz PNG lub SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Pomija powtórzenia powstałe przy scalaniu oraz układy bez nazwy.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Kopiuje układy z jednego dokumentu do drugiego.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Zmienia nazwę układu albo okna we wszystkich układach.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Przenosi układ w inne miejsce jego grupy.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Usuwa układy z dokumentu.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Użycie: panorel POLECENIE ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help POLECENIE&quot; wyjaśnia, jak używać polecenia. FILE to dokument układów, stan jednego okna lub plik ustawień zawierający takie stany; &quot;-&quot; to standardowe wejście.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Uruchamia program Qt 5 z menu dla układów jego okien.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Sprawia, że pulpit uruchamia program przez &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>nie można pisać na standardowe wyjście</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>ma kilka układów; należy wybrać jeden za pomocą --group i --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Tylko w %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Brak różnic</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Wypisuje JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Porównuje układ z --view z tym układem, z tego samego pliku, jeśli nie podano B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAZWA</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>nie ma z czym porównać</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Plik do zapisania; &quot;-&quot; to standardowe wyjście.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>WYJŚCIE</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Grupa układu.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAZWA</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Układ.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>brakuje opcji %1; dostępne: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Zastępuje układy, których nazwy już istnieją.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Kopiuje układy pod inną nazwą, jeśli ich nazwa już istnieje.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace i --keep-both wykluczają się wzajemnie</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Okno, którego nazwa ma być zmieniona we wszystkich układach.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Nowa nazwa.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>nazwa okna jest zmieniana we wszystkich układach</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Układ, przed który ma być przeniesiony.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>INNY</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Przenosi za wszystkie pozostałe.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>potrzebna jest opcja --before albo --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 wymaga liczby</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>nie zawiera układu</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(bez nazwy)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(bieżący układ)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(paski narzędzi)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Czyta pliki do tego rozmiaru w MiB, domyślnie %1; 0 znosi ograniczenie.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>nie jest dokumentem układów</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>jest zapisywany w całości od nowa z powodu typu dokumentu lub kodowania</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>jest uszkodzony</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>uszkodzone: %1</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nie można odczytać</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>nie ma takiego aktywatora</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>nie uruchamia żadnego programu</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>uruchamia program z własnym Qt, które nie wczytuje wtyczek</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>jest własnym aktywatorem i pozostaje bez zmian</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Pozostawia paski narzędzi bez zmian przy przełączaniu układu.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Usuwa aktywator z powrotem.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Układ okien</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size wymaga szerokości i wysokości do %1 pikseli, na przykład 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>obraz jest za duży; należy wybrać jedno okno za pomocą --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>obraz jest za duży</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Obraz do zapisania: SVG, jeśli nazwa kończy się na &quot;.svg&quot;, w przeciwnym razie PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>WYJŚCIE</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Rozmiar każdego okna w pikselach; domyślnie jego własny, o szerokości najwyżej %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>SxW</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Rysuje w ciemnych kolorach.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>nie zawiera stanu okna</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>nie można uruchomić</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Pozostawia paski narzędzi bez zmian przy przełączaniu układu.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Pokazuje, które programy mają układy, i żadnego nie uruchamia.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list nie przyjmuje programu</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>brakuje programu</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>wtyczka nie jest zainstalowana (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Okno &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Dane użytkownika: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Grupa &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Układ &quot;%1&quot; (aktywny)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Układ &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Bieżący układ</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Paski narzędzi w chwili zapisu</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Wypisuje JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>po lewej</translation>
    </message>
    <message>
        <source>right</source>
        <translation>po prawej</translation>
    </message>
    <message>
        <source>top</source>
        <translation>u góry</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>u dołu</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(bez nazwy)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>w %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(na wierzchu)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Karty:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Po lewej:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Po prawej:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>U góry:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>U dołu:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Po stronie, która nie istnieje:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Odłączone:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Zamknięte:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(odłączony)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(ukryty)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Paski narzędzi, %1, wiersz %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>To nie jest stan okna lub jest uszkodzony (rozmiar: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Obszar centralny: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Brak okien dokowalnych i pasków narzędzi</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>nie jest w porządku; zobacz &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>pominięto: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>stan nie jest zapisywany w miejsce swojego pliku ustawień</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Zapisuje do tego pliku zamiast na standardowe wyjście.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>WYJŚCIE</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Zachowuje układy bez nazwy.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Pomija stany, które nie są w porządku, i informuje o tym.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Stan pod SEKCJA/KLUCZ pliku ustawień.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window służy do plików ustawień</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>ma kilka stanów; należy wybrać jeden za pomocą --window</translation>
    </message>
</context>
</TS>
