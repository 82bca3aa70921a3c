<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About ZARN</source>
        <translation>Über ZARN</translation>
    </message>
    <message>
        <source>After-flight review of engine recordings.</source>
        <translation>Auswertung von Motoraufzeichnungen nach dem Flug.</translation>
    </message>
    <message>
        <source>Compiled %1 with Qt %2, running on Qt %3</source>
        <translation>Übersetzt %1 mit Qt %2, läuft mit Qt %3</translation>
    </message>
</context>
<context>
    <name>DialogHelp</name>
    <message>
        <source>ZARN Help</source>
        <translation>ZARN Hilfe</translation>
    </message>
</context>
<context>
    <name>DialogProfileInfo</name>
    <message>
        <source>Profile Information</source>
        <translation>Profilinformation</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;Install&quot;&gt;Install New Profile&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;Install&quot;&gt;Neues Profil installieren&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Profile Name:</source>
        <translation>Profilname:</translation>
    </message>
    <message>
        <source>Profile Version:</source>
        <translation>Profilversion:</translation>
    </message>
    <message>
        <source>Profile Id:</source>
        <translation>Profilkennung:</translation>
    </message>
    <message>
        <source>Profile Comment:</source>
        <translation>Profilkommentar:</translation>
    </message>
    <message>
        <source>Variants: </source>
        <translation>Varianten: </translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>Not a valid ZARN profile !</source>
        <translation>Kein gültiges ZARN-Profil !</translation>
    </message>
    <message>
        <source>ZARN Info</source>
        <translation>ZARN Info</translation>
    </message>
    <message>
        <source>Profile Installation failed !</source>
        <translation>Installation des Profils fehlgeschlagen !</translation>
    </message>
    <message>
        <source>New profile installed !</source>
        <translation>Neues Profil installiert !</translation>
    </message>
    <message>
        <source>Select Profile File</source>
        <translation>Profildatei wählen</translation>
    </message>
    <message>
        <source>Profile File (*.xml);;All Files (* *.*)</source>
        <translation>Profildatei (*.xml);;Alle Dateien (* *.*)</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
</context>
<context>
    <name>ZARN::CardController</name>
    <message>
        <source>Open SD Card</source>
        <translation>SD-Karte öffnen</translation>
    </message>
    <message>
        <source>The folder %1 is not there, or cannot be read.</source>
        <translation>Der Ordner %1 ist nicht da oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The folder %1 holds no record file (*.CAN, *.can, *.xcb).</source>
        <translation>Der Ordner %1 enthält keine Aufzeichnung (*.CAN, *.can, *.xcb).</translation>
    </message>
    <message>
        <source>The demo card could not be written:
%1</source>
        <translation>Die Demokarte konnte nicht geschrieben werden:
%1</translation>
    </message>
    <message>
        <source>Not everything could be loaded:
%1</source>
        <translation>Nicht alles konnte geladen werden:
%1</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
</context>
<context>
    <name>ZARN::CardTree</name>
    <message>
        <source>Unknown Date</source>
        <translation>Unbekanntes Datum</translation>
    </message>
    <message>
        <source>Flight %1 %2 (%3)</source>
        <translation>Flug %1 %2 (%3)</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>Stop Time</source>
        <translation>Endzeit</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Bus Type</source>
        <translation>Bustyp</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>ECU-Seriennummer</translation>
    </message>
    <message>
        <source>Software Part Nr. A</source>
        <translation>Software-Teilenr. A</translation>
    </message>
    <message>
        <source>Software Part Nr. B</source>
        <translation>Software-Teilenr. B</translation>
    </message>
    <message>
        <source>ECU Type</source>
        <translation>ECU-Typ</translation>
    </message>
    <message>
        <source>EMU SW Version</source>
        <translation>EMU-SW-Version</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>Motorseriennr.</translation>
    </message>
    <message>
        <source>Engine Type</source>
        <translation>Motortyp</translation>
    </message>
    <message>
        <source>Samples Total</source>
        <translation>Daten gesamt</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogCard</name>
    <message>
        <source>Power cycles and flights</source>
        <translation>Einschaltzyklen und Flüge</translation>
    </message>
    <message>
        <source>Record files and their headers</source>
        <translation>Aufzeichnungsdateien und ihre Köpfe</translation>
    </message>
    <message>
        <source>No card opened</source>
        <translation>Keine Karte geöffnet</translation>
    </message>
    <message>
        <source>Card name</source>
        <translation>Name der Karte</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Zyklen</translation>
    </message>
    <message>
        <source>Raw Data</source>
        <translation>Rohdaten</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogMain</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Extras</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>Profile: what the recorded bytes mean</source>
        <translation>Profil: was die aufgezeichneten Bytes bedeuten</translation>
    </message>
    <message>
        <source>Units of all displays</source>
        <translation>Einheiten aller Anzeigen</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Neues Projekt</translation>
    </message>
    <message>
        <source>Create new Project</source>
        <translation>Neues Projekt anlegen</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>Projekt &amp;öffnen</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Open Project File</source>
        <translation>Projektdatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Open Data Folder</source>
        <translation>Datenordner &amp;öffnen</translation>
    </message>
    <message>
        <source>Open Data Folder</source>
        <translation>Datenordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation>Projekt &amp;speichern</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Save Project File</source>
        <translation>Projektdatei speichern</translation>
    </message>
    <message>
        <source>&amp;Save Project as</source>
        <translation>Projekt &amp;speichern unter</translation>
    </message>
    <message>
        <source>Save Project as</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>Save Project File as</source>
        <translation>Projektdatei speichern unter</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Quit Application</source>
        <translation>Anwendung beenden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Show License Information</source>
        <translation>Lizenzen anzeigen</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Show Profile Information</source>
        <translation>Profilinformation anzeigen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Help Window</source>
        <translation>Hilfefenster</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Open Preferences Dialog</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Export Google KML File</source>
        <translation>Google-KML-Datei exportieren</translation>
    </message>
    <message>
        <source>Export Google Earth KML File</source>
        <translation>Google-Earth-KML-Datei exportieren</translation>
    </message>
    <message>
        <source>Export CSV File</source>
        <translation>CSV-Datei exportieren</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Language :</source>
        <translation>Sprache :</translation>
    </message>
    <message>
        <source>Font Size :</source>
        <translation>Schriftgröße :</translation>
    </message>
    <message>
        <source>Select profile file ...</source>
        <translation>Profildatei wählen ...</translation>
    </message>
    <message>
        <source>A profile says what the recorded bytes mean. The tool bar offers the installed ones; here a profile file from any folder can be used.</source>
        <translation>Ein Profil sagt, was die aufgezeichneten Bytes bedeuten. Die Werkzeugleiste bietet die installierten an; hier lässt sich eine Profildatei aus einem beliebigen Ordner verwenden.</translation>
    </message>
    <message>
        <source>Profile file</source>
        <translation>Profildatei</translation>
    </message>
    <message>
        <source>ZARN Info</source>
        <translation>ZARN Info</translation>
    </message>
    <message>
        <source>Please restart ZARN to load new language !</source>
        <translation>Bitte ZARN neu starten, um die neue Sprache zu laden !</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message>
        <source>Restart later: changes will not applied until next restart</source>
        <translation>Später neu starten: Änderungen wirken erst nach dem nächsten Start</translation>
    </message>
    <message>
        <source>Select Profile File</source>
        <translation>Profildatei wählen</translation>
    </message>
    <message>
        <source>ZARN Profile (*.xml);;All files (*.*)</source>
        <translation>ZARN-Profil (*.xml);;Alle Dateien (*.*)</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogProfile</name>
    <message>
        <source>Search name, unit or identifier</source>
        <translation>Name, Einheit oder Kennung suchen</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>Parameter suchen</translation>
    </message>
    <message>
        <source>Parameters of the profile</source>
        <translation>Parameter des Profils</translation>
    </message>
    <message>
        <source>Select Only This Device</source>
        <translation>Nur dieses Gerät wählen</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Namen kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle wählen</translation>
    </message>
    <message>
        <source>Select All Shown</source>
        <translation>Alle gezeigten wählen</translation>
    </message>
    <message>
        <source>Select None</source>
        <translation>Keinen wählen</translation>
    </message>
    <message>
        <source>Select None Shown</source>
        <translation>Keinen der gezeigten wählen</translation>
    </message>
    <message>
        <source>%1 of %2 parameters selected</source>
        <translation>%1 von %2 Parametern gewählt</translation>
    </message>
</context>
<context>
    <name>ZARN::ExportController</name>
    <message>
        <source>Save KML Export</source>
        <translation>KML-Export speichern</translation>
    </message>
    <message>
        <source>KML Files (*.kml)</source>
        <translation>KML-Dateien (*.kml)</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation>Export der KML-Datei fehlgeschlagen !</translation>
    </message>
    <message>
        <source>Save CSV Export</source>
        <translation>CSV-Export speichern</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>ZARN Viewer Warning</source>
        <translation>ZARN Viewer Warnung</translation>
    </message>
    <message>
        <source>Exporting CSV file failed !</source>
        <translation>Export der CSV-Datei fehlgeschlagen !</translation>
    </message>
</context>
<context>
    <name>ZARN::GraphicsCheck</name>
    <message>
        <source>No OpenGL here: graph and map cannot be drawn</source>
        <translation>Kein OpenGL: Graph und Karte können nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>OpenGL 3.3 is needed, here is %1.%2: graph and map cannot be drawn</source>
        <translation>OpenGL 3.3 wird gebraucht, hier ist %1.%2: Graph und Karte können nicht gezeichnet werden</translation>
    </message>
</context>
<context>
    <name>ZARN::ProfileTreeModel</name>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
</context>
<context>
    <name>ZARN::ProjectController</name>
    <message>
        <source>Open ZARN Project</source>
        <translation>ZARN-Projekt öffnen</translation>
    </message>
    <message>
        <source>Project Files (*.xml)</source>
        <translation>Projektdateien (*.xml)</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>%1 is no readable project file.</source>
        <translation>%1 ist keine lesbare Projektdatei.</translation>
    </message>
    <message>
        <source>Save ZARN Project</source>
        <translation>ZARN-Projekt speichern</translation>
    </message>
    <message>
        <source>Current Project not saved !
Save it now ?</source>
        <translation>Aktuelles Projekt nicht gespeichert !
Jetzt speichern ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ZARN::RecentFolders</name>
    <message>
        <source>No folder opened yet</source>
        <translation>Noch kein Ordner geöffnet</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetCycleSummary</name>
    <message>
        <source>Lowest altitude</source>
        <translation>Geringste Höhe</translation>
    </message>
    <message>
        <source>Highest altitude</source>
        <translation>Größte Höhe</translation>
    </message>
    <message>
        <source>Total climb</source>
        <translation>Steigen gesamt</translation>
    </message>
    <message>
        <source>Average climb rate</source>
        <translation>Mittlere Steigrate</translation>
    </message>
    <message>
        <source>Average descent rate</source>
        <translation>Mittlere Sinkrate</translation>
    </message>
    <message>
        <source>Highest ground speed</source>
        <translation>Höchste Geschw. über Grund</translation>
    </message>
    <message>
        <source>Take-off distance</source>
        <translation>Startstrecke</translation>
    </message>
    <message>
        <source>Take-off distance over 15 m</source>
        <translation>Startstrecke über 15 m</translation>
    </message>
    <message>
        <source>Fuel, lane A</source>
        <translation>Kraftstoff, Lane A</translation>
    </message>
    <message>
        <source>Fuel, lane B</source>
        <translation>Kraftstoff, Lane B</translation>
    </message>
    <message>
        <source>Fuel, total</source>
        <translation>Kraftstoff gesamt</translation>
    </message>
    <message>
        <source>Record files</source>
        <translation>Aufzeichnungsdateien</translation>
    </message>
    <message>
        <source>Cycle without a start</source>
        <translation>Zyklus ohne Anfang</translation>
    </message>
    <message>
        <source>Unknown Date</source>
        <translation>Unbekanntes Datum</translation>
    </message>
    <message>
        <source>Duration %1</source>
        <translation>Dauer %1</translation>
    </message>
    <message>
        <source>Take-off</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Landing</source>
        <translation>Landung</translation>
    </message>
    <message>
        <source>Flight %1</source>
        <translation>Flug %1</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Datensätze: %1</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Flüge: %1</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetWelcome</name>
    <message>
        <source>Open card folder ...</source>
        <translation>Kartenordner öffnen ...</translation>
    </message>
    <message>
        <source>Try the demo card</source>
        <translation>Demokarte ausprobieren</translation>
    </message>
    <message>
        <source>Choose a power cycle</source>
        <translation>Einschaltzyklus wählen</translation>
    </message>
    <message>
        <source>No card is open</source>
        <translation>Keine Karte geöffnet</translation>
    </message>
    <message>
        <source>The list on the left holds the power cycles of the card. Click one to load it; its flights then appear below it.</source>
        <translation>Die Liste links enthält die Einschaltzyklen der Karte. Ein Klick lädt einen Zyklus; seine Flüge erscheinen dann darunter.</translation>
    </message>
    <message>
        <source>Open the folder of a memory card, or drop it here. Without a card at hand the demo card shows an hour with two tows.</source>
        <translation>Öffnen Sie den Ordner einer Speicherkarte oder ziehen Sie ihn hierher. Ist keine Karte zur Hand, zeigt die Demokarte eine Stunde mit zwei Schlepps.</translation>
    </message>
</context>
<context>
    <name>ZARN::main</name>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>The last start of ZARN failed.
Begin with default settings ?</source>
        <translation>Der letzte Start von ZARN schlug fehl.
Mit Grundeinstellungen beginnen ?</translation>
    </message>
    <message>
        <source>Settings and current project are put aside, not deleted.</source>
        <translation>Einstellungen und aktuelles Projekt werden beiseitegelegt, nicht gelöscht.</translation>
    </message>
    <message>
        <source>Begin with defaults</source>
        <translation>Mit Grundeinstellungen beginnen</translation>
    </message>
    <message>
        <source>Start as usual</source>
        <translation>Wie gewohnt starten</translation>
    </message>
</context>
</TS>
