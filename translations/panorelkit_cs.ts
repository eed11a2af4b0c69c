<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Žádné rozložení není aktivní.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>Aktivní je rozložení &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Kliknutím se přejde na další rozložení.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Další rozložení</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Předchozí rozložení</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Rozdíly oproti současným oknům:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Pozice zkratky:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Rozdíly oproti současným oknům</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Obrázek &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Žádné. Okna vypadají jako toto rozložení.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádná</translation>
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
        <translation>Zapíše všechna rozložení do souboru</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Nahradí všechna rozložení rozloženími ze souboru</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Přidá rozložení ze souboru a nahradí jimi rozložení stejného názvu</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Skupina</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Vaše se stejným názvem:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importovat rozložení</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Rozložení v &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Rozložení ze souboru</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>V souboru:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Ponechat obě</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Nahradit vaše</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Př&amp;eskočit</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Vybrat vše</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Nev&amp;ybrat nic</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Obrázek &quot;%1&quot; ze souboru</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Obrázek vašeho &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Název je již použit:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Nahradí vaše rozložení tohoto názvu</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Přidá se jako &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Přidá se</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Již je máte</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Neimportuje se, název je již použit</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Neimportuje se</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Rozložení v %1 patří jiné verzi tohoto programu. Zůstanou beze změny.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Soubor je poškozený.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Některá rozložení v %1 jsou poškozená a byla vynechána.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Soubor patří jiné verzi tohoto programu nebo je poškozený.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Rozložení nelze uložit do %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Soubor s vašimi rozloženími %1 nelze přečíst. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Soubor je uchován jako %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Soubor zůstane beze změny a rozložení se do ukončení programu nebudou ukládat.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>Spravovat &amp;rozložení...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Přejmenovat &quot;%1&quot; na &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Smazat &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Smazat rozložení</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Duplikovat &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Duplikovat rozložení</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Přesunout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Přesunout rozložení</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importovat &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importováno z &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Exportováno do &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Rozložení</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Znovu</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>Př&amp;epnout</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Pře&amp;jmenovat</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Duplikovat</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Smazat</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Přesunout &amp;nahoru</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Přes&amp;unout dolů</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportovat...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Přesun&amp;out do skupiny</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importovat...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Uspořádá okna jako ve zvoleném rozložení</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Pozice %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>změněno</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Aktivní</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Zatím nejsou žádná rozložení. Uložte nějaké v nabídce &quot;Rozložení&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Zamknout rozložení</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Nic nelze omylem přesunout, uvolnit ani zavřít</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Uložit rozložení</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Uložit &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Vrátit se k rozložení</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Vrátit se k &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>a další</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Název rozložení</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nový název, potom Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Název nového rozložení</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Rozložení musí mít název: zadejte ho a stiskněte Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>Používat &amp;klávesové zkratky</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 až %2 přepínají na rozložení, kterým byly tyto klávesy přiřazeny</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Prázdná pozice %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; není soubor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; nelze zapsat: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Rozložení byla exportována do &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>soubor neobsahuje žádná rozložení</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>Soubor &quot;%1&quot; nebyl importován: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; neobsahuje žádná rozložení pro tento program.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; nelze přečíst.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Rozložení z &quot;%1&quot; byla importována.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Rozložení z &quot;%1&quot; byla importována; poškozené části byly vynechány.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>vlevo</translation>
    </message>
    <message>
        <source>right</source>
        <translation>vpravo</translation>
    </message>
    <message>
        <source>top</source>
        <translation>nahoře</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>dole</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(bez názvu)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 už není karta</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Karta %1 je nyní v popředí</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 je nyní karta vedle %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>Přesunuto na ploše: %1</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 je nyní samostatné okno</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 už není samostatné okno</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 je nyní vedle svých sousedů</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 je nyní nad svými sousedy nebo pod nimi</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 má mezi svými sousedy jiné místo</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>Přesunuto: %1 (z řádku %2 do řádku %3)</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Přidáno: %1</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Odebráno: %1</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>Přesunuto: %1 (dříve %2, nyní %3)</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>Otevřeno: %1</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>Zavřeno: %1</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>Velikost %1 se změnila z %2 na %3</translation>
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
        <translation>Přejmenovat &quot;%1&quot; na &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Vytvořit &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Smazat &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Uložit &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Změnit pořadí rozložení</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Přepnout na &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Přepnout na skupinu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Vrátit se k &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Změnit rozložení</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importovat &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Z &quot;%1&quot; nelze nic importovat: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Poškozeno, proto vynecháno: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Bez poškozených částí: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Ze skupin, které tento program nemá, proto vynecháno: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; zde v &quot;%2&quot; být nemůže</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; není kořenový prvek &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>V &quot;%2&quot; chybí &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>V &quot;%2&quot; chybí atribut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; má neznámý atribut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>Hodnota &quot;Active&quot; nemůže být &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>V &quot;%1&quot; nemůže být text</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Stav v &quot;%1&quot; nemá sudý počet číslic</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Rozložení musí mít název.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Název nesmí obsahovat řídicí znaky.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Rozložení tohoto názvu již existuje.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Soubor je větší než povolená mez %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Toto není běžný soubor</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Soubor je prázdný</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>V souboru nejsou žádná rozložení</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Dokovací okno &quot;%1&quot; nemá název objektu.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Několik dokovacích oken má název objektu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Panel nástrojů &quot;%1&quot; nemá název objektu.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Několik panelů nástrojů má název objektu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Dokovací okno &quot;%1&quot; není v žádné z oblastí okna.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Okno &quot;%1&quot; nemá ústřední prvek.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Rozložení</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Rozložení</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Dokovací okna jsou na straně, která neexistuje</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Stav je poškozený</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Dokovací okna jsou vnořena příliš hluboko</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Stav popisuje více, než okno může mít</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Dokument je poškozený: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Dokument není dokumentem rozložení: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Dokument má neznámou verzi &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Toto není stav okna</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Rozložení nemá název</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Několik rozložení má název &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Dokovací okno nebo panel nástrojů nemá název</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Několik dokovacích oken nebo panelů nástrojů má název &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Sloučením se zopakovala dokovací okna nebo panely nástrojů</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Dokovací okna jsou plovoucí jako karty; sloučením tohoto stavu se ztratí jeho panely nástrojů</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Panely nástrojů jsou na straně, která neexistuje</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Zpět: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Znovu</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Znovu: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Zobrazit tlačítko v panelu nástrojů</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Rozložení</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>příkaz &quot;%1&quot; neexistuje</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>příkaz &quot;%1&quot; neexistuje; viz &quot;panorel help&quot;</translation>
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
        <translation>v pořádku</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Nevypíše nic.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Vypíše JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>skupina &quot;%1&quot; neexistuje; k dispozici: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>rozložení &quot;%1&quot; neexistuje; k dispozici: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>okno &quot;%1&quot; neexistuje; k dispozici: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view a --current se navzájem vylučují</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Jen tato skupina.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÁZEV</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Jen toto rozložení.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Jen aktuální rozložení skupiny.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Jen toto okno; v souboru nastavení stav v SEKCE/KLÍČ.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>nemá skupiny ani pojmenovaná rozložení</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>je stav jednoho okna, které nemá ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Zobrazí tuto nápovědu.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zobrazí verzi.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>chybí soubor</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>příliš mnoho souborů</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 je zadáno více než jednou</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>chybí volba %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; viz &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Oznámí, zda lze rozložení ze souborů v oknech bezpečně použít.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Oznámí, co rozložení v souboru obsahují.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Oznámí, čím se rozložení liší.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Nakreslí rozložení jako obrázek PNG nebo SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Vynechá to, co se zopakovalo sloučením, a rozložení bez názvu.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Zkopíruje rozložení z jednoho dokumentu do jiného.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Přejmenuje rozložení, nebo okno ve všech rozloženích.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Přesune rozložení na jiné místo v jeho skupině.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Odstraní rozložení z dokumentu.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Použití: panorel PŘÍKAZ ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help PŘÍKAZ&quot; vysvětlí použití příkazu. FILE je dokument rozložení, stav jednoho okna nebo soubor nastavení, který takové stavy obsahuje; &quot;-&quot; je standardní vstup.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Spustí program pro Qt 5 s nabídkou pro rozložení jeho oken.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Zařídí, aby pracovní plocha spouštěla program pomocí &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>nelze zapisovat na standardní výstup</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>má několik rozložení; vyberte jedno pomocí --group a --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Jen v %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Žádný rozdíl</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Vypíše JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Porovná rozložení z --view s tímto, a to ze stejného souboru, není-li zadáno B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÁZEV</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>není s čím porovnávat</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Soubor k zápisu; &quot;-&quot; je standardní výstup.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>VÝSTUP</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Skupina rozložení.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÁZEV</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Rozložení.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>chybí volba %1; k dispozici: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Nahradí rozložení, jejichž názvy už existují.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Zkopíruje rozložení pod jiným názvem, pokud jejich název už existuje.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace a --keep-both se navzájem vylučují</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Okno, které se má přejmenovat ve všech rozloženích.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Nový název.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>okno se přejmenuje ve všech rozloženích</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Rozložení, před které se má přesunout.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>JINÉ</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Přesune za všechna ostatní.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>je potřeba --before nebo --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 vyžaduje číslo</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>neobsahuje žádné rozložení</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(bez názvu)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(aktuální rozložení)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(panely nástrojů)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Čte soubory do této velikosti v MiB, výchozí je %1; 0 omezení zruší.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>není dokument rozložení</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>je zapsán celý znovu kvůli typu dokumentu nebo kódování</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>je poškozený</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>poškozeno: %1</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nelze přečíst</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>takový spouštěč neexistuje</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>nespouští žádný program</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>spouští program s vlastním Qt, které nenačítá zásuvné moduly</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>je váš vlastní spouštěč a zůstane beze změny</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Při přepnutí rozložení ponechá panely nástrojů beze změny.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Spouštěč opět odebere.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Rozložení oken</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size vyžaduje šířku a výšku nejvýše %1 pixelů, například 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>obrázek je příliš velký; vyberte jedno okno pomocí --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>obrázek je příliš velký</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Obrázek k zápisu: SVG, pokud název končí na &quot;.svg&quot;, jinak PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>VÝSTUP</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Velikost každého okna v pixelech; není-li zadána, jeho vlastní, nejvýše %1 na šířku.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>ŠxV</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Kreslí tmavými barvami.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>neobsahuje žádný stav okna</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>nelze spustit</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Při přepnutí rozložení ponechá panely nástrojů beze změny.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Ukáže, které programy mají rozložení, a žádný nespustí.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list nepřijímá program</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>chybí program</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>zásuvný modul není nainstalován (Debian: panorel-plugin)</translation>
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
        <translation>Uživatelská data: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Skupina &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Rozložení &quot;%1&quot; (aktivní)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Rozložení &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Aktuální rozložení</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Panely nástrojů v době zápisu</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Vypíše JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>vlevo</translation>
    </message>
    <message>
        <source>right</source>
        <translation>vpravo</translation>
    </message>
    <message>
        <source>top</source>
        <translation>nahoře</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>dole</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(bez názvu)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>na %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(v popředí)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Karty:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Vlevo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Vpravo:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Nahoře:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Dole:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Na straně, která neexistuje:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Plovoucí:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Zavřené:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(plovoucí)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(skrytý)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Panely nástrojů, %1, řádek %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Není stav okna nebo je poškozený (velikost: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Ústřední oblast: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Žádná dokovací okna ani panely nástrojů</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>není v pořádku; viz &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>vynecháno: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>stav se nezapisuje přes svůj soubor nastavení</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Zapíše do tohoto souboru místo na standardní výstup.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>VÝSTUP</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Zachová rozložení bez názvu.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Vynechá stavy, které nejsou v pořádku, a oznámí to.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Stav v SEKCE/KLÍČ souboru nastavení.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window je pro soubory nastavení</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>má několik stavů; vyberte jeden pomocí --window</translation>
    </message>
</context>
</TS>
