<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
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
        <translation>Non c’è un server X e la parte di Qt per Wayland non è installata. Il pacchetto Debian è qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>Non c’è un desktop su cui lavorare: non risponde né un server X né un compositor Wayland.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon è in esecuzione da una copia nascosta. Aprire la cartella Scaricati, spostare Quillon in «Applications» e aprirlo da lì.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Il computer non ha permesso a Quillon di scrivere nella cartella delle applicazioni. Aprire la cartella Scaricati, spostare Quillon in «Applications» e aprirlo da lì.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>Un Quillon più vecchio è aperto dalla cartella delle applicazioni. Chiuderlo dal suo menu e riprovare.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>Impossibile sostituire il vecchio Quillon nella cartella delle applicazioni. Spostarlo nel cestino e riprovare.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Il computer non ha permesso lo spostamento. Aprire la cartella Scaricati, spostare Quillon in «Applications» e aprirlo da lì.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Quillon non è riuscito a spostarsi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Spostare Quillon nella cartella delle applicazioni?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Deve trovarsi lì per eseguire gli aggiornamenti.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Non ora</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>In alto</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Al centro</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>In basso</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n file</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Immagine · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Gli appunti sono vuoti</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>Gli appunti sono fuori portata. Questo desktop non offre né data-control né Xwayland.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>Token del bot: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>Un altro invio è ancora in corso.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>Impossibile salvare la configurazione. C’è spazio sul disco?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>Il bot risponde, ma nessun portachiavi ha potuto conservare il suo token.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connesso a %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>il tuo gruppo</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>Trovato «%1»</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>disattivato nelle impostazioni del desktop</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>attivo, ma ciò che dovrebbe aprire non c’è: attivarlo di nuovo</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>Impossibile impostare l’apertura di Quillon all’accesso.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>Impossibile disattivare l’apertura di Quillon all’accesso.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon e tutto ciò che ha salvato sono stati rimossi; l’applicazione è nel cestino</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>L’applicazione è nel cestino</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>Il portachiavi contiene ancora il token del bot, perché è bloccato.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>In attesa del portachiavi, che forse chiede la password in una sua finestra. Premere Ctrl-C per interrompere.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>Il Quillon in esecuzione non risponde. Terminarlo e riprovare.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon è terminato prima di finire.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 è aggiornato.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>È disponibile Quillon %1.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Scaricamento…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 è installato.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>Resta in esecuzione la %1, finché non viene chiusa e riaperta.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Questa copia di Quillon non esegue aggiornamenti da sola.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon non era pronto a inviare entro un minuto.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>Nessun Quillon in esecuzione da seguire.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>Il Quillon in esecuzione è un’altra versione, che non conosce questo comando. Chiuderlo e riprovare.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>Impossibile leggere lo standard input.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standard input</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon invia al telefono ciò che copi, attraverso il tuo bot di Telegram.

Uso: quillon [COMANDO]

Senza un comando resta in esecuzione e invia a ogni pressione della scorciatoia.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Stato di uscita: 0 riuscito, 1 fallito, 2 riga di comando non compresa.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>risponde in JSON</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>mostra il pannello; avvia Quillon se non è in esecuzione</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>mostra le impostazioni; avvia Quillon se non è in esecuzione</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>connette il bot; legge il token dallo standard input</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>trova il gruppo in cui hai scritto al bot</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>crea i quattro argomenti, o li ritrova</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>dà agli argomenti i nomi impostati qui</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>dimentica il bot, il gruppo e gli argomenti</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>dice che cosa è configurato</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>elenca ciò che è stato inviato, dal più recente</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>lo apre</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>non lo apre</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>dice che cosa vale</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>apre Quillon all’accesso, o no</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>la installa anche</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>dice se c’è una versione più recente; la installa</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>sì, rimuovi</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>rimuove Quillon e tutto ciò che ha salvato</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>mostra questo aiuto</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>mostra la versione</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>un file da inviare</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>a notes, images, files o videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>lo standard input come file con questo nome</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>invia gli appunti, dei file o, con - o da una pipe, lo standard input</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>attende fino a un minuto che possa inviare</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>mostra ciò che viene inviato da ora in poi</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>dice anche i nomi</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>dice che cosa non va, e come rimediare</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>annullare l’ultimo invio, per 48 ore</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>verifica saltata, perché manca lo schermo</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>il desktop non ha ancora risposto</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>Se chiede qualcosa, rispondere lì.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 funziona</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>il desktop la conosce, ma non le assegna tasti</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Scegliere i tasti nelle impostazioni, in «Generale».</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>un altro programma o il desktop stesso usa %1</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Sceglierne un’altra nelle impostazioni, in «Generale», o liberarla nelle impostazioni della tastiera del desktop.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>è stata rifiutata quando il desktop ha chiesto</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>Far chiedere di nuovo nelle impostazioni, in «Generale».</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>il desktop non dà scorciatoie ai programmi</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>Le impostazioni mostrano, in «Generale», come associarne una da sé.</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>verifica impossibile</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Uscire dalla sessione e accedere di nuovo.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>il compositor Wayland non risponde</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>il compositor Wayland e un server X rispondono</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>il compositor Wayland risponde</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>il server X risponde</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>il server X non risponde</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>non c’è uno schermo</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Avviare Quillon nella sessione del desktop, dove DISPLAY o WAYLAND_DISPLAY indica lo schermo.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>l’ultimo programma che ha copiato non risponde</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Copiare qualcosa in un altro programma o terminare quello.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>questo desktop non li lascia leggere a nessun programma</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Attivare Xwayland nel desktop.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>tramite %1; ora vuoti</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>tramite %1; ora offrono: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>verifica saltata, perché Quillon non è in esecuzione</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 è libera</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>le scorciatoie del desktop si sono fermate</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>«%2» usa %1</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>disattivato nelle impostazioni</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>un livello sopra tutte le finestre</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>una finestra</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>mostrata da un programma sul bus di sessione</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>mostrata da un’area di notifica sul server X</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>questo desktop non mostra icone</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Aprire il pannello con: quillon panel. Oppure dare al desktop un’area di notifica, per esempio con un’estensione.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avviso</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>errore</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>ignoto</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivata</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attiva</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>disattivato nelle impostazioni del desktop</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>attiva, ma il programma da aprire non c’è</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Attivarla di nuovo: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 su %2, con %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>in esecuzione, in attesa della scorciatoia</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>non è in esecuzione, quindi nulla attende la scorciatoia</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Avviare Quillon.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>c’è un server audio o una scheda audio</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>non c’è né un server audio né una scheda audio</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>Avviare PipeWire o PulseAudio.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 non risponde</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Controllare che il suo disco o la condivisione di rete ci sia.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>non si può scrivere in %1</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>non si può creare %1</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Assegnarsi i permessi necessari.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>il disco di %1 è pieno</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Liberare spazio sul disco.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>altri possono vedere il contenuto di %1</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>Togliere loro i permessi: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>si può scrivere in %1; %2 MB liberi</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>questa copia non esegue aggiornamenti da sola</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon esegue gli aggiornamenti da solo</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon non può sostituirsi dove si trova</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Spostarlo in una propria cartella.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sessione</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Appunti</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Scorciatoia</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Banner</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icona</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Suono</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Cartella dati</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>L’apertura all’accesso</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Portachiavi</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Orologio</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Argomenti</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Permessi</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>Argomento %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>verifica saltata, perché prima qualcosa non è riuscito</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram dice: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram non risponde</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Riprovare tra un momento.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>Controllare la connessione a Internet e il suo firewall.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>Correggere %1 o togliere questa variabile.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>la connessione a Telegram funziona</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>libcurl manca o è troppo vecchia</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>Installare libcurl 7.87 o successiva.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API non è l’indirizzo di un server</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Correggere o togliere questa variabile.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>il nome del proxy indicato in %1 non è stato trovato</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>il nome del server non è stato trovato</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>Controllare la connessione a Internet e il suo server dei nomi.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>il proxy indicato in %1 rifiuta la connessione</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>non si riesce a connettersi al server</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>il certificato del server non è attendibile</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>Installare ca-certificates. Se un proxy legge il traffico, SSL_CERT_FILE può indicare il suo certificato.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>secondo l’orologio di questo computer, il certificato del server ora non è valido</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Regolare l’orologio.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>nessuna cifratura in comune con il server</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>nessuna risposta in tempo</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>è stato eliminato sul telefono</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Crearlo di nuovo: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>è chiuso</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Riaprirlo sul telefono.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>il bot non ha il permesso di scriverci</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Rendere il bot amministratore del gruppo.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>risponde e contiene il token del bot</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>è bloccato</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Sbloccarlo e riprovare.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>risponde, ma non contiene il token di nessun bot</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Connettere il bot: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>non risponde</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Terminare il suo servizio, oppure uscire dalla sessione e accedere di nuovo.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>non fornisce token; quello del bot resta in memoria finché Quillon non termina</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Sbloccarlo o connettere di nuovo il bot.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>non risponde nessun bus di sessione con cui raggiungerlo</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Avviare Quillon nella sessione del desktop, dove DBUS_SESSION_BUS_ADDRESS indica il bus.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>non ce n’è uno</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>Installare gnome-keyring o KWallet e accedere di nuovo.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>la connessione a Telegram funziona, tramite il proxy indicato in %1</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>il proxy indicato in %1 non risponde</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>il server non ha indicato la sua ora</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>concorda con quello del server</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>è avanti di %1 min rispetto a quello del server</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>è indietro di %1 min rispetto a quello del server</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram non accetta il suo token</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Ottenere il suo token da @BotFather e connetterlo: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram accetta il suo token</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Aggiungere il bot al gruppo, scrivervi «hi» ed eseguire: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>non è ancora stato trovato</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>è diventato un supergruppo, che è un altro gruppo</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Scrivervi «hi» ed eseguire: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>il bot lo raggiunge</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>sono attivati</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>sono disattivati nel gruppo</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Attivare Argomenti nelle impostazioni del gruppo, sul telefono.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>il bot può gestire gli argomenti</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>il bot non può gestire gli argomenti</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Renderlo amministratore con «Gestione argomenti».</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>non è ancora stato creato</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Crearlo: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>esiste</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>Un altro Quillon è al lavoro. Chiuderlo o attendere che finisca.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>Il portachiavi contiene ancora il token del bot. Sbloccarlo e riprovare.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>Il portachiavi è bloccato. Sbloccarlo e riprovare.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>Il portachiavi non risponde. Avviarlo o sbloccarlo e riprovare.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon è in attesa</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Un altro Quillon è al lavoro, per esempio un comando di invio. Questo si avvierà appena l’altro avrà finito.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>Invio…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>%1 supera i 50 MB (il limite di Telegram per i bot)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Le cartelle non si possono ancora inviare: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>Impossibile leggere %1</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>Non c’è abbastanza memoria per inviarlo.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>Non inviato: l’invio è stato interrotto.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>Inviati: %1, falliti: %2</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Inviato a %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>%n elemento inviato</numerusform>
            <numerusform>%n elementi inviati</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Quillon è terminato prima della conferma di Telegram.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Prima completa la configurazione di Quillon</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1 non contiene nulla da inviare.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1 non è né testo né un’immagine PNG. Dare un nome di file con --name.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>Non sembra il token di un bot. Ha questa forma: 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>Nel frattempo il bot è stato dimenticato.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Prima connetti il tuo bot.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Nessun gruppo trovato finora. Aggiungi il bot al tuo gruppo, invia «hi» nel gruppo e riprova.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>Trovato «%1», ma gli argomenti sono disattivati. Attiva gli argomenti nelle impostazioni del gruppo.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>il tuo gruppo</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>Impossibile creare gli argomenti. Rendi il bot amministratore con «Gestione argomenti» e riprova.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Prima trova il tuo gruppo.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon è connesso. Premi %1 sul computer per inviare ciò che hai copiato.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>La scorciatoia non è ancora impostata. Le impostazioni mostrano come fare.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>Su questo desktop la scorciatoia è %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>Il desktop sta impostando %1. Se chiede conferma, rispondi lì.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>Il desktop conosce la scorciatoia, ma non le ha ancora dato dei tasti.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>Il desktop non ha ancora dato tasti alla scorciatoia. Vedi le impostazioni.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Hai rifiutato la scorciatoia quando il desktop ha chiesto.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Hai rifiutato la scorciatoia. Nelle impostazioni si può chiedere di nuovo.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Le scorciatoie del desktop si sono fermate. %1 funzionerà di nuovo appena torneranno.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>Il desktop non dà scorciatoie ai programmi. Quillon può aggiungere %1 alle impostazioni della tastiera, dove si può cambiare.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>La scorciatoia non è ancora impostata. Si può aggiungere dalle impostazioni.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>Il desktop tiene le scorciatoie in un suo file. Per %1, aggiungi questa riga a %3:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>Il desktop non ha impostato %1. Chiedi di nuovo, o associa questo comando nelle impostazioni della tastiera:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>Il desktop non dà scorciatoie ai programmi. Per %1, associa questo comando nelle impostazioni della tastiera:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Questo desktop non dà scorciatoie ai programmi.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Invia gli appunti al telefono</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>⌃⌥%1</source>
        <translation>Ctrl+Alt+%1</translation>
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
        <translation>connesso</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connesso</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>il tuo gruppo</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>non ancora trovato</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (non ancora creato)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Argomento</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Scorciatoia</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Portachiavi</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram non ha accettato questo token del bot.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram ha inviato una risposta vuota (errore %1). Riprova tra un momento.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram ha rifiutato.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API non è l’indirizzo di un server. Ha questa forma: http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Questo token del bot non sembra giusto.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Impossibile raggiungere Telegram. Controlla la connessione a Internet.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>Impossibile scrivere l’output.</translation>
    </message>
    <message>
        <source>%1 %2 of %3 MB</source>
        <comment>what is done, and how far it is</comment>
        <translation>%1 %2 di %3 MB</translation>
    </message>
</context>
<context>
    <name>Topic</name>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>testo copiato</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>immagini</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>qualsiasi altro file</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>file video</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Interrotto prima di annullare tutto.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Messaggio %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Un invio è ancora in corso. Annullalo quando sarà finito.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>L’ultimo invio è già in corso di annullamento.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>Dell’ultimo invio non è arrivato nulla.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Non c’è nulla da annullare.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>L’ultimo invio risale a più di 48 ore fa. Oltre, Telegram non lascia che i bot eliminino messaggi.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Annullamento…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Messaggio annullato</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Annullati solo %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>%n messaggio annullato</numerusform>
            <numerusform>%n messaggi annullati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Quillon non è riuscito a spostarsi nel cestino. Per finire, spostarlo dalla cartella delle applicazioni nel cestino.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Quillon non è riuscito a spostarsi nel cestino. Per finire, rimuoverlo con il gestore dei pacchetti.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>La pulizia di Quillon è finita</translation>
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
        <translation>Quillon non può eseguire aggiornamenti dove si trova: non si può scrivere su quel disco.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon non può eseguire aggiornamenti dalla posizione temporanea da cui è stato avviato.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>Impossibile copiare l’aggiornamento dove si trova Quillon.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Un altro Quillon sta installando un aggiornamento, o l’ha appena fatto.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>Non hai il permesso di modificare la cartella in cui si trova Quillon.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>L’aggiornamento è stato annullato.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>L’indirizzo in cui cercare gli aggiornamenti non è sicuro (https).</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>Impossibile ottenere l’elenco degli aggiornamenti. Controlla la connessione e riprova.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>L’elenco degli aggiornamenti è danneggiato.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>Questa copia di Quillon non ha una chiave per verificare gli aggiornamenti, quindi non può eseguirli.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>L’indirizzo dell’aggiornamento non è sicuro (https).</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>Impossibile scaricare l’aggiornamento. Controlla la connessione e riprova.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>L’aggiornamento scaricato non ha la dimensione prevista.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>L’aggiornamento scaricato non è firmato dagli autori di Quillon ed è stato scartato.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>Impossibile salvare l’aggiornamento scaricato nella cartella della cache.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>L’archivio dell’aggiornamento è danneggiato, cifrato o di altro tipo.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>L’archivio dell’aggiornamento contiene un percorso fuori dalla sua cartella ed è stato scartato.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>L’archivio dell’aggiornamento contiene un percorso con «..» ed è stato scartato.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>L’archivio dell’aggiornamento contiene un collegamento che esce dalla sua cartella ed è stato scartato.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>L’archivio dell’aggiornamento contiene un dispositivo, una pipe o un socket ed è stato scartato.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>L’archivio dell’aggiornamento contiene un programma con i permessi di un altro utente ed è stato scartato.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>L’aggiornamento estratto è troppo grande ed è stato scartato.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>L’archivio dell’aggiornamento non contiene esattamente un’applicazione.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>L’archivio dell’aggiornamento contiene un’applicazione diversa da Quillon.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>L’archivio dell’aggiornamento contiene una versione diversa da quella annunciata.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>L’aggiornamento non è più recente di questa versione di Quillon.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>La nuova versione non si avvia su questo computer.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>Non c’è abbastanza spazio sul disco per l’aggiornamento.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>Il disco in cui si trova Quillon non può scambiare due cartelle in un solo passo.</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>Scorciatoia</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Invia gli appunti</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>Dopo l’invio</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>&amp;Riproduci un suono</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>Mostra un &amp;banner</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Posizione del banner</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Avvio</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>&amp;Apri Quillon all’accesso</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>&amp;Disconnetti questo computer</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>Disi&amp;nstalla Quillon…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>Un’altra applicazione usa già %1. Scegline un’altra.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connesso</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>Non ancora trovato</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>Inviato a 📝 Notes &amp; text</translation>
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
        <translation>Non inviato</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Inviato</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Elimina il messaggio dell’ultimo invio</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Elimina %n messaggio dell’ultimo invio</numerusform>
            <numerusform>Elimina tutti i %n messaggi dell’ultimo invio</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::Keycap</name>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
    </message>
</context>
<context>
    <name>quillon::PanelHeader</name>
    <message>
        <source>your group</source>
        <translation>il tuo gruppo</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Connesso · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Non ancora configurato</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>proprio ora</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Cerca aggiornamenti…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>%1 è già usata da un’altra applicazione. Scegli un’altra scorciatoia nelle impostazioni.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Banner in alto</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Banner al centro</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Banner in basso</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Ancora nessun invio.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recenti</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Invia gli appunti al telefono</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Invio…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Invia gli appunti</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Rilascia per inviare</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>File, un’immagine o testo</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Configurazione</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>Ar&amp;gomenti</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>G&amp;enerale</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>Apri &amp;pannello</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>Questo desktop non mostra un’icona per Quillon.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Connetti il telefono</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Inizia</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Due minuti di configurazione con il tuo bot di Telegram. Poi copia quello che vuoi e premi %1.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Crea il tuo bot</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Incolla il token</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Crea il tuo gruppo</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Crea gli argomenti</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Nuovo gruppo** → aggiungi il tuo bot → dagli un nome qualsiasi (per esempio «Posta in uscita») → Crea.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>Tocca il **nome del gruppo** → tocca la **matita** → attiva **Argomenti** (subito sotto Aspetto) → Salva.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>Nell’elenco dei membri, **tieni premuto** il tuo bot → **Promuovi ad amministratore** → lascia attivo **Gestione argomenti** → Salva.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>Invia «hi» nel gruppo.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Copia sul computer. Incolla sul telefono.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>In Telegram, apri **@BotFather**, invia **/newbot** e segui i passi. Riceverai un token. Il bot è solo tuo.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>&amp;Apri BotFather</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>In Telegram:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Tutto pronto.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Copia quello che vuoi, poi premi</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>Creato con @BotFather</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>Connesso a @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>il tuo bot</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>Trovato %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>il tuo gruppo</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>%n argomento pronto</numerusform>
            <numerusform>%n argomenti pronti</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>&amp;Trova di nuovo</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>&amp;Trova il mio gruppo</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>A&amp;rgomenti pronti</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>C&amp;rea gli argomenti</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>C&amp;hiedi di nuovo</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>Scegli i &amp;tasti…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>Aggiungi la &amp;scorciatoia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Cop&amp;ia</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Comando per la scorciatoia</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>Al lavoro</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Passo %1: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
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
        <translation>Token del bot</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>Connett&amp;i</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>&amp;Usa un altro bot</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>Il token è conservato nel portachiavi.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Nomi degli argomenti nel gruppo</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>Sal&amp;va i nomi su Telegram</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Prima completa la configurazione</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Salvato su Telegram.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Invia gli appunti</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Apri pannello</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>Un altro (%n): quillon doctor</numerusform>
            <numerusform>Altri %n: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>Il token del bot nel portachiavi</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Impostazioni, cronologia degli invii e cache</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>Le sue preferenze</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>L’apertura all’accesso</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Poi sposta l’applicazione nel cestino e si chiude</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Disinstallare Quillon?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>Da questo computer vengono rimossi:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>Il bot e il gruppo restano in Telegram.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Disinstalla</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Note di rilascio</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Cercare automaticamente gli aggiornamenti?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon può cercare una nuova versione una volta al giorno. Puoi cambiarlo in qualsiasi momento nelle impostazioni, o cercare a mano.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Cerca automaticamente</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>Non cercare</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Ricerca di aggiornamenti…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Quillon è aggiornato</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>La versione %1 è la più recente.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>È disponibile una nuova versione di Quillon</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>Hai Quillon %1. La versione %2 si può installare ora.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Scaricamento di Quillon %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connessione…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Preparazione di Quillon %1</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Verifica ed estrazione…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 di %2 MB</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 è pronto da installare</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon può riavviarsi subito con la nuova versione, o installarla all’uscita.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installa e riavvia</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Installa all’uscita</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 è installato</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Sarà pronto alla prossima apertura di Quillon.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>L’aggiornamento non è riuscito</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Cerca a&amp;utomaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Cerca &amp;ora</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
</context>
</TS>
