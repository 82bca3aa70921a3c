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
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
</context>
<context>
    <name>DialogHelp</name>
    <message>
        <source>ZARN Help</source>
        <translation>ZARN Hilfe</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Search the text; Return for the next place</source>
        <translation>Text suchen; Eingabetaste für die nächste Stelle</translation>
    </message>
    <message>
        <source>Commands of the main window</source>
        <translation>Befehle des Hauptfensters</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Search the text</source>
        <translation>Text durchsuchen</translation>
    </message>
    <message>
        <source>Keys of the graph</source>
        <translation>Tasten des Graphen</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Was sie bewirkt</translation>
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
        <source>The old file could not be read and is kept as:
%1</source>
        <translation>Die alte Datei konnte nicht gelesen werden und bleibt erhalten als:
%1</translation>
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
    <name>OpenStreet::BaseMap</name>
    <message>
        <source>The map of coasts and rivers is damaged: a plainer one is shown</source>
        <translation>Die Karte der Küsten und Flüsse ist beschädigt: eine einfachere wird gezeigt</translation>
    </message>
</context>
<context>
    <name>OpenStreet::DetailFile</name>
    <message>
        <source>this is no map of the program, or a damaged one</source>
        <translation>das ist keine Karte des Programms, oder eine beschädigte</translation>
    </message>
</context>
<context>
    <name>OpenStreet::FolderTiles</name>
    <message>
        <source>there is no folder of a zoom, from 0 to 22, with tiles in it</source>
        <translation>es gibt darin keinen Ordner einer Zoomstufe, von 0 bis 22, mit Kacheln</translation>
    </message>
</context>
<context>
    <name>OpenStreet::MbTiles</name>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>this is no archive of tiles (%1)</source>
        <translation>das ist kein Kachelarchiv (%1)</translation>
    </message>
    <message>
        <source>the archive holds no tile that can be read</source>
        <translation>das Archiv enthält keine lesbare Kachel</translation>
    </message>
    <message>
        <source>the archive holds vector tiles; only pictures (PNG, JPEG, WebP) can be shown</source>
        <translation>das Archiv enthält Vektorkacheln; gezeigt werden können nur Bilder (PNG, JPEG, WebP)</translation>
    </message>
    <message>
        <source>its tiles are no pictures of the formats PNG, JPEG or WebP</source>
        <translation>seine Kacheln sind keine Bilder der Formate PNG, JPEG oder WebP</translation>
    </message>
</context>
<context>
    <name>OpenStreet::PlaceIndex</name>
    <message>
        <source>The map of places is damaged: some are missing</source>
        <translation>Die Karte der Orte ist beschädigt: einige fehlen</translation>
    </message>
</context>
<context>
    <name>OpenStreet::TileImage</name>
    <message>
        <source>more than 4 MiB</source>
        <translation>mehr als 4 MiB</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>the picture breaks off</source>
        <translation>das Bild bricht ab</translation>
    </message>
    <message>
        <source>not a picture of at most 1024 x 1024 pixels</source>
        <translation>kein Bild von höchstens 1024 x 1024 Pixeln</translation>
    </message>
    <message>
        <source>the picture is damaged</source>
        <translation>das Bild ist beschädigt</translation>
    </message>
</context>
<context>
    <name>OpenStreet::TileLoader</name>
    <message>
        <source>HTTP status %1</source>
        <translation>HTTP-Status %1</translation>
    </message>
    <message>
        <source>more than 4 MiB</source>
        <translation>mehr als 4 MiB</translation>
    </message>
</context>
<context>
    <name>VESK::OpenGL::FixedDevice</name>
    <message>
        <source>No OpenGL compatibility context here</source>
        <translation>Hier gibt es keinen OpenGL-Kompatibilitätskontext</translation>
    </message>
</context>
<context>
    <name>WidgetGraphBase</name>
    <message>
        <source>Graph of the selected parameters</source>
        <translation>Graph der gewählten Parameter</translation>
    </message>
</context>
<context>
    <name>ZARN::Appearance</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>ZARN::Application</name>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>The memory is not enough: ZARN ends.
Settings are kept.</source>
        <translation>Der Arbeitsspeicher reicht nicht: ZARN wird beendet.
Die Einstellungen bleiben erhalten.</translation>
    </message>
</context>
<context>
    <name>ZARN::BackgroundTask</name>
    <message>
        <source>The memory is not enough.</source>
        <translation>Der Speicher reicht nicht aus.</translation>
    </message>
</context>
<context>
    <name>ZARN::BusAddress</name>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>%1: must be PLUGIN:INTERFACE, with a plugin of: %2</source>
        <translation>%1: muss PLUGIN:SCHNITTSTELLE sein, mit einem dieser Plugins: %2</translation>
    </message>
    <message>
        <source>%1: there is no plugin &quot;%2&quot;, only: %3</source>
        <translation>%1: Es gibt kein Plugin „%2“, nur: %3</translation>
    </message>
</context>
<context>
    <name>ZARN::BusLink</name>
    <message>
        <source>the interface is gone</source>
        <translation>Die Schnittstelle ist fort</translation>
    </message>
    <message>
        <source>good</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>what answers there is no virtual bus</source>
        <translation>was dort antwortet, ist kein virtueller Bus</translation>
    </message>
    <message>
        <source>it confirms frames: it is opened when the system has set it to listen only</source>
        <translation>sie bestätigt Telegramme: Sie wird geöffnet, wenn das System sie auf Zuhören eingestellt hat</translation>
    </message>
</context>
<context>
    <name>ZARN::CandumpFile</name>
    <message>
        <source>lines that are no frame: %1</source>
        <translation>Zeilen, die kein Telegramm sind: %1</translation>
    </message>
    <message>
        <source>the last line is cut off</source>
        <translation>die letzte Zeile ist abgeschnitten</translation>
    </message>
    <message>
        <source>frames that cannot be used: %1 remote, %2 error, %3 FD</source>
        <translation>nicht verwendbare Telegramme: %1 Remote, %2 Fehler, %3 FD</translation>
    </message>
    <message>
        <source>the frames of several interfaces are read as one bus</source>
        <translation>die Telegramme mehrerer Schnittstellen werden als ein Bus gelesen</translation>
    </message>
    <message>
        <source>frames that no parameter reads: %1 with too few data, %2 of 29 bits with a standard identifier</source>
        <translation>Telegramme, die kein Parameter liest: %1 mit zu wenig Daten, %2 mit 29 Bit und einer Standardkennung</translation>
    </message>
</context>
<context>
    <name>ZARN::CardArchive</name>
    <message>
        <source>it cannot be read</source>
        <translation>es kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the copy differs from the card</source>
        <translation>die Kopie weicht von der Karte ab</translation>
    </message>
    <message>
        <source>the folder cannot be listed</source>
        <translation>der Ordner kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>ZARN::CardContainer</name>
    <message>
        <source>it cannot be listed to its end: %1</source>
        <translation>er kann nicht bis zum Ende aufgelistet werden: %1</translation>
    </message>
    <message>
        <source>no CAN frame in it</source>
        <translation>kein CAN-Telegramm darin</translation>
    </message>
    <message>
        <source>its content has changed since the card was opened</source>
        <translation>ihr Inhalt hat sich seit dem Öffnen der Karte geändert</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
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
    <message>
        <source>The folder</source>
        <translation>Der Ordner</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more; all are marked under &quot;Raw Data&quot;</source>
        <translation>
            <numerusform>... und %n weitere; alle sind unter „Rohdaten“ gekennzeichnet</numerusform>
            <numerusform>... und %n weitere; alle sind unter „Rohdaten“ gekennzeichnet</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything on this card could be read:</source>
        <translation>Nicht alles auf dieser Karte konnte gelesen werden:</translation>
    </message>
    <message>
        <source>The folder %1 holds no record file (%2).</source>
        <translation>Der Ordner %1 enthält keine Aufzeichnung (%2).</translation>
    </message>
</context>
<context>
    <name>ZARN::CardFinder</name>
    <message>
        <source>the folder holds no record file (%1)</source>
        <translation>der Ordner enthält keine Aufzeichnungsdatei (%1)</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>kein solcher Ordner</translation>
    </message>
</context>
<context>
    <name>ZARN::CardReader</name>
    <message>
        <source>the folder cannot be listed</source>
        <translation>der Ordner kann nicht aufgelistet werden</translation>
    </message>
    <message>
        <source>it changed while it was read</source>
        <translation>der Inhalt hat sich beim Lesen geändert</translation>
    </message>
    <message>
        <source>ended before it was done</source>
        <translation>beendet, bevor es fertig war</translation>
    </message>
</context>
<context>
    <name>ZARN::CardReviewer</name>
    <message>
        <source>%1: the unit&apos;s clock went back here, from %2 to %3. Dates on one side of it are wrong, and so may be the order of flights in the logbook.</source>
        <translation>%1: Die Uhr des Geräts ging hier zurück, von %2 auf %3. Daten auf einer Seite davon sind falsch, und damit vielleicht die Reihenfolge der Flüge im Logbuch.</translation>
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
    <message>
        <source>Cycle %1</source>
        <translation>Zyklus %1</translation>
    </message>
</context>
<context>
    <name>ZARN::ColourButton</name>
    <message>
        <source>%1, opacity %2 %</source>
        <translation>%1, Deckkraft %2 %</translation>
    </message>
</context>
<context>
    <name>ZARN::ColourTable</name>
    <message>
        <source>there is no colour &quot;%1&quot;</source>
        <translation>es gibt keine Farbe „%1“</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no colour</source>
        <translation>„%1“ hat keine Farbe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour: #rrggbb is one</source>
        <translation>„%1“ ist keine Farbe: #rrggbb ist eine</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read on &quot;%2&quot;: the contrast is %3 : 1, less than %4 : 1</source>
        <translation>„%1“ ist auf „%2“ nicht zu lesen: Der Kontrast ist %3 : 1, weniger als %4 : 1</translation>
    </message>
</context>
<context>
    <name>ZARN::CourseBand</name>
    <message>
        <source>Ground</source>
        <translation>Boden</translation>
    </message>
    <message>
        <source>Take-off</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Climb</source>
        <translation>Steigflug</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Horizontalflug</translation>
    </message>
    <message>
        <source>Descent</source>
        <translation>Sinkflug</translation>
    </message>
</context>
<context>
    <name>ZARN::DataName</name>
    <message>
        <source>%1 cycle %2 flight %3</source>
        <translation>%1 Zyklus %2 Flug %3</translation>
    </message>
    <message>
        <source>%1 cycle %2</source>
        <translation>%1 Zyklus %2</translation>
    </message>
</context>
<context>
    <name>ZARN::DataTableModel</name>
    <message>
        <source>Time since the unit&apos;s power-up</source>
        <translation>Zeit seit dem Einschalten des Geräts</translation>
    </message>
</context>
<context>
    <name>ZARN::Database</name>
    <message>
        <source>it is no file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it cannot be written, only read</source>
        <translation>sie kann nicht geschrieben werden, nur gelesen</translation>
    </message>
    <message>
        <source>it is no store: not an SQLite file</source>
        <translation>kein Datenspeicher: keine SQLite-Datei</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation>der Datenspeicher ist beschädigt</translation>
    </message>
    <message>
        <source>another program is writing to the store</source>
        <translation>ein anderes Programm schreibt in den Datenspeicher</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
</context>
<context>
    <name>ZARN::DateField</name>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>A date as 31.12.2026 or 2026-12-31; empty: any</source>
        <translation>Ein Datum wie 31.12.2026 oder 2026-12-31; leer: beliebig</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
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
    <message>
        <source>Lists of the card</source>
        <translation>Listen der Karte</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogData</name>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graph</translation>
    </message>
    <message>
        <source>Fault Matrix</source>
        <translation>Fehlermatrix</translation>
    </message>
    <message>
        <source>Limit/Warning</source>
        <translation>Grenzwert/Warnung</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>Tow Statistic</source>
        <translation>Schleppstatistik</translation>
    </message>
    <message>
        <source>Hide Map Display</source>
        <translation>Karte ausblenden</translation>
    </message>
    <message>
        <source>Tile Map Display Horizontally</source>
        <translation>Karte daneben anordnen</translation>
    </message>
    <message>
        <source>Tile Map Display Vertically</source>
        <translation>Karte darunter anordnen</translation>
    </message>
    <message>
        <source>No events</source>
        <translation>Keine Ereignisse</translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n Ereignis</numerusform>
            <numerusform>%n Ereignisse</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataErrorMatrix</name>
    <message>
        <source>The profile declares no error matrix.</source>
        <translation>Das Profil enthält keine Fehlermatrix.</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 error matrices of the profile are shown.</source>
        <translation>Nur die ersten %1 von %2 Fehlermatrizen des Profils werden gezeigt.</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataEvents</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 events are listed.</source>
        <translation>Nur die ersten %1 von %2 Ereignissen sind aufgeführt.</translation>
    </message>
    <message>
        <source>Outside of the selected flight</source>
        <translation>Außerhalb des gewählten Flugs</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataGraph</name>
    <message>
        <source>Save Snapshot</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>BMP File (*.bmp);;All Files (*.*)</source>
        <translation>BMP-Datei (*.bmp);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>The snapshot could not be saved.
%1</source>
        <translation>Das Bild konnte nicht gespeichert werden.
%1</translation>
    </message>
    <message>
        <source>Copy Values</source>
        <translation>Werte kopieren</translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation>Auf Marke zoomen</translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation>Zoom 1:1</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Einrichten...</translation>
    </message>
    <message>
        <source>Flight Report...</source>
        <translation>Flugbericht...</translation>
    </message>
    <message>
        <source>The cycle to compare with could not be read.
%1</source>
        <translation>Der Einschaltzyklus zum Vergleichen konnte nicht gelesen werden.
%1</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Fit Scales to What Is Visible</source>
        <translation>Skalen an das Sichtbare anpassen</translation>
    </message>
    <message>
        <source>Scales of the Whole Record</source>
        <translation>Skalen der ganzen Aufzeichnung</translation>
    </message>
    <message>
        <source>One Scale for Each Unit</source>
        <translation>Eine Skala je Einheit</translation>
    </message>
    <message>
        <source>X against Y...</source>
        <translation>X über Y ...</translation>
    </message>
    <message>
        <source>Only what was asked for is shown; choosing a layout shows the rest again.</source>
        <translation>Es wird nur gezeigt, wonach gefragt wurde; ein gewähltes Layout zeigt den Rest wieder.</translation>
    </message>
    <message>
        <source>The graph has room for %1 parameters.</source>
        <translation>Der Graph hat Platz für %1 Parameter.</translation>
    </message>
    <message>
        <source>%1 Not shown: %2</source>
        <translation>%1 Nicht gezeigt: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 Not shown: %2 and %n more</source>
        <translation>
            <numerusform>%1 Nicht gezeigt: %2 und %n weiterer</numerusform>
            <numerusform>%1 Nicht gezeigt: %2 und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataLimit</name>
    <message>
        <source>Warning/Limit Exceed</source>
        <translation>Warnung/Grenzwert überschritten</translation>
    </message>
    <message>
        <source>No parameter entered a warning or limit band.</source>
        <translation>Kein Parameter hat einen Warn- oder Grenzbereich erreicht.</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataMap</name>
    <message>
        <source>Show the whole flight</source>
        <translation>Ganzen Flug zeigen</translation>
    </message>
    <message>
        <source>Load map tiles from %1</source>
        <translation>Kartenkacheln von %1 laden</translation>
    </message>
    <message>
        <source>Show in Graph</source>
        <translation>Im Graphen zeigen</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>Colours of the path</source>
        <translation>Farben des Flugwegs</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataStatistic</name>
    <message>
        <source>&lt;br&gt;&lt;br&gt;&lt;b&gt;No flight selected&lt;/b&gt;</source>
        <translation>&lt;br&gt;&lt;br&gt;&lt;b&gt;Kein Flug gewählt&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Flight Time</source>
        <translation>Flugzeit</translation>
    </message>
    <message>
        <source>Total Fuel Lane A</source>
        <translation>Kraftstoff Lane A</translation>
    </message>
    <message>
        <source>Total Fuel Lane B</source>
        <translation>Kraftstoff Lane B</translation>
    </message>
    <message>
        <source>Total Fuel</source>
        <translation>Kraftstoff gesamt</translation>
    </message>
    <message>
        <source>Minimum Alt</source>
        <translation>Kleinste Höhe</translation>
    </message>
    <message>
        <source>Maximum Alt</source>
        <translation>Größte Höhe</translation>
    </message>
    <message>
        <source>Total Climb</source>
        <translation>Steighöhe gesamt</translation>
    </message>
    <message>
        <source>Average Climb Rate</source>
        <translation>Mittleres Steigen</translation>
    </message>
    <message>
        <source>Average Descend Rate</source>
        <translation>Mittleres Sinken</translation>
    </message>
    <message>
        <source>Max Ground Speed</source>
        <translation>Größte Geschw. über Grund</translation>
    </message>
    <message>
        <source>Time / 100m</source>
        <translation>Zeit / 100m</translation>
    </message>
    <message>
        <source>Fuel / 100m</source>
        <translation>Kraftstoff / 100m</translation>
    </message>
    <message>
        <source>Take Off Distance</source>
        <translation>Startrollstrecke</translation>
    </message>
    <message>
        <source>Take Off Distance 15m</source>
        <translation>Startstrecke 15m</translation>
    </message>
    <message>
        <source>Flight Report...</source>
        <translation>Flugbericht...</translation>
    </message>
    <message>
        <source>A click on a flight in the list on the left shows its figures here.</source>
        <translation>Ein Klick auf einen Flug in der Liste links zeigt hier seine Werte.</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataTable</name>
    <message>
        <source>No parameters are shown. Tick the ones to see in the profile panel.</source>
        <translation>Es werden keine Parameter gezeigt. Im Profilfeld die gewünschten ankreuzen.</translation>
    </message>
    <message>
        <source>Newest values</source>
        <translation>Neueste Werte</translation>
    </message>
    <message>
        <source>No parameters are shown: none is ticked in the current project.</source>
        <translation>Es werden keine Parameter gezeigt: Im aktuellen Projekt ist keiner angekreuzt.</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataWarning</name>
    <message>
        <source>WarningLamp</source>
        <translation>Warnlampe</translation>
    </message>
    <message>
        <source>No warning lamp lit up.</source>
        <translation>Keine Warnlampe leuchtete.</translation>
    </message>
    <message>
        <source>Lamp state %1</source>
        <translation>Lampenzustand %1</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogExportCsv</name>
    <message>
        <source>CSV Export</source>
        <translation>CSV-Export</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogExportCsvOptions</name>
    <message>
        <source>Semikolon ;</source>
        <translation>Semikolon ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Komma ,</translation>
    </message>
    <message>
        <source>Tabstop</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>100 ms</source>
        <translation>100 ms</translation>
    </message>
    <message>
        <source>10 ms</source>
        <translation>10 ms</translation>
    </message>
    <message>
        <source>All Parameter</source>
        <translation>Alle Parameter</translation>
    </message>
    <message>
        <source>Selected Parameter only</source>
        <translation>Nur gewählte Parameter</translation>
    </message>
    <message>
        <source>Select CSV Option</source>
        <translation>CSV-Optionen wählen</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Parameter Selection</source>
        <translation>Parameterauswahl</translation>
    </message>
    <message>
        <source>Fixed, for programs: decimal point</source>
        <translation>Fest, für Programme: mit Dezimalpunkt</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Größe der Datei</translation>
    </message>
    <message>
        <source>For spreadsheets on this computer: %1</source>
        <translation>Für Tabellenprogramme auf diesem Computer: %1</translation>
    </message>
    <message>
        <source>For spreadsheets, %1: %2</source>
        <translation>Für Tabellenprogramme, %1: %2</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogExportCsvPath</name>
    <message>
        <source>Save CSV Export</source>
        <translation>CSV-Export speichern</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogExportKml</name>
    <message>
        <source>KML Export</source>
        <translation>KML-Export</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogExportKmlOptions</name>
    <message>
        <source>Select Line Color</source>
        <translation>Linienfarbe wählen</translation>
    </message>
    <message>
        <source>Draw Polygon</source>
        <translation>Fläche zeichnen</translation>
    </message>
    <message>
        <source>Select Polygon Color</source>
        <translation>Flächenfarbe wählen</translation>
    </message>
    <message>
        <source>Select KML Option</source>
        <translation>KML-Optionen wählen</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Linienart</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>Polygon color</source>
        <translation>Flächenfarbe</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Zeitstempel alle :</translation>
    </message>
    <message>
        <source>Tracks with times to replay, one folder a flight</source>
        <translation>Tracks mit Zeiten zum Abspielen, ein Ordner je Flug</translation>
    </message>
    <message>
        <source>The unit had no clock: there will be no tracks.</source>
        <translation>Das Gerät hatte keine Uhrzeit: Es wird keine Tracks geben.</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogExportKmlPath</name>
    <message>
        <source>Save KML Export</source>
        <translation>KML-Export speichern</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogExportKmlPlacemark</name>
    <message>
        <source>Draw selected parameters as placemarks</source>
        <translation>Gewählte Parameter als Ortsmarken zeichnen</translation>
    </message>
    <message>
        <source>Select Placemark Color</source>
        <translation>Farbe der Ortsmarken wählen</translation>
    </message>
    <message>
        <source>Show Limit exceedance / Warning Lamps</source>
        <translation>Grenzwertüberschreitungen / Warnlampen zeigen</translation>
    </message>
    <message>
        <source>Limit Exceedance</source>
        <translation>Grenzwertüberschreitung</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>Select Exceedance Color</source>
        <translation>Farbe der Überschreitungen wählen</translation>
    </message>
    <message>
        <source>Select KML Placemarks</source>
        <translation>KML-Ortsmarken wählen</translation>
    </message>
    <message>
        <source> samples</source>
        <translation> Werte</translation>
    </message>
    <message>
        <source>Placemark every</source>
        <translation>Ortsmarke alle</translation>
    </message>
    <message>
        <source>Placemark Color</source>
        <translation>Farbe der Ortsmarken</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Exceedance Placemark Color</source>
        <translation>Farbe der Überschreitungsmarken</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Größe der Datei</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogFormulas</name>
    <message>
        <source>Formulas</source>
        <translation>Formeln</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Names of parameters in quotes, numbers with a point, + - * / ^ &lt; &gt; == &amp;&amp; || ? :
min, max, abs, sqrt, sin, ...; t is the time in seconds
delta(x): change since the sample before
integral(x): sum of x times seconds
avg(x, s): mean of the last s seconds
lag(x, s): x as it was s seconds ago</source>
        <translation>Namen von Parametern in Anführungszeichen, Zahlen mit Punkt, + - * / ^ &lt; &gt; == &amp;&amp; || ? :
min, max, abs, sqrt, sin, ...; t ist die Zeit in Sekunden
delta(x): Änderung seit dem vorigen Messwert
integral(x): Summe von x mal Sekunden
avg(x, s): Mittel der letzten s Sekunden
lag(x, s): x, wie es vor s Sekunden war</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Formula:</source>
        <translation>Formel:</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>Decimals:</source>
        <translation>Nachkommastellen:</translation>
    </message>
    <message>
        <source>Limit up to:</source>
        <translation>Grenzwert bis:</translation>
    </message>
    <message>
        <source>Warning up to:</source>
        <translation>Warnung bis:</translation>
    </message>
    <message>
        <source>Warning from:</source>
        <translation>Warnung ab:</translation>
    </message>
    <message>
        <source>Limit from:</source>
        <translation>Grenzwert ab:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Insert Parameter</source>
        <translation>Parameter einfügen</translation>
    </message>
    <message>
        <source>%1: character %2: %3</source>
        <translation>%1: Zeichen %2: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Begin with an example, or with an empty formula by &quot;New&quot;.</source>
        <translation>Beginnen Sie mit einem Beispiel oder über „Neu“ mit einer leeren Formel.</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogGraphSetup</name>
    <message>
        <source>Oscilloscope Setup</source>
        <translation>Oszilloskop einrichten</translation>
    </message>
    <message>
        <source>Background Color :</source>
        <translation>Hintergrundfarbe :</translation>
    </message>
    <message>
        <source>Grid On/Color :</source>
        <translation>Gitter Ein/Farbe :</translation>
    </message>
    <message>
        <source>Label Color :</source>
        <translation>Schriftfarbe :</translation>
    </message>
    <message>
        <source>Label Background :</source>
        <translation>Schrifthintergrund :</translation>
    </message>
    <message>
        <source>Cursor On/Mode :</source>
        <translation>Cursor Ein/Modus :</translation>
    </message>
    <message>
        <source>Legend :</source>
        <translation>Legende :</translation>
    </message>
    <message>
        <source>Y-Scale :</source>
        <translation>Y-Skala :</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Grid On</source>
        <translation>Gitter ein</translation>
    </message>
    <message>
        <source>Grid color</source>
        <translation>Gitterfarbe</translation>
    </message>
    <message>
        <source>Label color</source>
        <translation>Schriftfarbe</translation>
    </message>
    <message>
        <source>Label background color</source>
        <translation>Farbe des Schrifthintergrunds</translation>
    </message>
    <message>
        <source>Cursor On</source>
        <translation>Cursor ein</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Cursor mode</source>
        <translation>Cursormodus</translation>
    </message>
    <message>
        <source>Legend On</source>
        <translation>Legende ein</translation>
    </message>
    <message>
        <source>Autoscale On</source>
        <translation>Automatische Skala ein</translation>
    </message>
    <message>
        <source>Least value of the scale</source>
        <translation>Kleinster Wert der Skala</translation>
    </message>
    <message>
        <source>Greatest value of the scale</source>
        <translation>Größter Wert der Skala</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Click :</source>
        <translation>Klick :</translation>
    </message>
    <message>
        <source>Trace Color :</source>
        <translation>Kurvenfarbe :</translation>
    </message>
    <message>
        <source>Moves the cursor</source>
        <translation>Setzt den Cursor</translation>
    </message>
    <message>
        <source>Otherwise a click makes the marker a point. Dragging marks either way.</source>
        <translation>Sonst macht ein Klick den Marker zu einem Punkt. Ziehen markiert in jedem Fall.</translation>
    </message>
    <message>
        <source>Palette :</source>
        <translation>Farbpalette:</translation>
    </message>
    <message>
        <source>Gaps :</source>
        <translation>Lücken:</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Colors of the graph</source>
        <translation>Farben des Graphen</translation>
    </message>
    <message>
        <source>Interrupt the traces</source>
        <translation>Kurven unterbrechen</translation>
    </message>
    <message>
        <source>Where nothing was recorded for five times the usual time, at least 2 s, or no number.</source>
        <translation>Wo fünfmal so lange wie üblich, mindestens aber 2 s lang, nichts aufgezeichnet wurde, oder keine Zahl.</translation>
    </message>
    <message>
        <source>One scale for each unit</source>
        <translation>Eine Skala je Einheit</translation>
    </message>
    <message>
        <source>Traces of one unit can be compared by their heights. Otherwise each trace has a scale of its own.</source>
        <translation>Kurven einer Einheit lassen sich an ihrer Höhe vergleichen. Sonst hat jede Kurve ihre eigene Skala.</translation>
    </message>
    <message>
        <source>This is not a number, or might be read as two: the scale stays as it was. Numbers have no sign between thousands.</source>
        <translation>Das ist keine Zahl, oder sie lässt sich auf zwei Arten lesen: Die Skala bleibt, wie sie war. Zahlen haben kein Zeichen zwischen den Tausendern.</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogLive</name>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>As it is set in the system</source>
        <translation>Wie im System eingestellt</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>Es wird nicht aufgezeichnet</translation>
    </message>
    <message>
        <source>Record into</source>
        <translation>Aufzeichnen nach</translation>
    </message>
    <message>
        <source>Folder ...</source>
        <translation>Ordner ...</translation>
    </message>
    <message>
        <source>Plugin</source>
        <translation>Plugin</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Hours kept in memory</source>
        <translation>Stunden im Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Folder to record into</source>
        <translation>Ordner für die Aufzeichnung</translation>
    </message>
    <message>
        <source>Name the interface, as in can0.</source>
        <translation>Nennen Sie die Schnittstelle, etwa can0.</translation>
    </message>
    <message>
        <source>Only where the interface confirms no frames</source>
        <translation>Nur, wo die Schnittstelle keine Telegramme bestätigt</translation>
    </message>
    <message>
        <source>Listen only</source>
        <translation>Nur zuhören</translation>
    </message>
    <message>
        <source>The program never sends anything to the bus.</source>
        <translation>Das Programm sendet nie etwas auf den Bus.</translation>
    </message>
    <message>
        <source>A virtual bus has nothing that confirms frames.</source>
        <translation>Ein virtueller Bus hat nichts, was Telegramme bestätigt.</translation>
    </message>
    <message>
        <source>The plugin %1 does not tell whether its interface confirms frames: this cannot be watched, and is set with the tools of the interface.</source>
        <translation>Das Plugin %1 sagt nicht, ob seine Schnittstelle Telegramme bestätigt: Das lässt sich nicht überwachen und wird mit den Werkzeugen der Schnittstelle eingestellt.</translation>
    </message>
    <message>
        <source>A CAN controller confirms each frame that it receives, unless the system has set it to listen only (ip link set can0 type can listen-only on). With the tick one that confirms is not opened. Take it away where the engine unit is alone on its bus.</source>
        <translation>Ein CAN-Controller bestätigt jedes Telegramm, das er empfängt, außer das System hat ihn auf Zuhören eingestellt (ip link set can0 type can listen-only on). Mit dem Häkchen wird einer, der bestätigt, nicht geöffnet. Nehmen Sie es weg, wo das Motorsteuergerät allein an seinem Bus ist.</translation>
    </message>
    <message>
        <source>None was found; name it, as in can0</source>
        <translation>Keine gefunden; nennen Sie sie, etwa can0</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogLogbook</name>
    <message>
        <source>Logbook</source>
        <translation>Logbuch</translation>
    </message>
    <message>
        <source>Nothing is kept yet. Cards that you open are taken in once you allow it on the page &quot;Options&quot;.</source>
        <translation>Noch ist nichts aufgehoben. Karten, die Sie öffnen, werden aufgenommen, sobald Sie es auf der Seite „Optionen“ erlauben.</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Trends</translation>
    </message>
    <message>
        <source>Engines and services</source>
        <translation>Motoren und Wartung</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Aircraft or engine</source>
        <translation>Flugzeug oder Motor</translation>
    </message>
    <message>
        <source>All engines</source>
        <translation>Alle Motoren</translation>
    </message>
    <message>
        <source>Export table ...</source>
        <translation>Tabelle exportieren ...</translation>
    </message>
    <message>
        <source>The flights that are shown, as a CSV or PDF file</source>
        <translation>Die angezeigten Flüge als CSV- oder PDF-Datei</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>Nothing is kept yet. Cards that you open are taken in.</source>
        <translation>Noch ist nichts aufgehoben. Karten, die Sie öffnen, werden aufgenommen.</translation>
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
    <message>
        <source>Export GPX File</source>
        <translation>GPX-Datei exportieren</translation>
    </message>
    <message>
        <source>Export Flight Path as GPX File</source>
        <translation>Flugweg als GPX-Datei exportieren</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Flugbericht</translation>
    </message>
    <message>
        <source>Settings cannot be saved</source>
        <translation>Einstellungen nicht speicherbar</translation>
    </message>
    <message>
        <source>Settings unreadable: defaults are in force</source>
        <translation>Einstellungen nicht lesbar: es gelten die Grundeinstellungen</translation>
    </message>
    <message>
        <source>Project cannot be saved</source>
        <translation>Projekt nicht speicherbar</translation>
    </message>
    <message>
        <source>No profile</source>
        <translation>Kein Profil</translation>
    </message>
    <message>
        <source>Another profile is in force</source>
        <translation>Ein anderes Profil gilt</translation>
    </message>
    <message>
        <source>Project unreadable</source>
        <translation>Projekt nicht lesbar</translation>
    </message>
    <message>
        <source>The settings could not be saved:
%1</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden:
%1</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Was the engine all right? The whole card at a glance</source>
        <translation>War mit dem Motor alles in Ordnung? Die ganze Karte auf einen Blick</translation>
    </message>
    <message>
        <source>Next Incident</source>
        <translation>Nächster Vorfall</translation>
    </message>
    <message>
        <source>Go to the next incident of what is loaded</source>
        <translation>Zum nächsten Vorfall des Geladenen gehen</translation>
    </message>
    <message>
        <source>Previous Incident</source>
        <translation>Voriger Vorfall</translation>
    </message>
    <message>
        <source>Go to the previous incident of what is loaded</source>
        <translation>Zum vorigen Vorfall des Geladenen gehen</translation>
    </message>
    <message>
        <source>Write Flight Report as PDF or HTML File</source>
        <translation>Flugbericht als PDF- oder HTML-Datei schreiben</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Where was a value above or below another, and for how long</source>
        <translation>Wo lag ein Wert über oder unter einem anderen, und wie lange</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Logbuch</translation>
    </message>
    <message>
        <source>Flights, engine hours, trends and services of the cards that were opened</source>
        <translation>Flüge, Motorstunden, Trends und Wartungen der geöffneten Karten</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Write a note about the moment that is shown</source>
        <translation>Eine Notiz zum angezeigten Zeitpunkt schreiben</translation>
    </message>
    <message>
        <source>X against Y</source>
        <translation>X über Y</translation>
    </message>
    <message>
        <source>One parameter over another, with their limits</source>
        <translation>Ein Parameter über einem anderen, mit ihren Grenzen</translation>
    </message>
    <message>
        <source>Live ...</source>
        <translation>Live ...</translation>
    </message>
    <message>
        <source>Watch and record what a CAN interface receives</source>
        <translation>Ansehen und aufzeichnen, was eine CAN-Schnittstelle empfängt</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogOverview</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Was the engine all right?</source>
        <translation>War mit dem Motor alles in Ordnung?</translation>
    </message>
    <message>
        <source>Reviewing the card</source>
        <translation>Die Karte wird ausgewertet</translation>
    </message>
    <message>
        <source>This card holds no power cycle.</source>
        <translation>Diese Karte enthält keinen Zyklus.</translation>
    </message>
    <message>
        <source>serial number %1</source>
        <translation>Seriennummer %1</translation>
    </message>
    <message>
        <source>profile %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>Times since the unit&apos;s power-up.</source>
        <translation>Zeiten seit dem Einschalten des Geräts.</translation>
    </message>
    <message>
        <source>The card cannot be read any more. Was it removed?</source>
        <translation>Die Karte ist nicht mehr lesbar. Wurde sie entfernt?</translation>
    </message>
    <message>
        <source>What was reviewed before is told below; open the card again for the rest.</source>
        <translation>Was vorher durchgesehen wurde, steht unten; öffnen Sie die Karte für den Rest erneut.</translation>
    </message>
    <message>
        <source>Open it again to review it.</source>
        <translation>Öffnen Sie sie erneut, um sie durchzusehen.</translation>
    </message>
    <message>
        <source>Times of the recorder&apos;s clock; where it was not set, since the unit&apos;s power-up.</source>
        <translation>Zeiten der Uhr des Geräts; wo sie nicht gestellt war, seit dem Einschalten des Geräts.</translation>
    </message>
    <message>
        <source>Times since the first take-off; without a flight, since the unit&apos;s power-up.</source>
        <translation>Zeiten seit dem ersten Start; ohne Flug seit dem Einschalten des Geräts.</translation>
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
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
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
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Colours :</source>
        <translation>Farben :</translation>
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
    <message>
        <source>Only recorded</source>
        <translation>Nur aufgezeichnete</translation>
    </message>
    <message>
        <source>List only what the loaded data hold samples of</source>
        <translation>Nur aufführen, wovon die geladenen Daten Werte enthalten</translation>
    </message>
    <message>
        <source>Formulas ...</source>
        <translation>Formeln ...</translation>
    </message>
    <message>
        <source>Parameters of your own, computed from others</source>
        <translation>Eigene Parameter, aus anderen berechnet</translation>
    </message>
    <message>
        <source>%1, %2 of them not recorded</source>
        <translation>%1, %2 davon nicht aufgezeichnet</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogService</name>
    <message>
        <source>Every</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Was done at</source>
        <translation>Erledigt bei</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source> months</source>
        <translation> Monate</translation>
    </message>
    <message>
        <source>Engine hours when it was done</source>
        <translation>Motorstunden, als sie erledigt wurde</translation>
    </message>
    <message>
        <source>Date when it was done</source>
        <translation>Datum, an dem sie erledigt wurde</translation>
    </message>
    <message>
        <source>Interval in engine hours</source>
        <translation>Abstand in Motorstunden</translation>
    </message>
    <message>
        <source>Interval in months</source>
        <translation>Abstand in Monaten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>It could not be kept: %1</source>
        <translation>Das konnte nicht aufgehoben werden: %1</translation>
    </message>
</context>
<context>
    <name>ZARN::DialogXy</name>
    <message>
        <source>X against Y</source>
        <translation>X über Y</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Of:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>All of it</source>
        <translation>Allem</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>The loaded cycle or flight, or what is marked in the graph</source>
        <translation>Der geladene Zyklus oder Flug, oder was im Graphen markiert ist</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>No record is loaded.</source>
        <translation>Keine Aufzeichnung geladen.</translation>
    </message>
    <message>
        <source>Nothing is marked in the graph: drag over a part of it.</source>
        <translation>Im Graphen ist nichts markiert: Ziehen Sie über einen Teil davon.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Einen Augenblick ...</translation>
    </message>
    <message>
        <source>Not recorded here: %1</source>
        <translation>Hier nicht aufgezeichnet: %1</translation>
    </message>
    <message>
        <source>No sample lies in this part of the record.</source>
        <translation>In diesem Teil der Aufzeichnung liegt kein Messwert.</translation>
    </message>
    <message>
        <source>%2 over %1</source>
        <translation>%2 über %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s); the newest value of each parameter is held until its next.</source>
        <translation>
            <numerusform>%Ln Messwert; der neueste Wert jedes Parameters gilt bis zu seinem nächsten.</numerusform>
            <numerusform>%Ln Messwerte; der neueste Wert jedes Parameters gilt bis zu seinem nächsten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out, since they hold no finite number: %1.</source>
        <translation>Weggelassen, weil sie keine endliche Zahl enthalten: %1.</translation>
    </message>
</context>
<context>
    <name>ZARN::ExportController</name>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation>Export der KML-Datei fehlgeschlagen !</translation>
    </message>
    <message>
        <source>ZARN Viewer Warning</source>
        <translation>ZARN Viewer Warnung</translation>
    </message>
    <message>
        <source>Exporting CSV file failed !</source>
        <translation>Export der CSV-Datei fehlgeschlagen !</translation>
    </message>
    <message>
        <source>Save GPX Export</source>
        <translation>GPX-Export speichern</translation>
    </message>
    <message>
        <source>GPX Files (*.gpx)</source>
        <translation>GPX-Dateien (*.gpx)</translation>
    </message>
    <message>
        <source>Exporting GPX file failed !</source>
        <translation>Export der GPX-Datei fehlgeschlagen !</translation>
    </message>
    <message>
        <source>Writing %1 ...</source>
        <translation>%1 wird geschrieben ...</translation>
    </message>
    <message>
        <source>Save Flight Report</source>
        <translation>Flugbericht speichern</translation>
    </message>
    <message>
        <source>Writing the flight report failed !</source>
        <translation>Schreiben des Flugberichts fehlgeschlagen !</translation>
    </message>
    <message>
        <source>No data of this card is loaded.</source>
        <translation>Von dieser Karte sind keine Daten geladen.</translation>
    </message>
    <message>
        <source>Choose a power cycle in the card browser first.</source>
        <translation>Zuerst im Kartenfeld einen Einschaltzyklus wählen.</translation>
    </message>
    <message>
        <source>Everything that is loaded</source>
        <translation>Alles, was geladen ist</translation>
    </message>
    <message>
        <source>Flight %1</source>
        <translation>Flug %1</translation>
    </message>
    <message>
        <source>What the graph shows, %1 to %2</source>
        <translation>Was der Graph zeigt, %1 bis %2</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 ab %2</translation>
    </message>
    <message>
        <source>No position was recorded: the KML file holds no flight path.</source>
        <translation>Es wurde keine Position aufgezeichnet: Die KML-Datei enthält keinen Flugweg.</translation>
    </message>
    <message>
        <source>The whole power cycle</source>
        <translation>Der ganze Einschaltzyklus</translation>
    </message>
    <message>
        <source>A report is a PDF or an HTML file: its name ends in .pdf or .html.</source>
        <translation>Ein Bericht ist eine PDF- oder eine HTML-Datei: Ihr Name endet auf .pdf oder .html.</translation>
    </message>
    <message>
        <source>GPX Files, one track a flight (*.gpx)</source>
        <translation>GPX-Dateien, ein Track je Flug (*.gpx)</translation>
    </message>
</context>
<context>
    <name>ZARN::ExportOutlook</name>
    <message>
        <source>No data is loaded: the file will hold its header line alone. Choose a power cycle in the card browser first.</source>
        <translation>Keine Daten geladen: Die Datei wird nur die Kopfzeile enthalten. Zuerst im Kartenfeld einen Einschaltzyklus wählen.</translation>
    </message>
    <message>
        <source>No parameter is ticked in the profile panel: the file will hold no values.</source>
        <translation>Im Profilfeld ist kein Parameter angekreuzt: Die Datei wird keine Werte enthalten.</translation>
    </message>
    <message>
        <source>No data is loaded: the file will hold no flight path. Choose a power cycle in the card browser first.</source>
        <translation>Keine Daten geladen: Die Datei wird keinen Flugweg enthalten. Zuerst im Kartenfeld einen Einschaltzyklus wählen.</translation>
    </message>
    <message>
        <source>No parameter is ticked in the profile panel: there will be no placemarks of values.</source>
        <translation>Im Profilfeld ist kein Parameter angekreuzt: Es wird keine Ortsmarken mit Werten geben.</translation>
    </message>
    <message>
        <source>The file will have about %1.</source>
        <translation>Die Datei wird etwa %1 groß.</translation>
    </message>
    <message>
        <source>The file will have about %1; %2 are free in the folder.</source>
        <translation>Die Datei wird etwa %1 groß; im Ordner sind %2 frei.</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>The file will have about %1, and only %2 are free in the folder.
Try it nevertheless ?</source>
        <translation>Die Datei wird etwa %1 groß, und im Ordner sind nur %2 frei.
Trotzdem versuchen?</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>etwa %1</translation>
    </message>
</context>
<context>
    <name>ZARN::ExportPathPage</name>
    <message>
        <source>Select the output directory and file</source>
        <translation>Zielordner und Datei wählen</translation>
    </message>
    <message>
        <source>Choose ...</source>
        <translation>Wählen ...</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>%1 exists already.
Replace it ?</source>
        <translation>%1 ist schon vorhanden.
Ersetzen ?</translation>
    </message>
    <message>
        <source>Output directory</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Größe der Datei</translation>
    </message>
</context>
<context>
    <name>ZARN::ExportProgress</name>
    <message>
        <source>ZARN Info</source>
        <translation>ZARN Info</translation>
    </message>
</context>
<context>
    <name>ZARN::ExportTarget</name>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Der Ordner %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>%1 is no folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>A file name cannot hold a &quot;/&quot;.</source>
        <translation>Ein Dateiname kann kein „/“ enthalten.</translation>
    </message>
    <message>
        <source>%1 is a folder, not a file.</source>
        <translation>%1 ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Nothing can be written to the folder %1: %2</source>
        <translation>In den Ordner %1 kann nichts geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 is a recording of this card and is not replaced.</source>
        <translation>%1 ist eine Aufzeichnung dieser Karte und wird nicht ersetzt.</translation>
    </message>
</context>
<context>
    <name>ZARN::FindBar</name>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Write the condition as a formula</source>
        <translation>Die Bedingung als Formel schreiben</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>To the one before (Shift+F3)</source>
        <translation>Zur vorigen Stelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>To the next one (F3)</source>
        <translation>Zur nächsten Stelle (F3)</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>List all that were found</source>
        <translation>Alle gefundenen Stellen auflisten</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Gefundene Stellen</translation>
    </message>
    <message>
        <source>A double click shows it in the graph</source>
        <translation>Ein Doppelklick zeigt die Stelle im Graphen</translation>
    </message>
    <message>
        <source>%1 together</source>
        <translation>zusammen %1</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
</context>
<context>
    <name>ZARN::FindController</name>
    <message>
        <source>No record is loaded.</source>
        <translation>Keine Aufzeichnung geladen.</translation>
    </message>
    <message>
        <source>Write a condition, for example &quot;Engine Speed A&quot; &gt; 4000.</source>
        <translation>Schreiben Sie eine Bedingung, zum Beispiel &quot;Engine Speed A&quot; &gt; 4000.</translation>
    </message>
    <message>
        <source>The profile cannot convert the unit of this parameter.</source>
        <translation>Das Profil kann die Einheit dieses Parameters nicht umrechnen.</translation>
    </message>
    <message>
        <source>There is no such parameter in this record.</source>
        <translation>Diesen Parameter gibt es in dieser Aufzeichnung nicht.</translation>
    </message>
    <message>
        <source>Character %1: %2</source>
        <translation>Zeichen %1: %2</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche läuft ...</translation>
    </message>
    <message>
        <source>Not recorded here: %1</source>
        <translation>Hier nicht aufgezeichnet: %1</translation>
    </message>
    <message>
        <source>No sample is a number: %1</source>
        <translation>Kein Messwert ist eine Zahl: %1</translation>
    </message>
</context>
<context>
    <name>ZARN::FindForm</name>
    <message>
        <source>&quot;Oil Temperature A&quot; &gt; 110 &amp;&amp; &quot;Engine Speed A&quot; &gt; 4000</source>
        <translation>&quot;Oil Temperature A&quot; &gt; 110 &amp;&amp; &quot;Engine Speed A&quot; &gt; 4000</translation>
    </message>
    <message>
        <source>A formula of parameters, in metric units: names in quotation marks; &lt; &gt; &lt;= &gt;= == != &amp;&amp; || and functions</source>
        <translation>Eine Formel aus Parametern, in metrischen Einheiten: Namen in Anführungszeichen; &lt; &gt; &lt;= &gt;= == != &amp;&amp; || und Funktionen</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>For at least so many seconds</source>
        <translation>Mindestens so viele Sekunden lang</translation>
    </message>
    <message>
        <source>Where is</source>
        <translation>Wo ist</translation>
    </message>
    <message>
        <source>for at least</source>
        <translation>mindestens</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>above</source>
        <translation>über</translation>
    </message>
    <message>
        <source>below</source>
        <translation>unter</translation>
    </message>
    <message>
        <source>Above or below</source>
        <translation>Über oder unter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>ZARN::FindTableModel</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Dauer</translation>
    </message>
</context>
<context>
    <name>ZARN::FlightReport</name>
    <message>
        <source>Flight report</source>
        <translation>Flugbericht</translation>
    </message>
    <message>
        <source>Exceeded limits</source>
        <translation>Überschrittene Grenzwerte</translation>
    </message>
    <message>
        <source>No limit was exceeded.</source>
        <translation>Kein Grenzwert wurde überschritten.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Warning lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>No warning lamp was lit.</source>
        <translation>Keine Warnlampe leuchtete.</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>dunkel</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>gelb</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rot</translation>
    </message>
    <message>
        <source>single files</source>
        <translation>einzelne Dateien</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Date, as recorded</source>
        <translation>Datum, wie aufgezeichnet</translation>
    </message>
    <message>
        <source>no clock</source>
        <translation>keine Uhr</translation>
    </message>
    <message>
        <source>Power cycle</source>
        <translation>Einschaltzyklus</translation>
    </message>
    <message>
        <source>%1, flight %2</source>
        <translation>%1, Flug %2</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Flights and tow statistic</source>
        <translation>Flüge und Schleppstatistik</translation>
    </message>
    <message>
        <source>No flight was found.</source>
        <translation>Kein Flug wurde gefunden.</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Flug</translation>
    </message>
    <message>
        <source>Take-off, clock</source>
        <translation>Start, Uhrzeit</translation>
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
        <source>Flight time</source>
        <translation>Flugzeit</translation>
    </message>
    <message>
        <source>Lowest altitude</source>
        <translation>Kleinste Höhe</translation>
    </message>
    <message>
        <source>Highest altitude</source>
        <translation>Größte Höhe</translation>
    </message>
    <message>
        <source>Total climb</source>
        <translation>Steighöhe gesamt</translation>
    </message>
    <message>
        <source>Average climb rate</source>
        <translation>Mittleres Steigen</translation>
    </message>
    <message>
        <source>Average descent rate</source>
        <translation>Mittleres Sinken</translation>
    </message>
    <message>
        <source>Highest ground speed</source>
        <translation>Größte Geschw. über Grund</translation>
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
        <translation>Kraftstoff, gesamt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <source>Bit</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Zuerst</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>The profile declares no faults.</source>
        <translation>Das Profil enthält keine Fehler.</translation>
    </message>
    <message>
        <source>No fault was present.</source>
        <translation>Kein Fehler lag an.</translation>
    </message>
    <message>
        <source>Main parameters</source>
        <translation>Hauptparameter</translation>
    </message>
    <message>
        <source>None of them was recorded.</source>
        <translation>Keiner davon wurde aufgezeichnet.</translation>
    </message>
    <message>
        <source>Flight path</source>
        <translation>Flugweg</translation>
    </message>
    <message>
        <source>No position was recorded.</source>
        <translation>Keine Position wurde aufgezeichnet.</translation>
    </message>
    <message>
        <source>Engine unit</source>
        <translation>Motorüberwachung</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variante</translation>
    </message>
    <message numerus="yes">
        <source>Not shown: %n more that exceeded a limit</source>
        <translation>
            <numerusform>Nicht gezeigt: %n weiterer, der einen Grenzwert überschritt</numerusform>
            <numerusform>Nicht gezeigt: %n weitere, die einen Grenzwert überschritten</numerusform>
        </translation>
    </message>
    <message>
        <source>Time for 100 m of climb</source>
        <translation>Zeit für 100 m Steighöhe</translation>
    </message>
    <message>
        <source>Fuel for 100 m of climb</source>
        <translation>Kraftstoff für 100 m Steighöhe</translation>
    </message>
    <message>
        <source>Take-off distance</source>
        <translation>Startrollstrecke</translation>
    </message>
    <message>
        <source>Take-off distance, 15 m</source>
        <translation>Startstrecke, 15 m</translation>
    </message>
    <message>
        <source>Green: begin. Black: end. Orange: exceeded limits, how many at a place. Grey lines: degrees and minutes.</source>
        <translation>Grün: Anfang. Schwarz: Ende. Orange: überschrittene Grenzwerte, wie viele an einer Stelle. Graue Linien: Grade und Minuten.</translation>
    </message>
    <message>
        <source>power cycle %1</source>
        <translation>Einschaltzyklus %1</translation>
    </message>
    <message>
        <source>flight %1</source>
        <translation>Flug %1</translation>
    </message>
    <message>
        <source>profile %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>variant %1</source>
        <translation>Variante %1</translation>
    </message>
    <message>
        <source>Over time: %1</source>
        <translation>Über der Zeit: %1</translation>
    </message>
    <message>
        <source>Map of the flight path</source>
        <translation>Karte des Flugwegs</translation>
    </message>
    <message>
        <source>flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Problems of the card</source>
        <translation>Probleme der Karte</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschah</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>code of the language that this is translated to</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>number of a page, and how many there are</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The first %1 are shown as graphs.</source>
        <translation>Die ersten %1 sind als Graphen gezeigt.</translation>
    </message>
    <message numerus="yes">
        <source>Outside of the flight: %n more in this power cycle.</source>
        <translation>
            <numerusform>Außerhalb des Fluges: noch %n in diesem Einschaltzyklus.</numerusform>
            <numerusform>Außerhalb des Fluges: noch %n in diesem Einschaltzyklus.</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them, those too which the verdict does not count: of starting, stopping and lane checks.</source>
        <translation>Alle, auch die, die für das Ergebnis nicht zählen: vom Anlassen, Abstellen und Prüfen der Lanes.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Not all of them: what was recorded comes before formulas, what is worse before the rest. Those too which the verdict does not count: of starting, stopping and lane checks.</source>
        <translation>Nicht alle: Aufgezeichnetes geht vor Formeln, Schlimmeres vor dem Übrigen. Auch die, die das Urteil nicht zählt: vom Anlassen, Abstellen und von Lane-Prüfungen.</translation>
    </message>
    <message>
        <source>Shaded: where nine of ten samples of the earlier flights of this engine lay, by phase of flight.</source>
        <translation>Schattiert: wo neun von zehn Messwerten der früheren Flüge dieses Motors lagen, je Flugphase.</translation>
    </message>
    <message>
        <source>Compared with %1</source>
        <translation>Verglichen mit %1</translation>
    </message>
    <message>
        <source>As the two are laid on each other they have no time in common.</source>
        <translation>So, wie beide aufeinandergelegt sind, haben sie keine gemeinsame Zeit.</translation>
    </message>
    <message>
        <source>Dashed in the graph of the main parameters. Its recording begins at %1 of this one. What follows is of the time that both have, %2 to %3.</source>
        <translation>Gestrichelt im Graphen der Hauptparameter. Die andere Aufzeichnung beginnt bei %1 von dieser. Das Folgende gilt für die Zeit, die beide haben, %2 bis %3.</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Niedrigster</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Höchster</translation>
    </message>
    <message>
        <source>Lowest there</source>
        <translation>Niedrigster dort</translation>
    </message>
    <message>
        <source>Mean there</source>
        <translation>Mittel dort</translation>
    </message>
    <message>
        <source>Highest there</source>
        <translation>Höchster dort</translation>
    </message>
    <message>
        <source>Difference of the means</source>
        <translation>Unterschied der Mittel</translation>
    </message>
    <message>
        <source>Not told here: %1 more of the incidents (beyond a limit: %2, warnings: %3). The first %4 are shown as graphs.</source>
        <translation>Hier nicht aufgeführt: %1 weitere der Vorfälle (über einem Grenzwert: %2, Warnungen: %3). Die ersten %4 sind als Graphen gezeigt.</translation>
    </message>
    <message>
        <source>Counts</source>
        <translation>Zählt</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>ZARN::FormulaCheck</name>
    <message>
        <source>A formula needs a name.</source>
        <translation>Eine Formel braucht einen Namen.</translation>
    </message>
    <message>
        <source>The profile has a parameter of this name.</source>
        <translation>Das Profil hat einen Parameter dieses Namens.</translation>
    </message>
    <message>
        <source>Another formula has this name.</source>
        <translation>Eine andere Formel hat diesen Namen.</translation>
    </message>
    <message>
        <source>What is it computed by?</source>
        <translation>Wie wird sie berechnet?</translation>
    </message>
    <message>
        <source>The limits do not ascend.</source>
        <translation>Die Grenzen steigen nicht an.</translation>
    </message>
    <message>
        <source>A limit is no number; thousands stand without a separator.</source>
        <translation>Ein Grenzwert ist keine Zahl; Tausender stehen ohne Trennzeichen.</translation>
    </message>
</context>
<context>
    <name>ZARN::FormulaReader</name>
    <message>
        <source>&quot;%1&quot; is no parameter, function or number.</source>
        <translation>„%1“ ist kein Parameter, keine Funktion und keine Zahl.</translation>
    </message>
    <message>
        <source>The formula ends too early.</source>
        <translation>Die Formel endet zu früh.</translation>
    </message>
    <message>
        <source>A closing bracket is missing.</source>
        <translation>Eine schließende Klammer fehlt.</translation>
    </message>
    <message>
        <source>No bracket can stand here.</source>
        <translation>Hier kann keine Klammer stehen.</translation>
    </message>
    <message>
        <source>The function takes another number of arguments.</source>
        <translation>Die Funktion nimmt eine andere Zahl von Argumenten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot stand here.</source>
        <translation>„%1“ kann hier nicht stehen.</translation>
    </message>
    <message>
        <source>The formula is longer than %1 characters.</source>
        <translation>Die Formel ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>The formula names no parameter.</source>
        <translation>Die Formel nennt keinen Parameter.</translation>
    </message>
    <message>
        <source>The formula has more than %1 brackets.</source>
        <translation>Die Formel hat mehr als %1 Klammern.</translation>
    </message>
    <message>
        <source>Two equal signs compare: &quot;==&quot;.</source>
        <translation>Verglichen wird mit zwei Gleichheitszeichen: „==“.</translation>
    </message>
    <message>
        <source>This character cannot stand in a formula; names with such characters stand in quotes.</source>
        <translation>Dieses Zeichen kann nicht in einer Formel stehen; Namen mit solchen Zeichen stehen in Anführungszeichen.</translation>
    </message>
    <message>
        <source>The closing quote is missing.</source>
        <translation>Das schließende Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>The profile has no parameter &quot;%1&quot;.</source>
        <translation>Das Profil hat keinen Parameter „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is computed after this formula.</source>
        <translation>„%1“ wird nach dieser Formel berechnet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no number.</source>
        <translation>„%1“ enthält keine Zahl.</translation>
    </message>
    <message>
        <source>More than %1 calls stand within each other.</source>
        <translation>Mehr als %1 Aufrufe stehen ineinander.</translation>
    </message>
    <message>
        <source>It takes two arguments: the value and the seconds.</source>
        <translation>Sie nimmt zwei Argumente: den Wert und die Sekunden.</translation>
    </message>
    <message>
        <source>It takes one argument.</source>
        <translation>Sie nimmt ein Argument.</translation>
    </message>
    <message>
        <source>The seconds are a number.</source>
        <translation>Die Sekunden sind eine Zahl.</translation>
    </message>
    <message>
        <source>The seconds lie above 0, up to %1.</source>
        <translation>Die Sekunden liegen über 0 und höchstens bei %1.</translation>
    </message>
    <message>
        <source>The formula has more than %1 names in quotes and calls that look back.</source>
        <translation>Die Formel hat mehr als %1 Namen in Anführungszeichen und Aufrufe, die zurückblicken.</translation>
    </message>
    <message>
        <source>A comma separates arguments of functions; a number has a decimal point.</source>
        <translation>Ein Komma trennt Argumente von Funktionen; Zahlen haben einen Punkt.</translation>
    </message>
</context>
<context>
    <name>ZARN::GhostMenu</name>
    <message>
        <source>Cycle %1</source>
        <translation>Zyklus %1</translation>
    </message>
    <message>
        <source>Compare With</source>
        <translation>Vergleichen mit</translation>
    </message>
    <message>
        <source>Another Card...</source>
        <translation>Einer anderen Karte...</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Flight %1</source>
        <translation>Flug %1</translation>
    </message>
    <message>
        <source>Align Take-offs</source>
        <translation>Starts übereinanderlegen</translation>
    </message>
    <message>
        <source>Align to the Take-off of its Flight %1</source>
        <translation>Auf den Start seines Flugs %1 legen</translation>
    </message>
    <message>
        <source>Align Engine Starts</source>
        <translation>Anlassen des Motors übereinanderlegen</translation>
    </message>
    <message>
        <source>Drag with the Alt key to align by hand</source>
        <translation>Mit der Alt-Taste ziehen, um von Hand auszurichten</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>No power cycles were found there.</source>
        <translation>Dort wurden keine Einschaltzyklen gefunden.</translation>
    </message>
    <message>
        <source>Power cycle of %1 :</source>
        <translation>Einschaltzyklus von %1:</translation>
    </message>
    <message>
        <source>Earlier Flights of This Engine, 5 to 95 %</source>
        <translation>Frühere Flüge dieses Motors, 5 bis 95 %</translation>
    </message>
    <message>
        <source>Earlier Flights of This Engine: Fewer than 10 in the Logbook</source>
        <translation>Frühere Flüge dieses Motors: weniger als 10 im Logbuch</translation>
    </message>
</context>
<context>
    <name>ZARN::GraphAxes</name>
    <message>
        <source>Take-off</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>ZARN::GraphButtons</name>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation>Zoom 1:1</translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation>Auf Marke zoomen</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>Automatic Mode</source>
        <translation>Automatikmodus</translation>
    </message>
    <message>
        <source>Split Mode</source>
        <translation>Geteilter Modus</translation>
    </message>
    <message>
        <source>Single Graph Mode</source>
        <translation>Einzelgraph</translation>
    </message>
    <message>
        <source>Reset all to default</source>
        <translation>Alles auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
</context>
<context>
    <name>ZARN::GraphDescription</name>
    <message>
        <source>Nothing is shown.</source>
        <translation>Nichts wird gezeigt.</translation>
    </message>
    <message>
        <source>From %1 to %2.</source>
        <translation>Von %1 bis %2.</translation>
    </message>
    <message>
        <source>Cursor at %1.</source>
        <translation>Cursor bei %1.</translation>
    </message>
    <message>
        <source>Marked from %1 to %2.</source>
        <translation>Markiert von %1 bis %2.</translation>
    </message>
    <message>
        <source>without a value</source>
        <translation>ohne Wert</translation>
    </message>
    <message>
        <source>%1, here %2 to %3</source>
        <translation>%1, hier %2 bis %3</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>Incidents: %1.</source>
        <translation>Vorfälle: %1.</translation>
    </message>
</context>
<context>
    <name>ZARN::GraphJump</name>
    <message>
        <source>Show in Graph</source>
        <translation>Im Graphen zeigen</translation>
    </message>
</context>
<context>
    <name>ZARN::GraphKeys</name>
    <message>
        <source>Cursor by a pixel of time, with Shift by ten</source>
        <translation>Cursor um ein Pixel der Zeit, mit der Umschalttaste um zehn</translation>
    </message>
    <message>
        <source>Height of the cursor by a pixel, with Shift by ten</source>
        <translation>Höhe des Cursors um ein Pixel, mit der Umschalttaste um zehn</translation>
    </message>
    <message>
        <source>Start of the marker by a pixel, with Shift by ten; without a marker from the cursor</source>
        <translation>Anfang der Marke um ein Pixel, mit der Umschalttaste um zehn; ohne Marke ab dem Cursor</translation>
    </message>
    <message>
        <source>End of the marker by a pixel, with Shift by ten; without a marker from the cursor</source>
        <translation>Ende der Marke um ein Pixel, mit der Umschalttaste um zehn; ohne Marke ab dem Cursor</translation>
    </message>
    <message>
        <source>Take the marker away</source>
        <translation>Marke wegnehmen</translation>
    </message>
    <message>
        <source>Show what is marked</source>
        <translation>Das Markierte zeigen</translation>
    </message>
    <message>
        <source>Look closer or from farther away in time, about the cursor</source>
        <translation>Zeit näher oder weiter weg betrachten, um den Cursor</translation>
    </message>
    <message>
        <source>A page back or on in time</source>
        <translation>Eine Seite zurück oder weiter in der Zeit</translation>
    </message>
    <message>
        <source>Start or end of the record</source>
        <translation>Anfang oder Ende der Aufzeichnung</translation>
    </message>
    <message>
        <source>The whole record</source>
        <translation>Die ganze Aufzeichnung</translation>
    </message>
    <message>
        <source>Choose the trace above or below: it stands out, and the keys for values are for it</source>
        <translation>Kurve darüber oder darunter wählen: sie ist hervorgehoben, und die Tasten für Werte gelten ihr</translation>
    </message>
    <message>
        <source>Scale of the chosen trace up or down</source>
        <translation>Skala der gewählten Kurve nach oben oder unten</translation>
    </message>
    <message>
        <source>Look closer or from farther away at the values of the chosen trace</source>
        <translation>Werte der gewählten Kurve näher oder weiter weg betrachten</translation>
    </message>
    <message>
        <source>Fit the scales to what is visible; once more: to the whole record</source>
        <translation>Skalen an das Sichtbare anpassen; noch einmal: an die ganze Aufzeichnung</translation>
    </message>
    <message>
        <source>One scale for the traces of each unit, or one for each trace</source>
        <translation>Eine Skala für die Kurven jeder Einheit oder eine für jede Kurve</translation>
    </message>
    <message>
        <source>Strip of the chosen trace up or down</source>
        <translation>Streifen der gewählten Kurve nach oben oder unten</translation>
    </message>
    <message>
        <source>Strip of the chosen trace higher or lower</source>
        <translation>Streifen der gewählten Kurve höher oder niedriger</translation>
    </message>
    <message>
        <source>Take back what changed view, scales, marker or layout</source>
        <translation>Zurücknehmen, was Ansicht, Skalen, Marke oder Darstellung verändert hat</translation>
    </message>
    <message>
        <source>Do it again</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>What it is compared with earlier or later by a pixel, with Ctrl by ten</source>
        <translation>Womit verglichen wird um ein Pixel früher oder später, mit Strg um zehn</translation>
    </message>
    <message>
        <source>Scroll the table of the marker, or a legend that is cut</source>
        <translation>Die Tabelle der Markierung oder eine abgeschnittene Legende verschieben</translation>
    </message>
</context>
<context>
    <name>ZARN::GraphTables</name>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>Cursor</source>
        <translation>Cursor</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Diff.</source>
        <translation>Diff.</translation>
    </message>
</context>
<context>
    <name>ZARN::GraphicsCheck</name>
    <message>
        <source>No OpenGL here: the map cannot be drawn</source>
        <translation>Kein OpenGL: die Karte kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>OpenGL 3.3 is needed, here is %1.%2: the map cannot be drawn</source>
        <translation>OpenGL 3.3 wird gebraucht, hier ist %1.%2: die Karte kann nicht gezeichnet werden</translation>
    </message>
</context>
<context>
    <name>ZARN::IncidentGraph</name>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, %2 bis %3</translation>
    </message>
    <message>
        <source>the worst of them, at %1</source>
        <translation>der schlimmste, bei %1</translation>
    </message>
    <message>
        <source>not shown: %1</source>
        <translation>nicht gezeigt: %1</translation>
    </message>
    <message numerus="yes">
        <source>not shown: %n more</source>
        <translation>
            <numerusform>nicht gezeigt: %n weiterer</numerusform>
            <numerusform>nicht gezeigt: %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>least %1</source>
        <translation>tiefster %1</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>Spitze %1</translation>
    </message>
    <message>
        <source>limit %1</source>
        <translation>Grenzwert %1</translation>
    </message>
</context>
<context>
    <name>ZARN::IncidentText</name>
    <message>
        <source>%1, with %2</source>
        <translation>%1, mit %2</translation>
    </message>
    <message>
        <source>less than 1 s</source>
        <translation>weniger als 1 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>with the engine off</source>
        <translation>bei stehendem Motor</translation>
    </message>
    <message>
        <source>on the ground</source>
        <translation>am Boden</translation>
    </message>
    <message>
        <source>in take-off</source>
        <translation>beim Start</translation>
    </message>
    <message>
        <source>in climb</source>
        <translation>im Steigflug</translation>
    </message>
    <message>
        <source>in level flight</source>
        <translation>im Horizontalflug</translation>
    </message>
    <message>
        <source>in descent</source>
        <translation>im Sinkflug</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1 not a number</source>
        <translation>%1 keine Zahl</translation>
    </message>
    <message>
        <source>%1, limit %2</source>
        <translation>%1, Grenzwert %2</translation>
    </message>
    <message>
        <source>Engine stopped</source>
        <translation>Motor stand</translation>
    </message>
    <message>
        <source>%1, for %2</source>
        <translation>%1, für %2</translation>
    </message>
    <message>
        <source>%1 red</source>
        <translation>%1 rot</translation>
    </message>
    <message>
        <source>%1 yellow</source>
        <translation>%1 gelb</translation>
    </message>
    <message>
        <source>%1 times, %2 to %3</source>
        <translation>%1-mal, %2 bis %3</translation>
    </message>
    <message>
        <source>in flight</source>
        <translation>im Flug</translation>
    </message>
    <message>
        <source>%1, for %2 within %3</source>
        <translation>%1, für %2 innerhalb von %3</translation>
    </message>
</context>
<context>
    <name>ZARN::Kernel</name>
    <message>
        <source>Unknown variables: %1</source>
        <translation>Unbekannte Variablen: %1</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>ZARN::LayoutBar</name>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Layout: which parameters are shown, and how the graph shows them</source>
        <translation>Layout: welche Parameter gezeigt werden, und wie der Graph sie zeigt</translation>
    </message>
    <message>
        <source>Choose a layout</source>
        <translation>Layout wählen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Rename...</source>
        <translation>Umbenennen...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importieren...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <source>Save, rename, remove, import and export layouts</source>
        <translation>Layouts speichern, umbenennen, entfernen, importieren und exportieren</translation>
    </message>
    <message>
        <source>Layout menu</source>
        <translation>Layout-Menü</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>Not in this profile: %1 and %2 more</source>
        <translation>Nicht in diesem Profil: %1 und %2 weitere</translation>
    </message>
    <message>
        <source>Not in this profile: %1</source>
        <translation>Nicht in diesem Profil: %1</translation>
    </message>
</context>
<context>
    <name>ZARN::LayoutController</name>
    <message>
        <source>There are too many layouts to add one.</source>
        <translation>Es gibt zu viele Layouts, um noch eines hinzuzufügen.</translation>
    </message>
    <message>
        <source>Save Layout</source>
        <translation>Layout speichern</translation>
    </message>
    <message>
        <source>Rename Layout</source>
        <translation>Layout umbenennen</translation>
    </message>
    <message>
        <source>Remove the layout &quot;%1&quot; ?</source>
        <translation>Das Layout „%1“ entfernen?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Layouts importieren</translation>
    </message>
    <message>
        <source>Layout Files (*.xml)</source>
        <translation>Layoutdateien (*.xml)</translation>
    </message>
    <message>
        <source>%1 holds no layout that could be read.</source>
        <translation>%1 enthält kein lesbares Layout.</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Layout exportieren</translation>
    </message>
    <message>
        <source>The layout could not be written:
%1</source>
        <translation>Das Layout konnte nicht geschrieben werden:
%1</translation>
    </message>
    <message>
        <source>A layout needs a name.</source>
        <translation>Ein Layout braucht einen Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a layout of the profile. Choose another name for yours.</source>
        <translation>„%1“ ist ein Layout des Profils. Wählen Sie für Ihres einen anderen Namen.</translation>
    </message>
    <message>
        <source>There is a layout &quot;%1&quot; already.</source>
        <translation>Es gibt schon ein Layout „%1“.</translation>
    </message>
    <message>
        <source>Name of the layout:</source>
        <translation>Name des Layouts:</translation>
    </message>
    <message>
        <source>Replace the layout &quot;%1&quot; ?</source>
        <translation>Das Layout „%1“ ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Layouts cannot be saved</source>
        <translation>Layouts nicht speicherbar</translation>
    </message>
    <message>
        <source>Layouts unreadable</source>
        <translation>Layouts nicht lesbar</translation>
    </message>
</context>
<context>
    <name>ZARN::LiveBar</name>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Report ...</source>
        <translation>Bericht ...</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Hold what is shown and look back, while everything is received and recorded on (space)</source>
        <translation>Die Anzeige anhalten und zurückblicken, während weiter empfangen und aufgezeichnet wird (Leertaste)</translation>
    </message>
    <message>
        <source>Write what was received so far as a flight report</source>
        <translation>Das bisher Empfangene als Flugbericht schreiben</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing outside its limits so far while the engine ran</source>
        <translation>Bisher nichts außerhalb seiner Grenzen, während der Motor lief</translation>
    </message>
    <message>
        <source>Nothing can be told of the engine yet</source>
        <translation>Über den Motor lässt sich noch nichts sagen</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
</context>
<context>
    <name>ZARN::LiveController</name>
    <message>
        <source>The memory is short: only the last %1 min are kept.</source>
        <translation>Der Arbeitsspeicher ist knapp: Nur die letzten %1 min werden behalten.</translation>
    </message>
</context>
<context>
    <name>ZARN::LiveRecorder</name>
    <message>
        <source>%1: another program records there</source>
        <translation>%1: Ein anderes Programm zeichnet dort auf</translation>
    </message>
    <message>
        <source>%1: the folder cannot be written</source>
        <translation>%1: In den Ordner kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1: holds the record file %2, which is none of a recording</source>
        <translation>%1: enthält die Aufzeichnungsdatei %2, die nicht zu einer Aufnahme gehört</translation>
    </message>
    <message>
        <source>%1: all numbers of files are used up</source>
        <translation>%1: Alle Dateinummern sind verbraucht</translation>
    </message>
    <message>
        <source>%1: holds %2, which a unit recorded; a card is never written to</source>
        <translation>%1: enthält %2, von einem Gerät aufgezeichnet; auf eine Karte wird nie geschrieben</translation>
    </message>
</context>
<context>
    <name>ZARN::LiveText</name>
    <message>
        <source>%1: disconnected</source>
        <translation>%1: getrennt</translation>
    </message>
    <message>
        <source>%1: connection lost, trying again ...</source>
        <translation>%1: Verbindung verloren, neuer Versuch ...</translation>
    </message>
    <message>
        <source>%1: connecting ...</source>
        <translation>%1: Verbindung wird aufgebaut ...</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 Telegramme/s</translation>
    </message>
    <message>
        <source>load %1 % of %2 kbit/s</source>
        <translation>Last %1 % von %2 kbit/s</translation>
    </message>
    <message>
        <source>NOT RECORDED: %1</source>
        <translation>NICHT AUFGEZEICHNET: %1</translation>
    </message>
    <message>
        <source>%1: connected, only listening</source>
        <translation>%1: verbunden, hört nur zu</translation>
    </message>
    <message numerus="yes">
        <source>%Ln frame(s)</source>
        <translation>
            <numerusform>%Ln Telegramm</numerusform>
            <numerusform>%Ln Telegramme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln error(s)</source>
        <translation>
            <numerusform>%Ln Fehler</numerusform>
            <numerusform>%Ln Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>frames lost: %Ln time(s)</source>
        <translation>
            <numerusform>%Ln-mal Telegramme verloren</numerusform>
            <numerusform>%Ln-mal Telegramme verloren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln frame(s) of other kinds</source>
        <translation>
            <numerusform>%Ln Telegramm anderer Art</numerusform>
            <numerusform>%Ln Telegramme anderer Art</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln frame(s) recorded into %1</source>
        <translation>
            <numerusform>%Ln Telegramm aufgezeichnet in %1</numerusform>
            <numerusform>%Ln Telegramme aufgezeichnet in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>NO FRAMES for %1 s</source>
        <translation>KEINE TELEGRAMME seit %1 s</translation>
    </message>
    <message>
        <source>%1: connected, nothing is sent, but frames are confirmed</source>
        <translation>%1: verbunden, es wird nichts gesendet, aber Telegramme werden bestätigt</translation>
    </message>
    <message>
        <source>%1, bus %2</source>
        <translation>%1, Bus %2</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookBar</name>
    <message>
        <source>Keep a logbook of the cards that you open?</source>
        <translation>Ein Logbuch der Karten führen, die Sie öffnen?</translation>
    </message>
    <message>
        <source>Flights, engine hours and trends, in a file on this computer. Nothing is sent anywhere.</source>
        <translation>Flüge, Motorstunden und Trends, in einer Datei auf diesem Rechner. Nichts wird irgendwohin gesendet.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookController</name>
    <message>
        <source>The card of this recording is not at hand.</source>
        <translation>Die Karte dieser Aufzeichnung ist nicht zur Hand.</translation>
    </message>
    <message>
        <source>The logbook was damaged.
%1</source>
        <translation>Das Logbuch war beschädigt.
%1</translation>
    </message>
    <message>
        <source>Card not in the logbook: %1</source>
        <translation>Karte nicht im Logbuch: %1</translation>
    </message>
    <message>
        <source>Card not in the archive: %1</source>
        <translation>Karte nicht im Archiv: %1</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookCsv</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Aircraft</source>
        <translation>Flugzeug</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Flight time [h]</source>
        <translation>Flugzeit [h]</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Urteil</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Cycle</source>
        <translation>Zyklus</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Flug</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Time since power-up</source>
        <translation>Zeit seit dem Einschalten</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Fuel [%1]</source>
        <translation>Kraftstoff [%1]</translation>
    </message>
    <message>
        <source>Climb [%1]</source>
        <translation>Steigen [%1]</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookEditor</name>
    <message>
        <source>the store was removed or replaced</source>
        <translation>der Speicher wurde entfernt oder ersetzt</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookEngines</name>
    <message>
        <source>Engines</source>
        <translation>Motoren</translation>
    </message>
    <message>
        <source>Aircraft or engine</source>
        <translation>Flugzeug oder Motor</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Engine hours</source>
        <translation>Motorstunden</translation>
    </message>
    <message>
        <source>Unit&apos;s counter</source>
        <translation>Zähler des Geräts</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Wartungen</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Last done</source>
        <translation>Zuletzt erledigt</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Fällig</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Aircraft ...</source>
        <translation>Flugzeug ...</translation>
    </message>
    <message>
        <source>Hours before ...</source>
        <translation>Stunden davor ...</translation>
    </message>
    <message>
        <source>Same engine as ...</source>
        <translation>Gleicher Motor wie ...</translation>
    </message>
    <message>
        <source>An engine whose unit tells no serial number may be one that is here already</source>
        <translation>Ein Motor, dessen Gerät keine Seriennummer nennt, kann einer sein, den es hier schon gibt</translation>
    </message>
    <message>
        <source>Separate ...</source>
        <translation>Trennen ...</translation>
    </message>
    <message>
        <source>Takes back that engines are the same</source>
        <translation>Nimmt zurück, dass Motoren derselbe sind</translation>
    </message>
    <message>
        <source>New service ...</source>
        <translation>Neue Wartung ...</translation>
    </message>
    <message>
        <source>Change ...</source>
        <translation>Ändern ...</translation>
    </message>
    <message>
        <source>Done now</source>
        <translation>Jetzt erledigt</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>overdue: %1</source>
        <translation>überfällig: %1</translation>
    </message>
    <message>
        <source>soon: %1</source>
        <translation>bald: %1</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Choose an engine to see its hours and services.</source>
        <translation>Wählen Sie einen Motor, um seine Stunden und Wartungen zu sehen.</translation>
    </message>
    <message>
        <source>Aircraft</source>
        <translation>Flugzeug</translation>
    </message>
    <message>
        <source>The aircraft that this engine is in, for example its registration:</source>
        <translation>Das Flugzeug, in dem dieser Motor ist, zum Beispiel sein Kennzeichen:</translation>
    </message>
    <message>
        <source>Hours that the engine ran before its first recording:</source>
        <translation>Stunden, die der Motor vor seiner ersten Aufzeichnung lief:</translation>
    </message>
    <message>
        <source>Same engine</source>
        <translation>Gleicher Motor</translation>
    </message>
    <message>
        <source>%1 is the same engine as:</source>
        <translation>%1 ist derselbe Motor wie:</translation>
    </message>
    <message>
        <source>Separate engines</source>
        <translation>Motoren trennen</translation>
    </message>
    <message>
        <source>An engine of its own again:</source>
        <translation>Wieder ein eigener Motor:</translation>
    </message>
    <message>
        <source>Delete service</source>
        <translation>Wartung löschen</translation>
    </message>
    <message>
        <source>Delete the service &quot;%1&quot;?</source>
        <translation>Die Wartung „%1“ löschen?</translation>
    </message>
    <message>
        <source>Done at %1 h of %2. That is %3 h of this engine if nothing else of it was recorded since; if not, correct it.</source>
        <translation>Erledigt bei %1 h von %2. Das sind %3 h dieses Motors, wenn seither nichts anderes von ihm aufgezeichnet wurde; sonst berichtigen Sie es bitte.</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookExport</name>
    <message>
        <source>en</source>
        <extracomment>code of the language that this is translated to</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Logbuch</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Export logbook</source>
        <translation>Logbuch exportieren</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Export notes</source>
        <translation>Notizen exportieren</translation>
    </message>
    <message>
        <source>Writing %1 ...</source>
        <translation>%1 wird geschrieben ...</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Die Datei konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookFlights</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Urteil</translation>
    </message>
    <message>
        <source>Any verdict</source>
        <translation>Jedes Urteil</translation>
    </message>
    <message>
        <source>Text in aircraft, card, notes or incidents</source>
        <translation>Text in Flugzeug, Karte, Notizen oder Vorfällen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>until</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>verdict %1</source>
        <translation>Urteil %1</translation>
    </message>
    <message>
        <source>with &quot;%1&quot;</source>
        <translation>mit „%1“</translation>
    </message>
    <message>
        <source>No flight.</source>
        <translation>Kein Flug.</translation>
    </message>
    <message>
        <source>Open flight</source>
        <translation>Flug öffnen</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookModel</name>
    <message>
        <source>clock not set</source>
        <translation>Uhr nicht gestellt</translation>
    </message>
    <message>
        <source>%1, cycle %2, flight %3</source>
        <translation>%1, Zyklus %2, Flug %3</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Aircraft or engine</source>
        <translation>Flugzeug oder Motor</translation>
    </message>
    <message>
        <source>Flight [h]</source>
        <translation>Flug [h]</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Urteil</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>The whole recording, with its time on the ground: %1</source>
        <translation>Die ganze Aufzeichnung mit ihrer Zeit am Boden: %1</translation>
    </message>
    <message>
        <source>Fuel [%1]</source>
        <translation>Kraftstoff [%1]</translation>
    </message>
    <message>
        <source>Climb [%1]</source>
        <translation>Steigen [%1]</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookNotes</name>
    <message>
        <source>Key M in the main window pins a note to the moment that is shown.</source>
        <translation>Die Taste M im Hauptfenster heftet eine Notiz an den angezeigten Zeitpunkt.</translation>
    </message>
    <message>
        <source>Export notes ...</source>
        <translation>Notizen exportieren ...</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Aircraft or engine</source>
        <translation>Flugzeug oder Motor</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Change ...</source>
        <translation>Ändern ...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>not in the logbook</source>
        <translation>nicht im Logbuch</translation>
    </message>
    <message>
        <source>%1, cycle %2</source>
        <translation>%1, Zyklus %2</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Notiz:</translation>
    </message>
    <message>
        <source>Not kept: %1</source>
        <translation>Nicht behalten: %1</translation>
    </message>
    <message>
        <source>Delete this note?</source>
        <translation>Diese Notiz löschen?</translation>
    </message>
    <message>
        <source>Since power-up</source>
        <translation>Seit dem Einschalten</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookOptions</name>
    <message>
        <source>Keep a logbook of the cards that are opened</source>
        <translation>Ein Logbuch der geöffneten Karten führen</translation>
    </message>
    <message>
        <source>Copy each new recording into an archive</source>
        <translation>Jede neue Aufzeichnung in ein Archiv kopieren</translation>
    </message>
    <message>
        <source>Folder ...</source>
        <translation>Ordner ...</translation>
    </message>
    <message>
        <source>The logbook is the file %1.</source>
        <translation>Das Logbuch ist die Datei %1.</translation>
    </message>
    <message>
        <source>A copy counts once it was compared with the card, byte by byte. Flights are shown from there when their card is not at hand.</source>
        <translation>Eine Kopie zählt, sobald sie Byte für Byte mit der Karte verglichen wurde. Flüge werden von dort gezeigt, wenn ihre Karte nicht zur Hand ist.</translation>
    </message>
    <message>
        <source>No folder is chosen.</source>
        <translation>Kein Ordner ist gewählt.</translation>
    </message>
    <message>
        <source>Folder of the archive</source>
        <translation>Ordner des Archivs</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookTexts</name>
    <message>
        <source>unit %1</source>
        <translation>Gerät %1</translation>
    </message>
    <message>
        <source>card %1</source>
        <translation>Karte %1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 Flug</translation>
    </message>
    <message>
        <source>%1 flights</source>
        <translation>%1 Flüge</translation>
    </message>
    <message>
        <source>in flight %1 h</source>
        <translation>in der Luft %1 h</translation>
    </message>
    <message>
        <source>engine ran %1 h in these cycles</source>
        <translation>Motor lief %1 h in diesen Zyklen</translation>
    </message>
    <message>
        <source>%1 h: %2 h before the first recording and %3 h recorded</source>
        <translation>%1 h: %2 h vor der ersten Aufzeichnung und %3 h aufgezeichnet</translation>
    </message>
    <message>
        <source>%1 h recorded; the hours before the first recording are not entered</source>
        <translation>%1 h aufgezeichnet; die Stunden vor der ersten Aufzeichnung sind nicht eingetragen</translation>
    </message>
    <message>
        <source>cycles that do not tell whether the engine ran: %1</source>
        <translation>Zyklen, die nicht sagen, ob der Motor lief: %1</translation>
    </message>
    <message>
        <source>The unit&apos;s own counter: %1 h on %2</source>
        <translation>Der Zähler des Geräts: %1 h am %2</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 Monat</translation>
    </message>
    <message>
        <source>%1 months</source>
        <translation>%1 Monate</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>in %1 h</source>
        <translation>in %1 h</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>vor %1 h</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>am %1</translation>
    </message>
    <message>
        <source>not known: enter when it was done</source>
        <translation>nicht bekannt: tragen Sie ein, wann sie erledigt wurde</translation>
    </message>
    <message>
        <source>Overdue: %1, %2</source>
        <translation>Überfällig: %1, %2</translation>
    </message>
    <message>
        <source>Due soon: %1, %2</source>
        <translation>Bald fällig: %1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n cycle(s) do not tell)</source>
        <translation>
            <numerusform>%1 (%n Zyklus sagt es nicht)</numerusform>
            <numerusform>%1 (%n Zyklen sagen es nicht)</numerusform>
        </translation>
    </message>
    <message>
        <source>Recordings were lost when the logbook was damaged: it may have run more. Open the cards that you still have, then enter the hours before anew, with what is missing</source>
        <translation>Als das Logbuch beschädigt wurde, gingen Aufzeichnungen verloren: Er kann länger gelaufen sein. Öffnen Sie die Karten, die Sie noch haben, und geben Sie dann die Stunden davor neu ein, mit dem, was fehlt</translation>
    </message>
    <message>
        <source>not known: done at %1 h, the logbook has %2 h</source>
        <translation>unbekannt: erledigt bei %1 h, das Logbuch hat %2 h</translation>
    </message>
    <message>
        <source>in at most %1 h</source>
        <translation>in höchstens %1 h</translation>
    </message>
    <message>
        <source>In doubt: %1, %2</source>
        <translation>Ungewiss: %1, %2</translation>
    </message>
    <message>
        <source>fuel in flight %1 %2</source>
        <translation>Kraftstoff im Flug %1 %2</translation>
    </message>
    <message>
        <source>not counted: %1 h that were entered as the hours before of %2</source>
        <translation>nicht gezählt: %1 h, die als Stunden davor von %2 eingegeben wurden</translation>
    </message>
    <message>
        <source>Recordings of which there are several copies, not all of them whole, and which count once: %1</source>
        <translation>Aufzeichnungen, von denen es mehrere Kopien gibt, nicht alle vollständig, und die einmal zählen: %1</translation>
    </message>
    <message>
        <source>Two units with one serial number, or a wrong clock? Recordings that overlap with another one, and count as well: %1</source>
        <translation>Zwei Geräte mit einer Seriennummer oder eine falsche Uhr? Aufzeichnungen, die sich mit einer anderen überschneiden und ebenfalls zählen: %1</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>seit %1</translation>
    </message>
    <message>
        <source>not known: done at %1 h of %2, please confirm</source>
        <translation>unbekannt: erledigt bei %1 h von %2, bitte bestätigen</translation>
    </message>
    <message numerus="yes">
        <source>The unit&apos;s clock went back from one recording to the next, so that dates, and what is due by them, may be wrong: %n time(s)</source>
        <translation>
            <numerusform>Die Uhr des Geräts sprang von einer Aufzeichnung zur nächsten zurück, sodass Daten, und was nach ihnen fällig ist, falsch sein können: %n Mal</numerusform>
            <numerusform>Die Uhr des Geräts sprang von einer Aufzeichnung zur nächsten zurück, sodass Daten, und was nach ihnen fällig ist, falsch sein können: %n Mal</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n flight(s) do not tell)</source>
        <translation>
            <numerusform>%1 (%n Flug sagt es nicht)</numerusform>
            <numerusform>%1 (%n Flüge sagen es nicht)</numerusform>
        </translation>
    </message>
    <message>
        <source>a day that is not known: enter when it was done</source>
        <translation>an einem Tag, der nicht bekannt ist: eintragen, wann es gemacht wurde</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookTrends</name>
    <message>
        <source>Parameters and phases</source>
        <translation>Parameter und Phasen</translation>
    </message>
    <message>
        <source>unusual</source>
        <translation>ungewöhnlich</translation>
    </message>
    <message>
        <source>drifting</source>
        <translation>driftet</translation>
    </message>
    <message>
        <source>Choose an engine above to see its trends.</source>
        <translation>Wählen Sie oben einen Motor, um seine Trends zu sehen.</translation>
    </message>
    <message>
        <source>No flight of this engine tells a figure.</source>
        <translation>Kein Flug dieses Motors nennt einen Wert.</translation>
    </message>
    <message>
        <source>Open flight</source>
        <translation>Flug öffnen</translation>
    </message>
    <message>
        <source>Unusual: far from the flights before. Drifting: the latest five lie outside the range of the twenty before them.</source>
        <translation>Ungewöhnlich: weit weg von den Flügen davor. Driftet: Die letzten fünf liegen außerhalb der Spanne der zwanzig davor.</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n flight(s)</source>
        <translation>
            <numerusform>%1, %n Flug</numerusform>
            <numerusform>%1, %n Flüge</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Wird gelesen ...</translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookWorker</name>
    <message>
        <source>%1: it was removed while it was shown; what is shown is what it held, whatever is chosen</source>
        <translation>%1: Es wurde entfernt, während es gezeigt wurde; zu sehen ist, was darin stand, was auch gewählt wird</translation>
    </message>
</context>
<context>
    <name>ZARN::MainToolBar</name>
    <message>
        <source>Main Toolbar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>Profile: what the recorded bytes mean</source>
        <translation>Profil: was die aufgezeichneten Bytes bedeuten</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Units of all displays</source>
        <translation>Einheiten aller Anzeigen</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperial</translation>
    </message>
</context>
<context>
    <name>ZARN::MapAttribution</name>
    <message>
        <source>Sources of the map</source>
        <translation>Quellen der Karte</translation>
    </message>
</context>
<context>
    <name>ZARN::MapConsentBar</name>
    <message>
        <source>Load map tiles</source>
        <translation>Karte laden</translation>
    </message>
    <message>
        <source>Stay offline</source>
        <translation>Offline bleiben</translation>
    </message>
    <message>
        <source>Load detailed map tiles from %1? The server then learns which area is looked at. The answer can be changed in the map&apos;s menu and in the preferences.</source>
        <translation>Genaue Kartenkacheln von %1 laden? Der Server erfährt dann, welches Gebiet betrachtet wird. Die Antwort lässt sich im Menü der Karte und in den Einstellungen ändern.</translation>
    </message>
</context>
<context>
    <name>ZARN::MapDescription</name>
    <message>
        <source>There is no path to show.</source>
        <translation>Es gibt keinen Weg zu zeigen.</translation>
    </message>
    <message>
        <source>Flight path from %1 to %2.</source>
        <translation>Flugweg von %1 bis %2.</translation>
    </message>
    <message>
        <source>Aircraft at %1, %2, track %3°.</source>
        <translation>Flugzeug bei %1, %2, Kurs über Grund %3°.</translation>
    </message>
</context>
<context>
    <name>ZARN::MapMarks</name>
    <message>
        <source>Take-off</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Landing</source>
        <translation>Landung</translation>
    </message>
</context>
<context>
    <name>ZARN::MapOptions</name>
    <message>
        <source>Load map tiles from the network</source>
        <translation>Kartenkacheln aus dem Netz laden</translation>
    </message>
    <message>
        <source>Offline: ask no server, show what is kept</source>
        <translation>Offline: keinen Server fragen, zeigen, was da ist</translation>
    </message>
    <message>
        <source> MiB</source>
        <translation> MiB</translation>
    </message>
    <message>
        <source>Map tiles from a server</source>
        <translation>Kartenkacheln von einem Server</translation>
    </message>
    <message>
        <source>Server :</source>
        <translation>Server :</translation>
    </message>
    <message>
        <source>Made by :</source>
        <translation>Hergestellt von :</translation>
    </message>
    <message>
        <source>Highest zoom :</source>
        <translation>Höchste Zoomstufe :</translation>
    </message>
    <message>
        <source>Shown on the map beside the name of the server</source>
        <translation>Wird auf der Karte neben dem Namen des Servers gezeigt</translation>
    </message>
    <message>
        <source>Map tiles of this computer</source>
        <translation>Kartenkacheln dieses Computers</translation>
    </message>
    <message>
        <source>Archive ...</source>
        <translation>Archiv ...</translation>
    </message>
    <message>
        <source>Folder ...</source>
        <translation>Ordner ...</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Archive of map tiles</source>
        <translation>Archiv mit Kartenkacheln</translation>
    </message>
    <message>
        <source>Map tiles (*.mbtiles);;All files (*.*)</source>
        <translation>Kartenkacheln (*.mbtiles);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Folder of map tiles</source>
        <translation>Ordner mit Kartenkacheln</translation>
    </message>
    <message>
        <source>Map tiles that are kept</source>
        <translation>Aufbewahrte Kartenkacheln</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>At most :</source>
        <translation>Höchstens :</translation>
    </message>
    <message>
        <source>Server: %1. It learns which area is looked at.</source>
        <translation>Server: %1. Er erfährt, welches Gebiet betrachtet wird.</translation>
    </message>
    <message>
        <source>None: an archive (MBTiles) or a folder ZOOM/X/Y.png can take the place of the server.</source>
        <translation>Keine: ein Archiv (MBTiles) oder ein Ordner ZOOM/X/Y.png kann an die Stelle des Servers treten.</translation>
    </message>
    <message>
        <source>%1 are kept.</source>
        <translation>%1 sind aufbewahrt.</translation>
    </message>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>These map tiles cannot be shown.</source>
        <translation>Diese Kartenkacheln können nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>its path needs {z}, {x} and {y}, as in https://tiles.example.org/{z}/{x}/{y}.png</source>
        <translation>der Pfad braucht {z}, {x} und {y}, wie in https://tiles.example.org/{z}/{x}/{y}.png</translation>
    </message>
    <message>
        <source>it names no server that is asked by https or http, as https://tiles.example.org/{z}/{x}/{y}.png does</source>
        <translation>sie nennt keinen Server, der mit https oder http gefragt wird, wie https://tiles.example.org/{z}/{x}/{y}.png</translation>
    </message>
    <message>
        <source>&quot;Server&quot; was not taken over: %1</source>
        <translation>„Server“ wurde nicht übernommen: %1</translation>
    </message>
    <message>
        <source>The entry in &quot;Server&quot; is no address of map tiles.</source>
        <translation>Der Eintrag in „Server“ ist keine Adresse für Kartenkacheln.</translation>
    </message>
</context>
<context>
    <name>ZARN::MapProfile</name>
    <message>
        <source>Altitude of the flight</source>
        <translation>Höhe des Fluges</translation>
    </message>
</context>
<context>
    <name>ZARN::MapToolPanel</name>
    <message>
        <source>Center AC</source>
        <translation>Flugzeug zentrieren</translation>
    </message>
    <message>
        <source>Show values</source>
        <translation>Werte zeigen</translation>
    </message>
    <message>
        <source>Show the altitude below the map</source>
        <translation>Höhe unter der Karte zeigen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Show the whole flight</source>
        <translation>Ganzen Flug zeigen</translation>
    </message>
    <message>
        <source>Colours of the path</source>
        <translation>Farben des Flugwegs</translation>
    </message>
</context>
<context>
    <name>ZARN::MapValueModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>ZARN::MapValueTable</name>
    <message>
        <source>Values at the view time</source>
        <translation>Werte zur gezeigten Zeit</translation>
    </message>
</context>
<context>
    <name>ZARN::MarkerTable</name>
    <message>
        <source>Lines %1 to %2 of %3: the wheel shows the others</source>
        <translation>Zeilen %1 bis %2 von %3: das Mausrad zeigt die anderen</translation>
    </message>
</context>
<context>
    <name>ZARN::MarkerValues</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Unit of integral</source>
        <translation>Einheit des Integrals</translation>
    </message>
</context>
<context>
    <name>ZARN::NormalRange</name>
    <message>
        <source>usual: 5 to 95 % of %1 flights</source>
        <translation>üblich: 5 bis 95 % von %1 Flügen</translation>
    </message>
</context>
<context>
    <name>ZARN::NoteController</name>
    <message>
        <source>Note at %1; without a text it is removed:</source>
        <translation>Notiz bei %1; ohne Text wird sie entfernt:</translation>
    </message>
    <message>
        <source>Note at %1:</source>
        <translation>Notiz bei %1:</translation>
    </message>
    <message>
        <source>The note could not be kept:
%1

%2</source>
        <translation>Die Notiz konnte nicht aufgehoben werden:
%1

%2</translation>
    </message>
</context>
<context>
    <name>ZARN::NoteDialog</name>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>ZARN::Notices</name>
    <message>
        <source>ZARN Warning</source>
        <translation>ZARN Warnung</translation>
    </message>
    <message>
        <source>A file that could not be read was put aside, as a new one takes its place:
%1</source>
        <translation>Eine Datei, die nicht gelesen werden konnte, wurde beiseitegelegt, weil eine neue an ihre Stelle tritt:
%1</translation>
    </message>
</context>
<context>
    <name>ZARN::OverviewTexts</name>
    <message>
        <source>This cycle could not be read</source>
        <translation>Dieser Zyklus konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Nothing outside its limits while the engine ran</source>
        <translation>Alles in den Grenzen, solange der Motor lief</translation>
    </message>
    <message>
        <source>Cannot tell whether the engine was all right</source>
        <translation>Keine Aussage möglich, ob mit dem Motor alles in Ordnung war</translation>
    </message>
    <message>
        <source>engine stopped in flight</source>
        <translation>Motor blieb im Flug stehen</translation>
    </message>
    <message>
        <source>1 limit exceeded</source>
        <translation>1 Grenzwert überschritten</translation>
    </message>
    <message>
        <source>%1 limits exceeded</source>
        <translation>%1 Grenzwerte überschritten</translation>
    </message>
    <message>
        <source>1 fault</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 faults</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>Cycle %1</source>
        <translation>Zyklus %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>clock not set</source>
        <translation>Uhr nicht gestellt</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 Flug</translation>
    </message>
    <message>
        <source>%1 flights</source>
        <translation>%1 Flüge</translation>
    </message>
    <message>
        <source>recorded [h]</source>
        <translation>aufgezeichnet [h]</translation>
    </message>
    <message>
        <source>engine ran [h]</source>
        <translation>Motor lief [h]</translation>
    </message>
    <message>
        <source>in flight [h]</source>
        <translation>im Flug [h]</translation>
    </message>
    <message>
        <source>%1 l</source>
        <translation>%1 l</translation>
    </message>
    <message>
        <source>fuel</source>
        <translation>Kraftstoff</translation>
    </message>
    <message>
        <source>with %1</source>
        <translation>mit %1</translation>
    </message>
    <message>
        <source>Not counted: %1.</source>
        <translation>Nicht gezählt: %1.</translation>
    </message>
    <message>
        <source>no flight found</source>
        <translation>kein Flug gefunden</translation>
    </message>
    <message>
        <source>Unusual for this engine: %1</source>
        <translation>Ungewöhnlich für diesen Motor: %1</translation>
    </message>
    <message>
        <source>Note at %1: %2</source>
        <translation>Notiz bei %1: %2</translation>
    </message>
</context>
<context>
    <name>ZARN::ParquetDataset</name>
    <message>
        <source>it is no folder</source>
        <translation>es ist kein Ordner</translation>
    </message>
    <message>
        <source>it cannot be written, only read</source>
        <translation>er kann nicht geschrieben werden, nur gelesen</translation>
    </message>
</context>
<context>
    <name>ZARN::PathTinter</name>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Ground speed</source>
        <translation>Geschwindigkeit über Grund</translation>
    </message>
    <message>
        <source>Phase of flight</source>
        <translation>Flugphase</translation>
    </message>
    <message>
        <source>One colour</source>
        <translation>Eine Farbe</translation>
    </message>
    <message>
        <source>Engine off</source>
        <translation>Motor aus</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Boden</translation>
    </message>
    <message>
        <source>Take-off</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Climb</source>
        <translation>Steigflug</translation>
    </message>
    <message>
        <source>Level flight</source>
        <translation>Horizontalflug</translation>
    </message>
    <message>
        <source>Descent</source>
        <translation>Sinkflug</translation>
    </message>
    <message>
        <source>%1: no values</source>
        <translation>%1: keine Werte</translation>
    </message>
</context>
<context>
    <name>ZARN::Picture</name>
    <message>
        <source>Pictures of the format &quot;%1&quot; cannot be written</source>
        <translation>Bilder im Format „%1“ können nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>ZARN::PictureMenu</name>
    <message>
        <source>Copy Picture</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Save Picture...</source>
        <translation>Bild speichern ...</translation>
    </message>
    <message>
        <source>Print Picture...</source>
        <translation>Bild drucken ...</translation>
    </message>
    <message>
        <source>PNG Picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>SVG Drawing (*.svg)</source>
        <translation>SVG-Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>PDF Document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>The picture could not be saved.
%1</source>
        <translation>Das Bild konnte nicht gespeichert werden.
%1</translation>
    </message>
    <message>
        <source>The picture could not be printed.</source>
        <translation>Das Bild konnte nicht gedruckt werden.</translation>
    </message>
</context>
<context>
    <name>ZARN::PointerText</name>
    <message>
        <source>%1   %2 km, %3 NM, %4° from the aircraft</source>
        <translation>%1   %2 km, %3 NM, %4° vom Flugzeug</translation>
    </message>
</context>
<context>
    <name>ZARN::ProfileCheck</name>
    <message>
        <source>It is no profile: its first element is &lt;%1&gt;, another one than &lt;CanAerospaceProfile&gt;.</source>
        <translation>Sie ist kein Profil: Ihr erstes Element ist &lt;%1&gt;, ein anderes als &lt;CanAerospaceProfile&gt;.</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
</context>
<context>
    <name>ZARN::ProfileController</name>
    <message>
        <source>There is no profile that could be read: nothing of a recording can be decoded.</source>
        <translation>Es gibt kein Profil, das gelesen werden konnte: Von einer Aufzeichnung kann nichts entschlüsselt werden.</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; of the settings is missing or damaged. In its place is in force: %2</source>
        <translation>Das Profil „%1“ der Einstellungen fehlt oder ist beschädigt. An seiner Stelle gilt: %2</translation>
    </message>
</context>
<context>
    <name>ZARN::ProfileProblem</name>
    <message>
        <source>The file %1 cannot be used as a profile. %2</source>
        <translation>Die Datei %1 kann nicht als Profil verwendet werden. %2</translation>
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
    <message>
        <source>The project could not be saved:
%1</source>
        <translation>Das Projekt konnte nicht gespeichert werden:
%1</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>Beenden ohne zu speichern</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
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
    <name>ZARN::RecordFile</name>
    <message>
        <source>%1 bytes, no record</source>
        <translation>%1 Bytes, kein Datensatz</translation>
    </message>
    <message>
        <source>the header is damaged: no byte-order mark</source>
        <translation>der Dateikopf ist beschädigt: keine Markierung der Byte-Reihenfolge</translation>
    </message>
    <message>
        <source>the last record is cut off</source>
        <translation>der letzte Datensatz ist abgeschnitten</translation>
    </message>
    <message>
        <source>it became shorter while it was read</source>
        <translation>sie wurde beim Lesen kürzer</translation>
    </message>
    <message>
        <source>only %1 of %2 records could be read</source>
        <translation>nur %1 von %2 Datensätzen konnten gelesen werden</translation>
    </message>
</context>
<context>
    <name>ZARN::RecordGraph</name>
    <message>
        <source>No record is loaded.</source>
        <translation>Es ist keine Aufzeichnung geladen.</translation>
    </message>
    <message>
        <source>No record is loaded.
Open a card folder and choose a power cycle or a flight.</source>
        <translation>Keine Aufzeichnung geladen.
Einen Kartenordner öffnen und einen Einschaltzyklus oder Flug wählen.</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Es ist kein Parameter ausgewählt.</translation>
    </message>
    <message>
        <source>No parameter is selected.
Tick the parameters to show in the profile panel.</source>
        <translation>Kein Parameter gewählt.
Im Profilfeld die gewünschten Parameter ankreuzen.</translation>
    </message>
    <message>
        <source>The graph was cleared.</source>
        <translation>Der Graph wurde geleert.</translation>
    </message>
    <message>
        <source>The graph was cleared.
Tick a parameter in the profile panel, or choose another power cycle or flight, to fill it again.</source>
        <translation>Der Graph wurde geleert.
Kreuzen Sie im Profilfeld einen Parameter an oder wählen Sie einen anderen Zyklus oder Flug, um ihn wieder zu füllen.</translation>
    </message>
</context>
<context>
    <name>ZARN::RecordReader</name>
    <message>
        <source>it cannot be read: %1</source>
        <translation>sie kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>damaged: its records end (%1 s) before they begin (%2 s)</source>
        <translation>beschädigt: die Aufzeichnung endet (%1 s), bevor sie beginnt (%2 s)</translation>
    </message>
    <message>
        <source>damaged: its records end at %1 s</source>
        <translation>beschädigt: die Aufzeichnung endet bei %1 s</translation>
    </message>
    <message>
        <source>%1 of %2 records are left since the card was opened</source>
        <translation>seit dem Öffnen der Karte sind nur noch %1 von %2 Datensätzen da</translation>
    </message>
</context>
<context>
    <name>ZARN::RecordSender</name>
    <message>
        <source>%1: recordings are sent into a virtual bus only (virtualcan), never to an engine</source>
        <translation>%1: Aufzeichnungen werden nur in einen virtuellen Bus (virtualcan) gesendet, nie zu einem Motor</translation>
    </message>
    <message>
        <source>the bus is gone</source>
        <translation>Der Bus ist fort</translation>
    </message>
</context>
<context>
    <name>ZARN::ReportFileDialog</name>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>HTML Files (*.html *.htm)</source>
        <translation>HTML-Dateien (*.html *.htm)</translation>
    </message>
    <message>
        <source>Report about:</source>
        <translation>Bericht über:</translation>
    </message>
</context>
<context>
    <name>ZARN::ReviewText</name>
    <message>
        <source>within limits</source>
        <translation>in den Grenzen</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>limit exceeded</source>
        <translation>Grenzwert überschritten</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>The profile has no limits, lamps or faults to watch.</source>
        <translation>Das Profil kennt keine Grenzwerte, Lampen oder Fehler, auf die zu achten wäre.</translation>
    </message>
    <message>
        <source>Nothing was recorded while the engine ran: nothing was watched.</source>
        <translation>Während der Motor lief, wurde nichts aufgezeichnet: es wurde auf nichts geachtet.</translation>
    </message>
    <message>
        <source>The engine did not run: nothing was watched.</source>
        <translation>Der Motor lief nicht: es wurde auf nichts geachtet.</translation>
    </message>
    <message>
        <source>None of the watched parameters was recorded.</source>
        <translation>Keiner der beobachteten Parameter wurde aufgezeichnet.</translation>
    </message>
    <message>
        <source>Whether the engine ran is unknown, for the profile names no engine speed: starts and stops count as well.</source>
        <translation>Ob der Motor lief, ist unbekannt, denn das Profil nennt keine Motordrehzahl: Anlassen und Abstellen zählen mit.</translation>
    </message>
    <message>
        <source>Whether the engine ran is unknown, for its speed was not recorded: starts and stops count as well.</source>
        <translation>Ob der Motor lief, ist unbekannt, denn seine Drehzahl wurde nicht aufgezeichnet: Anlassen und Abstellen zählen mit.</translation>
    </message>
    <message>
        <source>Climb and descent are unknown, for no altitude was recorded.</source>
        <translation>Steig- und Sinkflug sind unbekannt, denn es wurde keine Höhe aufgezeichnet.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1 of %2 watched parameters recorded</source>
        <translation>%1 von %2 beobachteten Parametern aufgezeichnet</translation>
    </message>
    <message>
        <source>%1; missing: %2</source>
        <translation>%1; es fehlen: %2</translation>
    </message>
    <message>
        <source>%1 outside while not watched: %2</source>
        <translation>%1 außerhalb, während nicht beobachtet wurde: %2</translation>
    </message>
    <message>
        <source>Flights are unknown, for no ground speed was recorded: all counts as on the ground.</source>
        <translation>Flüge sind unbekannt, denn es wurde keine Geschwindigkeit über Grund aufgezeichnet: alles zählt als am Boden.</translation>
    </message>
    <message>
        <source>Whether the engine ran is unknown, for its recorded speed is no number: nothing was watched.</source>
        <translation>Ob der Motor lief, ist unbekannt, denn seine aufgezeichnete Drehzahl ist keine Zahl: Nichts wurde überwacht.</translation>
    </message>
    <message>
        <source>The profile has no limits: values outside of any are not seen.</source>
        <translation>Das Profil hat keine Grenzwerte: Überschreitungen werden nicht gesehen.</translation>
    </message>
    <message>
        <source>The profile has no warning lamps: none is watched.</source>
        <translation>Das Profil hat keine Warnlampen: Keine wird überwacht.</translation>
    </message>
    <message>
        <source>Flights are unknown, for the profile names no ground speed: all counts as on the ground.</source>
        <translation>Flüge sind unbekannt, denn das Profil nennt keine Geschwindigkeit über Grund: Alles zählt als am Boden.</translation>
    </message>
    <message>
        <source>The engine speed was not recorded %1: what the engine did then is unknown, and it counts as doing what it did before.</source>
        <translation>Die Motordrehzahl wurde %1 nicht aufgezeichnet: Was der Motor dann tat, ist unbekannt, und es zählt, als täte er, was er vorher tat.</translation>
    </message>
    <message>
        <source>Times of %1 are damaged, some lie behind the end of the record: their values at a time may stand still.</source>
        <translation>Zeiten von %1 sind beschädigt, manche liegen hinter dem Ende der Aufzeichnung: Ihre Werte zu einer Zeit können stehen bleiben.</translation>
    </message>
    <message>
        <source>Climb and descent are unknown, for the profile names no altitude.</source>
        <translation>Steigen und Sinken sind unbekannt, denn das Profil nennt keine Höhe.</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>The position is not to be trusted %1: what was received then lies more than 10 km from the place before, and is not believed.</source>
        <translation>Der Position ist %1 nicht zu trauen: Was dann empfangen wurde, liegt mehr als 10 km vom Ort davor entfernt und wird nicht geglaubt.</translation>
    </message>
    <message>
        <source>The record ends in flight: the one that began at %1 is no flight of the list, and counts as on the ground.</source>
        <translation>Die Aufzeichnung endet im Flug: Der um %1 begonnene ist kein Flug der Liste und zählt als am Boden.</translation>
    </message>
    <message>
        <source>THE ENGINE STOPPED in that flight, %1: the verdict here does not count it, for no flight tells it.</source>
        <translation>DER MOTOR BLIEB in diesem Flug STEHEN, %1: Das Urteil hier zählt das nicht, denn kein Flug erzählt davon.</translation>
    </message>
</context>
<context>
    <name>ZARN::ShownParameter</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>CAN identifier: %1</source>
        <translation>CAN-Kennung: %1</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>Thresholds:</source>
        <translation>Schwellen:</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>from</source>
        <translation>ab</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Computed: %1</source>
        <translation>Berechnet: %1</translation>
    </message>
</context>
<context>
    <name>ZARN::StatusProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop loading (Esc); what is shown stays</source>
        <translation>Laden abbrechen (Esc); was angezeigt wird, bleibt</translation>
    </message>
</context>
<context>
    <name>ZARN::Store</name>
    <message>
        <source>the store was removed or replaced while it was written</source>
        <translation>der Datenspeicher wurde entfernt oder ersetzt, während er geschrieben wurde</translation>
    </message>
    <message>
        <source>it could not be read; nothing is wrong with it</source>
        <translation>Er konnte nicht gelesen werden; beschädigt ist er nicht</translation>
    </message>
    <message>
        <source>; nothing of it could be read: recordings come back when their cards are opened or scanned again, and what was typed (notes, services, hours before) has to be typed again</source>
        <translation>; nichts davon war lesbar: Aufzeichnungen kommen wieder, wenn ihre Karten erneut geöffnet oder aufgenommen werden, und was eingegeben wurde (Notizen, Wartungen, Stunden davor), muss neu eingegeben werden</translation>
    </message>
    <message>
        <source>; a new one has what could be read of it: cycles %1, flights %2, notes %3, services %4, typed hours %5</source>
        <translation>; ein neuer hat, was davon lesbar war: Zyklen %1, Flüge %2, Notizen %3, Wartungen %4, eingegebene Stunden %5</translation>
    </message>
    <message>
        <source>; cycles without their engine hours: %1</source>
        <translation>; Zyklen ohne ihre Motorstunden: %1</translation>
    </message>
    <message>
        <source>; what was in the damaged part is missing: recordings, and the engine hours in them, until their cards are opened or scanned again, and what was typed</source>
        <translation>; was im beschädigten Teil stand, fehlt: Aufzeichnungen und ihre Motorstunden, bis ihre Karten erneut geöffnet oder aufgenommen werden, und Eingegebenes</translation>
    </message>
    <message>
        <source>; it was put aside as %1</source>
        <translation>; er wurde als %1 beiseitegelegt</translation>
    </message>
    <message>
        <source>; what can be read of it could not be taken over into a new one: %1</source>
        <translation>; was davon lesbar ist, konnte nicht in einen neuen übernommen werden: %1</translation>
    </message>
</context>
<context>
    <name>ZARN::StoreSchema</name>
    <message>
        <source>the store was written by a newer version of the program (form %1, this one knows %2)</source>
        <translation>der Datenspeicher stammt von einer neueren Version des Programms (Form %1, diese kennt %2)</translation>
    </message>
    <message>
        <source>it is no store: an SQLite file of another program</source>
        <translation>kein Datenspeicher: eine SQLite-Datei eines anderen Programms</translation>
    </message>
    <message>
        <source>the store is empty</source>
        <translation>der Datenspeicher ist leer</translation>
    </message>
    <message>
        <source>the store is of an older version: scan a card into it first</source>
        <translation>der Datenspeicher stammt von einer älteren Version: Nehmen Sie zuerst eine Karte darin auf</translation>
    </message>
</context>
<context>
    <name>ZARN::StyleWatch</name>
    <message>
        <source>Style damaged: the built-in one is in force</source>
        <translation>Stil beschädigt: der eingebaute gilt</translation>
    </message>
    <message>
        <source>Style not found: the windows have none</source>
        <translation>Stil nicht gefunden: Die Fenster haben keinen</translation>
    </message>
</context>
<context>
    <name>ZARN::TableCopy</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy with Column Titles</source>
        <translation>Mit Spaltentiteln kopieren</translation>
    </message>
    <message>
        <source>That is too much for the clipboard: %1 cells. Select fewer rows, or export a CSV file.</source>
        <translation>Das ist zu viel für die Zwischenablage: %1 Zellen. Weniger Zeilen wählen oder als CSV-Datei exportieren.</translation>
    </message>
</context>
<context>
    <name>ZARN::TimeReference</name>
    <message>
        <source>Times are those of the recorder&apos;s clock.</source>
        <translation>Die Zeiten sind die der Uhr des Aufzeichners.</translation>
    </message>
    <message>
        <source>Times count from the take-off.</source>
        <translation>Die Zeiten zählen ab dem Start.</translation>
    </message>
    <message>
        <source>Times count from the unit&apos;s power-up.</source>
        <translation>Die Zeiten zählen ab dem Einschalten des Geräts.</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Since take-off</source>
        <translation>Seit dem Start</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Clock as recorded</source>
        <translation>Uhrzeit der Aufzeichnung</translation>
    </message>
    <message>
        <source>Since power-up</source>
        <translation>Seit dem Einschalten</translation>
    </message>
</context>
<context>
    <name>ZARN::TraceColourRow</name>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Trace whose color is set</source>
        <translation>Kurve, deren Farbe gesetzt wird</translation>
    </message>
    <message>
        <source>Color of the trace</source>
        <translation>Farbe der Kurve</translation>
    </message>
    <message>
        <source>Back to the color that the trace has by itself</source>
        <translation>Zurück zur Farbe, die die Kurve von selbst hat</translation>
    </message>
</context>
<context>
    <name>ZARN::TraceMenu</name>
    <message>
        <source>Color...</source>
        <translation>Farbe...</translation>
    </message>
    <message>
        <source>Line Width</source>
        <translation>Linienbreite</translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s)</source>
        <translation>
            <numerusform>%n Pixel</numerusform>
            <numerusform>%n Pixel</numerusform>
        </translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Linienart</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>ZARN::TrendScene</name>
    <message>
        <source>median, line: 5 to 95 %</source>
        <translation>Median, Linie: 5 bis 95 %</translation>
    </message>
    <message>
        <source>unusual</source>
        <translation>ungewöhnlich</translation>
    </message>
    <message>
        <source>drifting</source>
        <translation>driftet</translation>
    </message>
    <message>
        <source>grey: the 30 flights before</source>
        <translation>grau: die 30 Flüge davor</translation>
    </message>
    <message>
        <source>clock not set</source>
        <translation>Uhr nicht gestellt</translation>
    </message>
    <message>
        <source>median %1 (5 to 95 %: %2 to %3)</source>
        <translation>Median %1 (5 bis 95 %: %2 bis %3)</translation>
    </message>
    <message>
        <source>the %1 flights before: %2 to %3</source>
        <translation>die %1 Flüge davor: %2 bis %3</translation>
    </message>
</context>
<context>
    <name>ZARN::UnusualText</name>
    <message>
        <source>%1 %2 %3, in the %4 flights before %5 to %6</source>
        <translation>%1 %2 %3, in den %4 Flügen davor %5 bis %6</translation>
    </message>
    <message>
        <source>%1, and drifting</source>
        <translation>%1, und es driftet</translation>
    </message>
    <message>
        <source>%1, drifting</source>
        <translation>%1, driftet</translation>
    </message>
    <message>
        <source>flight %1, %2</source>
        <translation>Flug %1, %2</translation>
    </message>
    <message>
        <source>%1 more figures; the trends in the logbook have them all</source>
        <translation>%1 weitere Werte; die Trends im Logbuch haben alle</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetCycleCard</name>
    <message>
        <source>More sentences: %1. The lists of the cycle have them all.</source>
        <translation>Weitere Sätze: %1. Die Listen des Zyklus haben alle.</translation>
    </message>
    <message>
        <source>Open cycle</source>
        <translation>Zyklus öffnen</translation>
    </message>
    <message>
        <source>Load the whole power cycle</source>
        <translation>Den ganzen Zyklus laden</translation>
    </message>
    <message>
        <source>Flight %1</source>
        <translation>Flug %1</translation>
    </message>
    <message>
        <source>Load this flight</source>
        <translation>Diesen Flug laden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy what is told of this cycle as text</source>
        <translation>Was über diesen Zyklus gesagt ist, als Text kopieren</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetCycleStrip</name>
    <message>
        <source>Flight %1</source>
        <translation>Flug %1</translation>
    </message>
    <message>
        <source>Flight %1, %2 to %3</source>
        <translation>Flug %1, %2 bis %3</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetErrorTime</name>
    <message>
        <source>Bits that were set over time. From top to bottom: Info, Warning, Fault.
A click goes to the time, a double click to the graph.</source>
        <translation>Über die Zeit gesetzte Bits. Von oben nach unten: Info, Warnung, Fehler.
Ein Klick geht zu dem Zeitpunkt, ein Doppelklick zum Graphen.</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetIncidentRow</name>
    <message>
        <source>Show in the graph</source>
        <translation>Im Graphen zeigen</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetMap</name>
    <message>
        <source>Map of the flight</source>
        <translation>Karte des Fluges</translation>
    </message>
    <message>
        <source>No position recorded</source>
        <translation>Keine Position aufgezeichnet</translation>
    </message>
    <message>
        <source>Map tiles: %1</source>
        <translation>Kartenkacheln: %1</translation>
    </message>
    <message numerus="yes">
        <source>Loading the map: %n tile(s)</source>
        <translation>
            <numerusform>Karte wird geladen: %n Kachel</numerusform>
            <numerusform>Karte wird geladen: %n Kacheln</numerusform>
        </translation>
    </message>
    <message>
        <source>What the preferences name as the server is no address of map tiles</source>
        <translation>Was in den Einstellungen als Server steht, ist keine Adresse für Kartenkacheln</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetReplayBar</name>
    <message>
        <source>Replay Stop</source>
        <translation>Wiedergabe Stopp</translation>
    </message>
    <message>
        <source>Position in the record</source>
        <translation>Stelle in der Aufzeichnung</translation>
    </message>
    <message>
        <source>Date and time of the view, as the unit recorded it</source>
        <translation>Datum und Uhrzeit der Ansicht, wie vom Gerät aufgezeichnet</translation>
    </message>
    <message>
        <source>Speed of the replay</source>
        <translation>Tempo der Wiedergabe</translation>
    </message>
    <message>
        <source>Speed </source>
        <translation>Tempo </translation>
    </message>
    <message>
        <source>Replay Pause</source>
        <translation>Wiedergabe Pause</translation>
    </message>
    <message>
        <source>Replay Run</source>
        <translation>Wiedergabe Weiter</translation>
    </message>
    <message>
        <source>Replay Start</source>
        <translation>Wiedergabe Start</translation>
    </message>
    <message>
        <source>%1. 15:30 and 1530 are 15 minutes and 30 seconds, 1:15:30 is an hour later.</source>
        <translation>%1. 15:30 und 1530 sind 15 Minuten und 30 Sekunden, 1:15:30 ist eine Stunde später.</translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetTrend</name>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
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
    <message>
        <source>No records</source>
        <translation>Keine Aufzeichnung</translation>
    </message>
    <message>
        <source>What was chosen in the list on the left is empty: the unit was switched on, but recorded nothing. Choose another entry.</source>
        <translation>Was in der Liste links gewählt wurde, ist leer: Das Gerät war eingeschaltet, hat aber nichts aufgezeichnet. Wählen Sie einen anderen Eintrag.</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Nicht gelesen</translation>
    </message>
    <message>
        <source>What was chosen in the list on the left could not be read; above stands why. If the card was taken out, put it in again and choose anew.</source>
        <translation>Was in der Liste links gewählt wurde, konnte nicht gelesen werden; warum, steht darüber. Wurde die Karte herausgenommen, stecken Sie sie wieder ein und wählen Sie neu.</translation>
    </message>
</context>
<context>
    <name>ZARN::XmlGuard</name>
    <message>
        <source>Its elements, attributes and texts would take more than 64 MiB of memory.</source>
        <translation>Seine Elemente, Attribute und Texte nähmen mehr als 64 MiB Arbeitsspeicher ein.</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>es gibt kein Element</translation>
    </message>
    <message>
        <source>an element has no end tag</source>
        <translation>ein Element hat kein End-Tag</translation>
    </message>
    <message>
        <source>It has a declaration of a document type, which is not read.</source>
        <translation>Sie hat eine Deklaration eines Dokumenttyps, die nicht gelesen wird.</translation>
    </message>
    <message>
        <source>a comment, a section or an instruction has no end</source>
        <translation>ein Kommentar, ein Abschnitt oder eine Anweisung hat kein Ende</translation>
    </message>
    <message>
        <source>A tag has more than 1,000 attributes.</source>
        <translation>Ein Tag hat mehr als 1000 Attribute.</translation>
    </message>
    <message>
        <source>A tag has more than 64 KiB, or no end.</source>
        <translation>Ein Tag hat mehr als 64 KiB oder kein Ende.</translation>
    </message>
    <message>
        <source>a tag has no end, or a quotation mark is missing in it</source>
        <translation>ein Tag hat kein Ende, oder ihm fehlt ein Anführungszeichen</translation>
    </message>
    <message>
        <source>an end tag has no element</source>
        <translation>ein End-Tag hat kein Element</translation>
    </message>
    <message>
        <source>It has more than 64 levels of elements.</source>
        <translation>Sie hat mehr als 64 Ebenen von Elementen.</translation>
    </message>
    <message>
        <source>It is larger than 32 MiB.</source>
        <translation>Sie ist größer als 32 MiB.</translation>
    </message>
    <message>
        <source>It names an encoding of its text that is not known.</source>
        <translation>Sie nennt eine Kodierung ihres Textes, die nicht bekannt ist.</translation>
    </message>
    <message>
        <source>It has bytes that are no text in its encoding.</source>
        <translation>Sie hat Bytes, die in ihrer Kodierung kein Text sind.</translation>
    </message>
    <message>
        <source>the character with code 0 is no text</source>
        <translation>das Zeichen mit dem Code 0 ist kein Text</translation>
    </message>
</context>
<context>
    <name>ZARN::XmlReader</name>
    <message>
        <source>It is no well-formed XML: %1</source>
        <translation>Sie ist kein wohlgeformtes XML: %1</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Sie ist nicht lesbar: %1.</translation>
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
