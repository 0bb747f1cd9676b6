<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA">
<context>
    <name>Alert</name>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
</context>
<context>
    <name>App</name>
    <message>
        <source>There is no X server, and Qt&apos;s part for Wayland is not installed. Debian&apos;s package is qt6-wayland.</source>
        <translation>Немає X-сервера, а модуль Qt для Wayland не встановлено. Пакунок Debian називається qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>Стільницю не знайдено: не відповідають ані X-сервер, ані композитор Wayland.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon запущено з прихованої копії. Перемістіть Quillon самі з теки «Завантаження» до теки «Applications» і запустіть звідти.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Комп’ютер не дозволив Quillon записати себе до теки програм. Перемістіть Quillon самі з теки «Завантаження» до теки «Applications» і запустіть звідти.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>З теки програм запущено старіший Quillon. Завершіть його через меню й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>Не вдалося замінити старіший Quillon у теці програм. Перемістіть його до смітника самі й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Комп’ютер не дозволив переміщення. Перемістіть Quillon самі з теки «Завантаження» до теки «Applications» і запустіть звідти.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Не вдалося перемістити Quillon</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Перемістити Quillon до теки програм?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Лише там програма може оновлюватися сама.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Перемістити</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не зараз</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>Угорі</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Посередині</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Унизу</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n файл</numerusform>
            <numerusform>%n файли</numerusform>
            <numerusform>%n файлів</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Зображення</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Зображення · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Буфер обміну порожній</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>Буфер обміну недоступний. На цій стільниці немає ні data-control, ні Xwayland.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>Токен бота: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>Попереднє надсилання ще триває.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>Не вдалося зберегти налаштування. Чи є місце на диску?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>Бот відповідає, але немає сховища ключів, щоб зберегти його токен.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>З’єднано: %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>ваша група</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>Знайдено групу «%1»</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>вимкнено в налаштуваннях стільниці</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>увімкнено, але запускати нічого: увімкніть ще раз</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>Не вдалося ввімкнути запуск Quillon під час входу.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>Не вдалося вимкнути запуск Quillon під час входу.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon і всі його дані вилучено; програма в смітнику</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>Програма в смітнику</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>Токен бота залишився у сховищі ключів, бо воно заблоковане.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>Очікування на сховище ключів: можливо, воно запитує пароль у власному вікні. Натисніть Ctrl-C, щоб перервати.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>Запущений Quillon не відповідає. Завершіть його й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon завершився передчасно.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 — найновіша версія.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>Доступна версія Quillon %1.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Завантаження…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 встановлено.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>До перезапуску й далі працює версія %1.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Ця копія Quillon сама не оновлюється.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon не підготувався до надсилання за хвилину.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>Немає запущеного Quillon, за яким можна стежити.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>Запущено Quillon іншої версії, який не знає цієї команди. Завершіть його й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>Не вдалося прочитати стандартний ввід.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Стандартний ввід</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon надсилає скопійоване на телефон через вашого бота в Telegram.

Використання: quillon [КОМАНДА]

Без команди програма залишається працювати й надсилає, коли ви натискаєте комбінацію клавіш.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Код завершення: 0 — виконано, 1 — помилка, 2 — командний рядок не зрозуміло.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>відповісти у форматі JSON</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>показати панель; запускає Quillon, якщо його не запущено</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>показати налаштування; запускає Quillon, якщо його не запущено</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>під’єднати бота; читає його токен зі стандартного вводу</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>знайти групу, у якій ви написали боту</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>створити чотири теми або знайти їх знову</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>дати темам назви, задані тут</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>забути бота, групу й теми</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>показати, що налаштовано</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>показати надіслане, спершу найновіше</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>запускати</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>не запускати</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>показати, що вибрано</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>чи запускати Quillon під час входу</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>також установити її</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>перевірити, чи є новіша версія; установити її</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>так, вилучити</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>вилучити Quillon і всі його дані</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>показати цю довідку</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>показати версію</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>файл для надсилання</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>до notes, images, files або videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>стандартний ввід як файл із цією назвою</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>надіслати буфер обміну, файли або, з - чи через канал, стандартний ввід</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>чекати до хвилини, доки можна буде надсилати</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>показувати надіслане відтепер</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>називати й імена</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>показати, що не так і як це виправити</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>скасувати останнє надсилання, протягом 48 годин</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>не перевірено, бо немає дисплея</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>стільниця ще не відповіла</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>Якщо вона запитає, дайте їй відповідь.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 працює</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>стільниця знає її, але не призначила клавіш</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Виберіть клавіші в налаштуваннях, у розділі «Загальні».</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>%1 уже використовує інша програма або сама стільниця</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Виберіть іншу в налаштуваннях, у розділі «Загальні», або звільніть цю в налаштуваннях клавіатури стільниці.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>її відхилено, коли про неї запитала стільниця</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>Запитати знову можна в налаштуваннях, у розділі «Загальні».</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>стільниця не дає програмам комбінацій клавіш</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>Як задати її вручну, показано в налаштуваннях, у розділі «Загальні».</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>не вдалося перевірити</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Вийдіть із системи й увійдіть знову.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>композитор Wayland не відповідає</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>композитор Wayland і X-сервер відповідають</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>композитор Wayland відповідає</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>X-сервер відповідає</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>X-сервер не відповідає</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>дисплея немає</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Запустіть Quillon у сеансі стільниці, де дисплей задано в DISPLAY або WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>програма, з якої востаннє копіювали, не відповідає</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Скопіюйте щось в іншій програмі або завершіть цю.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>ця стільниця не дає програмам його читати</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Увімкніть підтримку Xwayland у стільниці.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>через %1; зараз порожній</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>через %1; зараз доступно: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>не перевірено, бо Quillon не запущено</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 вільна</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>комбінації клавіш стільниці перестали працювати</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>комбінацію %1 уже використовує «%2»</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>вимкнено в налаштуваннях</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>шар поверх усіх вікон</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>вікно</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>його показує програма на сеансовій шині</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>його показує область сповіщень на X-сервері</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>на цій стільниці немає місця для значків</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Відкрийте панель командою: quillon panel. Або додайте стільниці область сповіщень, наприклад розширенням.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>гаразд</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>увага</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>помилка</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>невідомо</translation>
    </message>
    <message>
        <source>off</source>
        <translation>вимкнено</translation>
    </message>
    <message>
        <source>on</source>
        <translation>увімкнено</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>вимкнено в налаштуваннях стільниці</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>увімкнено, але програми, яку треба запускати, немає на місці</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Увімкніть ще раз: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 на %2, з %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>запущена й чекає на комбінацію клавіш</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>не запущена, тож на комбінацію клавіш ніхто не чекає</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Запустіть Quillon.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>є звуковий сервер або звукова карта</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>немає ні звукового сервера, ні звукової карти</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>Запустіть PipeWire або PulseAudio.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не відповідає</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Перевірте, чи доступний її диск або мережевий ресурс.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>у %1 не можна записувати</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1 не вдається створити</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Надайте собі права на неї.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>диск, де лежить %1, заповнений</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Звільніть на ньому місце.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>інші користувачі можуть зазирнути в %1</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>Закрийте їм доступ: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>у %1 можна записувати; вільно %2 МБ</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>ця копія сама не оновлюється</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon оновлюється сам</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon не може замінити себе там, де він лежить</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Перемістіть його до своєї теки.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версія</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Програма</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Сеанс</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Дисплей</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Буфер обміну</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Комбінація клавіш</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Банер</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Значок</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Тека даних</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Запуск під час входу</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Сховище ключів</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Мережа</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Годинник</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Бот</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Група</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Теми</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Права</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>Тема %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>не перевірено через попередню помилку</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram відповідає: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram не відповідає</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Спробуйте ще раз трохи згодом.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>Перевірте з’єднання з інтернетом і брандмауер.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>Виправте змінну %1 або приберіть її.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>зв’язок із Telegram є</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>бібліотеку libcurl не встановлено, або вона застаріла</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>Встановіть libcurl 7.87 або новішу.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API — не адреса сервера</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Виправте цю змінну або приберіть її.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>ім’я проксі з %1 не знайдено</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>ім’я сервера не знайдено</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>Перевірте з’єднання з інтернетом і DNS-сервер.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>проксі з %1 відхиляє з’єднання</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>не вдається з’єднатися із сервером</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>немає довіри до сертифіката сервера</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>Встановіть ca-certificates. Якщо трафік читає проксі, його сертифікат можна вказати в SSL_CERT_FILE.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>за годинником цього комп’ютера сертифікат сервера зараз недійсний</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Встановіть точний час.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>не вдається узгодити шифрування із сервером</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>відповідь не надійшла вчасно</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>її видалено на телефоні</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Створіть її знову: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>її закрито</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Відкрийте її знову на телефоні.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>бот не має права в ній писати</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Зробіть бота адміністратором групи.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>відповідає та зберігає токен бота</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>заблоковане</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Розблокуйте його й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>відповідає, але токена бота в ньому немає</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Під’єднайте бота: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>не відповідає</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Завершіть його службу або вийдіть із системи й увійдіть знову.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>не видає токена; токен бота залишається в пам’яті до завершення Quillon</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Розблокуйте його або під’єднайте бота ще раз.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>не відповідає сеансова шина, через яку до нього звертаються</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Запустіть Quillon у сеансі стільниці, де шину задано в DBUS_SESSION_BUS_ADDRESS.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>відсутнє</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>Встановіть gnome-keyring або KWallet і увійдіть до системи знову.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>зв’язок із Telegram є, через проксі з %1</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>проксі з %1 не відповідає</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>сервер не повідомив свого часу</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>збігається з годинником сервера</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>поспішає на %1 хв відносно годинника сервера</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>відстає на %1 хв від годинника сервера</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram не приймає його токена</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Отримайте його токен у @BotFather і під’єднайте бота: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram приймає його токен</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Додайте бота до групи, напишіть у ній «hi», а тоді: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>ще не знайдено</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>стала супергрупою, а це вже інша група</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Напишіть у ній «hi», а тоді: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>доступна боту</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>увімкнено</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>вимкнено в групі</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Увімкніть теми в налаштуваннях групи на телефоні.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>бот має право керувати темами</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>бот не має права керувати темами</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Зробіть його адміністратором із правом «Керування темами».</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>ще не створено</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Створіть її: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>на місці</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>Працює інший Quillon. Завершіть його або зачекайте, доки він закінчить.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>Токен бота залишився у сховищі ключів. Розблокуйте його й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>Сховище ключів заблоковане. Розблокуйте його й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>Сховище ключів не відповідає. Запустіть або розблокуйте його й спробуйте ще раз.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon очікує</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Працює інший Quillon, наприклад команда надсилання. Цей запуститься, щойно той закінчить.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>Надсилання…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>Файл %1 більший за 50 МБ (обмеження Telegram для ботів)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Теки поки що не можна надсилати: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>Не вдалося прочитати %1</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>Не вистачає пам’яті, щоб це надіслати.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>Не надіслано: надсилання зупинено.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>Надіслано: %1, з помилкою: %2</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Надіслано до %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>Надіслано %n елемент</numerusform>
            <numerusform>Надіслано %n елементи</numerusform>
            <numerusform>Надіслано %n елементів</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Quillon завершився, перш ніж Telegram підтвердив надсилання.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Спершу закінчіть налаштування Quillon</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1: немає чого надсилати.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1: це не текст і не зображення PNG. Задайте назву файлу за допомогою --name.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>Це не схоже на токен бота. Він виглядає так: 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>Тим часом бота було забуто.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Спершу під’єднайте бота.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Групу ще не знайдено. Додайте бота до групи, надішліть у ній «hi» і спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>Групу «%1» знайдено, але теми вимкнено. Увімкніть теми в налаштуваннях групи.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>ваша група</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>Не вдалося створити теми. Зробіть бота адміністратором із правом «Керування темами» і спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Спершу знайдіть групу.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon під’єднано. Натисніть %1 на комп’ютері, щоб надіслати скопійоване.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>Комбінацію клавіш ще не задано. Як це зробити, показано в налаштуваннях.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>На цій стільниці комбінація клавіш: %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>Стільниця призначає %1. Якщо вона запитає, дайте їй відповідь.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>Стільниця знає цю комбінацію, але ще не призначила клавіш.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>Стільниця ще не призначила клавіш. Зазирніть у налаштування.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Ви відхилили комбінацію клавіш, коли стільниця запитала про неї.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Ви відхилили комбінацію клавіш. Запитати знову можна в налаштуваннях.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Комбінації клавіш стільниці перестали працювати. %1 запрацює знову разом із ними.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>Стільниця не дає програмам комбінацій клавіш. Quillon може додати %1 до налаштувань клавіатури, де комбінацію можна змінити.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>Комбінацію клавіш ще не задано. Її можна додати в налаштуваннях.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>Стільниця зберігає комбінації клавіш у власному файлі. Для %1 додайте цей рядок до %3:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>Стільниця не призначила %1. Запитайте знову або призначте цю команду клавішам у налаштуваннях клавіатури:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>Стільниця не дає програмам комбінацій клавіш. Призначте %1 цю команду в налаштуваннях клавіатури:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Ця стільниця не дає програмам комбінацій клавіш.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Надіслати буфер обміну на телефон</translation>
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
        <translation>під’єднано</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>не під’єднано</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Бот</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Група</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>ваша група</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>ще не знайдено</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (ще не створено)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Комбінація клавіш</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Сховище ключів</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>так</translation>
    </message>
    <message>
        <source>no</source>
        <translation>ні</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram не прийняв цей токен бота.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram надіслав порожню відповідь (помилка %1). Спробуйте ще раз трохи згодом.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram відмовив.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API — не адреса сервера. Вона виглядає так: http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Цей токен бота виглядає неправильним.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Не вдалося зв’язатися з Telegram. Перевірте з’єднання з інтернетом.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>Не вдалося записати виведення.</translation>
    </message>
    <message>
        <source>%1 %2 of %3 MB</source>
        <comment>what is done, and how far it is</comment>
        <translation>%1 %2 з %3 МБ</translation>
    </message>
</context>
<context>
    <name>Topic</name>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>скопійований текст</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Зображення</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>зображення</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файли</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>будь-який інший файл</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Відео</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>відеофайли</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Зупинено, перш ніж усе було скасовано.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Повідомлення %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Надсилання ще триває. Скасуйте його, коли воно закінчиться.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>Останнє надсилання вже скасовується.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>З останнього надсилання нічого не дійшло.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Немає чого скасовувати.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>Від останнього надсилання минуло понад 48 годин. Після цього Telegram не дає ботам видаляти повідомлення.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Скасування…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Повідомлення скасовано</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Скасовано лише %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>Скасовано %n повідомлення</numerusform>
            <numerusform>Скасовано %n повідомлення</numerusform>
            <numerusform>Скасовано %n повідомлень</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Не вдалося перемістити Quillon до смітника. Щоб закінчити, перемістіть його туди з теки програм самі.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Не вдалося перемістити Quillon до смітника. Щоб закінчити, вилучіть його менеджером пакунків.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>Дані Quillon вилучено</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
</context>
<context>
    <name>UpdateError</name>
    <message>
        <source>Quillon cannot update itself where it lies now: that disk cannot be written to.</source>
        <translation>Quillon не може оновитися там, де він лежить: на цей диск не можна записувати.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon не може оновитися з тимчасового місця, звідки його запущено.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>Не вдалося скопіювати оновлення туди, де лежить Quillon.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Інший Quillon встановлює оновлення або щойно це зробив.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>Ви не маєте права змінювати теку, у якій лежить Quillon.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>Оновлення скасовано.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>Адреса для пошуку оновлень незахищена (https).</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>Не вдалося отримати список оновлень. Перевірте з’єднання й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>Список оновлень пошкоджено.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>Ця копія Quillon не має ключа для перевірки оновлень, тому не може оновитися.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>Адреса оновлення незахищена (https).</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>Не вдалося завантажити оновлення. Перевірте з’єднання й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>Розмір завантаженого оновлення не такий, яким має бути.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>Завантажене оновлення не підписано авторами Quillon, тому його вилучено.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>Не вдалося зберегти завантажене оновлення в теці кешу.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>Архів оновлення пошкоджено, зашифровано або він іншого типу.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>В архіві оновлення є шлях за межі його теки, тому його вилучено.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>В архіві оновлення є шлях із «..», тому його вилучено.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>В архіві оновлення є посилання за межі його теки, тому його вилучено.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>В архіві оновлення є пристрій, канал або сокет, тому його вилучено.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>В архіві оновлення є програма з правами іншого користувача, тому його вилучено.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>Розпаковане оновлення завелике, тому його вилучено.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>В архіві оновлення має бути рівно одна програма.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>В архіві оновлення не Quillon, а інша програма.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>В архіві оновлення не та версія, про яку було оголошено.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>Оновлення не новіше за цю версію Quillon.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>Нова версія не запускається на цьому комп’ютері.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>На диску не вистачає місця для оновлення.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>На диску, де лежить Quillon, не можна поміняти місцями дві теки за один крок.</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>Комбінація клавіш</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Надіслати буфер обміну</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>Після надсилання</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>В&amp;ідтворювати звук</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>Показувати &amp;банер</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Розташування банера</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>Запускати Quillon під час в&amp;ходу</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>Від’&amp;єднати цей комп’ютер</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Бот</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Група</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>Ви&amp;лучити Quillon…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>%1 уже використовує інша програма. Виберіть іншу.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>під’єднано</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Не під’єднано</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>Ще не знайдено</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>Надіслано до 📝 Notes &amp; text</translation>
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
        <translation>Не надіслано</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Надіслано</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Скасовано</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>скасовано</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Видаляє повідомлення останнього надсилання</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Видаляє %n повідомлення останнього надсилання</numerusform>
            <numerusform>Видаляє всі %n повідомлення останнього надсилання</numerusform>
            <numerusform>Видаляє всі %n повідомлень останнього надсилання</numerusform>
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
        <translation>ваша група</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Під’єднано · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Ще не налаштовано</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>щойно</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Налаштування…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Перевірити оновлення…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>%1 уже використовує інша програма. Виберіть іншу комбінацію клавіш у налаштуваннях.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Банер угорі</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Банер посередині</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Банер унизу</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Ще нічого не надіслано.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Нещодавні</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Надіслати буфер обміну на телефон</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Надсилання…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Надіслати буфер обміну</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Відпустіть, щоб надіслати</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>Файли, зображення або текст</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Підготовка</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Теми</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Загальні</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>&amp;Відкрити панель</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>На цій стільниці немає місця для значка Quillon.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Під’єднайте телефон</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Почати налаштування</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Дві хвилини на налаштування з вашим ботом у Telegram. Потім копіюйте будь-що й натискайте %1.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Створіть бота</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Вставте токен</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Створіть групу</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Створіть теми</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Нова група** → додайте свого бота → назвіть як завгодно (наприклад, «Мої надсилання») → Створити.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>Торкніться **назви групи** → **олівця** → увімкніть **Теми** (одразу під «Оформленням») → Зберегти.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>У списку учасників **утримуйте** бота → **Призначити адміністратором** → залиште **Керування темами** ввімкненим → Зберегти.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>Надішліть «hi» у групу.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Копіюйте на комп’ютері. Вставляйте на телефоні.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>Відкрийте в Telegram **@BotFather**, надішліть **/newbot** і виконайте вказівки. Ви отримаєте токен. Бот буде лише вашим.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>Відкрити &amp;BotFather</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>У Telegram:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Усе готово.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Скопіюйте щось і натисніть</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>Створено за допомогою @BotFather</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>Під’єднано @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>ваш бот</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>Знайдено групу %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>ваша група</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>Готова %n тема</numerusform>
            <numerusform>Готові %n теми</numerusform>
            <numerusform>Готово %n тем</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>&amp;Шукати знову</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>Знайти &amp;мою групу</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>Теми &amp;готові</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>&amp;Створити теми</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>Зап&amp;итати знову</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>Вибрати &amp;клавіші…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>&amp;Додати комбінацію клавіш</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>К&amp;опіювати</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Команда для комбінації клавіш</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>Працює</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Крок %1: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
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
        <translation>Токен бота</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>Пі&amp;д’єднати</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>&amp;Інший бот</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>Токен зберігається у вашому сховищі ключів.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Назви тем у вашій групі</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>З&amp;берегти назви в Telegram</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Спершу закінчіть налаштування</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Збережено в Telegram.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Надіслати буфер обміну</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Відкрити панель</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Налаштування…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>Ще %n: quillon doctor</numerusform>
            <numerusform>Ще %n: quillon doctor</numerusform>
            <numerusform>Ще %n: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>Токен бота у сховищі ключів</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Налаштування, історія надсилань і кеш</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>Параметри програми</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Запуск під час входу</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Потім програма переміститься до смітника й завершиться</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Вилучити Quillon?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>З цього комп’ютера буде вилучено:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>Бот і група залишаться в Telegram.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Скасувати</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Вилучити</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>Оновлення програми</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Що нового</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Перевіряти оновлення автоматично?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon може раз на день шукати нову версію. Це завжди можна змінити в налаштуваннях; можна шукати й вручну.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Перевіряти автоматично</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>Не перевіряти</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Пошук оновлень…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Встановлено найновішу версію Quillon</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>Версія %1 — найновіша.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Доступна нова версія Quillon</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>У вас Quillon %1. Можна встановити версію %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Встановити</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Пізніше</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Пропустити цю версію</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Завантаження Quillon %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>З’єднання…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Підготовка Quillon %1</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Перевірка й розпакування…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 з %2 МБ</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 готовий до встановлення</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon може одразу перезапуститися з новою версією або встановити її під час виходу.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Встановити й перезапустити</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Встановити під час виходу</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 встановлено</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Нова версія відкриється під час наступного запуску Quillon.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>Оновити не вдалося</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Перевіряти оновлення &amp;автоматично</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>П&amp;еревірити зараз</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версія %1</translation>
    </message>
</context>
</TS>
