<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR" sourcelanguage="en">
<context>
    <name>Panorel::Menu</name>
    <message>
        <source>Layouts</source>
        <translation>Διατάξεις</translation>
    </message>
    <message>
        <source>Save Current Layout As...</source>
        <translation>Αποθήκευση τρέχουσας διάταξης ως...</translation>
    </message>
    <message>
        <source>Delete Layout...</source>
        <translation>Διαγραφή διάταξης...</translation>
    </message>
    <message>
        <source>Export ...</source>
        <translation>Εξαγωγή ...</translation>
    </message>
    <message>
        <source>Import ...</source>
        <translation>Εισαγωγή ...</translation>
    </message>
    <message>
        <source>Import &amp; Merge ...</source>
        <translation>Εισαγωγή και συγχώνευση ...</translation>
    </message>
    <message>
        <source>Reset Layout to Program Start</source>
        <translation>Επαναφορά διάταξης εκκίνησης</translation>
    </message>
    <message>
        <source>Reset Layout to Factory Default</source>
        <translation>Επαναφορά προεπιλεγμένης διάταξης</translation>
    </message>
    <message>
        <source>Save Layouts</source>
        <translation>Αποθήκευση διατάξεων</translation>
    </message>
    <message>
        <source>View File (*.views);;All Files (*.*)</source>
        <translation>Αρχείο διατάξεων (*.views);;Όλα τα αρχεία (*.*)</translation>
    </message>
    <message>
        <source>Load Layouts</source>
        <translation>Φόρτωση διατάξεων</translation>
    </message>
</context>
<context>
    <name>Panorel::NameDialog</name>
    <message>
        <source>Save Layout</source>
        <translation>Αποθήκευση διάταξης</translation>
    </message>
    <message>
        <source>&amp;Name of the layout:</source>
        <translation>Ό&amp;νομα διάταξης:</translation>
    </message>
    <message>
        <source>Name must not be empty!</source>
        <translation>Το όνομα δεν μπορεί να είναι κενό!</translation>
    </message>
    <message>
        <source>Name already in use!</source>
        <translation>Το όνομα χρησιμοποιείται ήδη!</translation>
    </message>
</context>
</TS>
