<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Καμία διάταξη δεν είναι ενεργή.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>Η &quot;%1&quot; είναι ενεργή.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Με ένα κλικ γίνεται μετάβαση στην επόμενη διάταξη.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Επόμενη διάταξη</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Προηγούμενη διάταξη</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Διαφορές από τα τρέχοντα παράθυρα:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Θέση συντόμευσης:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Διαφορές από τα τρέχοντα παράθυρα</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Εικόνα του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Καμία. Τα παράθυρα είναι όπως σε αυτή τη διάταξη.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Καμία</translation>
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
        <translation>Γράφει όλες τις διατάξεις σε ένα αρχείο</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Αντικαθιστά όλες τις διατάξεις με αυτές ενός αρχείου</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Προσθέτει τις διατάξεις ενός αρχείου, στη θέση όσων έχουν το ίδιο όνομα</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Ομάδα</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Η δική σας με το ίδιο όνομα:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Εισαγωγή διατάξεων</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Διατάξεις στο &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Διατάξεις του αρχείου</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>Στο αρχείο:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>Διατήρηση &amp;και των δύο</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Αντικατάσταση της δικής σας</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Παράλειψη</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Επιλογή όλων</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Αποεπιλογή &amp;όλων</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>Ε&amp;ισαγωγή</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Εικόνα του &quot;%1&quot; στο αρχείο</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Εικόνα του δικού σας &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Το όνομα χρησιμοποιείται ήδη:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Αντικαθιστά τη διάταξή σας με αυτό το όνομα</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Προστίθεται ως &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Προστίθεται</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Την έχετε ήδη</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Δεν εισάγεται, το όνομα χρησιμοποιείται ήδη</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Δεν εισάγεται</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Οι διατάξεις στο %1 προέρχονται από άλλη έκδοση αυτού του προγράμματος. Παραμένουν ως έχουν.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Το αρχείο είναι κατεστραμμένο.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Ορισμένες από τις διατάξεις στο %1 είναι κατεστραμμένες και παραλείφθηκαν.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Το αρχείο προέρχεται από άλλη έκδοση αυτού του προγράμματος ή είναι κατεστραμμένο.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση των διατάξεων στο %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Δεν είναι δυνατή η ανάγνωση του αρχείου με τις διατάξεις σας, %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Το αρχείο διατηρείται ως %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Το αρχείο παραμένει ως έχει και οι διατάξεις δεν αποθηκεύονται σε αυτήν την εκτέλεση.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>&amp;Διαχείριση διατάξεων...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Μετονομασία του &quot;%1&quot; σε &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Διαγραφή του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Διαγραφή διατάξεων</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Δημιουργία αντιγράφου του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Δημιουργία αντιγράφων διατάξεων</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Μετακίνηση του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Μετακίνηση διατάξεων</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Εισαγωγή του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Εισήχθησαν από το &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Εξήχθησαν στο &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Διατάξεις</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Αναίρεση</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Ενεργοποίηση</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Μετονομασία</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>Δημιουργία &amp;αντιγράφου</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Δ&amp;ιαγραφή</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Μετακίνηση &amp;πάνω</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Μετακίνηση &amp;κάτω</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>Ε&amp;ξαγωγή...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Μετακίνηση &amp;σε ομάδα</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>Εισα&amp;γωγή...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Τακτοποιεί τα παράθυρα όπως στην επιλεγμένη διάταξη</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Θέση %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>τροποποιημένη</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Ενεργή</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Δεν υπάρχουν ακόμη διατάξεις. Αποθηκεύστε μία στο μενού &quot;Διατάξεις&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Κλείδωμα διάταξης</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Τίποτα δεν μπορεί να μετακινηθεί, να αποσπαστεί ή να κλείσει κατά λάθος</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Αποθήκευση διάταξης</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Αποθήκευση του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Επιστροφή στη διάταξη</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Επιστροφή στο &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>και άλλα</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Όνομα της διάταξης</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Νέο όνομα και μετά Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Όνομα της νέας διάταξης</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Μια διάταξη χρειάζεται όνομα: πληκτρολογήστε ένα και μετά πατήστε Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Χρήση συντομεύσεων</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 έως %2 ενεργοποιούν τις διατάξεις στις οποίες έχουν ανατεθεί αυτά τα πλήκτρα</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Κενή θέση %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>Το &quot;%1&quot; δεν είναι αρχείο.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Δεν είναι δυνατή η εγγραφή του &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Οι διατάξεις εξήχθησαν στο &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>το αρχείο δεν περιέχει διατάξεις</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>Το &quot;%1&quot; δεν εισήχθη: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>Το &quot;%1&quot; δεν περιέχει διατάξεις για αυτό το πρόγραμμα.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>Δεν είναι δυνατή η ανάγνωση του &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Οι διατάξεις του &quot;%1&quot; εισήχθησαν.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Οι διατάξεις του &quot;%1&quot; εισήχθησαν· τα κατεστραμμένα μέρη παραλείφθηκαν.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>αριστερά</translation>
    </message>
    <message>
        <source>right</source>
        <translation>δεξιά</translation>
    </message>
    <message>
        <source>top</source>
        <translation>επάνω</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>κάτω</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(χωρίς όνομα)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>Το %1 δεν είναι πλέον καρτέλα</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Η καρτέλα %1 είναι τώρα μπροστά</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>Το %1 είναι τώρα καρτέλα δίπλα στο %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>Το %1 μετακινήθηκε στην επιφάνεια εργασίας</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>Το %1 είναι τώρα ξεχωριστό παράθυρο</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>Το %1 δεν είναι πλέον ξεχωριστό παράθυρο</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>Το %1 είναι τώρα δίπλα στα γειτονικά του</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>Το %1 είναι τώρα πάνω ή κάτω από τα γειτονικά του</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>Το %1 έχει άλλη θέση ανάμεσα στα γειτονικά του</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>Το %1 μετακινήθηκε από τη γραμμή %2 στη γραμμή %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Το %1 προστέθηκε</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Το %1 αφαιρέθηκε</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>Το %1 μετακινήθηκε από %2 προς %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>Το %1 είναι ανοικτό</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>Το %1 είναι κλειστό</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>Το μέγεθος του %1 άλλαξε από %2 σε %3</translation>
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
        <translation>Μετονομασία του &quot;%1&quot; σε &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Δημιουργία του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Διαγραφή του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Αποθήκευση του &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Αναδιάταξη διατάξεων</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Μετάβαση στο &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Μετάβαση στην ομάδα &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Επιστροφή στο &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Αλλαγή διατάξεων</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Εισαγωγή του &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Τίποτα από το &quot;%1&quot; δεν μπορεί να εισαχθεί: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Κατεστραμμένα, γι&apos; αυτό παραλείφθηκαν: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Χωρίς τα κατεστραμμένα μέρη τους: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Από ομάδες που δεν έχει αυτό το πρόγραμμα, γι&apos; αυτό παραλείφθηκαν: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>Το &quot;%1&quot; δεν μπορεί να βρίσκεται εδώ στο &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>Το &quot;%1&quot; δεν είναι το ριζικό στοιχείο &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>Το &quot;%1&quot; λείπει από το &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>Από το &quot;%2&quot; λείπει το γνώρισμα &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>Το &quot;%2&quot; έχει το άγνωστο γνώρισμα &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>Το &quot;Active&quot; δεν μπορεί να είναι &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>Δεν μπορεί να υπάρχει κείμενο στο &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Η κατάσταση στο &quot;%1&quot; δεν έχει άρτιο αριθμό ψηφίων</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Μια διάταξη χρειάζεται όνομα.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Ένα όνομα δεν μπορεί να έχει χαρακτήρες ελέγχου.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Υπάρχει ήδη διάταξη με αυτό το όνομα.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Το αρχείο είναι μεγαλύτερο από το όριο των %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Αυτό δεν είναι κανονικό αρχείο</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Το αρχείο είναι κενό</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Δεν υπάρχουν διατάξεις στο αρχείο</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Το προσαρτώμενο παράθυρο &quot;%1&quot; δεν έχει όνομα αντικειμένου.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Πολλά προσαρτώμενα παράθυρα έχουν το όνομα αντικειμένου &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Η γραμμή εργαλείων &quot;%1&quot; δεν έχει όνομα αντικειμένου.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Πολλές γραμμές εργαλείων έχουν το όνομα αντικειμένου &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Το προσαρτώμενο παράθυρο &quot;%1&quot; δεν βρίσκεται σε καμία από τις περιοχές του παραθύρου.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Το παράθυρο &quot;%1&quot; δεν έχει κεντρικό γραφικό συστατικό.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Διατάξεις</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Διατάξεις</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Προσαρτώμενα παράθυρα βρίσκονται σε πλευρά που δεν υπάρχει</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Η κατάσταση είναι κατεστραμμένη</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Τα προσαρτώμενα παράθυρα είναι εμφωλευμένα σε υπερβολικό βάθος</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Η κατάσταση περιγράφει περισσότερα από όσα μπορεί να έχει ένα παράθυρο</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Το έγγραφο είναι κατεστραμμένο: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Το έγγραφο δεν είναι έγγραφο διατάξεων: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Το έγγραφο έχει την άγνωστη έκδοση &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Αυτό δεν είναι κατάσταση παραθύρου</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Μια διάταξη δεν έχει όνομα</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Πολλές διατάξεις έχουν το όνομα &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Ένα προσαρτώμενο παράθυρο ή μια γραμμή εργαλείων δεν έχει όνομα</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Πολλά προσαρτώμενα παράθυρα ή γραμμές εργαλείων έχουν το όνομα &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Η συγχώνευση επανέλαβε προσαρτώμενα παράθυρα ή γραμμές εργαλείων</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Προσαρτώμενα παράθυρα αιωρούνται ως καρτέλες· κατά τη συγχώνευση αυτής της κατάστασης χάνονται οι γραμμές εργαλείων της</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Γραμμές εργαλείων βρίσκονται σε πλευρά που δεν υπάρχει</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Αναίρεση</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Αναίρεση: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Επαναφορά: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Εμφάνιση του κουμπιού σε γραμμή εργαλείων</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Διατάξεις</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>δεν υπάρχει εντολή &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>δεν υπάρχει εντολή &quot;%1&quot;· δείτε &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>byte %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>έγγραφο</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>εντάξει</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Δεν εμφανίζει τίποτα.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Εμφανίζει JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>δεν υπάρχει ομάδα &quot;%1&quot;· υπάρχουν: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>δεν υπάρχει διάταξη &quot;%1&quot;· υπάρχουν: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>δεν υπάρχει παράθυρο &quot;%1&quot;· υπάρχουν: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>τα --view και --current αλληλοαποκλείονται</translation>
    </message>
    <message>
        <source>none</source>
        <translation>κανένα</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Μόνο αυτή η ομάδα.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ΟΝΟΜΑ</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Μόνο αυτή η διάταξη.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Μόνο η τρέχουσα διάταξη μιας ομάδας.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Μόνο αυτό το παράθυρο· σε αρχείο ρυθμίσεων, η κατάσταση στο ΕΝΟΤΗΤΑ/ΚΛΕΙΔΙ.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>δεν έχει ούτε ομάδες ούτε διατάξεις με όνομα</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>είναι η κατάσταση ενός μόνο παραθύρου, που δεν έχει ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Εμφανίζει αυτήν τη βοήθεια.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Εμφανίζει την έκδοση.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>λείπει ένα αρχείο</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>υπερβολικά πολλά αρχεία</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>το %1 δίνεται περισσότερες από μία φορές</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>λείπει η επιλογή %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1· δείτε &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Δείχνει αν οι διατάξεις αρχείων μπορούν να δοθούν σε παράθυρα χωρίς βλάβη.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Δείχνει τι περιέχουν οι διατάξεις ενός αρχείου.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Δείχνει σε τι διαφέρουν διατάξεις.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Σχεδιάζει μια διάταξη ως εικόνα, PNG ή SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Παραλείπει όσα επανέλαβε η συγχώνευση και τις διατάξεις χωρίς όνομα.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Αντιγράφει διατάξεις ενός εγγράφου σε άλλο.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Μετονομάζει μια διάταξη ή ένα παράθυρο σε όλες τις διατάξεις.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Μετακινεί μια διάταξη σε άλλη θέση της ομάδας της.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Αφαιρεί διατάξεις από ένα έγγραφο.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Χρήση: panorel ΕΝΤΟΛΗ ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>Το &quot;panorel help ΕΝΤΟΛΗ&quot; δείχνει πώς χρησιμοποιείται μια εντολή. Το FILE είναι έγγραφο διατάξεων, η κατάσταση ενός παραθύρου ή αρχείο ρυθμίσεων που περιέχει τέτοιες καταστάσεις· το &quot;-&quot; είναι η τυπική είσοδος.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Εκκινεί ένα πρόγραμμα Qt 5 με μενού για τις διατάξεις των παραθύρων του.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Κάνει την επιφάνεια εργασίας να εκκινεί ένα πρόγραμμα με &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>δεν είναι δυνατή η εγγραφή στην τυπική έξοδο</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>έχει πολλές διατάξεις· επιλέξτε μία με --group και --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Μόνο στο %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Καμία διαφορά</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Εμφανίζει JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Συγκρίνει τη διάταξη του --view με αυτήν, από το ίδιο αρχείο αν δεν υπάρχει B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ΟΝΟΜΑ</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>δεν υπάρχει κάτι για σύγκριση</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Το αρχείο προς εγγραφή· το &quot;-&quot; είναι η τυπική έξοδος.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ΕΞΟΔΟΣ</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Η ομάδα της διάταξης.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ΟΝΟΜΑ</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Η διάταξη.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>λείπει η επιλογή %1· υπάρχουν: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Αντικαθιστά διατάξεις των οποίων τα ονόματα υπάρχουν ήδη.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Αντιγράφει διατάξεις με άλλο όνομα όταν το όνομά τους υπάρχει ήδη.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>τα --replace και --keep-both αλληλοαποκλείονται</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Το παράθυρο προς μετονομασία σε όλες τις διατάξεις.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Το νέο όνομα.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>ένα παράθυρο μετονομάζεται σε όλες τις διατάξεις</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Η διάταξη πριν από την οποία θα μετακινηθεί.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ΑΛΛΗ</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Τη μετακινεί μετά από όλες τις άλλες.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>απαιτείται είτε --before είτε --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>το --%1 χρειάζεται έναν αριθμό</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>δεν περιέχει διάταξη</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(χωρίς όνομα)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(τρέχουσα διάταξη)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(γραμμές εργαλείων)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Διαβάζει αρχεία έως αυτό το μέγεθος σε MiB, %1 αν δεν δοθεί· το 0 καταργεί το όριο.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>δεν είναι έγγραφο διατάξεων</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>γράφεται ξανά ολόκληρο, λόγω του τύπου εγγράφου ή της κωδικοποίησης</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>είναι κατεστραμμένο</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 έχει υποστεί βλάβη</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>δεν είναι δυνατή η ανάγνωση</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>δεν υπάρχει τέτοιος εκκινητής</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>δεν εκκινεί κανένα πρόγραμμα</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>εκκινεί ένα πρόγραμμα με δικό του Qt, το οποίο δεν φορτώνει πρόσθετα</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>είναι δικός σας εκκινητής και μένει ως έχει</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Αφήνει τις γραμμές εργαλείων ως έχουν κατά την αλλαγή διάταξης.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Αφαιρεί ξανά τον εκκινητή.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Διάταξη παραθύρου</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>το --size χρειάζεται πλάτος και ύψος έως %1 εικονοστοιχεία, όπως 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>η εικόνα είναι πολύ μεγάλη· επιλέξτε ένα παράθυρο με --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>η εικόνα είναι πολύ μεγάλη</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Η εικόνα προς εγγραφή: SVG αν το όνομα τελειώνει σε &quot;.svg&quot;, αλλιώς PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ΕΞΟΔΟΣ</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Μέγεθος κάθε παραθύρου σε εικονοστοιχεία· αν δεν δοθεί, το δικό του, με πλάτος έως %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>ΠxΥ</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Σχεδιάζει με σκούρα χρώματα.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>δεν περιέχει κατάσταση παραθύρου</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>δεν είναι δυνατή η εκκίνησή του</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Αφήνει τις γραμμές εργαλείων ως έχουν κατά την αλλαγή διάταξης.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Δείχνει ποια προγράμματα έχουν διατάξεις και δεν εκκινεί κανένα.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>το --list δεν δέχεται πρόγραμμα</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>λείπει ένα πρόγραμμα</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>το πρόσθετο δεν είναι εγκατεστημένο (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Παράθυρο &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Δεδομένα χρήστη: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Ομάδα &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Διάταξη &quot;%1&quot; (ενεργή)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Διάταξη &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Τρέχουσα διάταξη</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Γραμμές εργαλείων κατά την εγγραφή του εγγράφου</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Εμφανίζει JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>αριστερά</translation>
    </message>
    <message>
        <source>right</source>
        <translation>δεξιά</translation>
    </message>
    <message>
        <source>top</source>
        <translation>επάνω</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>κάτω</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(χωρίς όνομα)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>στη θέση %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(μπροστά)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Καρτέλες:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Αριστερά:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Δεξιά:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Επάνω:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Κάτω:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Σε πλευρά που δεν υπάρχει:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Αιωρούμενα:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Κλειστά:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(αιωρούμενο)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(κρυφό)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Γραμμές εργαλείων, %1, γραμμή %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Δεν είναι κατάσταση παραθύρου ή είναι κατεστραμμένη (μέγεθος: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Κεντρική περιοχή: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Ούτε προσαρτώμενα παράθυρα ούτε γραμμές εργαλείων</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>δεν είναι εντάξει· δείτε &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>παραλείφθηκε: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>μια κατάσταση δεν γράφεται πάνω στο αρχείο ρυθμίσεών της</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Γράφει σε αυτό το αρχείο και όχι στην τυπική έξοδο.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ΕΞΟΔΟΣ</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Διατηρεί διατάξεις χωρίς όνομα.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Παραλείπει καταστάσεις που δεν είναι εντάξει και το αναφέρει.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Η κατάσταση στο ΕΝΟΤΗΤΑ/ΚΛΕΙΔΙ ενός αρχείου ρυθμίσεων.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>το --window είναι για αρχεία ρυθμίσεων</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>έχει πολλές καταστάσεις· επιλέξτε μία με --window</translation>
    </message>
</context>
</TS>
