<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Aucune disposition n&apos;est active.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; est active.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Un clic passe à la disposition suivante.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Disposition suivante</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>Disposition &amp;précédente</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Différences avec les fenêtres actuelles :</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Emplacement de raccourci :</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Différences avec les fenêtres actuelles</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Image de &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Aucune. Les fenêtres correspondent à cette disposition.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::FileEntries</name>
    <message>
        <source>Writes all layouts to a file</source>
        <translation>Écrit toutes les dispositions dans un fichier</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Remplace toutes les dispositions par celles d&apos;un fichier</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Ajoute les dispositions d&apos;un fichier, à la place de celles du même nom</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Groupe</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>La vôtre du même nom :</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importer des dispositions</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Dispositions de &quot;%1&quot; :</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Dispositions du fichier</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>Dans le fichier :</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Garder les deux</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Remplacer la vôtre</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Ne rien sélectionner</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>I&amp;mporter</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Image de &quot;%1&quot; dans le fichier</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Image de votre &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Le nom est déjà pris :</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Remplace votre disposition de ce nom</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Ajoutée sous le nom &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajoutée</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Vous l&apos;avez déjà</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Non importée, le nom est pris</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Non importée</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Les dispositions de %1 proviennent d&apos;une autre version de ce programme. Elles restent inchangées.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Il est endommagé.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Certaines dispositions de %1 sont endommagées et ont été ignorées.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Il provient d&apos;une autre version de ce programme ou est endommagé.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Les dispositions n&apos;ont pas pu être enregistrées dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Le fichier de vos dispositions, %1, ne peut pas être lu. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Il est conservé sous le nom %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Il reste inchangé et les dispositions ne seront pas enregistrées pendant cette session.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>Gérer &amp;les dispositions...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Renommer &quot;%1&quot; en &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Supprimer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Supprimer des dispositions</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Dupliquer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Dupliquer des dispositions</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Déplacer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Déplacer des dispositions</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importé depuis &quot;%1&quot; : %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Exporté vers &quot;%1&quot; : %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Dispositions</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Activer</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>D&amp;upliquer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Des&amp;cendre</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Déplacer &amp;vers le groupe</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Arrange les fenêtres comme dans la disposition choisie</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Emplacement %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>modifiée</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Il n&apos;y a pas encore de disposition. Enregistrez-en une dans le menu &quot;Dispositions&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Verrouiller la disposition</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Rien ne peut être déplacé, détaché ou fermé par accident</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Enregistrer la disposition</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Enregistrer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Revenir à la disposition</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Revenir à &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>et plus</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Nom de la disposition</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nouveau nom, puis Entrée</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Nom de la nouvelle disposition</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Une disposition doit avoir un nom&#xa0;: saisissez-le, puis appuyez sur Entrée.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Utiliser les raccourcis</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 à %2 activent les dispositions auxquelles ces touches sont attribuées</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Emplacement %1 vide</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d&apos;écrire &quot;%1&quot;&#xa0;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Les dispositions ont été exportées vers &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>il ne contient aucune disposition</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; n&apos;a pas été importé&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; ne contient aucune disposition pour ce programme.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>Impossible de lire &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Les dispositions de &quot;%1&quot; ont été importées.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Les dispositions de &quot;%1&quot; ont été importées&#xa0;; les parties endommagées ont été ignorées.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>top</source>
        <translation>haut</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>bas</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 n&apos;est plus un onglet</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>L&apos;onglet %1 est maintenant au premier plan</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 est maintenant un onglet à côté de %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 a été déplacé sur le bureau</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 est maintenant une fenêtre séparée</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 n&apos;est plus une fenêtre séparée</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 est maintenant à côté de ses voisins</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 est maintenant au-dessus ou au-dessous de ses voisins</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 a une autre place parmi ses voisins</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 a été déplacé de la ligne %2 à la ligne %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 a été ajouté</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 a été supprimé</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 a été déplacé&#xa0;: %2 → %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 est ouvert</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 est fermé</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>La taille de %1 est passée de %2 à %3</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::DifferencesNow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::History</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Renommer &quot;%1&quot; en &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Créer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Supprimer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Enregistrer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Réordonner les dispositions</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Passer à &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Passer au groupe &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Revenir à &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Modifier les dispositions</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importer &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Rien dans &quot;%1&quot; ne peut être importé : %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Endommagé, donc ignoré : %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Sans leurs parties endommagées : %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>De groupes que ce programme n&apos;a pas, donc ignoré : %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; ne peut pas se trouver ici dans &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; n&apos;est pas la racine &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; manque dans &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>L&apos;attribut &quot;%1&quot; manque à &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; a l&apos;attribut inconnu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; ne peut pas être &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>&quot;%1&quot; ne peut pas contenir de texte</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>L&apos;état dans &quot;%1&quot; n&apos;a pas un nombre pair de chiffres</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Une disposition doit avoir un nom.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Un nom ne peut pas contenir de caractères de contrôle.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Une disposition de ce nom existe déjà.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Le fichier dépasse la limite de %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Le fichier est vide</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Le fichier ne contient aucune disposition</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Le panneau ancrable &quot;%1&quot; n&apos;a pas de nom d&apos;objet.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Plusieurs panneaux ancrables ont le nom d&apos;objet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>La barre d&apos;outils &quot;%1&quot; n&apos;a pas de nom d&apos;objet.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Plusieurs barres d&apos;outils ont le nom d&apos;objet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Le panneau ancrable &quot;%1&quot; n&apos;est dans aucune des zones de la fenêtre.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>La fenêtre &quot;%1&quot; n&apos;a pas de widget central.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Dispositions</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Dispositions</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Des panneaux ancrables sont sur un côté qui n&apos;existe pas</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>L&apos;état est endommagé</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Des panneaux ancrables sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>L&apos;état décrit plus qu&apos;une fenêtre ne peut contenir</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Le document est endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Le document n&apos;est pas un document de dispositions&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Le document a la version inconnue &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Ce n&apos;est pas l&apos;état d&apos;une fenêtre</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Une disposition n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Plusieurs dispositions portent le nom &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Un panneau ancrable ou une barre d&apos;outils n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Plusieurs panneaux ancrables ou barres d&apos;outils portent le nom &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>La fusion a répété des panneaux ancrables ou des barres d&apos;outils</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Des panneaux ancrables flottent en onglets&#xa0;; la fusion de cet état perd ses barres d&apos;outils</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Des barres d&apos;outils sont sur un côté qui n&apos;existe pas</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rétablir : %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Afficher le bouton dans une barre d&apos;outils</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Dispositions</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de commande &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>il n&apos;y a pas de commande &quot;%1&quot;&#xa0;; voir &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>octet %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>document</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>en bon état</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>N&apos;affiche rien.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Affiche du JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>il n&apos;y a pas de groupe &quot;%1&quot;&#xa0;; existants&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>il n&apos;y a pas de disposition &quot;%1&quot;&#xa0;; existantes&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>il n&apos;y a pas de fenêtre &quot;%1&quot;&#xa0;; existantes&#xa0;: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view et --current s&apos;excluent mutuellement</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Seulement ce groupe.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Seulement cette disposition.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Seulement la disposition de travail d&apos;un groupe.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Seulement cette fenêtre&#xa0;; dans un fichier de configuration, l&apos;état sous SECTION/CLÉ.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>n&apos;a ni groupes ni dispositions nommées</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>est l&apos;état d&apos;une seule fenêtre, qui n&apos;a pas d&apos;identifiant</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>il manque un fichier</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>trop de fichiers</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 est indiqué plus d&apos;une fois</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>l&apos;option %1 manque</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1&#xa0;; voir &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Indique si des fenêtres peuvent recevoir sans dommage les dispositions de fichiers.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Indique ce que contiennent les dispositions d&apos;un fichier.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Indique en quoi des dispositions diffèrent.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Dessine une disposition sous forme d&apos;image, PNG ou SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Écarte ce que la fusion a répété, ainsi que les dispositions sans nom.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Copie des dispositions d&apos;un document dans un autre.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Renomme une disposition, ou une fenêtre dans toutes les dispositions.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Déplace une disposition à une autre place de son groupe.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Supprime des dispositions d&apos;un document.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Utilisation&#xa0;: panorel COMMANDE ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help COMMANDE&quot; indique comment utiliser une commande. Un FILE est un document de dispositions, l&apos;état d&apos;une fenêtre ou un fichier de configuration qui contient de tels états&#xa0;; &quot;-&quot; est l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Démarre un programme Qt 5 avec un menu pour les dispositions de ses fenêtres.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Fait démarrer un programme par le bureau avec &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>impossible d&apos;écrire sur la sortie standard</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>a plusieurs dispositions&#xa0;; choisissez-en une avec --group et --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Seulement dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Aucune différence</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Affiche du JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Compare la disposition de --view à celle-ci, du même fichier si B n&apos;est pas donné.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>il n&apos;y a rien à quoi comparer</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Le fichier à écrire&#xa0;; &quot;-&quot; est la sortie standard.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SORTIE</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Le groupe de la disposition.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>La disposition.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>l&apos;option %1 manque&#xa0;; existants&#xa0;: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Remplace les dispositions dont le nom existe déjà.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Copie les dispositions sous un autre nom lorsque le leur existe déjà.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace et --keep-both s&apos;excluent mutuellement</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>La fenêtre à renommer dans toutes les dispositions.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Le nouveau nom.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>une fenêtre est renommée dans toutes les dispositions</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>La disposition devant laquelle la placer.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>AUTRE</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>La place après toutes les autres.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>--before ou --last est nécessaire</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 demande un nombre</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>ne contient aucune disposition</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(disposition de travail)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(barres d&apos;outils)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Lit des fichiers jusqu&apos;à cette taille en MiB, %1 par défaut&#xa0;; 0 supprime la limite.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>n&apos;est pas un document de dispositions</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>est réécrit en entier, à cause de son type de document ou de son encodage</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>est endommagé</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 est endommagé</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>lecture impossible</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>ce lanceur n&apos;existe pas</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>ne démarre aucun programme</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>démarre un programme avec son propre Qt, qui ne charge pas de modules</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>est un lanceur créé par vous et reste tel quel</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Laisse les barres d&apos;outils telles quelles lors d&apos;un changement de disposition.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Retire de nouveau le lanceur.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Disposition des fenêtres</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size demande une largeur et une hauteur d&apos;au plus %1 pixels, par exemple 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>l&apos;image est trop grande&#xa0;; choisissez une fenêtre avec --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>l&apos;image est trop grande</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>L&apos;image à écrire&#xa0;: SVG si le nom se termine par &quot;.svg&quot;, sinon PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SORTIE</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Taille de chaque fenêtre en pixels&#xa0;; par défaut la sienne, d&apos;au plus %1 de large.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>LxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Dessine en couleurs sombres.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>ne contient aucun état de fenêtre</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>impossible à démarrer</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Laisse les barres d&apos;outils telles quelles lors d&apos;un changement de disposition.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Indique quels programmes ont des dispositions, sans en démarrer aucun.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list ne prend pas de programme</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>il manque un programme</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>le module n&apos;est pas installé (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Fenêtre &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Données utilisateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Groupe &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Disposition &quot;%1&quot; (active)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Disposition &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Disposition de travail</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Barres d&apos;outils au moment de l&apos;écriture</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Affiche du JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>top</source>
        <translation>haut</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>bas</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>à %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(au premier plan)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Onglets&#xa0;:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Gauche&#xa0;:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite&#xa0;:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Haut&#xa0;:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Bas&#xa0;:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Sur un côté qui n&apos;existe pas&#xa0;:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Flottants&#xa0;:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Fermés&#xa0;:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(flottante)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(masquée)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Barres d&apos;outils, %1, ligne %2&#xa0;:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Pas l&apos;état d&apos;une fenêtre, ou endommagé (taille&#xa0;: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Zone centrale&#xa0;: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Ni panneaux ancrables ni barres d&apos;outils</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>n&apos;est pas en bon état&#xa0;; voir &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>ignoré&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>un état n&apos;est pas écrit par-dessus son fichier de configuration</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Écrit ce fichier au lieu de la sortie standard.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SORTIE</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Conserve les dispositions sans nom.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Écarte les états qui ne sont pas en bon état et le signale.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>L&apos;état sous SECTION/CLÉ d&apos;un fichier de configuration.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window est réservé aux fichiers de configuration</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>a plusieurs états&#xa0;; choisissez-en un avec --window</translation>
    </message>
</context>
</TS>
