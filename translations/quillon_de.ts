<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Quillon</name>
    <message>
        <source>Unknown...</source>
        <translation>Unbekannt...</translation>
    </message>
    <message>
        <source>Another program is using the file.</source>
        <translation>Ein anderes Programm verwendet die Datei.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>Auf dem Datenträger ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>Der Datenträger konnte nicht gelesen oder beschrieben werden.</translation>
    </message>
    <message>
        <source>Rules and history could not be saved. They are kept while Quillon runs. %@</source>
        <translation>Regeln und Verlauf konnten nicht gespeichert werden. Sie bleiben erhalten, solange Quillon läuft. %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>The records were written by a newer version of Quillon</source>
        <translation>Die Aufzeichnungen stammen von einer neueren Version von Quillon</translation>
    </message>
    <message>
        <source>They are left untouched; please install that version again to use them: %@</source>
        <translation>Sie bleiben unverändert; um sie zu verwenden, bitte jene Version wieder installieren: %@</translation>
    </message>
    <message>
        <source>The records cannot be opened</source>
        <translation>Die Aufzeichnungen lassen sich nicht öffnen</translation>
    </message>
    <message>
        <source>%@

Rules and history are in this file, which is left as it is: %@</source>
        <translation>%@

Regeln und Verlauf sind in dieser Datei, die unverändert bleibt: %@</translation>
    </message>
    <message>
        <source>Settings are damaged</source>
        <translation>Einstellungen sind beschädigt</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file was left as it was: %@</source>
        <translation>Quillon arbeitet mit den bekannten Einstellungen oder mit seinen Vorgaben weiter. Die beschädigte Datei blieb unverändert: %@</translation>
    </message>
    <message>
        <source>Settings were damaged</source>
        <translation>Einstellungen waren beschädigt</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file is kept: %@</source>
        <translation>Quillon arbeitet mit den bekannten Einstellungen oder mit seinen Vorgaben weiter. Die beschädigte Datei bleibt erhalten: %@</translation>
    </message>
    <message>
        <source>Settings cannot be read</source>
        <translation>Einstellungen lassen sich nicht lesen</translation>
    </message>
    <message>
        <source>Quillon uses its defaults and leaves the file alone: %@</source>
        <translation>Quillon verwendet seine Vorgaben und ändert die Datei nicht: %@</translation>
    </message>
    <message>
        <source>Settings cannot be saved</source>
        <translation>Einstellungen lassen sich nicht speichern</translation>
    </message>
    <message>
        <source>Changes last until Quillon quits. Please check the permissions of %@</source>
        <translation>Änderungen gelten, bis Quillon beendet wird. Bitte die Zugriffsrechte prüfen: %@</translation>
    </message>
    <message>
        <source>There is no room left on the disk. Changes last until Quillon quits: %@</source>
        <translation>Auf dem Datenträger ist kein Platz mehr. Änderungen gelten, bis Quillon beendet wird: %@</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Änderungen konnten beim Beenden nicht gespeichert werden. Trotzdem beenden?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Wird Quillon jetzt beendet, gehen alle Änderungen seit dem letzten erfolgreichen Speichern verloren</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%@ did not let go of it</source>
        <translation>%@ hat die Schnittstelle nicht freigegeben</translation>
    </message>
    <message>
        <source>Only the session in front of this computer may change it</source>
        <translation>Nur eine Sitzung direkt an diesem Rechner darf die Adresse ändern</translation>
    </message>
    <message>
        <source>Please make sure you have installed the HelperTool</source>
        <translation>Bitte sicherstellen, dass das Hilfsprogramm installiert ist</translation>
    </message>
    <message>
        <source>%@ gives this network an Address of its own. Look for it in the network&apos;s settings</source>
        <translation>%@ gibt diesem Netzwerk eine eigene Adresse. Sie steht in den Einstellungen des Netzwerks</translation>
    </message>
    <message>
        <source>Please make sure your Device is enabled</source>
        <translation>Bitte sicherstellen, dass das Gerät aktiviert ist</translation>
    </message>
    <message>
        <source>%@ Address Changed</source>
        <translation>%@: Adresse geändert</translation>
    </message>
    <message>
        <source>Your new MAC Address is: %@</source>
        <translation>Die neue MAC-Adresse ist: %@</translation>
    </message>
    <message>
        <source>Please connect it again with the program that connects it</source>
        <translation>Bitte mit dem zuständigen Programm neu verbinden</translation>
    </message>
    <message>
        <source>Please connect it again with %@</source>
        <translation>Bitte mit %@ neu verbinden</translation>
    </message>
    <message>
        <source>%@ is not connected again</source>
        <translation>%@ ist nicht wieder verbunden</translation>
    </message>
    <message>
        <source>%@ keeps the IP Address of before</source>
        <translation>%@ behält die bisherige IP-Adresse</translation>
    </message>
    <message>
        <source>%@ keeps an IPv6 Address made from the old one</source>
        <translation>%@ behält eine aus der alten Adresse gebildete IPv6-Adresse</translation>
    </message>
    <message>
        <source>%@ Address may be replaced</source>
        <translation>%@: Adresse wird eventuell ersetzt</translation>
    </message>
    <message>
        <source>This session may not control %@. The new Address holds until the interface connects the next time</source>
        <translation>Diese Sitzung darf %@ nicht steuern. Die neue Adresse gilt, bis sich die Schnittstelle das nächste Mal verbindet</translation>
    </message>
    <message>
        <source>The new Address and the old Address are identical</source>
        <translation>Die neue und die alte Adresse sind identisch</translation>
    </message>
    <message>
        <source>%@ Address was replaced</source>
        <translation>%@: Adresse wurde ersetzt</translation>
    </message>
    <message>
        <source>Another program keeps setting an Address of its own. Your rule acts again when you join a network</source>
        <translation>Ein anderes Programm setzt immer wieder eine eigene Adresse. Die Regel greift wieder bei der nächsten Verbindung mit einem Netzwerk</translation>
    </message>
    <message>
        <source>%@ Address was not Changed</source>
        <translation>%@: Adresse wurde nicht geändert</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>%@ now has %@ in place of %@.</source>
        <translation>%@ hat jetzt %@ statt %@.</translation>
    </message>
    <message>
        <source>%@ owns this interface.</source>
        <translation>%@ verwaltet diese Schnittstelle.</translation>
    </message>
    <message>
        <source>%@ shows another Address</source>
        <translation>%@ zeigt eine andere Adresse</translation>
    </message>
    <message>
        <source>Apply again</source>
        <translation>Erneut anwenden</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Akzeptieren</translation>
    </message>
    <message>
        <source>Show window</source>
        <translation>Fenster anzeigen</translation>
    </message>
    <message>
        <source>Randomize address</source>
        <translation>Adresse zufällig ändern</translation>
    </message>
    <message>
        <source>Shortcut for “%@” not set</source>
        <translation>Tastenkürzel für „%@“ nicht gesetzt</translation>
    </message>
    <message>
        <source>A shortcut needs Ctrl, Alt or Meta and one more key.</source>
        <translation>Ein Tastenkürzel braucht Strg, Alt oder Meta und eine weitere Taste.</translation>
    </message>
    <message>
        <source>Another program uses this shortcut.</source>
        <translation>Ein anderes Programm verwendet dieses Tastenkürzel.</translation>
    </message>
    <message>
        <source>The desktop refused this shortcut.</source>
        <translation>Die Arbeitsumgebung hat dieses Tastenkürzel abgelehnt.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Diese Tastatur hat keine solche Taste.</translation>
    </message>
    <message>
        <source>This desktop does not let programs set global shortcuts.</source>
        <translation>In dieser Arbeitsumgebung können Programme keine globalen Tastenkürzel setzen.</translation>
    </message>
    <message>
        <source>Quillon requires Location Services to determine your current network details</source>
        <translation>Quillon benötigt die Standortdienste, um Angaben zum aktuellen Netzwerk zu ermitteln</translation>
    </message>
    <message>
        <source>You need to give Quillon access in System Settings &gt; Privacy &amp; Security &gt; Privacy &gt; Location Services</source>
        <translation>Der Zugriff für Quillon wird hier erlaubt: Systemeinstellungen &gt; Datenschutz &amp; Sicherheit &gt; Datenschutz &gt; Standortdienste</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Random Address</source>
        <translation>Zufällige Adresse</translation>
    </message>
    <message>
        <source>Not currently connected...</source>
        <translation>Derzeit nicht verbunden...</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>WPA Personal</translation>
    </message>
    <message>
        <source>WPA Personal Mixed</source>
        <translation>WPA Personal (gemischt)</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>WPA2 Personal</translation>
    </message>
    <message>
        <source>Personal</source>
        <translation>Personal</translation>
    </message>
    <message>
        <source>Dynamic WEP</source>
        <translation>Dynamisches WEP</translation>
    </message>
    <message>
        <source>WPA Enterprise</source>
        <translation>WPA Enterprise</translation>
    </message>
    <message>
        <source>WPA Enterprise Mixed</source>
        <translation>WPA Enterprise (gemischt)</translation>
    </message>
    <message>
        <source>WPA2 Enterprise</source>
        <translation>WPA2 Enterprise</translation>
    </message>
    <message>
        <source>Enterprise</source>
        <translation>Enterprise</translation>
    </message>
    <message>
        <source>Quillon is not in the status bar</source>
        <translation>Quillon ist nicht in der Statusleiste</translation>
    </message>
    <message>
        <source>This desktop shows no status items. Minimize the window to keep Quillon running: closing it ends Quillon.</source>
        <translation>Diese Arbeitsumgebung zeigt keine Statussymbole. Damit Quillon weiterläuft, das Fenster minimieren: Schließen beendet Quillon.</translation>
    </message>
    <message>
        <source>New Network Rule…</source>
        <translation>Neue Netzwerkregel…</translation>
    </message>
    <message>
        <source>New Login Rule…</source>
        <translation>Neue Anmelderegel…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>%@Hardware Address · %@</source>
        <translation>%@Hardware-Adresse · %@</translation>
    </message>
    <message>
        <source>%@Current Address · %@</source>
        <translation>%@Aktuelle Adresse · %@</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>Zufällig ändern</translation>
    </message>
    <message>
        <source>%@Resume Timer</source>
        <translation>%@Timer fortsetzen</translation>
    </message>
    <message>
        <source>%@Pause Timer</source>
        <translation>%@Timer anhalten</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>In dieser Version noch nicht enthalten</translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation>Quillon öffnen</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Saved Networks and Addresses</source>
        <translation>Gespeicherte Netzwerke und Adressen</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>About Quillon</source>
        <translation>Über Quillon</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>Quillon beenden</translation>
    </message>
    <message>
        <source>Remove Network from Favorites</source>
        <translation>Netzwerk aus den Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add Network to Favorites</source>
        <translation>Netzwerk zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Remove Address from Favorites</source>
        <translation>Adresse aus den Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add Address to Favorites</source>
        <translation>Adresse zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Network name</source>
        <translation>Netzwerkname</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Datenrate</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>MCS</source>
        <translation>MCS</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>no rules have been configured</source>
        <translation>Keine Regeln eingerichtet</translation>
    </message>
    <message>
        <source>has an Active rule</source>
        <translation>Eine Regel ist aktiv</translation>
    </message>
    <message>
        <source>no rules are currently Active</source>
        <translation>Derzeit ist keine Regel aktiv</translation>
    </message>
    <message>
        <source>No interface is selected: there is none to choose a vendor for</source>
        <translation>Keine Schnittstelle ausgewählt, für die sich ein Hersteller wählen ließe</translation>
    </message>
    <message>
        <source>Update database</source>
        <translation>Datenbank aktualisieren</translation>
    </message>
    <message>
        <source>Getting download information...</source>
        <translation>Angaben zum Download werden abgerufen...</translation>
    </message>
    <message>
        <source>Updating Vendor Identifier count...</source>
        <translation>Anzahl der Herstellerkennungen wird aktualisiert...</translation>
    </message>
    <message>
        <source>Cancel download...</source>
        <translation>Download abbrechen...</translation>
    </message>
    <message>
        <source>Downloading... %@MB</source>
        <translation>Herunterladen... %@MB</translation>
    </message>
    <message>
        <source>Downloading... %@% of %@MB</source>
        <translation>Herunterladen... %@% von %@MB</translation>
    </message>
    <message>
        <source>Download cancelled...</source>
        <translation>Download abgebrochen...</translation>
    </message>
    <message>
        <source>Processing data...</source>
        <translation>Daten werden verarbeitet...</translation>
    </message>
    <message>
        <source>Parsing file failed...</source>
        <translation>Datei konnte nicht ausgewertet werden...</translation>
    </message>
    <message>
        <source>Last Updated: %@</source>
        <translation>Zuletzt aktualisiert: %@</translation>
    </message>
    <message>
        <source>Restoring the previous database...</source>
        <translation>Vorherige Datenbank wird wiederhergestellt...</translation>
    </message>
    <message>
        <source>Restoring failed...</source>
        <translation>Wiederherstellen fehlgeschlagen...</translation>
    </message>
    <message>
        <source>Getting Vendor Identifier count...</source>
        <translation>Herstellerkennungen werden gezählt...</translation>
    </message>
    <message numerus="yes">
        <source>%@ Vendor Identifiers</source>
        <translation>
            <numerusform>%@ Herstellerkennung</numerusform>
            <numerusform>%@ Herstellerkennungen</numerusform>
        </translation>
    </message>
    <message>
        <source>This is the address in use. Type or drop another to change it.</source>
        <translation>Dies ist die verwendete Adresse. Zum Ändern eine andere eingeben oder hierher ziehen.</translation>
    </message>
    <message>
        <source>A MAC address has 12 hexadecimal digits.</source>
        <translation>Eine MAC-Adresse hat 12 hexadezimale Ziffern.</translation>
    </message>
    <message>
        <source>This is not a MAC address.</source>
        <translation>Dies ist keine MAC-Adresse.</translation>
    </message>
    <message>
        <source>Group address: most adapters refuse it.</source>
        <translation>Gruppenadresse: Die meisten Adapter lehnen sie ab.</translation>
    </message>
    <message>
        <source>Press Return or Apply to use this address.</source>
        <translation>Die Eingabetaste oder „Anwenden“ setzt diese Adresse.</translation>
    </message>
    <message>
        <source>Changed: this is the address in use now.</source>
        <translation>Geändert: Dies ist jetzt die verwendete Adresse.</translation>
    </message>
    <message>
        <source>The address was not changed.</source>
        <translation>Die Adresse wurde nicht geändert.</translation>
    </message>
    <message>
        <source>Not changed: %@.</source>
        <translation>Nicht geändert: %@.</translation>
    </message>
    <message>
        <source>Changing…</source>
        <translation>Wird geändert…</translation>
    </message>
    <message>
        <source>Install the helper to change the address.</source>
        <translation>Zum Ändern der Adresse das Hilfsprogramm installieren.</translation>
    </message>
    <message>
        <source>No interface here can be changed.</source>
        <translation>Keine Schnittstelle lässt sich ändern.</translation>
    </message>
    <message>
        <source>No interface is selected: there is none whose address can be changed</source>
        <translation>Keine Schnittstelle ausgewählt, deren Adresse sich ändern ließe</translation>
    </message>
    <message>
        <source>The selected interface is not there</source>
        <translation>Die ausgewählte Schnittstelle ist nicht vorhanden</translation>
    </message>
    <message>
        <source>The helper tool is not installed</source>
        <translation>Das Hilfsprogramm ist nicht installiert</translation>
    </message>
    <message>
        <source>The field holds no other address to apply</source>
        <translation>Im Feld steht keine andere Adresse</translation>
    </message>
    <message>
        <source>The interface has its factory address</source>
        <translation>Die Schnittstelle hat ihre Werksadresse</translation>
    </message>
    <message>
        <source>The interface has no factory address that is known</source>
        <translation>Die Werksadresse der Schnittstelle ist nicht bekannt</translation>
    </message>
    <message>
        <source>Changing an address needs administrator rights, which Quillon itself never has. A small helper makes the change and nothing else. Installing it asks for an administrator&apos;s password once; Preferences › Advanced removes it again.</source>
        <translation>Das Ändern einer Adresse erfordert Systemverwalterrechte, die Quillon selbst nie hat. Ein kleines Hilfsprogramm nimmt die Änderung vor und sonst nichts. Seine Installation fragt einmal nach dem Passwort eines Systemverwalters; unter Einstellungen › Erweitert lässt es sich wieder entfernen.</translation>
    </message>
    <message>
        <source>...changing MAC Address in %@</source>
        <translation>...neue MAC-Adresse in %@</translation>
    </message>
    <message>
        <source>(paused)</source>
        <translation>(angehalten)</translation>
    </message>
    <message>
        <source>Quillon Timer started</source>
        <translation>Quillon-Timer gestartet</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>File menu</source>
        <translation>Dateimenü</translation>
    </message>
    <message>
        <source>File menu (F10)</source>
        <translation>Dateimenü (F10)</translation>
    </message>
    <message>
        <source>External address</source>
        <translation>Externe Adresse</translation>
    </message>
    <message>
        <source>Refresh external address</source>
        <translation>Externe Adresse aktualisieren</translation>
    </message>
    <message>
        <source>Asks a public service under which address it sees you</source>
        <translation>Fragt einen öffentlichen Dienst, unter welcher Adresse dieser Rechner dort erscheint</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Saved addresses</source>
        <translation>Gespeicherte Adressen</translation>
    </message>
    <message>
        <source>Add the current address with the heart.</source>
        <translation>Das Herz fügt die aktuelle Adresse hinzu.</translation>
    </message>
    <message>
        <source>Click to put one into the field, or drag it there.</source>
        <translation>Ein Klick setzt eine Adresse ins Feld; sie lässt sich auch dorthin ziehen.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Active rule</source>
        <translation>Aktive Regel</translation>
    </message>
    <message>
        <source>No active rules</source>
        <translation>Keine aktiven Regeln</translation>
    </message>
    <message>
        <source>No rules</source>
        <translation>Keine Regeln</translation>
    </message>
    <message>
        <source>No rule for this interface.</source>
        <translation>Keine Regel für diese Schnittstelle.</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Pause or Resume Timer</source>
        <translation>Timer anhalten oder fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Vendor</source>
        <translation>&amp;Hersteller</translation>
    </message>
    <message>
        <source>Vendor of random addresses</source>
        <translation>Hersteller zufälliger Adressen</translation>
    </message>
    <message>
        <source>Type the beginning of a name, then choose from the list</source>
        <translation>Den Anfang eines Namens eingeben, dann aus der Liste wählen</translation>
    </message>
    <message>
        <source>Hide vendors</source>
        <translation>Hersteller ausblenden</translation>
    </message>
    <message>
        <source>Show vendors</source>
        <translation>Hersteller anzeigen</translation>
    </message>
    <message>
        <source>Bring back the vendors from before the last update</source>
        <translation>Den Stand vor der letzten Aktualisierung zurückholen</translation>
    </message>
    <message>
        <source>The vendors from before the last update are being brought back</source>
        <translation>Der Stand vor der letzten Aktualisierung wird zurückgeholt</translation>
    </message>
    <message>
        <source>Not while the database is being updated</source>
        <translation>Nicht während die Datenbank aktualisiert wird</translation>
    </message>
    <message>
        <source>There are no vendors from before an update</source>
        <translation>Es gibt keinen Stand vor einer Aktualisierung</translation>
    </message>
    <message>
        <source>Not while the vendors from before are being brought back</source>
        <translation>Nicht während der vorherige Stand zurückgeholt wird</translation>
    </message>
    <message>
        <source>Vendor Data</source>
        <translation>Herstellerdaten</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Fortschritt des Downloads</translation>
    </message>
    <message>
        <source>Restore previous</source>
        <translation>Vorherige wiederherstellen</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Signal and noise are not known</source>
        <translation>Signal und Rauschen sind nicht bekannt</translation>
    </message>
    <message>
        <source>Signal %@</source>
        <translation>Signal %@</translation>
    </message>
    <message>
        <source>Noise %@</source>
        <translation>Rauschen %@</translation>
    </message>
    <message>
        <source>Signal %@, noise %@</source>
        <translation>Signal %@, Rauschen %@</translation>
    </message>
    <message>
        <source>Signal and noise over the last five minutes</source>
        <translation>Signal und Rauschen der letzten fünf Minuten</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 Minuten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation>A&amp;dresse</translation>
    </message>
    <message>
        <source>The address in use is not the hardware address</source>
        <translation>Die verwendete Adresse ist nicht die Hardware-Adresse</translation>
    </message>
    <message>
        <source>Apply address</source>
        <translation>Adresse anwenden</translation>
    </message>
    <message>
        <source>&amp;Randomize</source>
        <translation>&amp;Zufällig ändern</translation>
    </message>
    <message>
        <source>Changed: the address in use is not the hardware address</source>
        <translation>Geändert: Die verwendete Adresse ist nicht die Hardware-Adresse</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits. Return applies the address.</source>
        <translation>Zwölf hexadezimale Ziffern. Die Eingabetaste setzt die Adresse.</translation>
    </message>
    <message>
        <source>Gives the interface the address in the field</source>
        <translation>Gibt der Schnittstelle die Adresse im Feld</translation>
    </message>
    <message>
        <source>Gives the interface a random, locally administered address</source>
        <translation>Gibt der Schnittstelle eine zufällige, lokal verwaltete Adresse</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits, with or without colons. Return applies the address.</source>
        <translation>Zwölf hexadezimale Ziffern, mit oder ohne Doppelpunkte. Die Eingabetaste setzt die Adresse.</translation>
    </message>
    <message>
        <source>Hardware address</source>
        <translation>Hardware-Adresse</translation>
    </message>
    <message>
        <source>The address the device was made with.</source>
        <translation>Die Adresse, mit der das Gerät hergestellt wurde.</translation>
    </message>
    <message>
        <source>Restore hardware address</source>
        <translation>Hardware-Adresse wiederherstellen</translation>
    </message>
    <message>
        <source>Pause the countdown of %@</source>
        <translation>Countdown von %@ anhalten</translation>
    </message>
    <message>
        <source>Resume the countdown of %@</source>
        <translation>Countdown von %@ fortsetzen</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Hardware %@</source>
        <translation>Hardware %@</translation>
    </message>
    <message>
        <source>Vendor %@</source>
        <translation>Hersteller %@</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>Verwendete Adresse</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <translation>Schnittstellen</translation>
    </message>
    <message>
        <source>Rules of %@</source>
        <translation>Regeln von %@</translation>
    </message>
    <message>
        <source>Randomize %@</source>
        <translation>%@ zufällig ändern</translation>
    </message>
    <message>
        <source>Randomizing %@</source>
        <translation>%@ wird zufällig geändert</translation>
    </message>
    <message>
        <source>Restore the hardware address of %@</source>
        <translation>Hardware-Adresse von %@ wiederherstellen</translation>
    </message>
    <message>
        <source>Restoring the hardware address of %@</source>
        <translation>Hardware-Adresse von %@ wird wiederhergestellt</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Reads the interfaces and their addresses anew</source>
        <translation>Liest die Schnittstellen und ihre Adressen neu</translation>
    </message>
    <message>
        <source>There are interfaces that are not listed here yet.</source>
        <translation>Es gibt Schnittstellen, die hier noch nicht stehen.</translation>
    </message>
    <message>
        <source>The list shows the addresses as they were when it was opened.</source>
        <translation>Die Liste zeigt die Adressen wie beim Öffnen.</translation>
    </message>
    <message>
        <source>Configure %@</source>
        <translation>%@ einstellen</translation>
    </message>
    <message>
        <source>The address is now %@.</source>
        <translation>Die Adresse ist jetzt %@.</translation>
    </message>
    <message>
        <source>The interface is not there</source>
        <translation>Die Schnittstelle ist nicht vorhanden</translation>
    </message>
    <message>
        <source>Gives the interface its hardware address again</source>
        <translation>Gibt der Schnittstelle wieder ihre Hardware-Adresse</translation>
    </message>
    <message>
        <source>Gives the interface the address back that it was made with</source>
        <translation>Gibt der Schnittstelle die Adresse zurück, mit der sie hergestellt wurde</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4-Adresse</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Link active</source>
        <translation>Verbindung aktiv</translation>
    </message>
    <message>
        <source>Link inactive</source>
        <translation>Verbindung inaktiv</translation>
    </message>
    <message>
        <source>The network interface whose address is shown and changed</source>
        <translation>Die Netzwerkschnittstelle, deren Adresse angezeigt und geändert wird</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>The internet cannot be reached now.</source>
        <translation>Das Internet ist jetzt nicht erreichbar.</translation>
    </message>
    <message>
        <source>The place to look at is not an https address.</source>
        <translation>Der Ort, an dem gesucht werden soll, ist keine https-Adresse.</translation>
    </message>
    <message>
        <source>The list of versions could not be fetched.</source>
        <translation>Die Liste der Versionen konnte nicht geholt werden.</translation>
    </message>
    <message>
        <source>What came is not from the authors of Quillon and was not used.</source>
        <translation>Was kam, ist nicht von den Autoren von Quillon und wurde nicht verwendet.</translation>
    </message>
    <message>
        <source>The list of versions that came is out of date and was not used.</source>
        <translation>Die Liste der Versionen, die kam, ist veraltet und wurde nicht verwendet.</translation>
    </message>
    <message>
        <source>Last checked: %@</source>
        <translation>Zuletzt gesucht: %@</translation>
    </message>
    <message>
        <source>Not checked yet.</source>
        <translation>Noch nicht gesucht.</translation>
    </message>
    <message>
        <source>Quillon %@ is available</source>
        <translation>Quillon %@ ist da</translation>
    </message>
    <message>
        <source>This is version %@.</source>
        <translation>Dies ist Version %@.</translation>
    </message>
    <message>
        <source>Quillon %@ is the newest version.</source>
        <translation>Quillon %@ ist die neueste Version.</translation>
    </message>
    <message>
        <source>No browser could be opened.</source>
        <translation>Es konnte kein Browser geöffnet werden.</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>Seite öffnen</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Was neu ist</translation>
    </message>
    <message>
        <source>Show it in the software center, or in the browser</source>
        <translation>In der Softwareverwaltung oder im Browser zeigen</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Nach neuen Versionen suchen</translation>
    </message>
    <message>
        <source>Open a new version&apos;s page</source>
        <translation>Seite einer neuen Version öffnen</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>This copy of Quillon does not look for new versions.</source>
        <translation>Dieses Quillon sucht nicht nach neuen Versionen.</translation>
    </message>
    <message>
        <source>Your system&apos;s software updates bring new versions.</source>
        <translation>Neue Versionen kommen mit den Aktualisierungen des Systems.</translation>
    </message>
    <message>
        <source>How often</source>
        <translation>Wie oft</translation>
    </message>
    <message>
        <source>At once, in the software center or the browser. Quillon itself downloads and installs nothing.</source>
        <translation>Sofort, in der Softwareverwaltung oder im Browser. Quillon selbst lädt und installiert nichts.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird gesucht…</translation>
    </message>
    <message>
        <source>Only while Quillon checks by itself</source>
        <translation>Nur wenn Quillon selbst danach sucht</translation>
    </message>
    <message>
        <source>What is new is in Preferences › Updates.</source>
        <translation>Was neu ist, steht unter Einstellungen › Aktualisierungen.</translation>
    </message>
    <message>
        <source>The helper is not installed</source>
        <translation>Das Hilfsprogramm fehlt</translation>
    </message>
    <message>
        <source>Helper hint</source>
        <translation>Hinweis zum Hilfsprogramm</translation>
    </message>
    <message>
        <source>What is the helper?</source>
        <translation>Was ist das Hilfsprogramm?</translation>
    </message>
    <message>
        <source>Install helper</source>
        <translation>Hilfsprogramm installieren</translation>
    </message>
    <message>
        <source>Asks for an administrator&apos;s password</source>
        <translation>Fragt nach dem Passwort eines Systemverwalters</translation>
    </message>
    <message>
        <source>About the helper</source>
        <translation>Über das Hilfsprogramm</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Wird installiert…</translation>
    </message>
    <message>
        <source>&amp;Install Helper</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message numerus="yes">
        <source>%@ (added %@ new Identifiers)</source>
        <translation>
            <numerusform>%@ (%@ neue Kennung)</numerusform>
            <numerusform>%@ (%@ neue Kennungen)</numerusform>
        </translation>
    </message>
    <message>
        <source>Getting Vendor infomation...</source>
        <translation>Angaben zum Hersteller werden abgerufen...</translation>
    </message>
    <message>
        <source>No Vendor Information available...</source>
        <translation>Kein Hersteller bekannt...</translation>
    </message>
    <message>
        <source>Favorite removed</source>
        <translation>Favorit entfernt</translation>
    </message>
    <message>
        <source>The list of vendors is missing.</source>
        <translation>Die Liste der Hersteller fehlt.</translation>
    </message>
    <message>
        <source>No vendor begins with “%@”.</source>
        <translation>Kein Hersteller beginnt mit „%@“.</translation>
    </message>
    <message>
        <source>The interface does not say which address it has now.</source>
        <translation>Die Schnittstelle nennt ihre jetzige Adresse nicht.</translation>
    </message>
    <message>
        <source>Not connected again: look at the address when it is.</source>
        <translation>Noch nicht wieder verbunden: dann die Adresse prüfen.</translation>
    </message>
    <message>
        <source>Changed, but to another address than you asked for.</source>
        <translation>Geändert, aber nicht in die gewünschte Adresse.</translation>
    </message>
    <message>
        <source>This interface is not there: select another.</source>
        <translation>Diese Schnittstelle ist nicht da: eine andere wählen.</translation>
    </message>
    <message>
        <source>The address is being changed</source>
        <translation>Die Adresse wird gerade geändert</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Edit Saved Items</source>
        <translation>Gespeichertes bearbeiten</translation>
    </message>
    <message>
        <source>Opens the window of saved networks and addresses</source>
        <translation>Öffnet das Fenster der gespeicherten Netzwerke und Adressen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>Netzwerke</translation>
    </message>
    <message>
        <source>Join a network and press its heart.</source>
        <translation>Mit einem Netzwerk verbinden und dessen Herz drücken.</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Adressen</translation>
    </message>
    <message>
        <source>Open the saved addresses and press the heart.</source>
        <translation>Die gespeicherten Adressen öffnen und das Herz drücken.</translation>
    </message>
    <message>
        <source>Recognize by</source>
        <translation>Erkennen an</translation>
    </message>
    <message>
        <source>Name %@</source>
        <translation>Name %@</translation>
    </message>
    <message>
        <source>Access point %@</source>
        <translation>Zugangspunkt %@</translation>
    </message>
    <message>
        <source>Countdown ended</source>
        <translation>Countdown beendet</translation>
    </message>
    <message>
        <source>Countdown paused</source>
        <translation>Countdown angehalten</translation>
    </message>
    <message>
        <source>Countdown resumed</source>
        <translation>Countdown fortgesetzt</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Wird angewendet…</translation>
    </message>
    <message>
        <source>Randomizing…</source>
        <translation>Wird geändert…</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>Wird wiederhergestellt…</translation>
    </message>
    <message>
        <source>Looking it up…</source>
        <translation>Wird abgefragt…</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>Look-up is off</source>
        <translation>Abfrage ist aus</translation>
    </message>
    <message>
        <source>A public service is being asked under which address it sees you.</source>
        <translation>Ein öffentlicher Dienst wird gefragt, unter welcher Adresse er Sie sieht.</translation>
    </message>
    <message>
        <source>The public service did not answer. This is what it said before. The button asks again.</source>
        <translation>Der öffentliche Dienst hat nicht geantwortet. Das hat er zuvor gesagt. Die Schaltfläche fragt noch einmal.</translation>
    </message>
    <message>
        <source>The public service did not answer with an address. The button asks again.</source>
        <translation>Der öffentliche Dienst hat nicht mit einer Adresse geantwortet. Die Schaltfläche fragt noch einmal.</translation>
    </message>
    <message>
        <source>It is not looked up by itself. The button asks a public service once.</source>
        <translation>Sie wird nicht von selbst abgefragt. Die Schaltfläche fragt einmal einen öffentlichen Dienst.</translation>
    </message>
    <message>
        <source>Wi-Fi is switched off.</source>
        <translation>WLAN ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>Write it with colons: %@.</source>
        <translation>Mit Doppelpunkten schreiben: %@.</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>Nicht vorhanden</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Any Network</source>
        <translation>Jedes Netzwerk</translation>
    </message>
    <message>
        <source>An Unknown Network</source>
        <translation>Ein unbekanntes Netzwerk</translation>
    </message>
    <message>
        <source>%@ is not saved: press its heart first.</source>
        <translation>%@ ist nicht gespeichert: Klicken Sie erst auf das Herz.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not here any more.</source>
        <translation>Die Regel war für %@, das es hier nicht mehr gibt.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not saved any more.</source>
        <translation>Die Regel war für %@, das nicht mehr gespeichert ist.</translation>
    </message>
    <message>
        <source>The rule that was open is not there any more.</source>
        <translation>Die geöffnete Regel gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Another rule for this interface and network was switched off: only one can be on.</source>
        <translation>Eine andere Regel für diese Schnittstelle und dieses Netzwerk wurde ausgeschaltet: Nur eine kann eingeschaltet sein.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made first.</source>
        <translation>Stattdessen gilt „%@“: Sie wurde zuerst angelegt.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: this network is not saved.</source>
        <translation>Stattdessen gilt „%@“: Dieses Netzwerk ist nicht gespeichert.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made for this network.</source>
        <translation>Stattdessen gilt „%@“: Sie wurde für dieses Netzwerk angelegt.</translation>
    </message>
    <message>
        <source>Not in force: %@ is on no network.</source>
        <translation>Gilt nicht: %@ ist in keinem Netzwerk.</translation>
    </message>
    <message>
        <source>Not in force: the network in use is saved.</source>
        <translation>Gilt nicht: Das verwendete Netzwerk ist gespeichert.</translation>
    </message>
    <message>
        <source>Not in force: another network is in use.</source>
        <translation>Gilt nicht: Es wird ein anderes Netzwerk verwendet.</translation>
    </message>
    <message>
        <source>Not in force: it is switched off.</source>
        <translation>Gilt nicht: Sie ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>Not in force: %@ is not here.</source>
        <translation>Gilt nicht: %@ ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Not in force: login rules do not act on Wi-Fi.</source>
        <translation>Gilt nicht: Anmelderegeln wirken nicht auf WLAN.</translation>
    </message>
    <message>
        <source>In force: it acts when Quillon is started at login.</source>
        <translation>Gilt: Sie wirkt, wenn Quillon bei der Anmeldung gestartet wird.</translation>
    </message>
    <message>
        <source>In force now.</source>
        <translation>Gilt jetzt.</translation>
    </message>
    <message>
        <source>In force, but %@ is not connected.</source>
        <translation>Gilt, aber %@ ist nicht verbunden.</translation>
    </message>
    <message>
        <source>Not in force now.</source>
        <translation>Gilt jetzt nicht.</translation>
    </message>
    <message>
        <source>On %@, leave %@ as it is.</source>
        <translation>In %@ bleibt %@, wie es ist.</translation>
    </message>
    <message>
        <source>On any network, leave %@ as it is.</source>
        <translation>In jedem Netzwerk bleibt %@, wie es ist.</translation>
    </message>
    <message>
        <source>On an unknown network, leave %@ as it is.</source>
        <translation>In einem unbekannten Netzwerk bleibt %@, wie es ist.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address once.</source>
        <translation>In %@ erhält %@ einmal eine zufällige Adresse.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address once.</source>
        <translation>In jedem Netzwerk erhält %@ einmal eine zufällige Adresse.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address once.</source>
        <translation>In einem unbekannten Netzwerk erhält %@ einmal eine zufällige Adresse.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address.</source>
        <translation>Bei der Anmeldung erhält %@ eine zufällige Adresse.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address by %@ once.</source>
        <translation>In %@ erhält %@ einmal eine zufällige Adresse von %@.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address by %@ once.</source>
        <translation>In jedem Netzwerk erhält %@ einmal eine zufällige Adresse von %@.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address by %@ once.</source>
        <translation>In einem unbekannten Netzwerk erhält %@ einmal eine zufällige Adresse von %@.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address by %@.</source>
        <translation>Bei der Anmeldung erhält %@ eine zufällige Adresse von %@.</translation>
    </message>
    <message>
        <source>On %@, give %@ the address %@.</source>
        <translation>In %@ erhält %@ die Adresse %@.</translation>
    </message>
    <message>
        <source>On any network, give %@ the address %@.</source>
        <translation>In jedem Netzwerk erhält %@ die Adresse %@.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ the address %@.</source>
        <translation>In einem unbekannten Netzwerk erhält %@ die Adresse %@.</translation>
    </message>
    <message>
        <source>At login, give %@ the address %@.</source>
        <translation>Bei der Anmeldung erhält %@ die Adresse %@.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Save Rule</source>
        <translation>Regel sichern</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Nichts tun</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>Adresse ändern</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Einmal</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>New Random Address</source>
        <translation>Neue zufällige Adresse</translation>
    </message>
    <message>
        <source>Makes a random address, saves it, and uses it whenever the rule acts</source>
        <translation>Erzeugt eine zufällige Adresse, speichert sie und verwendet sie immer, wenn die Regel wirkt</translation>
    </message>
    <message>
        <source>New rules start switched off.</source>
        <translation>Neue Regeln sind zunächst ausgeschaltet.</translation>
    </message>
    <message>
        <source>Press Return to rename the rule</source>
        <translation>Mit der Eingabetaste wird die Regel umbenannt</translation>
    </message>
    <message>
        <source>Rules change the address when you join a network.</source>
        <translation>Regeln ändern die Adresse, wenn Sie sich mit einem Netzwerk verbinden.</translation>
    </message>
    <message>
        <source>New Network Rule</source>
        <translation>Neue Netzwerkregel</translation>
    </message>
    <message>
        <source>Network Rule</source>
        <translation>Netzwerkregel</translation>
    </message>
    <message>
        <source>New network rule</source>
        <translation>Neue Netzwerkregel</translation>
    </message>
    <message>
        <source>Login Rule</source>
        <translation>Anmelderegel</translation>
    </message>
    <message>
        <source>New login rule</source>
        <translation>Neue Anmelderegel</translation>
    </message>
    <message>
        <source>Edit the rule (Return)</source>
        <translation>Die Regel bearbeiten (Eingabetaste)</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Duplicate the rules (Ctrl+D)</source>
        <translation>Die Regeln duplizieren (Strg+D)</translation>
    </message>
    <message>
        <source>Delete the rules (Delete)</source>
        <translation>Die Regeln löschen (Entf)</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>No name</source>
        <translation>Kein Name</translation>
    </message>
    <message>
        <source>Saved Items</source>
        <translation>Gespeichertes</translation>
    </message>
    <message>
        <source>Only a random address has a vendor</source>
        <translation>Nur eine zufällige Adresse hat einen Hersteller</translation>
    </message>
    <message>
        <source>Starts Quillon when you log in</source>
        <translation>Startet Quillon bei der Anmeldung</translation>
    </message>
    <message>
        <source>Read the License</source>
        <translation>Lizenz lesen</translation>
    </message>
    <message>
        <source>The License on the Web</source>
        <translation>Die Lizenz im Web</translation>
    </message>
    <message>
        <source>Where Vendors Are Registered</source>
        <translation>Wo Hersteller eingetragen sind</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or any later version. It comes without any warranty.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder jede spätere Version. Sie kommt ohne jede Gewährleistung.</translation>
    </message>
    <message>
        <source>No program here opens %@</source>
        <translation>Kein Programm hier öffnet %@</translation>
    </message>
    <message>
        <source>Helper: installed, version %@</source>
        <translation>Hilfsprogramm: installiert, Version %@</translation>
    </message>
    <message>
        <source>Helper: not installed</source>
        <translation>Hilfsprogramm: nicht installiert</translation>
    </message>
    <message>
        <source>Helper: outdated, version %@</source>
        <translation>Hilfsprogramm: veraltet, Version %@</translation>
    </message>
    <message>
        <source>No account yet: there is nowhere to sync with.</source>
        <translation>Noch kein Konto: Es gibt nichts, womit abgeglichen werden könnte.</translation>
    </message>
    <message>
        <source>Not while this desktop shows no status items.</source>
        <translation>Nicht, solange diese Arbeitsumgebung keine Statussymbole zeigt.</translation>
    </message>
    <message>
        <source>Only with the icon in the status bar.</source>
        <translation>Nur mit dem Symbol in der Statusleiste.</translation>
    </message>
    <message>
        <source>no program that is known</source>
        <translation>kein bekanntes Programm</translation>
    </message>
    <message>
        <source>This desktop does not start programs at login by itself.</source>
        <translation>Diese Arbeitsumgebung startet von sich aus keine Programme bei der Anmeldung.</translation>
    </message>
    <message>
        <source>Whether this desktop starts programs at login cannot be told from here.</source>
        <translation>Ob diese Arbeitsumgebung Programme bei der Anmeldung startet, lässt sich von hier aus nicht sagen.</translation>
    </message>
    <message>
        <source>The program that starts Quillon at login is not installed.</source>
        <translation>Das Programm, das Quillon bei der Anmeldung startet, ist nicht installiert.</translation>
    </message>
    <message>
        <source>The desktop has Quillon switched off in its own list. Switch this off and on again to have it started.</source>
        <translation>Die Arbeitsumgebung hat Quillon in ihrer eigenen Liste ausgeschaltet. Schalten Sie dies aus und wieder ein, damit es gestartet wird.</translation>
    </message>
    <message>
        <source>There is an autostart entry of your own: it is left as it is.</source>
        <translation>Es gibt einen eigenen Autostart-Eintrag von Ihnen: Er bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>Type a shortcut</source>
        <translation>Tastenkürzel drücken</translation>
    </message>
    <message>
        <source>Escape keeps the shortcut of before, Backspace clears it.</source>
        <translation>Escape behält das bisherige Tastenkürzel, die Rücktaste löscht es.</translation>
    </message>
    <message>
        <source>This key cannot be part of a shortcut.</source>
        <translation>Diese Taste kann nicht zu einem Tastenkürzel gehören.</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Tastenkürzel aufnehmen</translation>
    </message>
    <message>
        <source>The desktop has the last word: its settings show the keys that act.</source>
        <translation>Die Arbeitsumgebung hat das letzte Wort: Ihre Einstellungen zeigen die Tasten, die gelten.</translation>
    </message>
    <message>
        <source>“%@” uses this shortcut.</source>
        <translation>„%@“ verwendet dieses Tastenkürzel.</translation>
    </message>
    <message>
        <source>By the Quillon authors</source>
        <translation>Von den Autoren von Quillon</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>Ask when another program replaces an address</source>
        <translation>Fragen, wenn ein anderes Programm eine Adresse ersetzt</translation>
    </message>
    <message>
        <source>Who manages each interface</source>
        <translation>Wer die Schnittstellen verwaltet</translation>
    </message>
    <message>
        <source>Uninstalling…</source>
        <translation>Wird deinstalliert…</translation>
    </message>
    <message>
        <source>Repeat every %@ minutes by default</source>
        <translation>Standardmäßig alle %@ Minuten wiederholen</translation>
    </message>
    <message>
        <source>For rules whose own minutes are left empty</source>
        <translation>Für Regeln, deren eigene Minuten leer sind</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>Großbuchstaben</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Letters of addresses</source>
        <translation>Buchstaben in Adressen</translation>
    </message>
    <message>
        <source>Look up the external address</source>
        <translation>Externe Adresse nachschlagen</translation>
    </message>
    <message>
        <source>Asks a public service whenever the network changes.</source>
        <translation>Fragt bei jedem Netzwerkwechsel einen öffentlichen Dienst.</translation>
    </message>
    <message>
        <source>Start Quillon at login</source>
        <translation>Quillon bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Do not open the window at login</source>
        <translation>Das Fenster bei der Anmeldung nicht öffnen</translation>
    </message>
    <message>
        <source>Show in the status bar</source>
        <translation>In der Statusleiste anzeigen</translation>
    </message>
    <message>
        <source>Hide from the task bar</source>
        <translation>In der Taskleiste ausblenden</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Benachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>Shortcuts that work in every window</source>
        <translation>Tastenkürzel, die in jedem Fenster gelten</translation>
    </message>
    <message>
        <source>Sync settings, rules and history</source>
        <translation>Einstellungen, Regeln und Verlauf abgleichen</translation>
    </message>
    <message>
        <source>Shortcut for “%@”</source>
        <translation>Tastenkürzel für „%@“</translation>
    </message>
    <message>
        <source>Clear the shortcut for “%@”</source>
        <translation>Tastenkürzel für „%@“ löschen</translation>
    </message>
    <message>
        <source>Open the preferences where the list of vendors is downloaded</source>
        <translation>Die Einstellungen öffnen, in denen die Liste der Hersteller geladen wird</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>The record has been deleted.</source>
        <translation>Der Eintrag wurde gelöscht.</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Wird exportiert…</translation>
    </message>
    <message>
        <source>The file could not be written. %@</source>
        <translation>Die Datei konnte nicht geschrieben werden. %@</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Wird gesucht…</translation>
    </message>
    <message>
        <source>%@: %@</source>
        <translation>%@: %@</translation>
    </message>
    <message>
        <source>Nothing contains “%@”. Upper and lower case matter.</source>
        <translation>Nichts enthält „%@“. Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>Every address change is listed here.</source>
        <translation>Jede Änderung einer Adresse wird hier aufgelistet.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Wird gelöscht…</translation>
    </message>
    <message>
        <source>The records could not be deleted.</source>
        <translation>Die Einträge konnten nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>So many records at once cannot be brought back.</source>
        <translation>So viele Einträge auf einmal lassen sich nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>Today %@</source>
        <translation>Heute %@</translation>
    </message>
    <message>
        <source>Yesterday %@</source>
        <translation>Gestern %@</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>%@ %@</source>
        <translation>%@ %@</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Search All Fields</source>
        <translation>Alle Felder durchsuchen</translation>
    </message>
    <message>
        <source>Search Devices</source>
        <translation>Geräte durchsuchen</translation>
    </message>
    <message>
        <source>Search Interfaces</source>
        <translation>Schnittstellen durchsuchen</translation>
    </message>
    <message>
        <source>Search Addresses</source>
        <translation>Adressen durchsuchen</translation>
    </message>
    <message>
        <source>Search Network Names</source>
        <translation>Netzwerknamen durchsuchen</translation>
    </message>
    <message>
        <source>Search BSSIDs</source>
        <translation>BSSIDs durchsuchen</translation>
    </message>
    <message>
        <source>Search Notes</source>
        <translation>Notizen durchsuchen</translation>
    </message>
    <message>
        <source>%@ was given %@.</source>
        <translation>%@ erhielt %@.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@.</source>
        <translation>%@ (%@) erhielt %@.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@ on %@.</source>
        <translation>%@ (%@) erhielt %@ im Netzwerk %@.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Return saves the note, Escape gives it up.</source>
        <translation>Die Eingabetaste sichert die Notiz, Escape verwirft sie.</translation>
    </message>
    <message>
        <source>F2 edits the note, Delete deletes.</source>
        <translation>F2 bearbeitet die Notiz, Entf löscht.</translation>
    </message>
    <message>
        <source>Adds the addresses of the selected records to the saved ones.</source>
        <translation>Nimmt die Adressen der ausgewählten Einträge in die gespeicherten auf.</translation>
    </message>
    <message>
        <source>Adds the networks of the selected records to the saved ones.</source>
        <translation>Nimmt die Netzwerke der ausgewählten Einträge in die gespeicherten auf.</translation>
    </message>
    <message>
        <source>Save Addresses</source>
        <translation>Adressen speichern</translation>
    </message>
    <message>
        <source>Save Networks</source>
        <translation>Netzwerke speichern</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Writes what is listed into a file that spreadsheets read.</source>
        <translation>Schreibt die Liste in eine Datei, die Tabellenprogramme lesen.</translation>
    </message>
    <message>
        <source>Deletes the selected records.</source>
        <translation>Löscht die ausgewählten Einträge.</translation>
    </message>
    <message>
        <source>Upper and lower case matter.</source>
        <translation>Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>What is done stays done.</source>
        <translation>Was getan ist, bleibt getan.</translation>
    </message>
    <message>
        <source>Edit Note</source>
        <translation>Notiz bearbeiten</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Reverse Order</source>
        <translation>Reihenfolge umkehren</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>Verlauf exportieren</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche löschen</translation>
    </message>
    <message>
        <source>What to search</source>
        <translation>Was durchsucht wird</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Edit Rules</source>
        <translation>Regeln bearbeiten</translation>
    </message>
    <message>
        <source>Opens the rule editor</source>
        <translation>Öffnet die Bearbeitung der Regeln</translation>
    </message>
    <message>
        <source>Login rules do not act on Wi-Fi.</source>
        <translation>Anmelderegeln wirken nicht auf WLAN.</translation>
    </message>
    <message>
        <source>“%@” is no vendor: choose one from the list.</source>
        <translation>„%@“ ist kein Hersteller: Wählen Sie einen aus der Liste.</translation>
    </message>
    <message>
        <source>Repeated addresses have the vendor of the main window, not this one.</source>
        <translation>Wiederholte Adressen haben den Hersteller aus dem Hauptfenster, nicht diesen.</translation>
    </message>
    <message>
        <source>Save or cancel this rule before you begin another one.</source>
        <translation>Sichern Sie diese Regel oder brechen Sie ab, bevor Sie eine andere beginnen.</translation>
    </message>
    <message>
        <source>The autostart entry is missing or cannot be written. Switch this off and on again to have it made anew.</source>
        <translation>Der Autostart-Eintrag fehlt oder lässt sich nicht schreiben. Schalten Sie dies aus und wieder ein, um ihn neu anzulegen.</translation>
    </message>
    <message>
        <source>There still is an autostart entry. Switch this on and off again to have it taken out.</source>
        <translation>Es gibt noch einen Autostart-Eintrag. Schalten Sie dies ein und wieder aus, um ihn zu entfernen.</translation>
    </message>
    <message>
        <source>The autostart entry is for other desktops only. Switch this off and on again to have it act here.</source>
        <translation>Der Autostart-Eintrag gilt nur für andere Arbeitsumgebungen. Schalten Sie dies aus und wieder ein, damit er auch hier gilt.</translation>
    </message>
    <message>
        <source>GeneralPreferences_en</source>
        <translation>GeneralPreferences_en</translation>
    </message>
    <message>
        <source>AdvancedPreferences_en</source>
        <translation>AdvancedPreferences_en</translation>
    </message>
    <message>
        <source>DisplayPreferences_en</source>
        <translation>DisplayPreferences_en</translation>
    </message>
    <message>
        <source>VendorPreferences_en</source>
        <translation>VendorPreferences_en</translation>
    </message>
    <message>
        <source>RulesPreferences_en</source>
        <translation>RulesPreferences_en</translation>
    </message>
    <message>
        <source>UpdatePreferences_en</source>
        <translation>UpdatePreferences_en</translation>
    </message>
    <message>
        <source>AboutPreferences_en</source>
        <translation>AboutPreferences_en</translation>
    </message>
    <message>
        <source>It was built without a list of versions to ask for. Nothing is asked, whatever is chosen here.</source>
        <translation>Es wurde ohne eine Versionsliste gebaut. Es wird nichts abgefragt, was auch immer hier gewählt ist.</translation>
    </message>
    <message>
        <source>Nothing in the history that is not saved.</source>
        <translation>Im Verlauf ist nichts, das nicht gespeichert ist.</translation>
    </message>
    <message>
        <source>%@ and %@ added.</source>
        <translation>%@ und %@ hinzugefügt.</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>Der Verlauf kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%@ These are the newest %@; import again for more.</source>
        <translation>%@ Das sind die neuesten %@; für mehr erneut importieren.</translation>
    </message>
    <message>
        <source>%@ is saved already.</source>
        <translation>%@ ist schon gespeichert.</translation>
    </message>
    <message>
        <source>A network needs its name, too.</source>
        <translation>Ein Netzwerk braucht auch seinen Namen.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Network…</source>
        <translation>Netzwerk…</translation>
    </message>
    <message>
        <source>Save a network by hand</source>
        <translation>Ein Netzwerk von Hand speichern</translation>
    </message>
    <message>
        <source>Address…</source>
        <translation>Adresse…</translation>
    </message>
    <message>
        <source>Save an address by hand</source>
        <translation>Eine Adresse von Hand speichern</translation>
    </message>
    <message>
        <source>Import from History</source>
        <translation>Aus dem Verlauf importieren</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Wird importiert…</translation>
    </message>
    <message>
        <source>Save the addresses and networks that the history knows</source>
        <translation>Die Adressen und Netzwerke speichern, die der Verlauf kennt</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Name (freiwillig)</translation>
    </message>
    <message>
        <source>The records could not be read.</source>
        <translation>Die Einträge konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Wird gespeichert…</translation>
    </message>
    <message>
        <source>This account can be used.</source>
        <translation>Dieses Konto kann benutzt werden.</translation>
    </message>
    <message>
        <source>This account can be used. Set it up on one computer after the other: its server does not notice when two write at the same moment.</source>
        <translation>Dieses Konto kann benutzt werden. Bitte auf einem Rechner nach dem anderen einrichten: Der Server merkt nicht, wenn zwei im selben Augenblick schreiben.</translation>
    </message>
    <message>
        <source>The server did not accept this name and password.</source>
        <translation>Der Server hat diesen Namen und dieses Passwort nicht angenommen.</translation>
    </message>
    <message>
        <source>This folder is not there at the moment.</source>
        <translation>Dieser Ordner ist zurzeit nicht da.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>Der Server ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted.</source>
        <translation>Dem Zertifikat des Servers wird nicht vertraut.</translation>
    </message>
    <message>
        <source>This folder cannot be written.</source>
        <translation>In diesen Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There is no space left in this folder.</source>
        <translation>In diesem Ordner ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>There is no space left in this account.</source>
        <translation>In diesem Konto ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>The account does not take files of this size.</source>
        <translation>Das Konto nimmt Dateien dieser Größe nicht an.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Das ist kein Ordner.</translation>
    </message>
    <message>
        <source>The server shows no files at this address. If it asks for a second factor, use an app password.</source>
        <translation>Der Server zeigt unter dieser Adresse keine Dateien. Wenn er einen zweiten Faktor verlangt, bitte ein App-Passwort verwenden.</translation>
    </message>
    <message>
        <source>The account did not work as expected. Try again later.</source>
        <translation>Das Konto hat nicht wie erwartet funktioniert. Bitte später noch einmal versuchen.</translation>
    </message>
    <message>
        <source>There is no keyring in this session to keep the password in.</source>
        <translation>In dieser Sitzung gibt es keinen Schlüsselbund, der das Passwort aufbewahren könnte.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked.</source>
        <translation>Der Schlüsselbund wurde nicht entsperrt.</translation>
    </message>
    <message>
        <source>The keyring did not answer.</source>
        <translation>Der Schlüsselbund hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>Please sign in to iCloud</source>
        <translation>Bitte bei iCloud anmelden</translation>
    </message>
    <message>
        <source>Open System Settings, and login into your iCloud account to enable sync across all your devices.</source>
        <translation>Öffnen Sie die Systemeinstellungen und melden Sie sich bei Ihrem iCloud-Konto an, um alle Ihre Geräte abzugleichen.</translation>
    </message>
    <message>
        <source>Your iCloud account has changed. Do you want to synchronise with the new account?</source>
        <translation>Ihr iCloud-Konto hat sich geändert. Mit dem neuen Konto abgleichen?</translation>
    </message>
    <message>
        <source>You are asked this after you have logged in to a new iCloud account, and after the computer was restored from a backup.</source>
        <translation>Diese Frage erscheint, nachdem Sie sich bei einem neuen iCloud-Konto angemeldet haben und nachdem der Rechner aus einer Sicherung wiederhergestellt wurde.</translation>
    </message>
    <message>
        <source>iCloud</source>
        <translation>iCloud</translation>
    </message>
    <message>
        <source>updates received</source>
        <translation>Aktualisierungen empfangen</translation>
    </message>
    <message>
        <source>The account holds changes by a newer version of Quillon. Update it here to get them.</source>
        <translation>Das Konto enthält Änderungen einer neueren Version von Quillon. Bitte hier aktualisieren, um sie zu erhalten.</translation>
    </message>
    <message>
        <source>A file in the account is damaged, or somebody has changed it. It is left alone.</source>
        <translation>Eine Datei im Konto ist beschädigt oder wurde von jemandem verändert. Sie bleibt unberührt.</translation>
    </message>
    <message>
        <source>The password of the account is not in the keyring. Sign in again.</source>
        <translation>Das Passwort des Kontos ist nicht im Schlüsselbund. Bitte neu anmelden.</translation>
    </message>
    <message>
        <source>What is to be synced could not be stored on this computer.</source>
        <translation>Was abzugleichen ist, konnte auf diesem Rechner nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>This account is new. Repeat the passphrase.</source>
        <translation>Dieses Konto ist neu. Bitte die Passphrase wiederholen.</translation>
    </message>
    <message>
        <source>The two passphrases differ.</source>
        <translation>Die beiden Passphrasen unterscheiden sich.</translation>
    </message>
    <message>
        <source>The passphrase is too short: it needs at least eight characters.</source>
        <translation>Die Passphrase ist zu kurz: Sie braucht mindestens acht Zeichen.</translation>
    </message>
    <message>
        <source>The account has another passphrase.</source>
        <translation>Das Konto hat eine andere Passphrase.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is damaged. Put back an older copy of it.</source>
        <translation>Die Schlüsseldatei des Kontos ist beschädigt. Bitte eine ältere Kopie davon zurückholen.</translation>
    </message>
    <message>
        <source>The account was made by a newer version of Quillon.</source>
        <translation>Das Konto wurde von einer neueren Version von Quillon angelegt.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is missing. A computer that is signed in puts it back when it syncs next.</source>
        <translation>Die Schlüsseldatei des Kontos fehlt. Ein angemeldeter Rechner stellt sie bei seinem nächsten Abgleich wieder her.</translation>
    </message>
    <message>
        <source>This computer has not enough free memory for that now.</source>
        <translation>Dieser Rechner hat dafür gerade nicht genug freien Speicher.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Bitte einen Ordner auswählen.</translation>
    </message>
    <message>
        <source>Enter the server&apos;s address.</source>
        <translation>Bitte die Adresse des Servers eingeben.</translation>
    </message>
    <message>
        <source>Enter a user name and a password.</source>
        <translation>Bitte einen Benutzernamen und ein Passwort eingeben.</translation>
    </message>
    <message>
        <source>Enter a passphrase.</source>
        <translation>Bitte eine Passphrase eingeben.</translation>
    </message>
    <message>
        <source>Signed in to the folder %@</source>
        <translation>Angemeldet beim Ordner %@</translation>
    </message>
    <message>
        <source>Signed in as %@ at %@</source>
        <translation>Angemeldet als %@ bei %@</translation>
    </message>
    <message>
        <source>Signed out. Rules, history and settings stay on this computer.</source>
        <translation>Abgemeldet. Regeln, Verlauf und Einstellungen bleiben auf diesem Rechner.</translation>
    </message>
    <message>
        <source>Looking for your files…</source>
        <translation>Dateien werden gesucht…</translation>
    </message>
    <message>
        <source>Trying what the account can do…</source>
        <translation>Konto wird ausprobiert…</translation>
    </message>
    <message>
        <source>Opening the account with the passphrase…</source>
        <translation>Konto wird mit der Passphrase geöffnet…</translation>
    </message>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>Warten auf den Schlüsselbund…</translation>
    </message>
    <message>
        <source>Write the whole path of the folder.</source>
        <translation>Bitte den ganzen Pfad des Ordners angeben.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Bitte die Adresse des Servers eingeben.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Bitte den Benutzernamen eingeben.</translation>
    </message>
    <message>
        <source>Enter an app password.</source>
        <translation>Bitte ein App-Passwort eingeben.</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Die beiden Passphrasen stimmen nicht überein.</translation>
    </message>
    <message>
        <source>Reading the account&apos;s key file…</source>
        <translation>Schlüsseldatei des Kontos wird gelesen…</translation>
    </message>
    <message>
        <source>Writing the account&apos;s key file…</source>
        <translation>Schlüsseldatei des Kontos wird geschrieben…</translation>
    </message>
    <message>
        <source>The passphrase was changed. Your other computers stay signed in.</source>
        <translation>Die Passphrase wurde geändert. Die anderen Rechner bleiben angemeldet.</translation>
    </message>
    <message>
        <source>Change Passphrase…</source>
        <translation>Passphrase ändern…</translation>
    </message>
    <message>
        <source>Gives the account another passphrase, for all computers</source>
        <translation>Gibt dem Konto eine andere Passphrase, für alle Rechner</translation>
    </message>
    <message>
        <source>Change Passphrase</source>
        <translation>Passphrase ändern</translation>
    </message>
    <message>
        <source>From then on the account is opened by the new passphrase</source>
        <translation>Danach öffnet die neue Passphrase das Konto</translation>
    </message>
    <message>
        <source>Current passphrase</source>
        <translation>Aktuelle Passphrase</translation>
    </message>
    <message>
        <source>The one with which you signed in</source>
        <translation>Die bei der Anmeldung benutzte</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>Neue Passphrase</translation>
    </message>
    <message>
        <source>At least eight characters. Nobody can tell you later what you typed.</source>
        <translation>Mindestens acht Zeichen. Niemand kann später sagen, was eingegeben wurde.</translation>
    </message>
    <message>
        <source>Repeat new passphrase</source>
        <translation>Neue Passphrase wiederholen</translation>
    </message>
    <message>
        <source>The same once more</source>
        <translation>Dieselbe noch einmal</translation>
    </message>
    <message>
        <source>Your other computers stay signed in. Copies of the account that somebody has made before still open with the current passphrase.</source>
        <translation>Die anderen Rechner bleiben angemeldet. Früher angelegte Kopien des Kontos öffnet weiterhin die aktuelle Passphrase.</translation>
    </message>
    <message>
        <source>Another key is in the account: somebody has made it anew, or changed it. Nothing is synced until you sign in again.</source>
        <translation>Im Konto ist ein anderer Schlüssel: Jemand hat es neu angelegt oder verändert. Abgeglichen wird erst nach neuer Anmeldung.</translation>
    </message>
    <message>
        <source>Sign in to the account first.</source>
        <translation>Bitte zuerst beim Konto anmelden.</translation>
    </message>
    <message>
        <source>Enter the current passphrase.</source>
        <translation>Bitte die aktuelle Passphrase eingeben.</translation>
    </message>
    <message>
        <source>Enter a new passphrase.</source>
        <translation>Bitte eine neue Passphrase eingeben.</translation>
    </message>
    <message>
        <source>The new passphrase is the current one.</source>
        <translation>Die neue Passphrase ist die aktuelle.</translation>
    </message>
    <message>
        <source>Another computer has just changed the key file. Try again with the passphrase that holds now.</source>
        <translation>Ein anderer Rechner hat die Schlüsseldatei gerade geändert. Bitte mit der jetzt gültigen Passphrase erneut versuchen.</translation>
    </message>
    <message>
        <source>The connection was lost. Either the new passphrase or the current one opens the account now.</source>
        <translation>Die Verbindung ist abgebrochen. Das Konto lässt sich jetzt entweder mit der neuen oder mit der bisherigen Passphrase öffnen.</translation>
    </message>
    <message>
        <source>Another computer has changed the passphrase at the same time. That one holds now.</source>
        <translation>Ein anderer Rechner hat die Passphrase gleichzeitig geändert. Jetzt gilt die von dort.</translation>
    </message>
    <message>
        <source>This is not the current passphrase.</source>
        <translation>Das ist nicht die aktuelle Passphrase.</translation>
    </message>
    <message>
        <source>Account…</source>
        <translation>Konto…</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Signs in to the account to sync with</source>
        <translation>Meldet beim Konto an, mit dem abgeglichen wird</translation>
    </message>
    <message>
        <source>Forgets the account and its passwords on this computer</source>
        <translation>Vergisst das Konto und seine Passwörter auf diesem Rechner</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Sync Account</source>
        <translation>Konto zum Abgleichen</translation>
    </message>
    <message>
        <source>Kind of account</source>
        <translation>Art des Kontos</translation>
    </message>
    <message>
        <source>Where the files of the account are</source>
        <translation>Wo die Dateien des Kontos sind</translation>
    </message>
    <message>
        <source>Nextcloud or WebDAV</source>
        <translation>Nextcloud oder WebDAV</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Encrypts what is stored. The same on all your computers; without it nothing can be read.</source>
        <translation>Verschlüsselt, was gespeichert wird. Auf allen Rechnern dieselbe; ohne sie lässt sich nichts lesen.</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Passphrase</translation>
    </message>
    <message>
        <source>What the account holds is replaced by this computer&apos;s settings.</source>
        <translation>Die Einstellungen dieses Rechners ersetzen, was das Konto enthält.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Its address, or that of your files there, as a browser shows it</source>
        <translation>Seine Adresse oder die der Dateien dort, wie ein Browser sie zeigt</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>The name that you have at this server</source>
        <translation>Der Name bei diesem Server</translation>
    </message>
    <message>
        <source>App password</source>
        <translation>App-Passwort</translation>
    </message>
    <message>
        <source>Made in the security settings of your account at the server</source>
        <translation>Wird in den Sicherheitseinstellungen des Kontos beim Server erzeugt</translation>
    </message>
    <message>
        <source>Kept in your keyring.</source>
        <translation>Wird im Schlüsselbund aufbewahrt.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Looks for it in your files</source>
        <translation>Sucht ihn in den Dateien</translation>
    </message>
    <message>
        <source>One that another program makes equal on your computers.</source>
        <translation>Einer, den ein anderes Programm auf allen Rechnern gleich hält.</translation>
    </message>
    <message>
        <source>Repeat passphrase</source>
        <translation>Passphrase wiederholen</translation>
    </message>
    <message>
        <source>The account is new: nobody can tell you later what you typed</source>
        <translation>Das Konto ist neu: Niemand kann später sagen, was eingegeben wurde</translation>
    </message>
    <message>
        <source>This is the SHA-256 fingerprint of the server&apos;s certificate. Accept it only if the server&apos;s administrator tells you the same one.</source>
        <translation>Das ist der SHA-256-Fingerabdruck des Zertifikats, das der Server zeigt. Nur annehmen, wenn der Verwalter des Servers denselben nennt.</translation>
    </message>
    <message>
        <source>Copy Fingerprint</source>
        <translation>Fingerabdruck kopieren</translation>
    </message>
    <message>
        <source>To compare it in another window</source>
        <translation>Um ihn in einem anderen Fenster zu vergleichen</translation>
    </message>
    <message>
        <source>Accept Certificate</source>
        <translation>Zertifikat annehmen</translation>
    </message>
    <message>
        <source>Signs in, and trusts this certificate for this account from now on</source>
        <translation>Meldet an und vertraut diesem Zertifikat bei diesem Konto von nun an</translation>
    </message>
    <message>
        <source>Gives up what is under way, or closes</source>
        <translation>Bricht ab, was gerade läuft, oder schließt</translation>
    </message>
    <message>
        <source>Signing In…</source>
        <translation>Anmelden…</translation>
    </message>
    <message>
        <source>Tries the account, and switches sync on</source>
        <translation>Probiert das Konto aus und schaltet den Abgleich ein</translation>
    </message>
    <message numerus="yes">
        <source>%Ln were saved. Save again for more.</source>
        <translation>
            <numerusform>%Ln wurde gespeichert. Für weitere erneut speichern.</numerusform>
            <numerusform>%Ln wurden gespeichert. Für weitere erneut speichern.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records selected</source>
        <translation>
            <numerusform>%Ln Eintrag ausgewählt</numerusform>
            <numerusform>%Ln Einträge ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records deleted</source>
        <translation>
            <numerusform>Eintrag gelöscht</numerusform>
            <numerusform>%Ln Einträge gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %Ln records?</source>
        <translation>
            <numerusform>%Ln Eintrag löschen?</numerusform>
            <numerusform>%Ln Einträge löschen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses</source>
        <translation>
            <numerusform>%Ln Adresse</numerusform>
            <numerusform>%Ln Adressen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks</source>
        <translation>
            <numerusform>%Ln Netzwerk</numerusform>
            <numerusform>%Ln Netzwerke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks added.</source>
        <translation>
            <numerusform>%Ln Netzwerk hinzugefügt.</numerusform>
            <numerusform>%Ln Netzwerke hinzugefügt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses added.</source>
        <translation>
            <numerusform>%Ln Adresse hinzugefügt.</numerusform>
            <numerusform>%Ln Adressen hinzugefügt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%@ of %Ln records</source>
        <translation>
            <numerusform>%@ von %Ln Eintrag</numerusform>
            <numerusform>%@ von %Ln Einträgen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On %@, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>In %@ erhält %@ jede Minute eine neue zufällige Adresse.</numerusform>
            <numerusform>In %@ erhält %@ alle %n Minuten eine neue zufällige Adresse.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On any network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>In jedem Netzwerk erhält %@ jede Minute eine neue zufällige Adresse.</numerusform>
            <numerusform>In jedem Netzwerk erhält %@ alle %n Minuten eine neue zufällige Adresse.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On an unknown network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>In einem unbekannten Netzwerk erhält %@ jede Minute eine neue zufällige Adresse.</numerusform>
            <numerusform>In einem unbekannten Netzwerk erhält %@ alle %n Minuten eine neue zufällige Adresse.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules deleted</source>
        <translation>
            <numerusform>Regel gelöscht</numerusform>
            <numerusform>%Ln Regeln gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records exported</source>
        <translation>
            <numerusform>%Ln Eintrag exportiert</numerusform>
            <numerusform>%Ln Einträge exportiert</numerusform>
        </translation>
    </message>
    <message>
        <source>What the network still sees</source>
        <translation>Was das Netzwerk trotzdem sieht</translation>
    </message>
    <message>
        <source>What the network of %@ still sees</source>
        <translation>Was das Netzwerk von %@ trotzdem sieht</translation>
    </message>
    <message>
        <source>No interface is selected.</source>
        <translation>Keine Schnittstelle ist ausgewählt.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Wird nachgesehen…</translation>
    </message>
    <message>
        <source>Nothing but the address is known to tell who this is.</source>
        <translation>Außer der Adresse ist nichts bekannt, das diesen Rechner verrät.</translation>
    </message>
    <message>
        <source>Made from the current address</source>
        <translation>Aus der aktuellen Adresse gebildet</translation>
    </message>
    <message>
        <source>Made from the hardware address</source>
        <translation>Aus der Hardware-Adresse gebildet</translation>
    </message>
    <message>
        <source>Made from another address</source>
        <translation>Aus einer anderen Adresse gebildet</translation>
    </message>
    <message>
        <source>Made for this network</source>
        <translation>Für dieses Netzwerk gebildet</translation>
    </message>
    <message>
        <source>Made for this computer</source>
        <translation>Für diesen Rechner gebildet</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Changes with the address.</source>
        <translation>Ändert sich mit der Adresse.</translation>
    </message>
    <message>
        <source>Changes by itself after a time.</source>
        <translation>Ändert sich nach einiger Zeit von selbst.</translation>
    </message>
    <message>
        <source>Stays the same on this network.</source>
        <translation>Bleibt in diesem Netzwerk gleich.</translation>
    </message>
    <message>
        <source>Stays the same on every network.</source>
        <translation>Bleibt in jedem Netzwerk gleich.</translation>
    </message>
    <message>
        <source>Gives the hardware address away.</source>
        <translation>Verrät die Hardware-Adresse.</translation>
    </message>
    <message>
        <source>Gives an earlier address, or that of another interface, away.</source>
        <translation>Verrät eine frühere Adresse oder die einer anderen Schnittstelle.</translation>
    </message>
    <message>
        <source>Who sets it does not tell.</source>
        <translation>Wer das festlegt, gibt keine Auskunft.</translation>
    </message>
    <message>
        <source>Whether it changes with the address is not known.</source>
        <translation>Ob sich das mit der Adresse ändert, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Kept across the change, since %@.</source>
        <translation>Bei der Änderung behalten, seit %@.</translation>
    </message>
    <message>
        <source>To show less: %@</source>
        <translation>Weniger zeigen: %@</translation>
    </message>
    <message>
        <source>To show less, in %@: %@</source>
        <translation>Weniger zeigen, in %@: %@</translation>
    </message>
    <message>
        <source>Name sent with DHCP</source>
        <translation>Mit DHCP gesendeter Name</translation>
    </message>
    <message>
        <source>DHCP client identifier</source>
        <translation>DHCP-Client-Kennung</translation>
    </message>
    <message>
        <source>DHCPv6 identifier (DUID)</source>
        <translation>DHCPv6-Kennung (DUID)</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>IPv6-Adresse</translation>
    </message>
    <message>
        <source>More IPv6 addresses</source>
        <translation>Weitere IPv6-Adressen</translation>
    </message>
    <message>
        <source>Name told by mDNS</source>
        <translation>Über mDNS genannter Name</translation>
    </message>
    <message>
        <source>Name told by LLMNR</source>
        <translation>Über LLMNR genannter Name</translation>
    </message>
    <message>
        <source>Login name (802.1X)</source>
        <translation>Anmeldename (802.1X)</translation>
    </message>
</context>
</TS>
