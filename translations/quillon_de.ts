<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Alert</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>App</name>
    <message>
        <source>There is no X server, and Qt&apos;s part for Wayland is not installed. Debian&apos;s package is qt6-wayland.</source>
        <translation>Es gibt keinen X-Server, und Qts Teil für Wayland ist nicht installiert. Debians Paket heißt qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>Es gibt keinen Desktop: Weder ein X-Server noch ein Wayland-Compositor antwortet.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon läuft von einer versteckten Kopie. Verschieben Sie Quillon selbst aus dem Ordner „Downloads“ in den Ordner „Applications“ und starten Sie es von dort.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Der Computer hat Quillon nicht in den Ordner für Anwendungen schreiben lassen. Verschieben Sie Quillon selbst aus dem Ordner „Downloads“ in den Ordner „Applications“ und starten Sie es von dort.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>Aus dem Ordner für Anwendungen läuft ein älteres Quillon. Beenden Sie es über sein Menü und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>Das ältere Quillon im Ordner für Anwendungen ließ sich nicht ersetzen. Verschieben Sie es selbst in den Papierkorb und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Der Computer hat das Verschieben nicht erlaubt. Verschieben Sie Quillon selbst aus dem Ordner „Downloads“ in den Ordner „Applications“ und starten Sie es von dort.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Quillon konnte sich nicht verschieben</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Quillon in den Ordner für Anwendungen verschieben?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Nur dort kann es sich selbst aktualisieren.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Bild · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Die Zwischenablage ist leer</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>Die Zwischenablage ist nicht erreichbar. Dieser Desktop bietet weder data-control noch Xwayland.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>Bot-Token: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>Es läuft noch eine andere Übertragung.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>Die Einrichtung konnte nicht gespeichert werden. Ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>Der Bot antwortet, aber kein Schlüsselbund konnte sein Token aufbewahren.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>Ihre Gruppe</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>„%1“ gefunden</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>in den Einstellungen des Desktops ausgeschaltet</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>ein, aber was gestartet werden soll, ist nicht da: Schalten Sie es noch einmal ein</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>Quillon konnte nicht für den Start bei der Anmeldung eingetragen werden.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>Quillon konnte nicht vom Start bei der Anmeldung ausgetragen werden.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon und alles, was es gespeichert hat, sind entfernt; die Anwendung liegt im Papierkorb</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>Die Anwendung liegt im Papierkorb</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>Der Schlüsselbund enthält noch das Token des Bots, denn er ist gesperrt.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>Quillon wartet auf den Schlüsselbund, der vielleicht in einem eigenen Fenster nach seinem Passwort fragt. Strg-C bricht ab.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>Das laufende Quillon antwortet nicht. Beenden Sie es und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon wurde beendet, bevor es fertig war.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>Quillon %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Wird heruntergeladen …</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 ist installiert.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>Bis Sie es beenden und wieder starten, läuft noch %1.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Diese Kopie von Quillon aktualisiert sich nicht selbst.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon war nicht binnen einer Minute bereit zu senden.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>Es läuft kein Quillon, dem zu folgen wäre.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>Das laufende Quillon ist eine andere Version und kennt diesen Befehl nicht. Beenden Sie es und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>Die Standardeingabe konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standardeingabe</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon schickt über Ihren eigenen Telegram-Bot auf Ihr Handy, was Sie kopieren.

Aufruf: quillon [BEFEHL]

Ohne Befehl bleibt es aktiv und sendet, sobald Sie das Tastenkürzel drücken.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Rückgabewert: 0 erledigt, 1 fehlgeschlagen, 2 Befehlszeile nicht verstanden.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>als JSON antworten</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>das Panel zeigen; startet Quillon, falls es nicht läuft</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>die Einstellungen zeigen; startet Quillon, falls es nicht läuft</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>den Bot verbinden; liest sein Token von der Standardeingabe</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>die Gruppe finden, in der Sie dem Bot geschrieben haben</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>die vier Themen anlegen oder wiederfinden</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>den Themen die hier eingestellten Namen geben</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>Bot, Gruppe und Themen vergessen</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>sagen, was eingerichtet ist</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>auflisten, was gesendet wurde, das Neueste zuerst</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>starten</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>nicht starten</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>sagen, was gilt</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>Quillon bei der Anmeldung starten oder nicht</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>sie auch installieren</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>sagen, ob es eine neuere Version gibt; sie installieren</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>ja, entfernen</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>Quillon und alles, was es gespeichert hat, entfernen</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>dies ausgeben</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>die Version ausgeben</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>eine Datei, die gesendet wird</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>an notes, images, files oder videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>die Standardeingabe als Datei dieses Namens</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>Zwischenablage, Dateien oder mit - oder über eine Pipe die Standardeingabe senden</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>bis zu eine Minute warten, bis es senden kann</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>ausgeben, was von jetzt an gesendet wird</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>auch Namen nennen</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>sagen, was nicht stimmt und was hilft</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>die letzte Übertragung zurücknehmen, 48 Stunden lang</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>nicht angesehen, denn der Bildschirm fehlt</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>der Desktop hat noch nicht geantwortet</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>Falls er Sie fragt, antworten Sie dort.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 geht</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>der Desktop kennt es, gibt ihm aber keine Tasten</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Wählen Sie in den Einstellungen unter „Allgemein“ Tasten.</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>ein anderes Programm oder der Desktop selbst hat %1</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Wählen Sie in den Einstellungen unter „Allgemein“ ein anderes, oder geben Sie es in den Tastatureinstellungen des Desktops frei.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>es wurde abgelehnt, als der Desktop fragte</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>Lassen Sie in den Einstellungen unter „Allgemein“ noch einmal fragen.</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>der Desktop gibt Programmen keine Tastenkürzel</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>Die Einstellungen zeigen unter „Allgemein“, wie Sie selbst eines belegen.</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>konnte nicht angesehen werden</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>der Wayland-Compositor antwortet nicht</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>der Wayland-Compositor und ein X-Server antworten</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>der Wayland-Compositor antwortet</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>der X-Server antwortet</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>der X-Server antwortet nicht</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>es gibt keinen Bildschirm</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Starten Sie Quillon in der Sitzung Ihres Desktops, wo DISPLAY oder WAYLAND_DISPLAY den Bildschirm nennt.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>das Programm, das zuletzt kopiert hat, antwortet nicht</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Kopieren Sie etwas in einem anderen Programm, oder beenden Sie jenes.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>dieser Desktop lässt kein Programm sie lesen</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Schalten Sie Xwayland im Desktop ein.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>über %1; jetzt leer</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>über %1; jetzt angeboten: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>nicht angesehen, denn Quillon läuft nicht</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 ist frei</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>die Tastenkürzel des Desktops sind ausgefallen</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>„%2“ hat %1</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>in den Einstellungen ausgeschaltet</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>eine Ebene über allen Fenstern</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>ein Fenster</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>gezeigt von einem Programm am Sitzungsbus</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>gezeigt von einer Leiste am X-Server</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>dieser Desktop zeigt keine Symbole</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Öffnen Sie das Panel mit: quillon panel. Oder geben Sie dem Desktop eine Leiste für Symbole, etwa als Erweiterung.</translation>
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
        <source>failed</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>in den Einstellungen des Desktops ausgeschaltet</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>ein, aber das Programm, das gestartet werden soll, ist nicht da</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Schalten Sie es noch einmal ein: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 unter %2, mit %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>läuft und wartet auf das Tastenkürzel</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>läuft nicht, sodass nichts auf das Tastenkürzel wartet</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Starten Sie Quillon.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>es gibt einen Klangserver oder eine Soundkarte</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>es gibt weder Klangserver noch Soundkarte</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>Starten Sie PipeWire oder PulseAudio.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Sehen Sie nach, ob der Datenträger oder die Netzwerkfreigabe da ist.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Geben Sie sich die Rechte dazu.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>der Datenträger von %1 ist voll</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Schaffen Sie dort Platz.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>andere können in %1 hineinsehen</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>Nehmen Sie ihnen die Rechte: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>%1 kann geschrieben werden; %2 MB frei</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>diese Kopie aktualisiert sich nicht selbst</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon aktualisiert sich selbst</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon kann sich dort, wo es liegt, nicht ersetzen</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Verschieben Sie es in einen Ordner, der Ihnen gehört.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Banner</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Datenordner</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Den Start bei der Anmeldung</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Schlüsselbund</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Rechte</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>Thema %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>nicht gefragt, denn vorher ist etwas fehlgeschlagen</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram sagt: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram antwortet nicht</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>Prüfen Sie die Internetverbindung und ihre Firewall.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>Berichtigen Sie %1, oder nehmen Sie es weg.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>der Weg zu Telegram ist gut</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>libcurl fehlt oder ist zu alt</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>Installieren Sie libcurl 7.87 oder neuer.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API ist nicht die Adresse eines Servers</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Berichtigen Sie es, oder nehmen Sie es weg.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>der Name des Proxys in %1 wird nicht gefunden</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>der Name des Servers wird nicht gefunden</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>Prüfen Sie die Internetverbindung und ihren Nameserver.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>der Proxy in %1 weist die Verbindung ab</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>es kommt keine Verbindung zum Server zustande</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>dem Zertifikat des Servers wird nicht vertraut</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>Installieren Sie ca-certificates. Wo ein Proxy mitliest, kann SSL_CERT_FILE sein Zertifikat nennen.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>nach der Uhr dieses Computers gilt das Zertifikat des Servers jetzt nicht</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Stellen Sie die Uhr.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>mit dem Server kommt keine Verschlüsselung zustande</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>keine Antwort in der Zeit</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>es wurde auf dem Handy gelöscht</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Legen Sie es wieder an: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>es ist geschlossen</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Öffnen Sie es auf dem Handy wieder.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>der Bot darf dort nicht schreiben</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Machen Sie den Bot zum Admin der Gruppe.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>antwortet und hat das Token des Bots</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>er ist gesperrt</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Entsperren Sie ihn und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>er antwortet, hat aber kein Token eines Bots</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Verbinden Sie Ihren Bot: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>er antwortet nicht</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Beenden Sie seinen Dienst, oder melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>er gibt kein Token heraus; das des Bots bleibt im Speicher, bis Quillon endet</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Entsperren Sie ihn, oder verbinden Sie Ihren Bot noch einmal.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>kein Sitzungsbus antwortet, über den er erreicht wird</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Starten Sie Quillon in der Sitzung Ihres Desktops, wo DBUS_SESSION_BUS_ADDRESS den Bus nennt.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>es gibt keinen</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>Installieren Sie gnome-keyring oder KWallet, und melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>der Weg zu Telegram ist gut, über den Proxy in %1</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>der Proxy in %1 antwortet nicht</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>der Server hat seine Zeit nicht genannt</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>sie stimmt mit der des Servers überein</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>sie geht gegenüber der des Servers %1 min vor</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>sie geht gegenüber der des Servers %1 min nach</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram nimmt sein Token nicht an</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Holen Sie sein Token von @BotFather, und verbinden Sie ihn: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram nimmt sein Token an</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Fügen Sie den Bot zur Gruppe hinzu, schreiben Sie dort „hi“, dann: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>sie ist noch nicht gefunden</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>sie ist zu einer Supergruppe geworden, und die ist eine andere</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Schreiben Sie dort „hi“, dann: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>der Bot erreicht sie</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>sie sind eingeschaltet</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>sie sind in der Gruppe ausgeschaltet</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Schalten Sie Themen auf dem Handy in den Einstellungen der Gruppe ein.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>der Bot darf Themen verwalten</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>der Bot darf Themen nicht verwalten</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Machen Sie ihn zum Admin mit „Themen verwalten“.</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>es ist noch nicht angelegt</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Legen Sie es an: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>es ist da</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>Ein anderes Quillon ist bei der Arbeit. Beenden Sie es oder warten Sie, bis es fertig ist.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>Der Schlüsselbund enthält noch das Token des Bots. Entsperren Sie ihn und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>Ihr Schlüsselbund ist gesperrt. Entsperren Sie ihn und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>Ihr Schlüsselbund antwortet nicht. Starten oder entsperren Sie ihn und versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon wartet</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Ein anderes Quillon ist bei der Arbeit, etwa ein Befehl, der sendet. Dieses startet, sobald jenes fertig ist.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>Wird gesendet …</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>%1 ist größer als 50 MB (Telegrams Grenze für Bots)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Ordner können noch nicht gesendet werden: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>%1 konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus, um dies zu senden.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>Nicht gesendet: Die Übertragung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>%1 gesendet, %2 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Gesendet an %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>%n Element gesendet</numerusform>
            <numerusform>%n Elemente gesendet</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Quillon wurde beendet, bevor Telegram den Empfang bestätigt hat.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Richten Sie Quillon erst fertig ein</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1 enthält nichts, was zu senden wäre.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1 ist weder Text noch ein PNG-Bild. Geben Sie dem Inhalt mit --name einen Dateinamen.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>Das sieht nicht wie ein Bot-Token aus. Es sieht so aus: 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>Der Bot wurde inzwischen vergessen.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Verbinden Sie zuerst Ihren Bot.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Noch keine Gruppe gefunden. Fügen Sie den Bot zu Ihrer Gruppe hinzu, schreiben Sie „hi“ in die Gruppe und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>„%1“ gefunden, aber Themen sind ausgeschaltet. Schalten Sie Themen in den Einstellungen der Gruppe ein.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>Ihre Gruppe</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>Die Themen konnten nicht angelegt werden. Machen Sie den Bot zum Admin mit „Themen verwalten“ und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Finden Sie zuerst Ihre Gruppe.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon ist verbunden. Drücken Sie %1 auf Ihrem Computer, um zu senden, was Sie kopiert haben.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>Das Tastenkürzel ist noch nicht eingerichtet. Die Einstellungen zeigen, wie es geht.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>Auf diesem Desktop ist das Tastenkürzel %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>Der Desktop richtet %1 ein. Falls er fragt, antworten Sie dort.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>Der Desktop kennt das Tastenkürzel, gibt ihm aber noch keine Tasten.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>Der Desktop gibt dem Tastenkürzel noch keine Tasten. Siehe Einstellungen.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Sie haben das Tastenkürzel abgelehnt, als der Desktop fragte.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Sie haben das Tastenkürzel abgelehnt. In den Einstellungen können Sie noch einmal fragen lassen.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Die Tastenkürzel des Desktops sind ausgefallen. %1 geht wieder, sobald sie zurück sind.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>Der Desktop gibt Programmen keine Tastenkürzel. Quillon kann %1 in Ihre Tastatureinstellungen eintragen, wo Sie es ändern können.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>Das Tastenkürzel ist noch nicht eingerichtet. In den Einstellungen lässt es sich eintragen.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>Der Desktop hält Tastenkürzel in einer eigenen Datei. Fügen Sie für %1 in %3 diese Zeile ein:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>Der Desktop hat %1 nicht eingerichtet. Fragen Sie noch einmal, oder belegen Sie die Tasten in den Tastatureinstellungen mit diesem Befehl:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>Der Desktop gibt Programmen keine Tastenkürzel. Belegen Sie %1 in den Tastatureinstellungen mit diesem Befehl:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Dieser Desktop gibt Programmen keine Tastenkürzel.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Zwischenablage ans Handy senden</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>⌃⌥%1</source>
        <translation>Strg+Alt+%1</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>Ihre Gruppe</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>noch nicht gefunden</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (noch nicht angelegt)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Schlüsselbund</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
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
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram hat dieses Bot-Token nicht angenommen.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram hat eine leere Antwort geschickt (Fehler %1). Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram hat abgelehnt.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API ist nicht die Adresse eines Servers. Sie sieht so aus: http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Dieses Bot-Token sieht nicht richtig aus.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Telegram ist nicht erreichbar. Prüfen Sie Ihre Internetverbindung.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 %2 of %3 MB</source>
        <comment>what is done, and how far it is</comment>
        <translation>%1 %2 von %3 MB</translation>
    </message>
</context>
<context>
    <name>Topic</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>kopierter Text</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>jede andere Datei</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>Videodateien</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Abgebrochen, bevor alles zurückgenommen war.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Nachricht %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Es läuft noch eine Übertragung. Nehmen Sie sie zurück, sobald sie beendet ist.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>Die letzte Übertragung wird schon zurückgenommen.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>Von der letzten Übertragung ist nichts angekommen.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Es gibt nichts zurückzunehmen.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>Die letzte Übertragung ist mehr als 48 Stunden her. Länger lässt Telegram Bots keine Nachrichten löschen.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Wird zurückgenommen …</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Nachricht zurückgenommen</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Nur %1 zurückgenommen: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>%n Nachricht zurückgenommen</numerusform>
            <numerusform>%n Nachrichten zurückgenommen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Quillon konnte sich nicht in den Papierkorb verschieben. Verschieben Sie es zum Abschluss aus dem Ordner für Anwendungen in den Papierkorb.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Quillon konnte sich nicht in den Papierkorb verschieben. Entfernen Sie es zum Abschluss mit Ihrer Paketverwaltung.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>Quillon ist aufgeräumt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>UpdateError</name>
    <message>
        <source>Quillon cannot update itself where it lies now: that disk cannot be written to.</source>
        <translation>Quillon kann sich an diesem Ort nicht aktualisieren: Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon kann sich an dem vorübergehenden Ort, von dem es gestartet wurde, nicht aktualisieren.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>Die Aktualisierung konnte nicht zu Quillon kopiert werden.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Ein anderes Quillon installiert eine Aktualisierung oder hat es gerade getan.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>Sie dürfen den Ordner, in dem Quillon liegt, nicht ändern.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>Die Aktualisierung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>Die Adresse, unter der nach Aktualisierungen gesucht wird, ist nicht sicher (https).</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>Die Liste der Aktualisierungen konnte nicht geladen werden. Prüfen Sie Ihre Verbindung und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>Die Liste der Aktualisierungen ist fehlerhaft.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>Diese Kopie von Quillon hat keinen Schlüssel, um Aktualisierungen zu prüfen, und kann sich daher nicht aktualisieren.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>Die Adresse der Aktualisierung ist nicht sicher (https).</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>Die Aktualisierung konnte nicht heruntergeladen werden. Prüfen Sie Ihre Verbindung und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>Die heruntergeladene Aktualisierung hat nicht die erwartete Größe.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>Die heruntergeladene Aktualisierung ist nicht von den Herstellern von Quillon signiert und wurde verworfen.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>Die heruntergeladene Aktualisierung konnte nicht in Ihrem Cache-Ordner abgelegt werden.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>Das Archiv der Aktualisierung ist beschädigt, verschlüsselt oder von anderer Art.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>Das Archiv der Aktualisierung enthält einen Pfad außerhalb seines Ordners und wurde verworfen.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>Das Archiv der Aktualisierung enthält einen Pfad mit „..“ und wurde verworfen.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>Das Archiv der Aktualisierung enthält eine Verknüpfung, die aus seinem Ordner führt, und wurde verworfen.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>Das Archiv der Aktualisierung enthält ein Gerät, eine Pipe oder einen Socket und wurde verworfen.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>Das Archiv der Aktualisierung enthält ein Programm mit den Rechten eines anderen Benutzers und wurde verworfen.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>Die Aktualisierung ist entpackt zu groß und wurde verworfen.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>Das Archiv der Aktualisierung enthält nicht genau eine Anwendung.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>Das Archiv der Aktualisierung enthält eine andere Anwendung als Quillon.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>Das Archiv der Aktualisierung enthält eine andere Version als angekündigt.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>Die Aktualisierung ist nicht neuer als diese Version von Quillon.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>Die neue Version startet auf diesem Computer nicht.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>Auf dem Datenträger ist nicht genug Platz für die Aktualisierung.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>Auf dem Datenträger, auf dem Quillon liegt, lassen sich zwei Ordner nicht in einem Schritt tauschen.</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Zwischenablage senden</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>Nach dem Senden</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>T&amp;on abspielen</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>&amp;Banner zeigen</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Position des Banners</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>Quillon bei der Anmeldung &amp;starten</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>&amp;Diesen Computer trennen</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>&amp;Quillon deinstallieren …</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>Eine andere Anwendung verwendet schon %1. Wählen Sie ein anderes Tastenkürzel.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>Noch nicht gefunden</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>Gesendet an 📝 Notes &amp; text</translation>
    </message>
</context>
<context>
    <name>quillon::HistoryRow</name>
    <message>
        <source>%1 · %2</source>
        <comment>topic and age</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>Nicht gesendet</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Zurückgenommen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>zurückgenommen</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Löscht die Nachricht der letzten Übertragung</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Löscht die %n Nachricht der letzten Übertragung</numerusform>
            <numerusform>Löscht alle %n Nachrichten der letzten Übertragung</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::Keycap</name>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
</context>
<context>
    <name>quillon::PanelHeader</name>
    <message>
        <source>your group</source>
        <translation>Ihre Gruppe</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Verbunden · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Noch nicht eingerichtet</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>%1 wird schon von einer anderen Anwendung verwendet. Wählen Sie in den Einstellungen ein anderes Tastenkürzel.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Banner oben</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Banner in der Mitte</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Banner unten</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Noch nichts gesendet.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Zwischenablage ans Handy senden</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wird gesendet …</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Zwischenablage senden</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Zum Senden ablegen</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>Dateien, ein Bild oder Text</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Einrichtung</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Themen</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>&amp;Panel öffnen</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>Dieser Desktop zeigt kein Symbol für Quillon.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Handy verbinden</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Einrichtung starten</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Eine Einrichtung von zwei Minuten mit Ihrem eigenen Telegram-Bot. Kopieren Sie dann etwas und drücken Sie %1.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Bot anlegen</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Token einfügen</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Gruppe anlegen</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Themen anlegen</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Neue Gruppe** → Ihren Bot hinzufügen → beliebig benennen (etwa „Mein Postausgang“) → Erstellen.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>Auf den **Gruppennamen** tippen → auf den **Stift** tippen → **Themen** einschalten (gleich unter „Aussehen“) → Speichern.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>In der Mitgliederliste Ihren Bot **gedrückt halten** → **Zum Admin machen** → **Themen verwalten** eingeschaltet lassen → Speichern.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>„hi“ in die Gruppe schreiben.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Am Computer kopieren. Am Handy einfügen.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>Öffnen Sie in Telegram **@BotFather**, senden Sie **/newbot** und folgen Sie den Schritten. Am Ende bekommen Sie ein Token. Der Bot gehört nur Ihnen.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>BotFather ö&amp;ffnen</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>In Telegram:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Alles bereit.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Kopieren Sie etwas, dann drücken Sie</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>Mit @BotFather angelegt</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>Verbunden mit @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>Ihr Bot</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>Ihre Gruppe</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>%n Thema bereit</numerusform>
            <numerusform>%n Themen bereit</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>&amp;Neu suchen</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>&amp;Meine Gruppe finden</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>Themen &amp;bereit</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>Themen an&amp;legen</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>Noch einmal &amp;fragen</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>Tasten &amp;wählen …</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>Tastenkürzel &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Befehl für das Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>Arbeitet</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Schritt %1: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>quillon::TokenStep</name>
    <message>
        <source>123456789:AA…</source>
        <translation>123456789:AA…</translation>
    </message>
    <message>
        <source>Bot token</source>
        <translation>Bot-Token</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>Anderen Bot ver&amp;wenden</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>Das Token liegt in Ihrem Schlüsselbund.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Namen der Themen in Ihrer Gruppe</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>Namen in Telegram &amp;sichern</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Erst die Einrichtung abschließen</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>In Telegram gespeichert.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Zwischenablage senden</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Panel öffnen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>%n weiterer Punkt: quillon doctor</numerusform>
            <numerusform>%n weitere Punkte: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>Das Token des Bots im Schlüsselbund</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Einstellungen, Sendeverlauf und Zwischenspeicher</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>Seine Voreinstellungen</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Den Start bei der Anmeldung</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Dann verschiebt es die Anwendung in den Papierkorb und beendet sich</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Quillon deinstallieren?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>Von diesem Computer wird entfernt:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>Bot und Gruppe bleiben in Telegram.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Deinstallieren</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatisch nach Aktualisierungen suchen?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon kann einmal am Tag nach einer neuen Version suchen. Sie können das jederzeit in den Einstellungen ändern oder von Hand suchen.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Automatisch suchen</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>Nicht suchen</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Aktualisierungen werden gesucht …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Quillon ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>Version %1 ist die neueste.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Eine neue Version von Quillon ist verfügbar</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>Sie haben Quillon %1. Version %2 kann jetzt installiert werden.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Quillon %1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindung wird aufgebaut …</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Quillon %1 wird vorbereitet</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Wird geprüft und entpackt …</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 von %2 MB</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 kann installiert werden</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon kann gleich damit neu starten oder es beim Beenden installieren.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installieren und neu starten</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Beim Beenden installieren</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 ist installiert</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Beim nächsten Start von Quillon ist es da.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>Die Aktualisierung ist fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Automatisch &amp;nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>&amp;Jetzt suchen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
</TS>
