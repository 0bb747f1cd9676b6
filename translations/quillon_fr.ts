<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
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
        <translation>Il n’y a pas de serveur X, et le module de Qt pour Wayland n’est pas installé. Le paquet Debian s’appelle qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>Aucun bureau trouvé&#xa0;: ni serveur X ni compositeur Wayland ne répond.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon s’exécute depuis une copie cachée. Ouvrez le dossier Téléchargements, déplacez vous-même Quillon dans «&#xa0;Applications&#xa0;» et lancez-le de là.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>L’ordinateur n’a pas laissé Quillon écrire dans le dossier des applications. Ouvrez le dossier Téléchargements, déplacez vous-même Quillon dans «&#xa0;Applications&#xa0;» et lancez-le de là.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>Une version plus ancienne de Quillon est ouverte depuis le dossier des applications. Quittez-la par son menu, puis réessayez.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>Impossible de remplacer l’ancien Quillon dans le dossier des applications. Mettez-le vous-même à la corbeille, puis réessayez.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>L’ordinateur n’a pas permis le déplacement. Ouvrez le dossier Téléchargements, déplacez vous-même Quillon dans «&#xa0;Applications&#xa0;» et lancez-le de là.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Quillon n’a pas pu se déplacer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Déplacer Quillon dans le dossier des applications&#xa0;?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Il doit s’y trouver pour se mettre à jour lui-même.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Image · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Le presse-papiers est vide</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>Le presse-papiers est hors de portée. Ce bureau n’offre ni data-control ni Xwayland.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>Token du bot&#xa0;: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>Un autre envoi est encore en cours.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>La configuration n’a pas pu être enregistrée. Reste-t-il de la place sur le disque&#xa0;?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>Le bot répond, mais aucun trousseau n’a pu garder son token.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connecté à %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>votre groupe</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>«&#xa0;%1&#xa0;» trouvé</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>désactivé dans les paramètres du bureau</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>activé, mais ce qu’il faudrait ouvrir n’est pas là&#xa0;: activez-le de nouveau</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>L’ouverture de Quillon à la connexion n’a pas pu être activée.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>L’ouverture de Quillon à la connexion n’a pas pu être désactivée.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon et tout ce qu’il a enregistré sont supprimés&#xa0;; l’application est dans la corbeille</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>L’application est dans la corbeille</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>Le trousseau contient encore le token du bot, car il est verrouillé.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>En attente de votre trousseau, qui demande peut-être son mot de passe dans une autre fenêtre. Ctrl-C pour arrêter.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>Le Quillon en cours ne répond pas. Arrêtez-le et réessayez.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon s’est terminé avant d’avoir fini.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 est à jour.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>Quillon %1 est disponible.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Téléchargement…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 est installé.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>La version %1 reste en cours jusqu’à ce que vous la quittiez et la relanciez.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Cette copie de Quillon ne se met pas à jour elle-même.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon n’était pas prêt à envoyer au bout d’une minute.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>Aucun Quillon en cours à suivre.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>Le Quillon en cours est une autre version, qui ne connaît pas cette commande. Quittez-le et réessayez.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>L’entrée standard n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Entrée standard</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon envoie ce que vous copiez sur votre téléphone, par votre propre bot Telegram.

Utilisation&#xa0;: quillon [COMMANDE]

Sans commande, il reste actif et envoie à chaque appui sur son raccourci.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Code de retour&#xa0;: 0 réussi, 1 échec, 2 ligne de commande non comprise.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>répondre en JSON</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>afficher le panneau&#xa0;; lance Quillon s’il ne tourne pas</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>afficher les paramètres&#xa0;; lance Quillon s’il ne tourne pas</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>connecter votre bot&#xa0;; lit son token sur l’entrée standard</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>trouver le groupe où vous avez écrit au bot</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>créer les quatre sujets, ou les retrouver</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>donner aux sujets les noms choisis ici</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>oublier le bot, le groupe et les sujets</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>dire ce qui est configuré</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>lister ce qui a été envoyé, du plus récent au plus ancien</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>l’ouvrir</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>ne pas l’ouvrir</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>dire ce qu’il en est</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>ouvrir Quillon à la connexion, ou non</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>l’installer aussi</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>dire s’il existe une version plus récente&#xa0;; l’installer</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>oui, supprimer</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>supprimer Quillon et tout ce qu’il a enregistré</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>afficher cette aide</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>afficher la version</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>un fichier à envoyer</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>vers notes, images, files ou videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>l’entrée standard comme fichier de ce nom</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>envoyer le presse-papiers, des fichiers ou, avec - ou par un tube, l’entrée standard</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>attendre jusqu’à une minute qu’il puisse envoyer</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>afficher ce qui est envoyé à partir de maintenant</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>dire aussi les noms</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>dire ce qui ne va pas, et comment y remédier</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>annuler le dernier envoi, pendant 48 heures</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>vérification omise, faute d’écran</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>le bureau n’a pas encore répondu</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>S’il vous pose une question, répondez-y.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 fonctionne</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>le bureau le connaît, mais ne lui donne aucune touche</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Choisissez des touches dans les paramètres, sous «&#xa0;Général&#xa0;».</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>un autre programme ou le bureau lui-même utilise %1</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Choisissez-en un autre dans les paramètres, sous «&#xa0;Général&#xa0;», ou libérez-le dans les paramètres de clavier du bureau.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>il a été refusé quand le bureau l’a demandé</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>Faites redemander dans les paramètres, sous «&#xa0;Général&#xa0;».</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>le bureau ne donne pas de raccourcis aux programmes</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>Les paramètres montrent, sous «&#xa0;Général&#xa0;», comment en associer un vous-même.</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>vérification impossible</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Déconnectez-vous, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>le compositeur Wayland ne répond pas</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>le compositeur Wayland et un serveur X répondent</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>le compositeur Wayland répond</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>le serveur X répond</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>le serveur X ne répond pas</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>il n’y a pas d’écran</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Lancez Quillon dans la session de votre bureau, où DISPLAY ou WAYLAND_DISPLAY indique l’écran.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>le dernier programme qui a copié ne répond pas</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Copiez quelque chose dans un autre programme, ou arrêtez celui-là.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>ce bureau ne laisse aucun programme le lire</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Activez Xwayland dans le bureau.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>via %1&#xa0;; vide en ce moment</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>via %1&#xa0;; proposés en ce moment&#xa0;: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>vérification omise, car Quillon ne tourne pas</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 est libre</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>les raccourcis du bureau sont arrêtés</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>«&#xa0;%2&#xa0;» utilise %1</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>désactivé dans les paramètres</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>une couche au-dessus de toutes les fenêtres</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>une fenêtre</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>affichée par un programme sur le bus de session</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>affichée par une zone de notification sur le serveur X</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>ce bureau n’affiche pas d’icônes</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Ouvrez le panneau avec&#xa0;: quillon panel. Ou ajoutez au bureau une zone de notification, par exemple par une extension.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>alerte</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivée</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activée</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>désactivé dans les paramètres du bureau</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>activée, mais le programme à ouvrir n’est pas là</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Réactivez-la&#xa0;: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 sous %2, avec %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>en cours, attend le raccourci</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>ne tourne pas&#xa0;: rien n’attend le raccourci</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Lancez Quillon.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>il y a un serveur de son ou une carte son</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>il n’y a ni serveur de son ni carte son</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>Lancez PipeWire ou PulseAudio.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Vérifiez que son disque ou son partage réseau est là.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1 ne peut pas être créé</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Donnez-vous les droits nécessaires.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>le disque de %1 est plein</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Libérez-y de la place.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>d’autres peuvent voir le contenu de %1</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>Retirez-leur les droits&#xa0;: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>%1 est accessible en écriture&#xa0;; %2&#xa0;Mo libres</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>cette copie ne se met pas à jour elle-même</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon se met à jour lui-même</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon ne peut pas se remplacer là où il se trouve</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Déplacez-le dans un dossier qui vous appartient.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Presse-papiers</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Bannière</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>L’ouverture à la connexion</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Trousseau</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Sujets</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Droits</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>Sujet %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>vérification omise, après un échec précédent</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram dit&#xa0;: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram ne répond pas</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>Vérifiez la connexion à Internet et son pare-feu.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>Corrigez %1, ou supprimez cette variable.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>la connexion à Telegram fonctionne</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>libcurl manque, ou est trop ancienne</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>Installez libcurl 7.87 ou une version plus récente.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API n’est pas l’adresse d’un serveur</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Corrigez ou supprimez cette variable.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>le nom du proxy indiqué dans %1 est introuvable</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>le nom du serveur est introuvable</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>Vérifiez la connexion à Internet et son serveur de noms.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>le proxy indiqué dans %1 refuse la connexion</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>aucune connexion au serveur ne s’établit</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>le certificat du serveur n’est pas approuvé</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>Installez ca-certificates. Si un proxy lit les échanges, SSL_CERT_FILE peut indiquer son certificat.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>d’après l’horloge de cet ordinateur, le certificat du serveur n’est pas valable en ce moment</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Mettez l’horloge à l’heure.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>aucun chiffrement commun avec le serveur</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>pas de réponse à temps</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>il a été supprimé sur le téléphone</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Recréez-le&#xa0;: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>il est fermé</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Rouvrez-le sur le téléphone.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>le bot n’a pas le droit d’y écrire</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Nommez le bot administrateur du groupe.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>répond et contient le token du bot</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>il est verrouillé</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Déverrouillez-le et réessayez.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>il répond, mais ne contient le token d’aucun bot</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Connectez votre bot&#xa0;: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>il ne répond pas</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Arrêtez son service, ou déconnectez-vous, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>il ne donne aucun token&#xa0;; celui du bot reste en mémoire jusqu’à l’arrêt de Quillon</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Déverrouillez-le, ou reconnectez votre bot.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>aucun bus de session ne répond pour y accéder</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Lancez Quillon dans la session de votre bureau, où DBUS_SESSION_BUS_ADDRESS indique le bus.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>il n’y en a pas</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>Installez gnome-keyring ou KWallet, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>la connexion à Telegram fonctionne, par le proxy indiqué dans %1</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>le proxy indiqué dans %1 ne répond pas</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>le serveur n’a pas donné son heure</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>elle concorde avec celle du serveur</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>elle avance de %1&#xa0;min sur celle du serveur</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>elle retarde de %1&#xa0;min sur celle du serveur</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram n’accepte pas son token</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Obtenez son token auprès de @BotFather et connectez-le&#xa0;: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram accepte son token</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Ajoutez le bot au groupe, écrivez-y «&#xa0;hi&#xa0;», puis lancez&#xa0;: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>il n’est pas encore trouvé</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>il est devenu un supergroupe, qui est un autre groupe</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Écrivez-y «&#xa0;hi&#xa0;», puis lancez&#xa0;: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>le bot y accède</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>ils sont activés</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>ils sont désactivés dans le groupe</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Activez Sujets dans les paramètres du groupe, sur le téléphone.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>le bot peut gérer les sujets</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>le bot ne peut pas gérer les sujets</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Nommez-le administrateur avec «&#xa0;Gérer les sujets&#xa0;».</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>il n’est pas encore créé</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Créez-le&#xa0;: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>il existe</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>Un autre Quillon est à l’œuvre. Quittez-le, ou attendez qu’il ait fini.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>Le trousseau contient encore le token du bot. Déverrouillez-le et réessayez.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>Votre trousseau est verrouillé. Déverrouillez-le et réessayez.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>Votre trousseau ne répond pas. Lancez-le ou déverrouillez-le et réessayez.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon attend</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Un autre Quillon est à l’œuvre, par exemple une commande d’envoi. Celui-ci démarrera dès qu’elle aura fini.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>%1 dépasse 50&#xa0;Mo (la limite de Telegram pour les bots)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Les dossiers ne peuvent pas encore être envoyés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>Impossible de lire %1</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>Il n’y a pas assez de mémoire pour envoyer cela.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>Non envoyé&#xa0;: l’envoi a été arrêté.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>%1 envoyé(s), %2 en échec</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Envoyé dans %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>%n élément envoyé</numerusform>
            <numerusform>%n éléments envoyés</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Quillon s’est terminé avant la confirmation de Telegram.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Terminez d’abord la configuration de Quillon</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1 ne contient rien à envoyer.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1 n’est ni un texte ni une image PNG. Donnez un nom de fichier avec --name.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>Cela ne ressemble pas à un token de bot. Il ressemble à 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>Le bot a été oublié entre-temps.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Connectez d’abord votre bot.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Aucun groupe trouvé pour l’instant. Ajoutez le bot à votre groupe, envoyez-y «&#xa0;hi&#xa0;» et réessayez.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>«&#xa0;%1&#xa0;» trouvé, mais les sujets y sont désactivés. Activez les sujets dans les paramètres du groupe.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>votre groupe</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>Impossible de créer les sujets. Nommez le bot administrateur avec «&#xa0;Gérer les sujets&#xa0;» et réessayez.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Trouvez d’abord votre groupe.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon est connecté. Appuyez sur %1 sur votre ordinateur pour envoyer ce que vous avez copié.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>Le raccourci n’est pas encore configuré. Les paramètres montrent comment faire.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>Sur ce bureau, le raccourci est %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>Votre bureau met en place %1. S’il vous interroge, répondez-lui.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>Votre bureau connaît le raccourci, mais ne lui donne encore aucune touche.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>Votre bureau ne donne encore aucune touche au raccourci. Voir les paramètres.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Vous avez refusé le raccourci quand votre bureau vous l’a demandé.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Vous avez refusé le raccourci. Les paramètres permettent de redemander.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Les raccourcis de votre bureau sont arrêtés. %1 remarchera dès leur retour.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>Votre bureau ne donne pas de raccourcis aux programmes. Quillon peut ajouter %1 à vos paramètres de clavier, où vous pourrez le modifier.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>Le raccourci n’est pas encore configuré. Les paramètres permettent de l’ajouter.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>Votre bureau garde les raccourcis dans un fichier à lui. Pour %1, ajoutez cette ligne à %3&#xa0;:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>Votre bureau n’a pas mis en place %1. Redemandez-lui, ou associez cette commande dans ses paramètres de clavier&#xa0;:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>Votre bureau ne donne pas de raccourcis aux programmes. Pour %1, associez cette commande dans ses paramètres de clavier&#xa0;:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Ce bureau ne donne pas de raccourcis aux programmes.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Envoyer le presse-papiers au téléphone</translation>
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
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connecté</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connecté</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>votre groupe</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>pas encore trouvé</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (pas encore créé)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Sujet</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Trousseau</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram n’a pas accepté ce token de bot.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram a envoyé une réponse vide (erreur %1). Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram a refusé.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API n’est pas l’adresse d’un serveur. Elle ressemble à http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Ce token de bot ne semble pas correct.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Impossible de joindre Telegram. Vérifiez votre connexion à Internet.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>La sortie n’a pas pu être écrite.</translation>
    </message>
    <message>
        <source>%1 %2 of %3 MB</source>
        <comment>what is done, and how far it is</comment>
        <translation>%1 %2 sur %3&#xa0;Mo</translation>
    </message>
</context>
<context>
    <name>Topic</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>texte copié</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>images</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>tout autre fichier</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>fichiers vidéo</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Arrêté avant que tout soit annulé.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Message %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Un envoi est encore en cours. Annulez-le quand il sera terminé.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>Le dernier envoi est déjà en cours d’annulation.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>Rien du dernier envoi n’est arrivé.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>Le dernier envoi date de plus de 48 heures. Au-delà, Telegram ne laisse pas les bots supprimer des messages.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Message annulé</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Seulement %1 annulés : %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>%n message annulé</numerusform>
            <numerusform>%n messages annulés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Quillon n’a pas pu se mettre à la corbeille. Pour terminer, déplacez-le du dossier des applications vers la corbeille.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Quillon n’a pas pu se mettre à la corbeille. Pour terminer, supprimez-le avec votre gestionnaire de paquets.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>Le nettoyage de Quillon est fait</translation>
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
        <translation>Quillon ne peut pas se mettre à jour là où il se trouve&#xa0;: ce disque n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon ne peut pas se mettre à jour depuis l’emplacement temporaire d’où il a été lancé.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>La mise à jour n’a pas pu être copiée là où se trouve Quillon.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Un autre Quillon installe une mise à jour, ou vient de le faire.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>Vous n’avez pas le droit de modifier le dossier où se trouve Quillon.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>La mise à jour a été annulée.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>L’adresse où chercher les mises à jour n’est pas sécurisée (https).</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>La liste des mises à jour n’a pas pu être récupérée. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>La liste des mises à jour est endommagée.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>Cette copie de Quillon n’a pas de clé pour vérifier les mises à jour et ne peut donc pas se mettre à jour.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>L’adresse de la mise à jour n’est pas sécurisée (https).</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>La mise à jour n’a pas pu être téléchargée. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>La mise à jour téléchargée n’a pas la taille prévue.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>La mise à jour téléchargée n’est pas signée par les auteurs de Quillon&#xa0;; elle a été rejetée.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>La mise à jour téléchargée n’a pas pu être enregistrée dans votre dossier de cache.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>L’archive de la mise à jour est endommagée, chiffrée ou d’un autre type.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>L’archive de la mise à jour contient un chemin hors de son dossier&#xa0;; elle a été rejetée.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>L’archive de la mise à jour contient un chemin avec «&#xa0;..&#xa0;»&#xa0;; elle a été rejetée.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>L’archive de la mise à jour contient un lien qui sort de son dossier&#xa0;; elle a été rejetée.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>L’archive de la mise à jour contient un périphérique, un tube ou un socket&#xa0;; elle a été rejetée.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>L’archive de la mise à jour contient un programme avec les droits d’un autre utilisateur&#xa0;; elle a été rejetée.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>La mise à jour est trop grande une fois extraite&#xa0;; elle a été rejetée.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>L’archive de la mise à jour ne contient pas exactement une application.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>L’archive de la mise à jour contient une autre application que Quillon.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>L’archive de la mise à jour contient une autre version que celle annoncée.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>La mise à jour n’est pas plus récente que cette version de Quillon.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>La nouvelle version ne démarre pas sur cet ordinateur.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>Il n’y a pas assez de place sur le disque pour la mise à jour.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>Le disque où se trouve Quillon ne permet pas d’échanger deux dossiers en une seule étape.</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Envoyer le presse-papiers</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>Après l’envoi</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>&amp;Jouer un son</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>Afficher une &amp;bannière</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Position de la bannière</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>&amp;Ouvrir Quillon à la connexion</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>&amp;Déconnecter cet ordinateur</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>Désins&amp;taller Quillon…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>Une autre application utilise déjà %1. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connecté</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>Pas encore trouvé</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>Envoyé dans 📝 Notes &amp; text</translation>
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
        <translation>Non envoyé</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Supprime le message du dernier envoi</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Supprime le %n message du dernier envoi</numerusform>
            <numerusform>Supprime les %n messages du dernier envoi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::Keycap</name>
    <message>
        <source>Control</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
</context>
<context>
    <name>quillon::PanelHeader</name>
    <message>
        <source>your group</source>
        <translation>votre groupe</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Connecté · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Pas encore configuré</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>%1 est déjà utilisé par une autre application. Choisissez un autre raccourci dans les paramètres.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Bannière en haut</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Bannière au milieu</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Bannière en bas</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Rien d’envoyé pour l’instant.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Envoyer le presse-papiers au téléphone</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Envoyer le presse-papiers</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Déposer pour envoyer</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>Fichiers, image ou texte</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Configuration</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Sujets</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>Ouvrir &amp;le panneau</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>Ce bureau n’affiche pas d’icône pour Quillon.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Connectez votre téléphone</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Deux minutes de configuration avec votre propre bot Telegram. Ensuite, copiez ce que vous voulez et appuyez sur %1.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Créer votre bot</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Coller le token</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Créer votre groupe</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Créer les sujets</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Nouveau groupe** → ajoutez votre bot → donnez-lui un nom («&#xa0;Ma boîte d’envoi&#xa0;», par exemple) → Créer.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>Touchez le **nom du groupe** → le **crayon** → activez **Sujets** (juste sous Apparence) → Enregistrer.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>Dans la liste des membres, **appuyez longuement** sur votre bot → **Nommer administrateur** → laissez **Gérer les sujets** activé → Enregistrer.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>Envoyez «&#xa0;hi&#xa0;» dans le groupe.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Copiez sur l’ordinateur. Collez sur le téléphone.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>Dans Telegram, ouvrez **@BotFather**, envoyez **/newbot** et suivez les étapes. Vous recevrez un token. Le bot n’est qu’à vous.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>&amp;Ouvrir BotFather</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>Dans Telegram&#xa0;:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Tout est prêt.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Copiez ce que vous voulez, puis appuyez sur</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>Créé avec @BotFather</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>Connecté à @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>votre bot</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>%1 trouvé</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>votre groupe</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>%n sujet prêt</numerusform>
            <numerusform>%n sujets prêts</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>Cherc&amp;her à nouveau</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>&amp;Trouver mon groupe</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>Sujets &amp;prêts</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>C&amp;réer les sujets</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>&amp;Redemander</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>C&amp;hoisir les touches…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>Ajo&amp;uter le raccourci</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Commande pour le raccourci</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Étape %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
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
        <translation>Token du bot</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>Co&amp;nnecter</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>&amp;Utiliser un autre bot</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>Le token est gardé dans votre trousseau.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Noms des sujets dans votre groupe</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>&amp;Enregistrer les noms dans Telegram</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Terminez d’abord la configuration</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Enregistré dans Telegram.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Envoyer le presse-papiers</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Ouvrir le panneau</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>%n de plus&#xa0;: quillon doctor</numerusform>
            <numerusform>%n de plus&#xa0;: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>Le token du bot dans le trousseau</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Les paramètres, l’historique des envois et les caches</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>Ses préférences</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>L’ouverture à la connexion</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Puis l’application se met à la corbeille et se ferme</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Désinstaller Quillon&#xa0;?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>Ceci supprime de cet ordinateur&#xa0;:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>Votre bot et votre groupe restent dans Telegram.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Désinstaller</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour logicielle</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Rechercher les mises à jour automatiquement&#xa0;?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon peut chercher une nouvelle version une fois par jour. Vous pouvez changer cela à tout moment dans ses paramètres, ou chercher vous-même.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Rechercher automatiquement</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>Ne pas rechercher</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Quillon est à jour</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>La version %1 est la plus récente.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Une nouvelle version de Quillon est disponible</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>Vous avez Quillon %1. La version %2 peut être installée maintenant.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Téléchargement de Quillon %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Préparation de Quillon %1</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Vérification et extraction…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 sur %2&#xa0;Mo</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 est prêt à être installé</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon peut redémarrer tout de suite avec cette version, ou l’installer quand vous le quitterez.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installer et relancer</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Installer en quittant</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 est installé</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Il sera là à la prochaine ouverture de Quillon.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>La mise à jour a échoué</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Rechercher les mises à jour &amp;automatiquement</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Rechercher &amp;maintenant</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
</TS>
