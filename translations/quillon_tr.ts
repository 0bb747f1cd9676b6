<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>Alert</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>App</name>
    <message>
        <source>There is no X server, and Qt&apos;s part for Wayland is not installed. Debian&apos;s package is qt6-wayland.</source>
        <translation>X sunucusu yok ve Qt’nin Wayland bölümü kurulu değil. Debian paketinin adı qt6-wayland.</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>Çalışılacak bir masaüstü yok: ne X sunucusu ne de Wayland bileştiricisi yanıt veriyor.</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon gizli bir kopyadan çalışıyor. İndirilenler klasörünü açın, Quillon’u “Applications” klasörüne taşıyın ve oradan açın.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Bilgisayar, Quillon’un uygulama klasörüne yazmasına izin vermedi. İndirilenler klasörünü açın, Quillon’u “Applications” klasörüne taşıyın ve oradan açın.</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>Uygulama klasöründen daha eski bir Quillon açık. Menüsünden çıkın ve yeniden deneyin.</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>Uygulama klasöründeki eski Quillon değiştirilemedi. Onu çöpe taşıyın ve yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Bilgisayar taşımaya izin vermedi. İndirilenler klasörünü açın, Quillon’u “Applications” klasörüne taşıyın ve oradan açın.</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Quillon kendini taşıyamadı</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Quillon uygulama klasörüne taşınsın mı?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>Kendini güncellemesi için orada olması gerekir.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Taşı</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Şimdi değil</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>Üst</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Alt</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n dosya</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Resim</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>Resim · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>Pano boş</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>Panoya erişilemiyor. Bu masaüstü ne data-control ne de Xwayland sunuyor.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>Bot token’ı: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>Başka bir gönderim hâlâ sürüyor.</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>Kurulum kaydedilemedi. Diskte yer var mı?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>Bot yanıt veriyor, ancak token’ını saklayacak bir anahtarlık yok.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1 botuna bağlandı</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>grubunuz</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>“%1” bulundu</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>masaüstü ayarlarında kapatılmış</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>açık, ancak açılacak şey yerinde değil: yeniden açın</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>Quillon’un oturum açılışında başlaması ayarlanamadı.</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>Quillon’un oturum açılışında başlaması kapatılamadı.</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon ve sakladığı her şey kaldırıldı; uygulama çöpte</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>Uygulama çöpte</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>Anahtarlık kilitli olduğu için bot token’ı hâlâ içinde.</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>Anahtarlık bekleniyor; kendi penceresinde parola soruyor olabilir. Durdurmak için Ctrl-C’ye basın.</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>Çalışan Quillon yanıt vermiyor. Onu sonlandırıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon işini bitirmeden kapandı.</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 güncel.</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>Quillon %1 kullanılabilir.</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>İndiriliyor…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 kuruldu.</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>Çıkıp yeniden başlatana kadar çalışan sürüm %1 olarak kalır.</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>Bu Quillon kopyası kendini güncellemez.</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon bir dakika içinde göndermeye hazır olmadı.</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>İzlenecek çalışan bir Quillon yok.</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>Çalışan Quillon başka bir sürüm ve bu komutu bilmiyor. Ondan çıkıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>Standart girdi okunamadı.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standart girdi</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon, kopyaladıklarınızı kendi Telegram botunuzla telefonunuza gönderir.

Kullanım: quillon [KOMUT]

Komut verilmezse açık kalır ve kısayoluna her basışınızda gönderir.

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>Çıkış durumu: 0 tamam, 1 başarısız, 2 komut satırı anlaşılmadı.</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>JSON olarak yanıtlar</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>paneli gösterir; çalışmıyorsa Quillon’u başlatır</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>ayarları gösterir; çalışmıyorsa Quillon’u başlatır</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>botunuzu bağlar; token’ını standart girdiden okur</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>bota yazdığınız grubu bulur</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>dört konuyu oluşturur ya da yeniden bulur</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>konulara burada ayarlanan adları verir</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>botu, grubu ve konuları unutur</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>nelerin kurulu olduğunu söyler</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>gönderilenleri en yeniden başlayarak listeler</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>açar</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>açmaz</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>hangisi olduğunu söyler</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>oturum açılışında Quillon’u açar ya da açmaz</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>onu kurar da</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>daha yeni bir sürüm olup olmadığını söyler; kurar</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>evet, kaldır</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>Quillon’u ve sakladığı her şeyi kaldırır</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>bunu yazdırır</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>sürümü yazdırır</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>gönderilecek dosya</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>notes, images, files ya da videos konusuna</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>standart girdiyi bu adda bir dosya olarak</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>panoyu, dosyaları ya da - ile veya boruyla standart girdiyi gönderir</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>gönderebilene kadar en çok bir dakika bekler</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>bundan sonra gönderilenleri yazdırır</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>adları da söyler</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>neyin yanlış olduğunu ve nasıl düzeltileceğini söyler</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>son gönderimi geri al, 48 saat boyunca</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>ekran olmadığı için denetlenmedi</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>masaüstü henüz yanıt vermedi</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>Sorarsa orada yanıtlayın.</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 çalışıyor</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>masaüstü onu biliyor, ancak tuş vermiyor</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>Ayarlarda, “Genel” altında tuşları seçin.</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>%1 kısayolunu başka bir program ya da masaüstünün kendisi kullanıyor</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>Ayarlarda, “Genel” altında başka birini seçin ya da masaüstünün klavye ayarlarında onu boşa çıkarın.</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>masaüstü sorduğunda reddedildi</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>Ayarlarda, “Genel” altından yeniden sordurun.</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>masaüstü programlara kısayol vermiyor</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>Kendiniz nasıl atayacağınız ayarlarda, “Genel” altında.</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>denetlenemedi</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>Oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>Wayland bileştiricisi yanıt vermiyor</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>Wayland bileştiricisi ve bir X sunucusu yanıt veriyor</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>Wayland bileştiricisi yanıt veriyor</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>X sunucusu yanıt veriyor</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>X sunucusu yanıt vermiyor</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>ekran yok</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>Quillon’u masaüstü oturumunuzda çalıştırın; orada ekranı DISPLAY ya da WAYLAND_DISPLAY belirtir.</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>en son kopyalama yapan program yanıt vermiyor</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>Başka bir programda bir şey kopyalayın ya da o programı sonlandırın.</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>bu masaüstü hiçbir programın onu okumasına izin vermiyor</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>Masaüstünde Xwayland’i açın.</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>%1 ile; şu anda boş</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>%1 ile; şu anda sunulan: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>Quillon çalışmadığı için denetlenmedi</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 boşta</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>masaüstünün kısayolları durdu</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>%1 kısayolunu “%2” kullanıyor</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>ayarlarda kapatılmış</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>tüm pencerelerin üzerinde bir katman</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>bir pencere</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>oturum veri yolundaki bir program gösteriyor</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>X sunucusundaki bir sistem tepsisi gösteriyor</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>bu masaüstü simge göstermiyor</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>Paneli şu komutla açın: quillon panel. Ya da masaüstüne, örneğin bir uzantıyla, sistem tepsisi ekleyin.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>tamam</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>uyarı</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>hata</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>belirsiz</translation>
    </message>
    <message>
        <source>off</source>
        <translation>kapalı</translation>
    </message>
    <message>
        <source>on</source>
        <translation>açık</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>masaüstü ayarlarında kapatılmış</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>açık, ancak açılacak program yerinde değil</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>Yeniden açın: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%2 üzerinde %1, %3 ile</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>çalışıyor ve kısayolu bekliyor</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>çalışmıyor, bu yüzden kısayolu bekleyen yok</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Quillon’u başlatın.</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>bir ses sunucusu ya da ses kartı var</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>ne ses sunucusu ne de ses kartı var</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>PipeWire ya da PulseAudio’yu başlatın.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 yanıt vermiyor</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>Diskinin ya da ağ paylaşımının yerinde olup olmadığına bakın.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 klasörüne yazılamıyor</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1 klasörü oluşturulamıyor</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>Kendinize bunun için izin verin.</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>%1 klasörünün diski dolu</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>Diskte yer açın.</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>başkaları %1 klasörünün içine bakabiliyor</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>İzinlerini kaldırın: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>%1 klasörüne yazılabiliyor; %2 MB boş</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>bu kopya kendini güncellemez</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon kendini günceller</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon bulunduğu yerde kendini değiştiremiyor</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>Onu size ait bir klasöre taşıyın.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Oturum</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Ekran</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Pano</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Kısayol</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Bildirim</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Simge</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ses</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Veri klasörü</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Oturum açılışında başlama</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Güncellemeler</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Anahtarlık</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Konular</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Yetkiler</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>Konu %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>daha önce bir hata olduğu için sorulmadı</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram’ın yanıtı: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram yanıt vermiyor</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>Birazdan yeniden deneyin.</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>İnternet bağlantısını ve güvenlik duvarını denetleyin.</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>%1 değişkenini düzeltin ya da kaldırın.</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>Telegram’a giden yol açık</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>libcurl yok ya da çok eski</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>libcurl 7.87 ya da daha yenisini kurun.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API bir sunucu adresi değil</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>Düzeltin ya da kaldırın.</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>%1 içindeki vekil sunucunun adı bulunamadı</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>sunucunun adı bulunamadı</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>İnternet bağlantısını ve ad sunucusunu denetleyin.</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>%1 içindeki vekil sunucu bağlantıyı reddediyor</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>sunucuya bağlanılamıyor</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>sunucunun sertifikası güvenilir değil</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>ca-certificates paketini kurun. Araya giren bir vekil sunucu varsa sertifikasını SSL_CERT_FILE belirtebilir.</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>bu bilgisayarın saatine göre sunucunun sertifikası şu anda geçerli değil</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>Saati ayarlayın.</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>sunucuyla ortak bir şifreleme bulunamadı</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>zamanında yanıt gelmedi</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>telefonda silindi</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>Yeniden oluşturun: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>kapalı</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>Telefonda yeniden açın.</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>bot oraya yazamıyor</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>Botu grupta yönetici yapın.</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>yanıt veriyor, bot token’ı içinde</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>kilitli</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>Kilidini açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>yanıt veriyor, ancak içinde bot token’ı yok</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>Botunuzu bağlayın: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>yanıt vermiyor</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>Hizmetini sonlandırın ya da oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>token vermiyor; bot token’ı Quillon kapanana kadar bellekte</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>Kilidini açın ya da botunuzu yeniden bağlayın.</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>anahtarlığa ulaşmayı sağlayan oturum veri yolu yanıt vermiyor</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>Quillon’u masaüstü oturumunuzda çalıştırın; orada veri yolunu DBUS_SESSION_BUS_ADDRESS belirtir.</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>gnome-keyring ya da KWallet kurup yeniden oturum açın.</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>Telegram’a giden yol, %1 içindeki vekil sunucu üzerinden açık</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>%1 içindeki vekil sunucu yanıt vermiyor</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>sunucu saatini bildirmedi</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>sunucununkiyle uyuşuyor</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>sunucununkinden %1 dk ileri</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>sunucununkinden %1 dk geri</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram token’ını kabul etmiyor</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>Token’ını @BotFather’dan alıp botu bağlayın: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram token’ını kabul ediyor</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>Botu gruba ekleyin, oraya “hi” yazın, sonra: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>henüz bulunamadı</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>süper gruba dönüştü, bu da başka bir grup</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>Oraya “hi” yazın, sonra: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>bot gruba ulaşabiliyor</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>açık</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>grupta kapalı</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>Telefonda, grup ayarlarında konuları açın.</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>bot konuları yönetebilir</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>bot konuları yönetemez</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>Onu “Konuları Yönet” yetkisiyle yönetici yapın.</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>henüz oluşturulmadı</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>Oluşturun: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>var</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>Başka bir Quillon çalışıyor. Ondan çıkın ya da bitmesini bekleyin.</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>Anahtarlıkta bot token’ı hâlâ duruyor. Kilidini açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>Anahtarlığınız kilitli. Kilidini açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>Anahtarlığınız yanıt vermiyor. Başlatıp ya da kilidini açıp yeniden deneyin.</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon bekliyor</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>Başka bir Quillon, örneğin gönderen bir komut çalışıyor. Bu, o biter bitmez başlar.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>Gönderiliyor…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>%1, 50 MB’tan büyük (Telegram’ın bot sınırı)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>Klasörler henüz gönderilemiyor: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>%1 okunamadı</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>Bunu göndermek için yeterli bellek yok.</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>Gönderilmedi: gönderim durduruldu.</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>%1 gönderildi, %2 başarısız</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>%1 konusuna gönderildi</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>%n öğe gönderildi</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Telegram onaylamadan Quillon kapandı.</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>Önce Quillon’un kurulumunu bitirin</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1: gönderilecek bir şey yok.</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1: metin ya da PNG resmi değil. --name ile bir dosya adı verin.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>Bu bir bot token’ına benzemiyor. Şöyle görünür: 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>Bu arada bot unutuldu.</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>Önce botunuzu bağlayın.</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>Henüz grup bulunamadı. Botu grubunuza ekleyin, gruba “hi” gönderin ve yeniden deneyin.</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>“%1” bulundu, ancak konular kapalı. Grup ayarlarında konuları açın.</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>grubunuz</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>Konular oluşturulamadı. Botu “Konuları Yönet” yetkisiyle yönetici yapın ve yeniden deneyin.</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>Önce grubunuzu bulun.</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon bağlandı. Kopyaladığınızı göndermek için bilgisayarınızda %1 tuşlarına basın.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>Kısayol henüz ayarlanmadı. Nasıl yapılacağı ayarlarda.</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>Bu masaüstünde kısayol %2.</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>Masaüstünüz %1 kısayolunu ayarlıyor. Sorarsa orada yanıtlayın.</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>Masaüstünüz kısayolu biliyor, ancak henüz tuş vermedi.</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>Masaüstünüz kısayola henüz tuş vermedi. Ayarlara bakın.</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>Masaüstünüz sorduğunda kısayolu reddettiniz.</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>Kısayolu reddettiniz. Ayarlardan yeniden sorulabilir.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>Masaüstünüzün kısayolları durdu. Geri geldiklerinde %1 yeniden çalışır.</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>Masaüstünüz programlara kısayol vermiyor. Quillon, %1 kısayolunu klavye ayarlarınıza ekleyebilir; orada değiştirebilirsiniz.</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>Kısayol henüz ayarlanmadı. Ayarlardan eklenebilir.</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>Masaüstünüz kısayolları kendi dosyasında tutuyor. %1 için şu satırı %3 dosyasına ekleyin:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>Masaüstünüz %1 kısayolunu ayarlamadı. Yeniden sorun ya da klavye ayarlarında şu komutu atayın:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>Masaüstünüz programlara kısayol vermiyor. %1 için klavye ayarlarında şu komutu atayın:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>Bu masaüstü programlara kısayol vermiyor.</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>Panoyu telefona gönder</translation>
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
        <translation>bağlı</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>bağlı değil</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>grubunuz</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>henüz bulunamadı</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (henüz oluşturulmadı)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Konu</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Kısayol</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Anahtarlık</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Hazır</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>evet</translation>
    </message>
    <message>
        <source>no</source>
        <translation>hayır</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram bu bot token’ını kabul etmedi.</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram boş bir yanıt gönderdi (hata %1). Birazdan yeniden deneyin.</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram reddetti.</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API bir sunucu adresi değil. Şöyle görünür: http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>Bu bot token’ı doğru görünmüyor.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Telegram’a ulaşılamadı. İnternet bağlantınızı denetleyin.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>Çıktı yazılamadı.</translation>
    </message>
    <message>
        <source>%1 %2 of %3 MB</source>
        <comment>what is done, and how far it is</comment>
        <translation>%1 %2 / %3 MB</translation>
    </message>
</context>
<context>
    <name>Topic</name>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>kopyalanan metin</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Resimler</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>resimler</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>diğer tüm dosyalar</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videolar</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>video dosyaları</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>Tümü geri alınmadan durduruldu.</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>Mesaj %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>Bir gönderim hâlâ sürüyor. Bitince geri alın.</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>Son gönderim zaten geri alınıyor.</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>Son gönderimden hiçbir şey ulaşmadı.</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>Geri alınacak bir şey yok.</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>Son gönderimin üzerinden 48 saatten fazla geçti. Telegram, bundan sonra bot mesajlarının silinmesine izin vermez.</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>Geri alınıyor…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>Mesaj geri alındı</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>Yalnızca %1 geri alındı: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>%n mesaj geri alındı</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Quillon kendini çöpe taşıyamadı. Bitirmek için onu uygulama klasöründen çöpe taşıyın.</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Quillon kendini çöpe taşıyamadı. Bitirmek için onu paket yöneticinizle kaldırın.</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>Quillon temizlendi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>UpdateError</name>
    <message>
        <source>Quillon cannot update itself where it lies now: that disk cannot be written to.</source>
        <translation>Quillon bulunduğu yerde kendini güncelleyemez: o diske yazılamıyor.</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon, başlatıldığı geçici yerden kendini güncelleyemez.</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>Güncelleme Quillon’un bulunduğu yere kopyalanamadı.</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>Başka bir Quillon güncelleme kuruyor ya da az önce kurdu.</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>Quillon’un bulunduğu klasörü değiştirme izniniz yok.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>Güncelleme iptal edildi.</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>Güncellemelerin arandığı adres güvenli (https) değil.</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>Güncelleme listesi alınamadı. Bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>Güncelleme listesi bozuk.</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>Bu Quillon kopyasında güncellemeleri doğrulayacak anahtar yok; bu yüzden kendini güncelleyemez.</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>Güncelleme adresi güvenli (https) değil.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>Güncelleme indirilemedi. Bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>İndirilen güncellemenin boyutu olması gerektiği gibi değil.</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>İndirilen güncelleme Quillon’un yapımcılarınca imzalanmadığı için atıldı.</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>İndirilen güncelleme önbellek klasörünüze kaydedilemedi.</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>Güncelleme arşivi bozuk, şifreli ya da başka türde.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>Güncelleme arşivinde klasörünün dışına çıkan bir yol olduğu için atıldı.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>Güncelleme arşivinde “..” içeren bir yol olduğu için atıldı.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>Güncelleme arşivinde klasöründen çıkan bir bağlantı olduğu için atıldı.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>Güncelleme arşivinde bir aygıt, boru ya da soket olduğu için atıldı.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>Güncelleme arşivinde başka bir kullanıcının yetkilerine sahip bir program olduğu için atıldı.</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>Güncelleme açıldığında çok büyük olduğu için atıldı.</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>Güncelleme arşivinde tam olarak bir uygulama yok.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>Güncelleme arşivinde Quillon’dan başka bir uygulama var.</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>Güncelleme arşivinde duyurulandan başka bir sürüm var.</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>Güncelleme bu Quillon sürümünden daha yeni değil.</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>Yeni sürüm bu bilgisayarda başlamıyor.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>Diskte güncelleme için yeterli yer yok.</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>Quillon’un bulunduğu disk iki klasörü tek adımda değiş tokuş edemiyor.</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>Kısayol</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Panoyu gönder</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>Gönderdikten sonra</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>&amp;Ses çal</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>&amp;Bildirim göster</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>Bildirim konumu</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>&amp;Oturum açılışında Quillon’u aç</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>Bu bi&amp;lgisayarın bağlantısını kes</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>&amp;Quillon’u kaldır…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>Başka bir uygulama %1 kısayolunu kullanıyor. Başka birini seçin.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>bağlı</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>Henüz bulunamadı</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>📝 Notes &amp; text konusuna gönderildi</translation>
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
        <translation>Gönderilmedi</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gönderildi</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>Geri alındı</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>geri alındı</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>Son gönderimin mesajını siler</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>Son gönderimin %n mesajını siler</numerusform>
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
        <translation>grubunuz</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>Bağlı · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>Henüz kurulmadı</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>az önce</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ayarlar…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Güncellemeleri denetle…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>%1 kısayolunu başka bir uygulama kullanıyor. Ayarlardan başka bir kısayol seçin.</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>Bildirim üstte</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>Bildirim ortada</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>Bildirim altta</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>Henüz bir şey gönderilmedi.</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Son gönderilenler</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>Panoyu telefona gönder</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Gönderiliyor…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>Panoyu gönder</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>Göndermek için bırakın</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>Dosyalar, resim ya da metin</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>K&amp;urulum</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Konular</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Genel</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>&amp;Paneli aç</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>Bu masaüstü Quillon simgesi göstermiyor.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>Telefonunuzu bağlayın</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>Kurulumu başlat</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>Kendi Telegram botunuzla iki dakikalık bir kurulum. Sonra herhangi bir şeyi kopyalayıp %1 tuşlarına basın.</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>Botunuzu oluşturun</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>Token’ı yapıştırın</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>Grubunuzu kurun</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>Konuları oluşturun</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**Yeni grup** → botunuzu ekleyin → istediğiniz adı verin (“Giden Kutum” gibi) → Oluştur.</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>**Grup adına** dokunun → **kaleme** dokunun → **Konular** seçeneğini açın (Görünüm’ün hemen altında) → Kaydet.</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>Üye listesinde botunuza **basılı tutun** → **Yönetici yap** → **Konuları Yönet** açık kalsın → Kaydet.</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>Gruba “hi” gönderin.</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>Bilgisayarda kopyala. Telefonda yapıştır.</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>Telegram’da **@BotFather** sohbetini açın, **/newbot** gönderin ve adımları izleyin. Size bir token verir. Bot yalnızca sizindir.</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>BotFather’ı &amp;aç</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>Telegram’da:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>Her şey hazır.</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>Herhangi bir şeyi kopyalayın, sonra basın:</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>@BotFather ile oluşturuldu</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>@%1 botuna bağlandı</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>botunuz</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>%1 bulundu</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>grubunuz</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>%n konu hazır</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>&amp;Yeniden bul</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>G&amp;rubumu bul</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>Konular &amp;hazır</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>Konuları &amp;oluştur</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>&amp;Yeniden sor</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>&amp;Tuşları seç…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>Kısayolu &amp;ekle</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Kopy&amp;ala</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>Kısayol komutu</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>Çalışıyor</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>Adım %1: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
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
        <translation>Bot token’ı</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Bağlan</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>Başka bir bot ku&amp;llan</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>Token anahtarlığınızda saklanır.</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>Grubunuzdaki konu adları</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>&amp;Adları Telegram’a kaydet</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>Önce kurulumu bitirin</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Telegram’a kaydedildi.</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>Panoyu gönder</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>Paneli aç</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ayarlar…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>%n tane daha: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>Anahtarlıktaki bot token’ı</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>Ayarlar, gönderim geçmişi ve önbellekler</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>Tercihleri</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>Oturum açılışında başlama</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>Sonra uygulamayı çöpe taşır ve kapanır</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Quillon kaldırılsın mı?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>Bu bilgisayardan şunlar kaldırılır:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>Botunuz ve grubunuz Telegram’da kalır.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>&amp;Kaldır</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>Yazılım Güncellemesi</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Sürüm notları</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Güncellemeler kendiliğinden denetlensin mi?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon günde bir kez yeni sürüm arayabilir. Bunu ayarlardan istediğiniz zaman değiştirebilir ya da elle denetleyebilirsiniz.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Kendiliğinden denetle</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>Denetleme</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Güncellemeler denetleniyor…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Quillon güncel</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>En yeni sürüm %1.</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Quillon’un yeni bir sürümü var</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>Quillon %1 kullanıyorsunuz. Sürüm %2 şimdi kurulabilir.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Kur</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Sonra</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Bu sürümü atla</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Quillon %1 indiriliyor</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Bağlanılıyor…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Quillon %1 hazırlanıyor</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>Denetleniyor ve açılıyor…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 MB</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 kurulmaya hazır</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon şimdi onunla yeniden başlayabilir ya da çıktığınızda kurabilir.</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Kur ve yeniden başlat</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>Çıkarken kur</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 kuruldu</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>Quillon’u bir sonraki açışınızda orada olacak.</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>Güncelleme başarısız oldu</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>Güncellemeler</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>Güncellemeleri kendiliğinden &amp;denetle</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Şi&amp;mdi denetle</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
</context>
</TS>
