<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Nie je aktívne žiadne rozloženie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>Aktívne je &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Kliknutím sa prejde na ďalšie rozloženie.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>Ďalšie &amp;rozloženie</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Predchádzajúce rozloženie</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Rozdiely oproti súčasným oknám:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Pozícia skratky:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Rozdiely oproti súčasným oknám</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Obrázok &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Žiadne. Okná vyzerajú ako toto rozloženie.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žiadna</translation>
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
        <translation>Zapíše všetky rozloženia do súboru</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Nahradí všetky rozloženia rozloženiami zo súboru</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Pridá rozloženia zo súboru a nahradí tie s rovnakým názvom</translation>
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
        <translation>Vaše s rovnakým názvom:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importovať rozloženia</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Rozloženia v &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Rozloženia zo súboru</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>V súbore:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Ponechať obe</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Nahradiť vaše</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Pr&amp;eskočiť</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Vybrať všetko</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Nev&amp;ybrať nič</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovať</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Obrázok &quot;%1&quot; zo súboru</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Obrázok vášho &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Názov sa už používa:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Nahradí vaše rozloženie s týmto názvom</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Pridá sa ako &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Pridá sa</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Už ho máte</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Neimportuje sa, názov sa už používa</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Neimportuje sa</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Rozloženia v %1 pochádzajú z inej verzie tohto programu. Zostanú nezmenené.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Súbor je poškodený.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Niektoré z rozložení v %1 sú poškodené a boli vynechané.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Súbor pochádza z inej verzie tohto programu alebo je poškodený.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Rozloženia sa nepodarilo uložiť do %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Súbor s vašimi rozloženiami, %1, sa nedá prečítať. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Súbor zostane uchovaný ako %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Súbor zostane nezmenený a do ukončenia programu sa rozloženia nebudú ukladať.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>Spr&amp;avovať rozloženia...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Premenovať &quot;%1&quot; na &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Odstrániť &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Odstrániť rozloženia</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Duplikovať &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Duplikovať rozloženia</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Presunúť &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Presunúť rozloženia</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importovať &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importované z &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Exportované do &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Rozloženia</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Späť</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Znovu</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>Pr&amp;epnúť</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Pre&amp;menovať</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Duplikovať</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Odstrániť</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Presunúť &amp;nahor</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Pre&amp;sunúť nadol</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportovať...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Pres&amp;unúť do skupiny</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importovať...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Usporiada okná ako vo zvolenom rozložení</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Pozícia %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>zmenené</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Aktívne</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Zatiaľ nie sú žiadne rozloženia. Uložte nejaké v ponuke &quot;Rozloženia&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Zamknúť rozloženie</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Nič sa nedá omylom presunúť, uvoľniť ani zavrieť</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Uložiť rozloženie</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Uložiť &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Späť na rozloženie</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Späť na &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>a ďalšie</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Názov rozloženia</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nový názov, potom Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Názov nového rozloženia</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Rozloženie potrebuje názov: zadajte ho a stlačte Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>Používať &amp;klávesové skratky</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 až %2 prepínajú na rozloženia, ktorým boli tieto klávesy priradené</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Prázdna pozícia %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; nie je súbor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; sa nedá zapísať: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Rozloženia boli exportované do &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>súbor neobsahuje žiadne rozloženia</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>Súbor &quot;%1&quot; nebol importovaný: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>Súbor &quot;%1&quot; neobsahuje rozloženia pre tento program.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; sa nedá prečítať.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Rozloženia z &quot;%1&quot; boli importované.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Rozloženia z &quot;%1&quot; boli importované; poškodené časti boli vynechané.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>vľavo</translation>
    </message>
    <message>
        <source>right</source>
        <translation>vpravo</translation>
    </message>
    <message>
        <source>top</source>
        <translation>hore</translation>
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
        <translation>%1 už nie je karta</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Karta %1 je teraz v popredí</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 je teraz karta vedľa %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1: zmenená poloha na ploche</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 je teraz samostatné okno</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 už nie je samostatné okno</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 je teraz vedľa svojich susedov</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 je teraz nad svojimi susedmi alebo pod nimi</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 má medzi svojimi susedmi iné miesto</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1: presunuté z riadka %2 do riadka %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1: pridané</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1: odstránené</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1: presunuté, %2 → %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1: otvorené</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1: zatvorené</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1: veľkosť zmenená z %2 na %3</translation>
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
        <translation>Premenovať &quot;%1&quot; na &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Vytvoriť &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Odstrániť &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Uložiť &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Zmeniť poradie rozložení</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Prepnúť na &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Prepnúť na skupinu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Späť na &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Zmeniť rozloženia</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importovať &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Z &quot;%1&quot; sa nedá nič importovať: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Poškodené, preto vynechané: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Bez poškodených častí: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Zo skupín, ktoré tento program nemá, preto vynechané: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; tu v &quot;%2&quot; nemôže byť</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; nie je koreňový prvok &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; chýba v &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>V &quot;%2&quot; chýba atribút &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; má neznámy atribút &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; nemôže byť &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>V &quot;%1&quot; nemôže byť text</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Stav v &quot;%1&quot; nemá párny počet číslic</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Rozloženie potrebuje názov.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Názov nemôže obsahovať riadiace znaky.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Rozloženie s týmto názvom už existuje.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Súbor je väčší ako limit %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Toto nie je bežný súbor</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Súbor je prázdny</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>V súbore nie sú žiadne rozloženia</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Dokovateľné okno &quot;%1&quot; nemá názov objektu.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Viaceré dokovateľné okná majú názov objektu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Panel nástrojov &quot;%1&quot; nemá názov objektu.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Viaceré panely nástrojov majú názov objektu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Dokovateľné okno &quot;%1&quot; nie je v žiadnej z oblastí okna.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Okno &quot;%1&quot; nemá ústredný prvok.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Rozloženia</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Rozloženia</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Dokovateľné okná sú na strane, ktorá neexistuje</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Stav je poškodený</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Dokovateľné okná sú vnorené príliš hlboko</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Stav opisuje viac, než okno môže mať</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Dokument je poškodený: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Dokument nie je dokumentom rozložení: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Dokument má neznámu verziu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Toto nie je stav okna</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Rozloženie nemá názov</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Viaceré rozloženia majú názov &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Dokovateľné okno alebo panel nástrojov nemá názov</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Viaceré dokovateľné okná alebo panely nástrojov majú názov &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Zlúčením sa zopakovali dokovateľné okná alebo panely nástrojov</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Dokovateľné okná plávajú ako karty; pri zlúčení tohto stavu sa stratia jeho panely nástrojov</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Panely nástrojov sú na strane, ktorá neexistuje</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Späť</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Späť: %1</translation>
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
        <translation>Zobraziť tlačidlo v paneli nástrojov</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Rozloženia</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>príkaz &quot;%1&quot; neexistuje</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>príkaz &quot;%1&quot; neexistuje; pozrite &quot;panorel help&quot;</translation>
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
        <translation>v poriadku</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Nevypíše nič.</translation>
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
        <translation>skupina &quot;%1&quot; neexistuje; existujú: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>rozloženie &quot;%1&quot; neexistuje; existujú: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>okno &quot;%1&quot; neexistuje; existujú: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view a --current sa navzájom vylučujú</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žiadne</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Iba táto skupina.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÁZOV</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Iba toto rozloženie.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Iba aktuálne rozloženie skupiny.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Iba toto okno; v súbore nastavení stav v SEKCIA/KĽÚČ.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>nemá skupiny ani pomenované rozloženia</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>je stav jediného okna, ktoré nemá ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Zobrazí túto pomoc.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zobrazí verziu.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>chýba súbor</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>príliš veľa súborov</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 je zadané viac ako raz</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>chýba voľba %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; pozrite &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Oznámi, či okná môžu bez ujmy prevziať rozloženia zo súborov.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Oznámi, čo obsahujú rozloženia v súbore.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Oznámi, v čom sa rozloženia líšia.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Nakreslí rozloženie ako obrázok, PNG alebo SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Vynechá, čo sa zopakovalo zlúčením, a rozloženia bez názvu.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Skopíruje rozloženia z jedného dokumentu do druhého.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Premenuje rozloženie, alebo okno vo všetkých rozloženiach.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Presunie rozloženie na iné miesto v jeho skupine.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Odstráni rozloženia z dokumentu.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Použitie: panorel PRÍKAZ ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help PRÍKAZ&quot; vysvetlí použitie príkazu. FILE je dokument rozložení, stav jedného okna alebo súbor nastavení, ktorý také stavy obsahuje; &quot;-&quot; je štandardný vstup.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Spustí program pre Qt 5 s ponukou pre rozloženia jeho okien.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Zariadi, aby pracovná plocha spúšťala program pomocou &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>nedá sa zapisovať na štandardný výstup</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>obsahuje viacero rozložení; vyberte jedno pomocou --group a --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Iba v %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Žiadny rozdiel</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Vypíše JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Porovná rozloženie z --view s týmto, z rovnakého súboru, ak chýba B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÁZOV</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>nie je s čím porovnávať</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Súbor, ktorý sa zapíše; &quot;-&quot; je štandardný výstup.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>VÝSTUP</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Skupina rozloženia.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÁZOV</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Rozloženie.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>chýba voľba %1; existujú: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Nahradí rozloženia, ktorých názvy už existujú.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Skopíruje rozloženia pod iným názvom, ak ich názov už existuje.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace a --keep-both sa navzájom vylučujú</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Okno, ktoré sa premenuje vo všetkých rozloženiach.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Nový názov.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>okno sa premenuje vo všetkých rozloženiach</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Rozloženie, pred ktoré sa presunie.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>INÉ</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Presunie ho za všetky ostatné.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>je potrebné buď --before, alebo --last</translation>
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
        <translation>neobsahuje žiadne rozloženie</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(bez názvu)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(aktuálne rozloženie)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(panely nástrojov)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Číta súbory najviac tejto veľkosti v MiB, ak nie je uvedená, %1; 0 limit zruší.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>nie je dokument rozložení</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>zapíše sa celý nanovo pre typ dokumentu alebo kódovanie</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>je poškodený</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 má poškodený stav</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nedá sa prečítať</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>taký spúšťač neexistuje</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>nespúšťa žiadny program</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>spúšťa program s vlastným Qt, ktoré nenačítava zásuvné moduly</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>je váš vlastný spúšťač a zostane bez zmeny</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Pri prepnutí rozloženia ponechá panely nástrojov bez zmeny.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Spúšťač opäť odstráni.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Rozloženie okna</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size vyžaduje šírku a výšku najviac %1 pixelov, napríklad 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>obrázok je príliš veľký; vyberte jedno okno pomocou --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>obrázok je príliš veľký</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Obrázok, ktorý sa zapíše: SVG, ak sa názov končí na &quot;.svg&quot;, inak PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>VÝSTUP</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Veľkosť každého okna v pixeloch; ak nie je uvedená, jeho vlastná, so šírkou najviac %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>ŠxV</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Kreslí tmavými farbami.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>neobsahuje stav okna</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>nedá sa spustiť</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Pri prepnutí rozloženia ponechá panely nástrojov bez zmeny.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Ukáže, ktoré programy majú rozloženia, a žiadny nespustí.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list neprijíma program</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>chýba program</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>zásuvný modul nie je nainštalovaný (Debian: panorel-plugin)</translation>
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
        <translation>Používateľské údaje: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Skupina &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Rozloženie &quot;%1&quot; (aktívne)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Rozloženie &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Aktuálne rozloženie</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Panely nástrojov pri zápise dokumentu</translation>
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
        <translation>vľavo</translation>
    </message>
    <message>
        <source>right</source>
        <translation>vpravo</translation>
    </message>
    <message>
        <source>top</source>
        <translation>hore</translation>
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
        <translation>na pozícii %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(v popredí)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Karty:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Vľavo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Vpravo:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Hore:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Dole:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Na strane, ktorá neexistuje:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Plávajúce:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Zatvorené:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(plávajúce)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(skryté)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Panely nástrojov, %1, riadok %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Nie je to stav okna, alebo je poškodený (veľkosť: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Ústredná oblasť: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Žiadne dokovateľné okná ani panely nástrojov</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>nie je v poriadku; pozrite &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>vynechané: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>stav sa nezapisuje cez svoj súbor nastavení</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Zapíše do tohto súboru, nie na štandardný výstup.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>VÝSTUP</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Ponechá rozloženia bez názvu.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Vynechá stavy, ktoré nie sú v poriadku, a oznámi to.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Stav v SEKCIA/KĽÚČ súboru nastavení.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window je pre súbory nastavení</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>obsahuje viacero stavov; vyberte jeden pomocou --window</translation>
    </message>
</context>
</TS>
