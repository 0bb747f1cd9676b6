<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
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
        <translation>Nie ma serwera X, a część Qt dla Wayland nie jest zainstalowana. Pakiet Debiana nazywa się qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>Nie ma pulpitu: nie odpowiada ani serwer X, ani kompozytor Wayland.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon działa z ukrytej kopii. Proszę otworzyć katalog Pobrane, przenieść Quillon do „Applications” i uruchomić go stamtąd.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Komputer nie pozwolił programowi Quillon na zapis w katalogu programów. Proszę otworzyć katalog Pobrane, przenieść Quillon do „Applications” i uruchomić go stamtąd.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>Starszy Quillon jest uruchomiony z katalogu programów. Proszę zakończyć go z jego menu i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>Nie udało się zastąpić starszego programu Quillon w katalogu programów. Proszę przenieść go do kosza i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Komputer nie pozwolił na przeniesienie. Proszę otworzyć katalog Pobrane, przenieść Quillon do „Applications” i uruchomić go stamtąd.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Nie udało się przenieść programu Quillon</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Przenieść Quillon do katalogu programów?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Tylko tam może się aktualizować.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Przenieś</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nie teraz</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Środek</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dół</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n plik</numerusform>
            <numerusform>%n pliki</numerusform>
            <numerusform>%n plików</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Obraz · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>„%1”</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Schowek jest pusty</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>Schowek jest poza zasięgiem. Ten pulpit nie oferuje ani data-control, ani Xwayland.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>Token bota: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>Inne wysyłanie jeszcze trwa.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>Nie udało się zapisać konfiguracji. Czy na dysku jest miejsce?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>Bot odpowiada, ale żadna baza kluczy nie mogła zachować jego tokenu.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Połączono z %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>Twoja grupa</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>Znaleziono „%1”</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>wyłączone w ustawieniach pulpitu</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>włączone, ale brakuje tego, co ma być uruchomione: proszę włączyć ponownie</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>Nie udało się włączyć uruchamiania programu Quillon po zalogowaniu.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>Nie udało się wyłączyć uruchamiania programu Quillon po zalogowaniu.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon i wszystkie jego dane zostały usunięte; program jest w koszu</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>Program jest w koszu</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>Baza kluczy nadal zawiera token bota, bo jest zablokowana.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>Oczekiwanie na bazę kluczy, która może pytać o hasło w osobnym oknie. Ctrl-C przerywa.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>Działający Quillon nie odpowiada. Proszę go zakończyć i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon zakończył się przed czasem.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 jest aktualny.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>Dostępny jest Quillon %1.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Pobieranie…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 jest zainstalowany.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>Do ponownego uruchomienia działa nadal %1.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Ta kopia programu Quillon nie aktualizuje się sama.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon nie był gotowy do wysyłania w ciągu minuty.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>Nie działa żaden Quillon, który można śledzić.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>Działający Quillon to inna wersja, która nie zna tego polecenia. Proszę go zakończyć i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>Nie udało się odczytać standardowego wejścia.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standardowe wejście</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon wysyła to, co kopiujesz, na telefon przez Twojego własnego bota w Telegramie.

Użycie: quillon [POLECENIE]

Bez polecenia działa w tle i wysyła po każdym naciśnięciu skrótu.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Kod wyjścia: 0 wykonano, 1 błąd, 2 niezrozumiały wiersz poleceń.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>odpowiedź w formacie JSON</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>pokazuje panel; uruchamia Quillon, jeśli nie działa</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>pokazuje ustawienia; uruchamia Quillon, jeśli nie działa</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>łączy z botem; czyta jego token ze standardowego wejścia</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>znajduje grupę, w której napisano do bota</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>tworzy cztery tematy lub znajduje je ponownie</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>nadaje tematom nazwy ustawione tutaj</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>zapomina bota, grupę i tematy</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>mówi, co jest skonfigurowane</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>wypisuje, co wysłano, od najnowszych</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>uruchamia</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>nie uruchamia</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>mówi, jak jest</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>czy uruchamiać Quillon po zalogowaniu</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>także ją instaluje</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>mówi, czy jest nowsza wersja; instaluje ją</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>tak, usuń</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>usuwa Quillon i wszystkie jego dane</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>wypisuje tę pomoc</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>wypisuje wersję</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>plik do wysłania</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>do notes, images, files lub videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>standardowe wejście jako plik o tej nazwie</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>wysyła schowek, pliki lub, z - albo potokiem, standardowe wejście</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>czeka do minuty, aż będzie można wysyłać</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>wypisuje, co jest wysyłane od teraz</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>podaje też nazwy</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>mówi, co jest nie tak i jak to naprawić</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>cofa ostatnie wysyłanie, przez 48 godzin</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>nie sprawdzono, bo brak ekranu</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>pulpit jeszcze nie odpowiedział</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>Jeśli zapyta, proszę mu odpowiedzieć.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 działa</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>pulpit go zna, ale nie daje mu klawiszy</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Proszę wybrać klawisze w ustawieniach („Ogólne”).</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>inny program lub sam pulpit używa %1</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Proszę wybrać inny w ustawieniach („Ogólne”) lub zwolnić go w ustawieniach klawiatury pulpitu.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>odrzucono go, gdy pulpit o niego zapytał</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>W ustawieniach („Ogólne”) można zapytać ponownie.</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>pulpit nie daje programom skrótów</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>Ustawienia („Ogólne”) pokazują, jak przypisać go samodzielnie.</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>nie udało się sprawdzić</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Proszę się wylogować i zalogować ponownie.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>kompozytor Wayland nie odpowiada</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>kompozytor Wayland i serwer X odpowiadają</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>kompozytor Wayland odpowiada</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>serwer X odpowiada</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>serwer X nie odpowiada</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>nie ma ekranu</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Proszę uruchomić Quillon w sesji pulpitu, gdzie DISPLAY lub WAYLAND_DISPLAY wskazuje ekran.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>program, w którym ostatnio kopiowano, nie odpowiada</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Proszę skopiować coś w innym programie lub zakończyć tamten.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>ten pulpit nie pozwala programom go czytać</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Proszę włączyć Xwayland w ustawieniach pulpitu.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>przez %1; teraz pusty</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>przez %1; teraz dostępne: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>nie sprawdzono, bo Quillon nie działa</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 jest wolny</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>skróty pulpitu przestały działać</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>„%2” używa %1</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>wyłączony w ustawieniach</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>warstwa nad wszystkimi oknami</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>okno</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>pokazywana przez program na magistrali sesji</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>pokazywana przez zasobnik na serwerze X</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>ten pulpit nie pokazuje ikon</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Panel otwiera polecenie: quillon panel. Można też dodać do pulpitu zasobnik, na przykład jako rozszerzenie.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>uwaga</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>błąd</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>off</source>
        <translation>wyłączone</translation>
    </message>
    <message>
        <source>on</source>
        <translation>włączone</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>wyłączone w ustawieniach pulpitu</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>włączone, ale brakuje programu, który ma być uruchomiony</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Proszę włączyć ponownie: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 w systemie %2, z %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>działa i czeka na skrót</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>nie działa, więc nic nie czeka na skrót</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Proszę uruchomić Quillon.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>jest serwer dźwięku lub karta dźwiękowa</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>nie ma ani serwera dźwięku, ani karty dźwiękowej</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>Proszę uruchomić PipeWire lub PulseAudio.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 nie odpowiada</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Proszę sprawdzić, czy dysk lub udział sieciowy jest dostępny.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>nie można zapisywać w %1</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>nie można utworzyć %1</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Proszę nadać sobie do tego uprawnienia.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>dysk z %1 jest pełny</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Proszę zwolnić na nim miejsce.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>inni mogą zaglądać do %1</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>Proszę odebrać im uprawnienia: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>można zapisywać w %1; wolne: %2 MB</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>ta kopia nie aktualizuje się sama</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon aktualizuje się sam</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon nie może zastąpić się tam, gdzie jest</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Proszę przenieść go do własnego katalogu.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesja</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Ekran</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Schowek</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Skrót</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Baner</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Ikona</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Katalog danych</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Uruchamianie po zalogowaniu</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Baza kluczy</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Zegar</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Tematy</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Uprawnienia</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>Temat %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>nie zapytano, bo wcześniej coś zawiodło</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram mówi: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram nie odpowiada</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Proszę spróbować za chwilę.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>Proszę sprawdzić połączenie z internetem i zaporę sieciową.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>Proszę poprawić lub usunąć %1.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>droga do Telegrama jest otwarta</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>brakuje libcurl lub jest za stara</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>Proszę zainstalować libcurl 7.87 lub nowszą.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API nie jest adresem serwera</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Proszę poprawić lub usunąć tę zmienną.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>nie znaleziono nazwy serwera proxy z %1</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>nie znaleziono nazwy serwera</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>Proszę sprawdzić połączenie z internetem i serwer nazw.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>serwer proxy z %1 odrzuca połączenie</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>nie udało się połączyć z serwerem</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>certyfikat serwera nie jest zaufany</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>Proszę zainstalować ca-certificates. Jeśli ruch czyta serwer proxy, SSL_CERT_FILE może wskazać jego certyfikat.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>według zegara tego komputera certyfikat serwera jest teraz nieważny</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Proszę ustawić zegar.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>nie udało się uzgodnić szyfrowania z serwerem</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>brak odpowiedzi w porę</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>usunięto go na telefonie</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Proszę utworzyć go ponownie: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>jest zamknięty</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Proszę otworzyć go ponownie na telefonie.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>bot nie może w nim pisać</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Proszę nadać botowi prawa administratora grupy.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>odpowiada i zawiera token bota</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>jest zablokowana</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Proszę ją odblokować i spróbować ponownie.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>odpowiada, ale nie zawiera tokenu bota</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Proszę połączyć bota: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>nie odpowiada</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Proszę zakończyć jej usługę lub wylogować się i zalogować ponownie.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>nie udostępnia tokenu; token bota zostaje w pamięci, dopóki Quillon działa</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Proszę ją odblokować lub ponownie połączyć bota.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>nie odpowiada magistrala sesji, przez którą jest dostępna</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Proszę uruchomić Quillon w sesji pulpitu, gdzie DBUS_SESSION_BUS_ADDRESS wskazuje magistralę.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>nie ma żadnej</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>Proszę zainstalować gnome-keyring lub KWallet i zalogować się ponownie.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>droga do Telegrama jest otwarta, przez serwer proxy z %1</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>serwer proxy z %1 nie odpowiada</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>serwer nie podał swojego czasu</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>zgadza się z zegarem serwera</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>spieszy się o %1 min względem zegara serwera</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>spóźnia się o %1 min względem zegara serwera</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram nie przyjmuje jego tokenu</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Proszę pobrać jego token od @BotFather i połączyć bota: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram przyjmuje jego token</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Proszę dodać bota do grupy, napisać w niej „hi”, a potem: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>jeszcze jej nie znaleziono</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>stała się supergrupą, a to już inna grupa</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Proszę napisać w niej „hi”, a potem: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>bot ma do niej dostęp</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>są włączone</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>są wyłączone w grupie</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Proszę włączyć tematy w ustawieniach grupy na telefonie.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>bot może zarządzać tematami</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>bot nie może zarządzać tematami</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Proszę nadać mu prawa administratora z „Zarządzaniem tematami”.</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>jeszcze go nie utworzono</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Proszę go utworzyć: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>istnieje</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>Inny Quillon pracuje. Proszę go zakończyć lub zaczekać, aż skończy.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>Baza kluczy nadal zawiera token bota. Proszę ją odblokować i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>Baza kluczy jest zablokowana. Proszę ją odblokować i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>Baza kluczy nie odpowiada. Proszę ją uruchomić lub odblokować i spróbować ponownie.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon czeka</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Inny Quillon pracuje, na przykład polecenie wysyłania. Ten uruchomi się, gdy tamten skończy.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>Wysyłanie…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>%1 przekracza 50 MB (limit Telegrama dla botów)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Katalogów nie można jeszcze wysyłać: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>Nie udało się odczytać %1</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>Za mało pamięci, aby to wysłać.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>Nie wysłano: wysyłanie zatrzymano.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>Wysłano: %1, nie udało się: %2</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Wysłano do %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>Wysłano %n element</numerusform>
            <numerusform>Wysłano %n elementy</numerusform>
            <numerusform>Wysłano %n elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Quillon zakończył się, zanim Telegram to potwierdził.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Najpierw trzeba dokończyć konfigurację programu Quillon</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1: nie ma nic do wysłania.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1: to ani tekst, ani obraz PNG. Proszę podać nazwę pliku z --name.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>To nie wygląda jak token bota. Ma on postać 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>W międzyczasie bot został zapomniany.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Najpierw trzeba połączyć bota.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Nie znaleziono jeszcze grupy. Proszę dodać bota do grupy, wysłać w niej „hi” i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>Znaleziono „%1”, ale tematy są wyłączone. Proszę włączyć tematy w ustawieniach grupy.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>Twoja grupa</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>Nie udało się utworzyć tematów. Proszę nadać botowi prawa administratora z „Zarządzaniem tematami” i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Najpierw trzeba znaleźć grupę.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon jest połączony. Naciśnij %1 na komputerze, aby wysłać to, co skopiowano.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>Skrót nie jest jeszcze ustawiony. Ustawienia pokazują, jak to zrobić.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>Na tym pulpicie skrót to %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>Pulpit ustawia %1. Jeśli zapyta, proszę mu odpowiedzieć.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>Pulpit zna skrót, ale nie dał mu jeszcze klawiszy.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>Pulpit nie dał jeszcze skrótowi klawiszy. Więcej w ustawieniach.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Skrót został odrzucony, gdy pulpit o niego zapytał.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Skrót został odrzucony. W ustawieniach można zapytać ponownie.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Skróty pulpitu przestały działać. %1 zadziała znowu, gdy tylko wrócą.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>Pulpit nie daje programom skrótów. Quillon może dodać %1 do ustawień klawiatury, gdzie można to zmienić.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>Skrót nie jest jeszcze ustawiony. Można go dodać w ustawieniach.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>Pulpit trzyma skróty we własnym pliku. Dla %1 proszę dodać ten wiersz do %3:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>Pulpit nie ustawił %1. Proszę zapytać ponownie lub przypisać to polecenie w ustawieniach klawiatury:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>Pulpit nie daje programom skrótów. Dla %1 proszę przypisać to polecenie w ustawieniach klawiatury:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Ten pulpit nie daje programom skrótów.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Wyślij schowek na telefon</translation>
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
        <translation>połączono</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nie połączono</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>Twoja grupa</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>jeszcze nie znaleziono</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (jeszcze nie utworzono)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Temat</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Skrót</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Baza kluczy</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>tak</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram nie przyjął tego tokenu bota.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram przysłał pustą odpowiedź (błąd %1). Proszę spróbować za chwilę.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram odmówił.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API nie jest adresem serwera. Ma on postać http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Ten token bota nie wygląda dobrze.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Nie udało się połączyć z serwisem Telegram. Proszę sprawdzić połączenie z internetem.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>Nie udało się zapisać wyjścia.</translation>
    </message>
    <message>
        <source>%1 %2 of %3 MB</source>
        <comment>what is done, and how far it is</comment>
        <translation>%1 %2 z %3 MB</translation>
    </message>
</context>
<context>
    <name>Topic</name>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>skopiowany tekst</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>obrazy</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>każdy inny plik</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Wideo</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>pliki wideo</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Zatrzymano, zanim wszystko cofnięto.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Wiadomość %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Wysyłanie jeszcze trwa. Cofnij je, gdy się zakończy.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>Ostatnie wysyłanie jest już cofane.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>Z ostatniego wysyłania nic nie dotarło.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Nie ma czego cofnąć.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>Od ostatniego wysyłania minęło ponad 48 godzin. Potem Telegram nie pozwala botom usuwać wiadomości.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Cofanie…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Cofnięto wiadomość</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Cofnięto tylko %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>Cofnięto %n wiadomość</numerusform>
            <numerusform>Cofnięto %n wiadomości</numerusform>
            <numerusform>Cofnięto %n wiadomości</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Quillon nie mógł przenieść się do kosza. Na koniec proszę przenieść go z katalogu programów do kosza.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Quillon nie mógł przenieść się do kosza. Na koniec proszę usunąć go menedżerem pakietów.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>Dane programu Quillon usunięto</translation>
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
        <translation>Quillon nie może się zaktualizować tam, gdzie jest: na tym dysku nie można zapisywać.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon nie może się zaktualizować z tymczasowego miejsca, z którego go uruchomiono.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>Nie udało się skopiować aktualizacji tam, gdzie jest Quillon.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Inny Quillon instaluje aktualizację lub właśnie to zrobił.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>Brak uprawnień do zmiany katalogu, w którym jest Quillon.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>Aktualizację anulowano.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>Adres, pod którym szuka się aktualizacji, nie jest bezpieczny (https).</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>Nie udało się pobrać listy aktualizacji. Proszę sprawdzić połączenie i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>Lista aktualizacji jest uszkodzona.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>Ta kopia programu Quillon nie ma klucza do sprawdzania aktualizacji, więc nie może się aktualizować.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>Adres aktualizacji nie jest bezpieczny (https).</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>Nie udało się pobrać aktualizacji. Proszę sprawdzić połączenie i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>Pobrana aktualizacja nie ma właściwego rozmiaru.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>Pobrana aktualizacja nie jest podpisana przez twórców programu Quillon, więc ją odrzucono.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>Nie udało się zapisać pobranej aktualizacji w katalogu pamięci podręcznej.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>Archiwum aktualizacji jest uszkodzone, zaszyfrowane lub innego rodzaju.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>Archiwum aktualizacji zawiera ścieżkę spoza swojego katalogu, więc je odrzucono.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>Archiwum aktualizacji zawiera ścieżkę z „..”, więc je odrzucono.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>Archiwum aktualizacji zawiera dowiązanie wychodzące poza jego katalog, więc je odrzucono.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>Archiwum aktualizacji zawiera urządzenie, potok lub gniazdo, więc je odrzucono.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>Archiwum aktualizacji zawiera program z prawami innego użytkownika, więc je odrzucono.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>Rozpakowana aktualizacja jest za duża, więc ją odrzucono.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>Archiwum aktualizacji nie zawiera dokładnie jednego programu.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>Archiwum aktualizacji zawiera inny program niż Quillon.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>Archiwum aktualizacji zawiera inną wersję niż zapowiedziana.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>Aktualizacja nie jest nowsza niż ta wersja programu Quillon.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>Nowa wersja nie uruchamia się na tym komputerze.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>Na dysku jest za mało miejsca na aktualizację.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>Na dysku, na którym jest Quillon, nie można zamienić dwóch katalogów w jednym kroku.</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>Skrót</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Wyślij schowek</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>Po wysłaniu</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>Odtwórz &amp;dźwięk</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>Pokaż &amp;baner</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Położenie banera</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Uruchamianie</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>&amp;Uruchamiaj Quillon po zalogowaniu</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>&amp;Rozłącz ten komputer</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>Odi&amp;nstaluj Quillon…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>Inny program już używa %1. Proszę wybrać coś innego.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>połączono</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nie połączono</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>Jeszcze nie znaleziono</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>Wysłano do 📝 Notes &amp; text</translation>
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
        <translation>Nie wysłano</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Cofnięto</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>cofnięto</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Usuwa wiadomość ostatniego wysyłania</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Usuwa %n wiadomość ostatniego wysyłania</numerusform>
            <numerusform>Usuwa wszystkie %n wiadomości ostatniego wysyłania</numerusform>
            <numerusform>Usuwa wszystkie %n wiadomości ostatniego wysyłania</numerusform>
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
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>quillon::PanelHeader</name>
    <message>
        <source>your group</source>
        <translation>Twoja grupa</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Połączono · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Jeszcze nie skonfigurowano</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>przed chwilą</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>Inny program już używa %1. W ustawieniach można wybrać inny skrót.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Baner na górze</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Baner na środku</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Baner na dole</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Nic jeszcze nie wysłano.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Ostatnie</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Wyślij schowek na telefon</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wysyłanie…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Wyślij schowek</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Upuść, aby wysłać</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>Pliki, obraz lub tekst</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Konfiguracja</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Tematy</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Ogólne</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>Otwórz pane&amp;l</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>Ten pulpit nie pokazuje ikony programu Quillon.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Połącz telefon</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Dwie minuty konfiguracji z własnym botem w Telegramie. Potem wystarczy coś skopiować i nacisnąć %1.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Utwórz bota</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Wklej token</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Utwórz grupę</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Utwórz tematy</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Nowa grupa** → dodaj swojego bota → nadaj dowolną nazwę (na przykład „Do wysłania”) → Utwórz.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>Stuknij **nazwę grupy** → stuknij **ołówek** → włącz **Tematy** (tuż pod Wyglądem) → Zapisz.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>Na liście członków **przytrzymaj** bota → **Mianuj administratorem** → zostaw włączone **Zarządzanie tematami** → Zapisz.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>Wyślij „hi” w grupie.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Kopiuj na komputerze. Wklejaj na telefonie.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>W Telegramie otwórz **@BotFather**, wyślij **/newbot** i wykonaj kroki. Otrzymasz token. Bot jest tylko Twój.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>Otwórz &amp;BotFather</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>W Telegramie:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Wszystko gotowe.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Skopiuj cokolwiek i naciśnij</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>Utworzono z @BotFather</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>Połączono z @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>Twój bot</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>Znaleziono %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>Twoja grupa</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>Gotowy %n temat</numerusform>
            <numerusform>Gotowe %n tematy</numerusform>
            <numerusform>Gotowych %n tematów</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>&amp;Znajdź ponownie</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>&amp;Znajdź moją grupę</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>T&amp;ematy gotowe</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>Ut&amp;wórz tematy</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>Za&amp;pytaj ponownie</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>&amp;Wybierz klawisze…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>Doda&amp;j skrót</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Kop&amp;iuj</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Polecenie dla skrótu</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>Trwa praca</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Krok %1: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
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
        <translation>Token bota</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Połącz</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>&amp;Użyj innego bota</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>Token jest przechowywany w bazie kluczy.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Nazwy tematów w Twojej grupie</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>&amp;Zapisz nazwy w Telegramie</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Najpierw trzeba dokończyć konfigurację</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Zapisano w Telegramie.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Wyślij schowek</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Otwórz panel</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>Jeszcze %n: quillon doctor</numerusform>
            <numerusform>Jeszcze %n: quillon doctor</numerusform>
            <numerusform>Jeszcze %n: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>Token bota w bazie kluczy</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Ustawienia, historię wysyłania i pamięć podręczną</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>Preferencje programu</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Uruchamianie po zalogowaniu</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Potem przenosi program do kosza i kończy pracę</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Odinstalować Quillon?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>Z tego komputera zostaną usunięte:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>Bot i grupa zostaną w Telegramie.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Odinstaluj</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Informacje o wydaniu</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatycznie sprawdzać aktualizacje?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon może raz dziennie szukać nowej wersji. Można to zawsze zmienić w ustawieniach lub szukać ręcznie.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Sprawdzaj automatycznie</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>Nie sprawdzaj</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Sprawdzanie aktualizacji…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Quillon jest aktualny</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>Wersja %1 jest najnowsza.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Dostępna jest nowa wersja programu Quillon</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>Masz Quillon %1. Można teraz zainstalować wersję %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Pobieranie Quillon %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Łączenie…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Przygotowywanie Quillon %1</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Sprawdzanie i rozpakowywanie…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 z %2 MB</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 jest gotowy do instalacji</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon może od razu uruchomić się ponownie z nową wersją lub zainstalować ją przy zakończeniu.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Zainstaluj i uruchom ponownie</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Zainstaluj przy zakończeniu</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 jest zainstalowany</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Będzie gotowy przy następnym uruchomieniu programu Quillon.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>Aktualizacja się nie powiodła</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Sprawdzaj aktualizacje &amp;automatycznie</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>&amp;Sprawdź teraz</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
</context>
</TS>
