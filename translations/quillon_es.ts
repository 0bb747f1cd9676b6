<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>Alert</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>App</name>
    <message>
        <source>There is no X server, and Qt&apos;s part for Wayland is not installed. Debian&apos;s package is qt6-wayland.</source>
        <translation>No hay ningún servidor X, y la parte de Qt para Wayland no está instalada. El paquete de Debian es qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>No hay ningún escritorio: no responde ni un servidor X ni un compositor de Wayland.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon se está ejecutando desde una copia oculta. Abra la carpeta Descargas, mueva Quillon a «Applications» y ábralo desde allí.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>El equipo no permitió que Quillon escribiera en la carpeta de aplicaciones. Abra la carpeta Descargas, mueva Quillon a «Applications» y ábralo desde allí.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>Hay un Quillon más antiguo abierto desde la carpeta de aplicaciones. Ciérrelo desde su menú e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>No se pudo sustituir el Quillon más antiguo de la carpeta de aplicaciones. Muévalo a la papelera e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>El equipo no permitió moverlo. Abra la carpeta Descargas, mueva Quillon a «Applications» y ábralo desde allí.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Quillon no se pudo mover</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>¿Mover Quillon a la carpeta de aplicaciones?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Tiene que estar allí para actualizarse.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Imagen · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>El portapapeles está vacío</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>El portapapeles está fuera de alcance. Este escritorio no ofrece ni data-control ni Xwayland.</translation>
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
        <translation>Todavía hay otro envío en curso.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>No se pudo guardar la configuración. ¿Queda espacio en el disco?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>El bot responde, pero ningún depósito de claves pudo guardar su token.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>su grupo</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>Se encontró «%1»</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>desactivado en la configuración del escritorio</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>activado, pero lo que debería abrirse no está: actívelo de nuevo</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>No se pudo hacer que Quillon se abra al iniciar sesión.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>No se pudo evitar que Quillon se abra al iniciar sesión.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon y todo lo que guardaba se han eliminado; la aplicación está en la papelera</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>La aplicación está en la papelera</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>El depósito de claves todavía contiene el token del bot, porque está bloqueado.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>Esperando al depósito de claves, que quizá pida su contraseña en otra ventana. Pulse Ctrl-C para detener.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>El Quillon en ejecución no responde. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon se cerró antes de terminar.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 está actualizado.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>Quillon %1 está disponible.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Descargando…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 está instalado.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>Sigue en ejecución %1 hasta que lo cierre y lo vuelva a abrir.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Esta copia de Quillon no se actualiza sola.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon no estuvo listo para enviar en un minuto.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>No hay ningún Quillon en ejecución que seguir.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>El Quillon en ejecución es otra versión, que no conoce esta orden. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>No se pudo leer la entrada estándar.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Entrada estándar</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon envía lo que copia a su teléfono a través de su propio bot de Telegram.

Uso: quillon [ORDEN]

Sin una orden se queda en ejecución y envía cada vez que pulsa su atajo.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Código de salida: 0 hecho, 1 error, 2 no se entendió la línea de órdenes.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>responder en JSON</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>mostrar el panel; inicia Quillon si no está en ejecución</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>mostrar la configuración; inicia Quillon si no está en ejecución</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>conectar su bot; lee el token de la entrada estándar</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>buscar el grupo en el que escribió al bot</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>crear los cuatro temas, o encontrarlos de nuevo</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>dar a los temas los nombres definidos aquí</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>olvidar el bot, el grupo y los temas</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>decir qué está configurado</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>listar lo enviado, lo más reciente primero</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>abrirlo</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>no abrirlo</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>decir cuál es el caso</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>abrir Quillon al iniciar sesión, o no</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>instalarla también</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>decir si hay una versión más reciente; instalarla</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>sí, eliminarlo</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>eliminar Quillon y todo lo que ha guardado</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>mostrar esta ayuda</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>mostrar la versión</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>un archivo que enviar</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>a notes, images, files o videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>la entrada estándar como archivo con este nombre</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>enviar el portapapeles, archivos o, con - o por una tubería, la entrada estándar</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>esperar hasta un minuto a que pueda enviar</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>mostrar lo que se envíe a partir de ahora</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>decir también nombres</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>decir qué falla y cómo arreglarlo</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>deshacer el último envío, durante 48 horas</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>sin comprobar, porque falta la pantalla</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>el escritorio todavía no ha respondido</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>Si le pregunta, responda allí.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 funciona</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>el escritorio lo conoce, pero no le asigna teclas</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Elija unas teclas en la configuración, en «General».</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>otro programa o el propio escritorio usa %1</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Elija otro en la configuración, en «General», o libérelo en la configuración del teclado del escritorio.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>se rechazó cuando el escritorio preguntó</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>Haga que vuelva a preguntar en la configuración, en «General».</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>el escritorio no da atajos a los programas</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>La configuración muestra, en «General», cómo asociar uno usted mismo.</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>no se pudo comprobar</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>el compositor de Wayland no responde</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>el compositor de Wayland y un servidor X responden</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>el compositor de Wayland responde</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>el servidor X responde</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>el servidor X no responde</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>no hay ninguna pantalla</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Ejecute Quillon en la sesión de su escritorio, donde DISPLAY o WAYLAND_DISPLAY indica la pantalla.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>el último programa que copió algo no responde</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Copie algo en otro programa o cierre ese.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>este escritorio no permite que ningún programa lo lea</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Active Xwayland en el escritorio.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>mediante %1; ahora está vacío</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>mediante %1; ahora ofrece: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>sin comprobar, porque Quillon no está en ejecución</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 está libre</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>los atajos del escritorio se han detenido</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>«%2» usa %1</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>desactivado en la configuración</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>una capa sobre todas las ventanas</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>una ventana</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>mostrado por un programa en el bus de sesión</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>mostrado por una bandeja del sistema en el servidor X</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>este escritorio no muestra iconos</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Abra el panel con: quillon panel. O añada al escritorio una bandeja del sistema, por ejemplo como extensión.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>alerta</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>error</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>incierto</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivada</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activada</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>desactivado en la configuración del escritorio</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>activada, pero el programa que debería abrirse no está</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Actívela de nuevo: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 en %2, con %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>en ejecución, a la espera del atajo</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>no está en ejecución, así que nada espera el atajo</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Inicie Quillon.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>hay un servidor de sonido o una tarjeta de sonido</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>no hay servidor de sonido ni tarjeta de sonido</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>Inicie PipeWire o PulseAudio.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 no responde</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Compruebe si su disco o recurso compartido de red está disponible.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir en %1</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>no se puede crear %1</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Concédase los permisos necesarios.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>el disco de %1 está lleno</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Libere espacio en él.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>otros pueden ver el contenido de %1</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>Quíteles los permisos: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>se puede escribir en %1; %2 MB libres</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>esta copia no se actualiza sola</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon se actualiza solo</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon no se puede sustituir donde está</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Muévalo a una carpeta suya.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Portapapeles</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icono</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Carpeta de datos</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>La apertura al iniciar sesión</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Depósito de claves</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Temas</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Permisos</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>Tema %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>sin comprobar, porque antes falló otra cosa</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram dice: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram no responde</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>Compruebe la conexión a Internet y su cortafuegos.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>Corrija %1 o quite esa variable.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>la conexión con Telegram funciona</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>falta libcurl o es demasiado antigua</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>Instale libcurl 7.87 o posterior.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API no es la dirección de un servidor</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Corrija o quite esa variable.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>no se encuentra el nombre del proxy indicado en %1</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>no se encuentra el nombre del servidor</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>Compruebe la conexión a Internet y su servidor de nombres.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>el proxy indicado en %1 rechaza la conexión</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>no se logra conectar con el servidor</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>el certificado del servidor no es de confianza</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>Instale ca-certificates. Si un proxy lee el tráfico, SSL_CERT_FILE puede indicar su certificado.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>según el reloj de este equipo, el certificado del servidor no es válido ahora</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Ponga el reloj en hora.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>no se logra acordar un cifrado con el servidor</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>no hubo respuesta a tiempo</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>se eliminó en el teléfono</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Créelo de nuevo: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>está cerrado</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Vuelva a abrirlo en el teléfono.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>el bot no tiene permiso para escribir en él</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Haga al bot administrador del grupo.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>responde y tiene el token del bot</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>está bloqueado</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Desbloquéelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>responde, pero no tiene el token de ningún bot</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Conecte su bot: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>no responde</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Detenga su servicio, o cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>no entrega ningún token; el del bot queda en memoria hasta que Quillon se cierre</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Desbloquéelo o vuelva a conectar su bot.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>no responde ningún bus de sesión con el que acceder a él</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Ejecute Quillon en la sesión de su escritorio, donde DBUS_SESSION_BUS_ADDRESS indica el bus.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>no hay ninguno</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>Instale gnome-keyring o KWallet y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>la conexión con Telegram funciona, a través del proxy indicado en %1</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>el proxy indicado en %1 no responde</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>el servidor no dio su hora</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>coincide con el del servidor</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>va %1 min adelantado respecto al del servidor</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>va %1 min atrasado respecto al del servidor</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram no acepta su token</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Obtenga su token de @BotFather y conéctelo: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram acepta su token</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Añada el bot al grupo, escriba «hi» en él y ejecute: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>todavía no se encontró</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>se ha convertido en un supergrupo, que es otro grupo</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Escriba «hi» en él y ejecute: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>el bot tiene acceso a él</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>están activados</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>están desactivados en el grupo</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Active Temas en la configuración del grupo, en el teléfono.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>el bot puede gestionar los temas</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>el bot no puede gestionar los temas</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Hágalo administrador con «Gestionar temas».</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>todavía no se ha creado</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Créelo: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>existe</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>Otro Quillon está trabajando. Ciérrelo o espere a que termine.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>El depósito de claves todavía contiene el token del bot. Desbloquéelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>El depósito de claves está bloqueado. Desbloquéelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>El depósito de claves no responde. Inícielo o desbloquéelo e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon está esperando</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Otro Quillon está trabajando, por ejemplo una orden de envío. Este se iniciará en cuanto termine.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>%1 supera los 50 MB (el límite de Telegram para bots)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Todavía no se pueden enviar carpetas: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>No se pudo leer %1</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>No hay memoria suficiente para enviar esto.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>No enviado: se detuvo el envío.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>Enviados: %1; con error: %2</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Enviado a %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>%n elemento enviado</numerusform>
            <numerusform>%n elementos enviados</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Quillon se cerró antes de que Telegram lo confirmara.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Termine antes de configurar Quillon</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1 no contiene nada que enviar.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1 no es texto ni una imagen PNG. Déle un nombre de archivo con --name.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>Eso no parece un token de bot. Tiene esta forma: 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>Entretanto se olvidó el bot.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Conecte antes su bot.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Todavía no se encontró ningún grupo. Añada el bot a su grupo, envíe «hi» en él e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>Se encontró «%1», pero los temas están desactivados. Active los temas en la configuración del grupo.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>su grupo</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>No se pudieron crear los temas. Haga al bot administrador con «Gestionar temas» e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Busque antes su grupo.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon está conectado. Pulse %1 en su equipo para enviar lo que haya copiado.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>El atajo todavía no está configurado. La configuración muestra cómo hacerlo.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>En este escritorio el atajo es %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>El escritorio está configurando %1. Si le pregunta, respóndale.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>El escritorio conoce el atajo, pero todavía no le ha dado teclas.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>El escritorio todavía no ha dado teclas al atajo. Véase la configuración.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Rechazó el atajo cuando el escritorio preguntó.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Rechazó el atajo. En la configuración se puede volver a preguntar.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Los atajos del escritorio se han detenido. %1 volverá a funcionar en cuanto regresen.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>El escritorio no da atajos a los programas. Quillon puede añadir %1 a la configuración del teclado, donde podrá cambiarlo.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>El atajo todavía no está configurado. Se puede añadir en la configuración.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>El escritorio guarda los atajos en un archivo propio. Para %1, añada esta línea a %3:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>El escritorio no ha configurado %1. Vuelva a preguntarle o asocie esta orden en la configuración del teclado:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>El escritorio no da atajos a los programas. Para %1, asocie esta orden en la configuración del teclado:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Este escritorio no da atajos a los programas.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Enviar el portapapeles al teléfono</translation>
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
        <translation>conectado</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>no conectado</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>su grupo</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>no encontrado aún</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (no creado aún)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Depósito de claves</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
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
        <translation>Telegram no aceptó ese token de bot.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram envió una respuesta vacía (error %1). Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram lo rechazó.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API no es la dirección de un servidor. Tiene esta forma: http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Ese token de bot no parece correcto.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>No se pudo contactar con Telegram. Compruebe su conexión a Internet.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>No se pudo escribir la salida.</translation>
    </message>
    <message>
        <source>%1 %2 of %3 MB</source>
        <comment>what is done, and how far it is</comment>
        <translation>%1 %2 de %3 MB</translation>
    </message>
</context>
<context>
    <name>Topic</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>texto copiado</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>imágenes</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>cualquier otro archivo</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>archivos de vídeo</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Se detuvo antes de deshacerlo todo.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Mensaje %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Todavía hay un envío en curso. Deshágalo cuando haya terminado.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>Ya se está deshaciendo el último envío.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>No llegó nada del último envío.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>El último envío tiene más de 48 horas. Telegram no deja que los bots borren mensajes pasado ese tiempo.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Deshaciendo…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Mensaje deshecho</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Solo se deshicieron %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>%n mensaje deshecho</numerusform>
            <numerusform>%n mensajes deshechos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Quillon no se pudo mover a la papelera. Para terminar, muévalo de la carpeta de aplicaciones a la papelera.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Quillon no se pudo mover a la papelera. Para terminar, elimínelo con su gestor de paquetes.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>La limpieza de Quillon ha terminado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>UpdateError</name>
    <message>
        <source>Quillon cannot update itself where it lies now: that disk cannot be written to.</source>
        <translation>Quillon no se puede actualizar donde está ahora: no se puede escribir en ese disco.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon no se puede actualizar desde el lugar temporal en el que se inició.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>La actualización no se pudo copiar adonde está Quillon.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Otro Quillon está instalando una actualización o acaba de hacerlo.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>No tiene permiso para cambiar la carpeta en la que está Quillon.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>La actualización se canceló.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>La dirección donde se buscan actualizaciones no es segura (https).</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>No se pudo obtener la lista de actualizaciones. Compruebe su conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>La lista de actualizaciones está dañada.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>Esta copia de Quillon no tiene clave para comprobar actualizaciones, así que no se puede actualizar.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>La dirección de la actualización no es segura (https).</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>No se pudo descargar la actualización. Compruebe su conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>La actualización descargada no tiene el tamaño que debería.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>La actualización descargada no está firmada por los autores de Quillon, así que se descartó.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>La actualización descargada no se pudo guardar en su carpeta de caché.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>El archivo de la actualización está dañado, cifrado o es de otro tipo.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>El archivo de la actualización contiene una ruta fuera de su carpeta, así que se descartó.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>El archivo de la actualización contiene una ruta con «..», así que se descartó.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>El archivo de la actualización contiene un enlace que sale de su carpeta, así que se descartó.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>El archivo de la actualización contiene un dispositivo, una tubería o un socket, así que se descartó.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>El archivo de la actualización contiene un programa con los permisos de otro usuario, así que se descartó.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>La actualización es demasiado grande una vez extraída, así que se descartó.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>El archivo de la actualización no contiene exactamente una aplicación.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>El archivo de la actualización contiene otra aplicación que no es Quillon.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>El archivo de la actualización contiene otra versión que la anunciada.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>La actualización no es más reciente que esta versión de Quillon.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>La nueva versión no se inicia en este equipo.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>No hay espacio suficiente en el disco para la actualización.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>El disco en el que está Quillon no permite intercambiar dos carpetas en un solo paso.</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Enviar portapapeles</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>Después de enviar</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>&amp;Reproducir un sonido</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>Mostrar un a&amp;viso</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Posición del aviso</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>&amp;Abrir Quillon al iniciar sesión</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>&amp;Desconectar este equipo</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>Desi&amp;nstalar Quillon…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>Otra aplicación ya usa %1. Elija otro.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>conectado</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>No encontrado aún</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>Enviado a 📝 Notes &amp; text</translation>
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
        <translation>No enviado</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Deshecho</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>deshecho</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Borra el mensaje del último envío</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Borra el %n mensaje del último envío</numerusform>
            <numerusform>Borra los %n mensajes del último envío</numerusform>
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
        <translation>Mayús</translation>
    </message>
</context>
<context>
    <name>quillon::PanelHeader</name>
    <message>
        <source>your group</source>
        <translation>su grupo</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Conectado · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Sin configurar</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>ahora mismo</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>Otra aplicación ya usa %1. Elija otro atajo en la configuración.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Aviso arriba</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Aviso en el centro</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Aviso abajo</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Todavía no se ha enviado nada.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Enviar el portapapeles al teléfono</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Enviar portapapeles</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Suelte para enviar</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>Archivos, una imagen o texto</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Primeros pasos</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Temas</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>Abrir pane&amp;l</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>Este escritorio no muestra ningún icono de Quillon.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Conecte su teléfono</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Dos minutos de configuración con su propio bot de Telegram. Después copie cualquier cosa y pulse %1.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Crear su bot</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Pegar el token</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Crear su grupo</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Crear los temas</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Nuevo grupo** → añada su bot → póngale un nombre (por ejemplo «Mi bandeja de salida») → Crear.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>Toque el **nombre del grupo** → toque el **lápiz** → active **Temas** (justo debajo de Apariencia) → Guardar.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>En la lista de miembros, **mantenga pulsado** su bot → **Hacer administrador** → deje **Gestionar temas** activado → Guardar.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>Envíe «hi» en el grupo.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Copie en el equipo. Pegue en el teléfono.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>En Telegram, abra **@BotFather**, envíe **/newbot** y siga los pasos. Le dará un token. El bot es solo suyo.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>&amp;Abrir BotFather</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>En Telegram:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Todo listo.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Copie cualquier cosa y pulse</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>Creado con @BotFather</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>Conectado a @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>su bot</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>Se encontró %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>su grupo</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>%n tema listo</numerusform>
            <numerusform>%n temas listos</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>&amp;Buscar mi grupo</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>T&amp;emas listos</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>C&amp;rear los temas</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>Volv&amp;er a preguntar</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>Eleg&amp;ir teclas…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>Añadir el ata&amp;jo</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Orden para el atajo</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>Trabajando</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Paso %1: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
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
        <translation>&amp;Conectar</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>&amp;Usar otro bot</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>El token se guarda en su depósito de claves.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Nombres de los temas en su grupo</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>Guardar &amp;nombres en Telegram</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Termine antes la configuración</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Guardado en Telegram.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Enviar portapapeles</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Abrir panel</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>%n más: quillon doctor</numerusform>
            <numerusform>%n más: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>El token del bot en el depósito de claves</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Configuración, historial de envíos y cachés</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>Sus preferencias</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>La apertura al iniciar sesión</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Después mueve la aplicación a la papelera y se cierra</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>¿Desinstalar Quillon?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>Esto elimina de este equipo:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>Su bot y su grupo siguen en Telegram.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Desinstalar</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>¿Buscar actualizaciones automáticamente?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon puede buscar una versión nueva una vez al día. Puede cambiarlo en su configuración en cualquier momento, o buscar a mano.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Buscar automáticamente</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>No buscar</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Quillon está actualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>La versión %1 es la más reciente.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Hay una nueva versión de Quillon</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>Tiene Quillon %1. La versión %2 se puede instalar ahora.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Descargando Quillon %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Preparando Quillon %1</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Comprobando y extrayendo…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 de %2 MB</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 está listo para instalarse</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon puede reiniciarse ahora con ella o instalarla al salir.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Instalar y reiniciar</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Instalar al salir</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 está instalado</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Estará la próxima vez que abra Quillon.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>La actualización falló</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Buscar actualizaciones aut&amp;omáticamente</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Buscar a&amp;hora</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
</context>
</TS>
