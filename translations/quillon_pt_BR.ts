<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
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
        <translation>Não há servidor X, e a parte do Qt para Wayland não está instalada. O pacote do Debian é qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>Não há área de trabalho: nem um servidor X nem um compositor Wayland responde.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>O Quillon está sendo executado de uma cópia oculta. Abra a pasta Downloads, mova o Quillon para “Applications” e abra-o de lá.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>O computador não deixou o Quillon gravar na pasta de aplicativos. Abra a pasta Downloads, mova o Quillon para “Applications” e abra-o de lá.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>Há um Quillon mais antigo aberto na pasta de aplicativos. Saia dele pelo menu e tente de novo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>Não foi possível substituir o Quillon mais antigo na pasta de aplicativos. Mova-o para a lixeira e tente de novo.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>O computador não permitiu a mudança. Abra a pasta Downloads, mova o Quillon para “Applications” e abra-o de lá.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>O Quillon não conseguiu se mover</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Mover o Quillon para a pasta de aplicativos?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Ele precisa estar lá para se atualizar.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Agora não</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>Em cima</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>No meio</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Embaixo</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n arquivo</numerusform>
            <numerusform>%n arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Imagem · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Área de transferência vazia</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>A área de transferência está fora de alcance. Este ambiente não oferece data-control nem Xwayland.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>Token do bot: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>Outro envio ainda está em andamento.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>Não foi possível salvar a configuração. Há espaço no disco?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>O bot responde, mas nenhum chaveiro pôde guardar o token.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>seu grupo</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>“%1” encontrado</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>desligado nas configurações do ambiente</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>ligado, mas o que seria aberto não existe: ligue de novo</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>Não foi possível fazer o Quillon abrir ao iniciar a sessão.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>Não foi possível impedir o Quillon de abrir ao iniciar a sessão.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>O Quillon e tudo o que ele guardava foram removidos; o aplicativo está na lixeira</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>O aplicativo está na lixeira</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>O chaveiro ainda contém o token do bot, pois está bloqueado.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>Aguardando o chaveiro, que talvez esteja pedindo a senha em outra janela. Pressione Ctrl-C para parar.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>O Quillon em execução não responde. Encerre-o e tente de novo.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>O Quillon foi encerrado antes de terminar.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>O Quillon %1 está atualizado.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>O Quillon %1 está disponível.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>Baixando…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>O Quillon %1 está instalado.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>O que está em execução ainda é %1, até que você saia dele e o abra de novo.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Esta cópia do Quillon não se atualiza sozinha.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>O Quillon não ficou pronto para enviar em um minuto.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>Não há Quillon em execução para acompanhar.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>O Quillon em execução é outra versão, que não conhece este comando. Saia dele e tente de novo.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>Não foi possível ler a entrada padrão.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Entrada padrão</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>O Quillon envia o que você copia para o seu celular, pelo seu próprio bot do Telegram.

Uso: quillon [COMANDO]

Sem um comando, fica em execução e envia sempre que você pressiona o atalho.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Status de saída: 0 concluído, 1 falhou, 2 linha de comando não compreendida.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>responde em JSON</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>mostra o painel; inicia o Quillon se não estiver em execução</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>mostra as configurações; inicia o Quillon se não estiver em execução</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>conecta o seu bot; lê o token da entrada padrão</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>encontra o grupo em que você escreveu para o bot</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>cria os quatro tópicos, ou os encontra de novo</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>dá aos tópicos os nomes definidos aqui</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>esquece o bot, o grupo e os tópicos</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>diz o que está configurado</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>lista o que foi enviado, do mais novo ao mais antigo</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>abrir</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>não abrir</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>dizer qual é o caso</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>abre o Quillon ao iniciar a sessão, ou não</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>instala também</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>diz se há uma versão mais nova; instala-a</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>sim, remover</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>remove o Quillon e tudo o que ele guardou</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>mostra esta ajuda</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>mostra a versão</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>um arquivo para enviar</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>para notes, images, files ou videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>a entrada padrão como arquivo com este nome</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>envia a área de transferência, arquivos ou, com - ou por pipe, a entrada padrão</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>espera até um minuto até poder enviar</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>mostra o que for enviado a partir de agora</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>diz também os nomes</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>diz o que está errado e como consertar</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>desfazer o último envio, por 48 horas</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>sem verificação, pois não há tela</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>o ambiente ainda não respondeu</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>Se ele perguntar, responda lá.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 funciona</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>o ambiente o conhece, mas não lhe dá teclas</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Escolha teclas nas configurações, em “Geral”.</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>outro programa ou o próprio ambiente já usa %1</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Escolha outro nas configurações, em “Geral”, ou libere-o nas configurações do teclado do ambiente.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>foi recusado quando o ambiente perguntou</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>Nas configurações, em “Geral”, dá para perguntar de novo.</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>o ambiente não dá atalhos a programas</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>As configurações mostram, em “Geral”, como você mesmo pode associar um.</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>não foi possível verificar</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Encerre a sessão e entre de novo.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>o compositor Wayland não responde</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>o compositor Wayland e um servidor X respondem</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>o compositor Wayland responde</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>o servidor X responde</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>o servidor X não responde</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>não há tela</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Execute o Quillon na sessão do seu ambiente, onde DISPLAY ou WAYLAND_DISPLAY indica a tela.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>o programa que copiou por último não responde</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Copie algo em outro programa ou encerre aquele.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>este ambiente não deixa nenhum programa lê-la</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Ligue o Xwayland no ambiente.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>por %1; vazia agora</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>por %1; oferece agora: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>não verificado, pois o Quillon não está em execução</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 está livre</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>os atalhos do ambiente pararam</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>“%2” já usa %1</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>desligado nas configurações</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>uma camada sobre todas as janelas</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>uma janela</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>mostrado por um programa no barramento de sessão</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>mostrado por uma bandeja no servidor X</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>este ambiente não mostra ícones</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Abra o painel com: quillon panel. Ou dê ao ambiente uma bandeja, por exemplo com uma extensão.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>aviso</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>falha</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>incerto</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desligado</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ligado</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>desligado nas configurações do ambiente</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>ligado, mas o programa que seria aberto não existe</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Ligue de novo: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 em %2, com %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>em execução, à espera do atalho</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>não está em execução; nada espera pelo atalho</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Inicie o Quillon.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>há um servidor de som ou uma placa de som</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>não há servidor de som nem placa de som</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>Inicie o PipeWire ou o PulseAudio.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 não responde</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Veja se o disco ou o compartilhamento de rede está acessível.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>não é possível gravar em %1</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>não é possível criar %1</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Dê a si mesmo as permissões para isso.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>o disco de %1 está cheio</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Libere espaço nele.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>outros podem ver o conteúdo de %1</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>Retire as permissões deles: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>é possível gravar em %1; %2 MB livres</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>esta cópia não se atualiza sozinha</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>o Quillon se atualiza sozinho</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>o Quillon não pode se substituir onde está</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Mova-o para uma pasta sua.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sessão</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Área de transf.</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Banner</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Ícone</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Pasta de dados</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>A abertura ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Chaveiro</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Relógio</translation>
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
        <translation>Tópicos</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Permissões</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>Tópico %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>sem consulta, pois algo falhou antes</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>o Telegram diz: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>o Telegram não responde</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Tente de novo daqui a pouco.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>Verifique a conexão com a internet e o firewall.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>Corrija ou remova %1.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>o caminho até o Telegram está livre</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>a libcurl está ausente ou é antiga demais</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>Instale a libcurl 7.87 ou mais nova.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API não é o endereço de um servidor</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Corrija ou remova a variável.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>o nome do proxy em %1 não foi encontrado</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>o nome do servidor não foi encontrado</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>Verifique a conexão com a internet e o servidor de nomes.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>o proxy em %1 recusa a conexão</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>não foi possível conectar ao servidor</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>o certificado do servidor não é confiável</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>Instale ca-certificates. Se um proxy intercepta a conexão, SSL_CERT_FILE pode indicar o certificado dele.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>pelo relógio deste computador, o certificado do servidor está fora da validade</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Acerte o relógio.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>não há criptografia em comum com o servidor</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>sem resposta a tempo</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>foi apagado no celular</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Crie-o de novo: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>está fechado</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Reabra-o no celular.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>o bot não pode escrever nele</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Torne o bot administrador do grupo.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>responde e tem o token do bot</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>está bloqueado</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Desbloqueie-o e tente de novo.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>responde, mas não tem nenhum token de bot</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Conecte o seu bot: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>não responde</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Encerre o serviço dele, ou encerre a sessão e entre de novo.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>não entrega o token; o do bot fica na memória até o Quillon ser encerrado</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Desbloqueie-o ou conecte o seu bot de novo.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>o barramento de sessão, que dá acesso a ele, não responde</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Execute o Quillon na sessão do seu ambiente, onde DBUS_SESSION_BUS_ADDRESS indica o barramento.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>não há nenhum</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>Instale o gnome-keyring ou o KWallet e entre na sessão de novo.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>o caminho até o Telegram está livre, pelo proxy em %1</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>o proxy em %1 não responde</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>o servidor não informou a hora</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>coincide com o do servidor</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>está %1 min adiantado em relação ao do servidor</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>está %1 min atrasado em relação ao do servidor</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>o Telegram não aceita o token dele</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Obtenha o token com @BotFather e conecte o bot: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>o Telegram aceita o token dele</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Adicione o bot ao grupo, escreva “hi” lá e depois: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>ainda não foi encontrado</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>virou um supergrupo, que é outro grupo</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Escreva “hi” lá e depois: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>o bot o alcança</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>estão ligados</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>estão desligados no grupo</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Ligue os tópicos nas configurações do grupo, no celular.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>o bot pode gerenciar tópicos</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>o bot não pode gerenciar tópicos</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Torne-o administrador com “Gerenciar tópicos”.</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>ainda não foi criado</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Crie-o: quillon create-topics</translation>
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
        <translation>Outro Quillon está trabalhando. Saia dele ou espere até que termine.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>O chaveiro ainda contém o token do bot. Desbloqueie-o e tente de novo.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>O seu chaveiro está bloqueado. Desbloqueie-o e tente de novo.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>O seu chaveiro não responde. Inicie-o ou desbloqueie-o e tente de novo.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>O Quillon está esperando</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Outro Quillon está trabalhando, como um comando de envio. Este começa assim que ele terminar.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
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
        <translation>%1 passa de 50 MB (o limite do Telegram para bots)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Pastas ainda não podem ser enviadas: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>Não foi possível ler %1</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>Não há memória suficiente para enviar isto.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>Não enviado: o envio foi interrompido.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>Enviados: %1; com falha: %2</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Enviado para %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>%n item enviado</numerusform>
            <numerusform>%n itens enviados</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>O Quillon foi encerrado antes da confirmação do Telegram.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Termine antes de configurar o Quillon</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1: não há nada para enviar.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1: não é texto nem imagem PNG. Dê um nome de arquivo com --name.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>Isso não parece um token de bot. Ele é assim: 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>Enquanto isso, o bot foi esquecido.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Conecte o seu bot primeiro.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Nenhum grupo encontrado ainda. Adicione o bot ao seu grupo, envie “hi” no grupo e tente de novo.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>“%1” encontrado, mas os tópicos estão desligados. Ligue os tópicos nas configurações do grupo.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>seu grupo</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>Não foi possível criar os tópicos. Torne o bot administrador com “Gerenciar tópicos” e tente de novo.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Encontre o seu grupo primeiro.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ O Quillon está conectado. Pressione %1 no seu computador para enviar o que você copiou.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>O atalho ainda não está configurado. As configurações mostram como fazer.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>Neste ambiente, o atalho é %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>O seu ambiente está configurando %1. Se ele perguntar, responda lá.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>O seu ambiente conhece o atalho, mas ainda não lhe deu teclas.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>O seu ambiente ainda não deu teclas ao atalho. Veja as configurações.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Você recusou o atalho quando o ambiente perguntou.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Você recusou o atalho. Nas configurações dá para perguntar de novo.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Os atalhos do seu ambiente pararam. %1 volta a funcionar assim que eles voltarem.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>O seu ambiente não dá atalhos a programas. O Quillon pode adicionar %1 às configurações do teclado, onde você pode mudá-lo.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>O atalho ainda não está configurado. Ele pode ser adicionado nas configurações.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>O seu ambiente guarda os atalhos em um arquivo próprio. Para %1, adicione esta linha a %3:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>O seu ambiente não configurou %1. Pergunte de novo ou associe este comando nas configurações do teclado:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>O seu ambiente não dá atalhos a programas. Para %1, associe este comando nas configurações do teclado:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Este ambiente não dá atalhos a programas.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Enviar a área de transferência ao celular</translation>
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
        <translation>não conectado</translation>
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
        <translation>seu grupo</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>não encontrado ainda</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (ainda não criado)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Tópico</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Chaveiro</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sim</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>O Telegram não aceitou esse token de bot.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>O Telegram enviou uma resposta vazia (erro %1). Tente de novo daqui a pouco.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>O Telegram recusou.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API não é o endereço de um servidor. Ele é assim: http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Esse token de bot não parece correto.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Não foi possível alcançar o Telegram. Verifique a sua conexão com a internet.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>Não foi possível gravar a saída.</translation>
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
        <translation>Imagens</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>imagens</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>qualquer outro arquivo</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>arquivos de vídeo</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Interrompido antes de desfazer tudo.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Mensagem %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Um envio ainda está em andamento. Desfaça-o quando terminar.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>O último envio já está sendo desfeito.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>Nada do último envio chegou.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Não há nada a desfazer.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>O último envio tem mais de 48 horas. Depois disso, o Telegram não deixa bots apagarem mensagens.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Desfazendo…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Mensagem desfeita</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Só %1 foram desfeitas: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>%n mensagem desfeita</numerusform>
            <numerusform>%n mensagens desfeitas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>O Quillon não conseguiu se mover para a lixeira. Para terminar, mova-o da pasta de aplicativos para a lixeira.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>O Quillon não conseguiu se mover para a lixeira. Para terminar, remova-o com o seu gerenciador de pacotes.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>A limpeza do Quillon terminou</translation>
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
        <translation>O Quillon não pode se atualizar onde está: não se pode gravar nesse disco.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>O Quillon não pode se atualizar a partir do lugar temporário de onde foi iniciado.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>Não foi possível copiar a atualização para onde está o Quillon.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Outro Quillon está instalando uma atualização, ou acabou de fazer isso.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>Você não tem permissão para alterar a pasta em que está o Quillon.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>A atualização foi cancelada.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>O endereço onde procurar atualizações não é seguro (https).</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>Não foi possível obter a lista de atualizações. Verifique a sua conexão e tente de novo.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>A lista de atualizações está danificada.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>Esta cópia do Quillon não tem chave para verificar atualizações e, por isso, não pode se atualizar.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>O endereço da atualização não é seguro (https).</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>Não foi possível baixar a atualização. Verifique a sua conexão e tente de novo.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>A atualização baixada não tem o tamanho esperado.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>A atualização baixada não foi assinada pelos autores do Quillon e foi descartada.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>Não foi possível guardar a atualização baixada na sua pasta de cache.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>O pacote da atualização está danificado, criptografado ou é de outro tipo.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>O pacote da atualização contém um caminho fora da sua pasta e foi descartado.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>O pacote da atualização contém um caminho com “..” e foi descartado.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>O pacote da atualização contém um link que sai da sua pasta e foi descartado.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>O pacote da atualização contém um dispositivo, pipe ou socket e foi descartado.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>O pacote da atualização contém um programa com os direitos de outro usuário e foi descartado.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>A atualização extraída é grande demais e foi descartada.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>O pacote da atualização não contém exatamente um aplicativo.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>O pacote da atualização contém outro aplicativo que não o Quillon.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>O pacote da atualização contém outra versão que não a anunciada.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>A atualização não é mais nova que esta versão do Quillon.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>A nova versão não inicia neste computador.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>Não há espaço suficiente no disco para a atualização.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>O disco em que está o Quillon não consegue trocar duas pastas em uma só etapa.</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Enviar área de transf.</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>Depois de enviar</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>Tocar &amp;um som</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>Mostrar um &amp;banner</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Posição do banner</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>&amp;Abrir o Quillon ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>&amp;Desconectar este computador</translation>
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
        <translation>Desi&amp;nstalar o Quillon…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>Outro aplicativo já usa %1. Escolha outro.</translation>
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
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>Não encontrado ainda</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>Enviado para 📝 Notes &amp; text</translation>
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
        <translation>Não enviado</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Desfeito</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>desfeito</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Apaga a mensagem do último envio</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Apaga a %n mensagem do último envio</numerusform>
            <numerusform>Apaga todas as %n mensagens do último envio</numerusform>
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
        <translation>seu grupo</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Conectado · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Ainda não configurado</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>agora mesmo</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Procurar atualizações…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>%1 já é usado por outro aplicativo. Escolha outro atalho nas configurações.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Banner em cima</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Banner no meio</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Banner embaixo</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Nada enviado ainda.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recentes</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Enviar a área de transferência ao celular</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Enviar área de transferência</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Solte para enviar</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>Arquivos, uma imagem ou texto</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Configuração</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Tópicos</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Geral</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>Abrir paine&amp;l</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>Este ambiente não mostra um ícone do Quillon.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Conecte o seu celular</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Dois minutos de configuração com o seu próprio bot do Telegram. Depois, copie qualquer coisa e pressione %1.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Criar o seu bot</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Colar o token</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Criar o seu grupo</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Criar os tópicos</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Novo grupo** → adicione o seu bot → dê um nome qualquer (como “Minha caixa de saída”) → Criar.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>Toque no **nome do grupo** → toque no **lápis** → ligue **Tópicos** (logo abaixo de Aparência) → Salvar.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>Na lista de membros, **segure** o seu bot → **Promover a administrador** → deixe **Gerenciar tópicos** ligado → Salvar.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>Envie “hi” no grupo.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Copie no computador. Cole no celular.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>No Telegram, abra **@BotFather**, envie **/newbot** e siga as etapas. Você recebe um token. O bot é só seu.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>&amp;Abrir BotFather</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>No Telegram:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Tudo pronto.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Copie qualquer coisa e pressione</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>Criado com @BotFather</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>Conectado a @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>seu bot</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>%1 encontrado</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>seu grupo</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>%n tópico pronto</numerusform>
            <numerusform>%n tópicos prontos</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>&amp;Encontrar de novo</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>&amp;Encontrar meu grupo</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>Tópicos &amp;prontos</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>C&amp;riar os tópicos</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>P&amp;erguntar de novo</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>E&amp;scolher teclas…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>Adicionar &amp;o atalho</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Cop&amp;iar</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Comando para o atalho</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>Trabalhando</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Etapa %1: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
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
        <translation>Token do bot</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>C&amp;onectar</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>&amp;Usar outro bot</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>O token fica no seu chaveiro.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Nomes dos tópicos no seu grupo</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>Sal&amp;var nomes no Telegram</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Termine antes a configuração</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Salvo no Telegram.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Enviar área de transferência</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Abrir painel</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>Mais %n: quillon doctor</numerusform>
            <numerusform>Mais %n: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>O token do bot no chaveiro</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Configurações, histórico de envios e caches</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>As preferências</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>A abertura ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Depois move o aplicativo para a lixeira e sai</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Desinstalar o Quillon?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>Isto remove deste computador:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>O bot e o grupo continuam no Telegram.</translation>
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
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Procurar atualizações automaticamente?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>O Quillon pode procurar uma versão nova uma vez por dia. Você pode mudar isso nas configurações a qualquer momento, ou procurar manualmente.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Procurar automaticamente</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>Não procurar</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Procurando atualizações…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>O Quillon está atualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>A versão %1 é a mais nova que existe.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Há uma nova versão do Quillon</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>Você tem o Quillon %1. A versão %2 pode ser instalada agora.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Depois</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Baixando o Quillon %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Preparando o Quillon %1</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Verificando e extraindo…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 de %2 MB</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>O Quillon %1 está pronto para instalar</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>O Quillon pode reiniciar agora com ela ou instalá-la quando você sair.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Instalar e reiniciar</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Instalar ao sair</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>O Quillon %1 está instalado</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Ele estará lá na próxima vez que você abrir o Quillon.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>A atualização falhou</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Procurar atualizações auto&amp;maticamente</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>&amp;Procurar agora</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
</context>
</TS>
