<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Alert</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>App</name>
    <message>
        <source>There is no X server, and Qt&apos;s part for Wayland is not installed. Debian&apos;s package is qt6-wayland.</source>
        <translation>Нет X-сервера, а модуль Qt для Wayland не установлен. Пакет Debian называется qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>Рабочий стол не найден: не отвечают ни X-сервер, ни композитор Wayland.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon запущен из скрытой копии. Сами переместите Quillon из папки «Загрузки» в папку «Applications» и запустите оттуда.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Компьютер не разрешил Quillon записать себя в папку приложений. Сами переместите Quillon из папки «Загрузки» в папку «Applications» и запустите оттуда.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>Из папки приложений запущена более старая версия Quillon. Завершите её через меню и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>Не удалось заменить старую версию Quillon в папке приложений. Переместите её в корзину сами и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Компьютер не разрешил перемещение. Сами переместите Quillon из папки «Загрузки» в папку «Applications» и запустите оттуда.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Не удалось переместить Quillon</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Переместить Quillon в папку приложений?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Обновляться сама программа может только там.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Переместить</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Не сейчас</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>Вверху</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>В центре</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Внизу</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n файл</numerusform>
            <numerusform>%n файла</numerusform>
            <numerusform>%n файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Изображение · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Буфер обмена пуст</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>Буфер обмена недоступен. На этом рабочем столе нет ни data-control, ни Xwayland.</translation>
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
        <translation>Предыдущая отправка ещё не закончилась.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>Не удалось сохранить настройку. Есть ли место на диске?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>Бот отвечает, но нет связки ключей, чтобы хранить его токен.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Подключено: %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>ваша группа</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>Найдена группа «%1»</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>выключено в настройках рабочего стола</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>включено, но запускать нечего: включите ещё раз</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>Не удалось включить запуск Quillon при входе в систему.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>Не удалось отключить запуск Quillon при входе в систему.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon и все его данные удалены; приложение в корзине</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>Приложение в корзине</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>Токен бота остался в связке ключей, потому что она заблокирована.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>Ожидание связки ключей: возможно, она спрашивает пароль в своём окне. Нажмите Ctrl-C, чтобы прервать.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>Запущенный Quillon не отвечает. Завершите его и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon завершился раньше времени.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Установлена последняя версия Quillon: %1.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>Доступна версия Quillon %1.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 установлен.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>До перезапуска продолжает работать версия %1.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Эта копия Quillon сама не обновляется.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon не подготовился к отправке за минуту.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>Нет запущенного Quillon, за которым можно следить.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>Запущен Quillon другой версии, который не знает этой команды. Завершите его и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>Не удалось прочитать стандартный ввод.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Стандартный ввод</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon отправляет скопированное на телефон через вашего бота в Telegram.

Использование: quillon [КОМАНДА]

Без команды программа остаётся в памяти и отправляет по нажатию комбинации клавиш.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Код завершения: 0 — выполнено, 1 — ошибка, 2 — командная строка не понята.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>ответить в формате JSON</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>показать панель; запускает Quillon, если он не запущен</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>показать настройки; запускает Quillon, если он не запущен</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>подключить бота; читает его токен со стандартного ввода</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>найти группу, в которой вы написали боту</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>создать четыре темы или найти их снова</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>дать темам имена, заданные здесь</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>забыть бота, группу и темы</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>показать, что настроено</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>показать отправленное, сначала новое</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>запускать</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>не запускать</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>показать, что выбрано</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>запускать ли Quillon при входе в систему</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>и установить её</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>проверить, есть ли новая версия; установить её</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>да, удалить</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>удалить Quillon и все его данные</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>показать эту справку</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>показать версию</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>файл для отправки</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>в notes, images, files или videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>стандартный ввод как файл с этим именем</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>отправить буфер обмена, файлы или, с - либо через канал, стандартный ввод</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>ждать до минуты, пока можно будет отправлять</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>показывать отправляемое с этого момента</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>называть и имена</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>показать, что не так и как это исправить</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>отменить последнюю отправку, в течение 48 часов</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>не проверено, так как нет дисплея</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>рабочий стол ещё не ответил</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>Если он спросит, ответьте ему.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 работает</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>рабочий стол знает её, но не назначил клавиш</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Выберите клавиши в настройках, в разделе «Общие».</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>%1 занята другой программой или самим рабочим столом</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Выберите другую в настройках, в разделе «Общие», или освободите эту в настройках клавиатуры рабочего стола.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>отклонена, когда о ней спросил рабочий стол</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>Спросить снова можно в настройках, в разделе «Общие».</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>рабочий стол не даёт программам комбинаций клавиш</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>Как задать её вручную, показано в настройках, в разделе «Общие».</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>не удалось проверить</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>композитор Wayland не отвечает</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>композитор Wayland и X-сервер отвечают</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>композитор Wayland отвечает</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>X-сервер отвечает</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>X-сервер не отвечает</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>дисплея нет</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Запустите Quillon в сеансе рабочего стола, где дисплей задан в DISPLAY или WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>программа, из которой копировали в последний раз, не отвечает</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Скопируйте что-нибудь в другой программе или завершите эту.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>этот рабочий стол не даёт программам его читать</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Включите поддержку Xwayland в рабочем столе.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>через %1; сейчас пуст</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>через %1; сейчас доступно: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>не проверено, так как Quillon не запущен</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 свободна</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>комбинации клавиш рабочего стола перестали работать</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>комбинацию %1 уже использует «%2»</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>выключен в настройках</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>слой поверх всех окон</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>окно</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>его показывает программа на сеансовой шине</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>его показывает область уведомлений на X-сервере</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>на этом рабочем столе нет места для значков</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Откройте панель командой: quillon panel. Или добавьте рабочему столу область уведомлений, например расширением.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ок</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>внимание</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неясно</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключено</translation>
    </message>
    <message>
        <source>on</source>
        <translation>включено</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>выключено в настройках рабочего стола</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>включено, но программы, которую нужно запускать, нет на месте</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Включите ещё раз: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 на %2, с %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>запущена и ждёт комбинации клавиш</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>не запущена, и комбинации клавиш никто не ждёт</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Запустите Quillon.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>есть звуковой сервер или звуковая карта</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>нет ни звукового сервера, ни звуковой карты</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>Запустите PipeWire или PulseAudio.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не отвечает</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Проверьте, доступен ли её диск или сетевой ресурс.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>в %1 нельзя записывать</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1 не удаётся создать</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Дайте себе права на неё.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>диск, где лежит %1, заполнен</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Освободите на нём место.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>другие пользователи могут заглянуть в %1</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>Закройте им доступ: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>в %1 можно записывать; свободно %2 МБ</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>эта копия сама не обновляется</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon обновляется сам</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon не может заменить себя там, где он лежит</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Переместите его в свою папку.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Программа</translation>
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
        <translation>Буфер обмена</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Комбинация клавиш</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Баннер</translation>
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
        <translation>Папка данных</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Запуск при входе в систему</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Связка ключей</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Бот</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Темы</translation>
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
        <translation>не проверено из-за предыдущей ошибки</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram отвечает: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram не отвечает</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Попробуйте ещё раз чуть позже.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>Проверьте подключение к интернету и брандмауэр.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>Исправьте переменную %1 или уберите её.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>связь с Telegram есть</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>библиотека libcurl не установлена или слишком старая</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>Установите libcurl 7.87 или новее.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API — не адрес сервера</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Исправьте эту переменную или уберите её.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>имя прокси из %1 не найдено</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>имя сервера не найдено</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>Проверьте подключение к интернету и DNS-сервер.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>прокси из %1 отклоняет подключение</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>не удаётся подключиться к серверу</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>нет доверия к сертификату сервера</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>Установите ca-certificates. Если трафик читает прокси, его сертификат можно указать в SSL_CERT_FILE.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>по часам этого компьютера сертификат сервера сейчас не действует</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Установите точное время.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>не удаётся согласовать шифрование с сервером</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>ответ не пришёл вовремя</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>её удалили на телефоне</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Создайте её снова: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>закрыта</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Откройте её снова на телефоне.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>бот не имеет права в ней писать</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Сделайте бота администратором группы.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>отвечает и хранит токен бота</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>заблокирована</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Разблокируйте её и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>отвечает, но токена бота в ней нет</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Подключите бота: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>не отвечает</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Завершите её службу или выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>не выдаёт токен; токен бота остаётся в памяти до завершения Quillon</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Разблокируйте её или подключите бота ещё раз.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>не отвечает сеансовая шина, через которую к ней обращаются</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Запустите Quillon в сеансе рабочего стола, где шина задана в DBUS_SESSION_BUS_ADDRESS.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>отсутствует</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>Установите gnome-keyring или KWallet и войдите в систему заново.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>связь с Telegram есть, через прокси из %1</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>прокси из %1 не отвечает</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>сервер не сообщил своё время</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>совпадают с часами сервера</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>спешат на %1 мин относительно часов сервера</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>отстают на %1 мин от часов сервера</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram не принимает его токен</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Получите его токен у @BotFather и подключите бота: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram принимает его токен</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Добавьте бота в группу, напишите в ней «hi», затем: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>пока не найдена</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>стала супергруппой, а это уже другая группа</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Напишите в ней «hi», затем: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>доступна боту</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>включены</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>выключены в группе</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Включите темы в настройках группы на телефоне.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>у бота есть право управлять темами</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>у бота нет права управлять темами</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Сделайте его администратором с правом «Управление темами».</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>ещё не создана</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Создайте её: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>на месте</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>Работает другой Quillon. Завершите его или подождите, пока он закончит.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>Токен бота остался в связке ключей. Разблокируйте её и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>Связка ключей заблокирована. Разблокируйте её и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>Связка ключей не отвечает. Запустите или разблокируйте её и попробуйте ещё раз.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon ожидает</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Работает другой Quillon, например команда отправки. Этот запустится, как только тот закончит.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>Отправка…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>Файл %1 больше 50 МБ (ограничение Telegram для ботов)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Папки пока нельзя отправлять: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>Не удалось прочитать %1</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>Не хватает памяти, чтобы это отправить.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>Не отправлено: отправка остановлена.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>Отправлено: %1, с ошибкой: %2</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Отправлено в %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>Отправлен %n элемент</numerusform>
            <numerusform>Отправлено %n элемента</numerusform>
            <numerusform>Отправлено %n элементов</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Quillon завершился раньше, чем Telegram подтвердил отправку.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Сначала закончите настройку Quillon</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1: нечего отправлять.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1: это не текст и не изображение PNG. Задайте имя файла с помощью --name.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>Это не похоже на токен бота. Он выглядит так: 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>Тем временем бот был забыт.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Сначала подключите бота.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Группа пока не найдена. Добавьте бота в группу, отправьте в ней «hi» и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>Группа «%1» найдена, но темы выключены. Включите темы в настройках группы.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>ваша группа</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>Не удалось создать темы. Сделайте бота администратором с правом «Управление темами» и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Сначала найдите группу.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon подключён. Нажмите %1 на компьютере, чтобы отправить скопированное.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>Комбинация клавиш ещё не задана. Как это сделать, показано в настройках.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>На этом рабочем столе комбинация клавиш: %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>Рабочий стол назначает %1. Если он спросит, ответьте ему.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>Рабочий стол знает эту комбинацию, но ещё не назначил клавиш.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>Рабочий стол ещё не назначил клавиш. Загляните в настройки.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Вы отклонили комбинацию клавиш, когда рабочий стол спросил о ней.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Вы отклонили комбинацию клавиш. Спросить снова можно в настройках.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Комбинации клавиш рабочего стола перестали работать. %1 снова заработает вместе с ними.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>Рабочий стол не даёт программам комбинаций клавиш. Quillon может добавить %1 в настройки клавиатуры, где комбинацию можно изменить.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>Комбинация клавиш ещё не задана. Её можно добавить в настройках.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>Рабочий стол хранит комбинации клавиш в своём файле. Для %1 добавьте эту строку в %3:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>Рабочий стол не назначил %1. Спросите снова или назначьте эту команду клавишам в настройках клавиатуры:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>Рабочий стол не даёт программам комбинаций клавиш. Назначьте %1 эту команду в настройках клавиатуры:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Этот рабочий стол не даёт программам комбинаций клавиш.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Отправить буфер обмена на телефон</translation>
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
        <translation>подключён</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>не подключён</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Бот</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>ваша группа</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>пока не найдена</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (ещё не создана)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Комбинация клавиш</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Связка ключей</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram не принял этот токен бота.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram прислал пустой ответ (ошибка %1). Попробуйте ещё раз чуть позже.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram ответил отказом.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API — не адрес сервера. Он выглядит так: http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Этот токен бота выглядит неверным.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Не удалось связаться с Telegram. Проверьте подключение к интернету.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>Не удалось записать вывод.</translation>
    </message>
    <message>
        <source>%1 %2 of %3 MB</source>
        <comment>what is done, and how far it is</comment>
        <translation>%1 %2 из %3 МБ</translation>
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
        <translation>скопированный текст</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>изображения</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>любой другой файл</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>видеофайлы</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Остановлено до того, как всё было отменено.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Сообщение %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Отправка ещё не закончилась. Отмените её, когда она закончится.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>Последняя отправка уже отменяется.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>Из последней отправки ничего не дошло.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Отменять нечего.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>С последней отправки прошло больше 48 часов. После этого Telegram не даёт ботам удалять сообщения.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Отмена…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Сообщение отменено</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Отменено только %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>Отменено %n сообщение</numerusform>
            <numerusform>Отменено %n сообщения</numerusform>
            <numerusform>Отменено %n сообщений</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Не удалось переместить Quillon в корзину. Чтобы закончить, переместите его туда из папки приложений сами.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Не удалось переместить Quillon в корзину. Чтобы закончить, удалите его менеджером пакетов.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>Данные Quillon удалены</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>UpdateError</name>
    <message>
        <source>Quillon cannot update itself where it lies now: that disk cannot be written to.</source>
        <translation>Quillon не может обновиться там, где он лежит: на этот диск нельзя записывать.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon не может обновиться из временного места, откуда он запущен.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>Не удалось скопировать обновление туда, где лежит Quillon.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Другой Quillon устанавливает обновление или только что установил его.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>У вас нет прав изменять папку, в которой лежит Quillon.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>Обновление отменено.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>Адрес для поиска обновлений не защищён (https).</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>Не удалось получить список обновлений. Проверьте подключение и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>Список обновлений повреждён.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>У этой копии Quillon нет ключа для проверки обновлений, поэтому она не может обновиться.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>Адрес обновления не защищён (https).</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>Не удалось загрузить обновление. Проверьте подключение и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>Размер загруженного обновления не тот, каким должен быть.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>Загруженное обновление не подписано авторами Quillon и поэтому удалено.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>Не удалось сохранить загруженное обновление в папке кэша.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>Архив обновления повреждён, зашифрован или другого вида.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>В архиве обновления есть путь за пределы его папки, поэтому он удалён.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>В архиве обновления есть путь с «..», поэтому он удалён.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>В архиве обновления есть ссылка за пределы его папки, поэтому он удалён.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>В архиве обновления есть устройство, канал или сокет, поэтому он удалён.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>В архиве обновления есть программа с правами другого пользователя, поэтому он удалён.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>Распакованное обновление слишком велико, поэтому оно удалено.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>В архиве обновления должно быть ровно одно приложение.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>В архиве обновления не Quillon, а другое приложение.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>В архиве обновления не та версия, о которой было объявлено.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>Обновление не новее этой версии Quillon.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>Новая версия не запускается на этом компьютере.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>На диске не хватает места для обновления.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>На диске, где лежит Quillon, нельзя поменять местами две папки за один шаг.</translation>
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
        <translation>Комбинация клавиш</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Отправить буфер обмена</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>После отправки</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>&amp;Воспроизводить звук</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>Показывать &amp;баннер</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Положение баннера</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>&amp;Запускать Quillon при входе в систему</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>Отключить &amp;этот компьютер</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Бот</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>&amp;Удалить Quillon…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>%1 уже занята другим приложением. Выберите другую.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>подключён</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Не подключён</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>Пока не найдена</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>Отправлено в 📝 Notes &amp; text</translation>
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
        <translation>Не отправлено</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>отменено</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Удаляет сообщение последней отправки</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Удаляет %n сообщение последней отправки</numerusform>
            <numerusform>Удаляет все %n сообщения последней отправки</numerusform>
            <numerusform>Удаляет все %n сообщений последней отправки</numerusform>
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
        <translation>ваша группа</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Подключено · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Ещё не настроено</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>только что</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>%1 уже занята другим приложением. Выберите другую комбинацию клавиш в настройках.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Баннер вверху</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Баннер в центре</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Баннер внизу</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Пока ничего не отправлено.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Недавнее</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Отправить буфер обмена на телефон</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Отправка…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Отправить буфер обмена</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Отпустите для отправки</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>Файлы, изображение или текст</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Подготовка</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Темы</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>Об&amp;щие</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>&amp;Открыть панель</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>На этом рабочем столе нет места для значка Quillon.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Подключите телефон</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Начать настройку</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Две минуты на настройку с вашим ботом в Telegram. Потом копируйте что угодно и нажимайте %1.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Создайте бота</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Вставьте токен</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Создайте группу</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Создайте темы</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Новая группа** → добавьте своего бота → назовите как угодно (например, «Мои отправления») → Создать.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>Нажмите **название группы** → **карандаш** → включите **Темы** (сразу под «Оформлением») → Сохранить.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>В списке участников **удерживайте** бота → **Назначить администратором** → оставьте **Управление темами** включённым → Сохранить.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>Отправьте «hi» в группу.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Копируйте на компьютере. Вставляйте на телефоне.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>Откройте в Telegram **@BotFather**, отправьте **/newbot** и следуйте указаниям. Вы получите токен. Бот будет только вашим.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>Открыть &amp;BotFather</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>В Telegram:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Всё готово.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Скопируйте что-нибудь и нажмите</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>Создан с помощью @BotFather</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>Подключён @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>ваш бот</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>Найдена группа %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>ваша группа</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>Готова %n тема</numerusform>
            <numerusform>Готовы %n темы</numerusform>
            <numerusform>Готово %n тем</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>Искать &amp;снова</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>&amp;Найти мою группу</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>Темы &amp;готовы</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>Со&amp;здать темы</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>Сп&amp;росить снова</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>Выбрать &amp;клавиши…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>&amp;Добавить комбинацию клавиш</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Коп&amp;ировать</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Команда для комбинации клавиш</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>Работает</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Шаг %1: %2</translation>
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
        <translation>По&amp;дключить</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>Другой &amp;бот</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>Токен хранится в вашей связке ключей.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Названия тем в вашей группе</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>Сох&amp;ранить названия в Telegram</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Сначала закончите настройку</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Сохранено в Telegram.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Отправить буфер обмена</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Открыть панель</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>Ещё %n: quillon doctor</numerusform>
            <numerusform>Ещё %n: quillon doctor</numerusform>
            <numerusform>Ещё %n: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>Токен бота в связке ключей</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Настройки, история отправок и кэш</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>Параметры программы</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Запуск при входе в систему</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Затем приложение отправится в корзину и завершится</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Удалить Quillon?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>С этого компьютера будут удалены:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>Бот и группа останутся в Telegram.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>От&amp;мена</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Удалить</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>Обновление программы</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Проверять обновления автоматически?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon может раз в день искать новую версию. Это всегда можно изменить в настройках; можно искать и вручную.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Проверять автоматически</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>Не проверять</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Поиск обновлений…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Установлена последняя версия Quillon</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>Версия %1 — самая новая.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Доступна новая версия Quillon</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>У вас Quillon %1. Можно установить версию %2.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Загрузка Quillon %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Подключение…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Подготовка Quillon %1</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Проверка и распаковка…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 из %2 МБ</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 готов к установке</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon может сразу перезапуститься с новой версией или установить её при выходе.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Установить и перезапустить</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Установить при выходе</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 установлен</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Новая версия откроется при следующем запуске Quillon.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>Обновить не удалось</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Проверять обновления &amp;автоматически</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Проверить &amp;сейчас</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
</context>
</TS>
