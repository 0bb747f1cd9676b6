<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
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
        <translation>X サーバーがなく、Qt の Wayland 用プラグインもインストールされていません。Debian のパッケージは qt6-wayland です。</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>デスクトップが見つかりません。X サーバーも Wayland コンポジターも応答しません。</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon が隠れたコピーから実行されています。「ダウンロード」フォルダーを開き、Quillon をホームの「Applications」に移動してから、そこで開いてください。</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>コンピューターがアプリケーション用フォルダーへの書き込みを許可しませんでした。「ダウンロード」フォルダーを開き、Quillon をホームの「Applications」に移動してから、そこで開いてください。</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>以前の Quillon がアプリケーション用フォルダーから開かれています。メニューから終了して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>アプリケーション用フォルダーにある以前の Quillon を置き換えられませんでした。それをゴミ箱に移動してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>コンピューターが移動を許可しませんでした。「ダウンロード」フォルダーを開き、Quillon をホームの「Applications」に移動してから、そこで開いてください。</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Quillon を移動できませんでした</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>Quillon をアプリケーション用フォルダーに移動しますか?</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>自動でアップデートするには、そこに置く必要があります。</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>あとで</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>画像 · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>クリップボードは空です</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>クリップボードを読み取れません。このデスクトップには data-control も Xwayland もありません。</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>ボットのトークン: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>別の送信がまだ実行中です。</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>設定を保存できませんでした。ディスクに空きはありますか?</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>ボットは応答しましたが、トークンを保存できるキーリングがありません。</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1 に接続しました</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>あなたのグループ</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>「%1」が見つかりました</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>デスクトップの設定で無効になっています</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>有効ですが、開く対象が見つかりません。もう一度有効にしてください</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>ログイン時に Quillon を開くように設定できませんでした。</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>ログイン時に Quillon を開く設定を解除できませんでした。</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon と保存されたデータをすべて削除しました。アプリはゴミ箱にあります</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>アプリはゴミ箱にあります</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>キーリングがロックされているため、ボットのトークンが残っています。</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>キーリングを待っています。別のウィンドウでパスワードを求めているかもしれません。中止するには Ctrl-C を押してください。</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>実行中の Quillon が応答しません。終了させてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon は処理が終わる前に終了しました。</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 は最新です。</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>Quillon %1 を利用できます。</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>ダウンロード中…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 をインストールしました。</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>終了して起動し直すまでは、%1 のまま動作します。</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>この Quillon は自動でアップデートされません。</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon は 1 分以内に送信の準備ができませんでした。</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>追跡できる実行中の Quillon がありません。</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>実行中の Quillon は別のバージョンで、このコマンドに対応していません。終了して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>標準入力を読み取れませんでした。</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>標準入力</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon は、コピーしたものを自分の Telegram ボットでスマートフォンに送ります。

使い方: quillon [コマンド]

コマンドを付けずに起動すると常駐し、ショートカットを押すたびに送信します。

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>終了ステータス: 0 成功、1 失敗、2 コマンドラインを解釈できない。</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>JSON で出力</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>パネルを表示。Quillon が動いていなければ起動</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>設定を表示。Quillon が動いていなければ起動</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>ボットを接続。トークンを標準入力から読み取る</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>ボットに書き込んだグループを探す</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>4 つのトピックを作成、または既存のものを探す</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>ここで設定した名前をトピックに付ける</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>ボット、グループ、トピックの設定を消去</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>設定の状態を表示</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>送信履歴を新しい順に表示</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>開かない</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>現在の設定を表示</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>ログイン時に Quillon を開くかどうか</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>インストールもする</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>新しいバージョンの有無を表示。インストールも可能</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>確認済みとして削除</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>Quillon と保存されたデータをすべて削除</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>このヘルプを表示</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>バージョンを表示</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>送信するファイル</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>notes、images、files、videos のどれかに送る</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>標準入力をこの名前のファイルとして送る</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>クリップボード、ファイル、または - かパイプで標準入力を送信</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>送信できるまで最大 1 分待つ</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>今後送信されるものを表示</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>名前も表示</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>問題点と直し方を表示</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>直前の送信を取り消す（48 時間以内）</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>ディスプレイがないため、確認していません</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>デスクトップがまだ応答していません</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>確認を求められたら、そこで答えてください。</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 を使えます</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>デスクトップに登録されていますが、キーが未割り当てです</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>設定の「一般」でキーを選んでください。</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>別のプログラムまたはデスクトップ自体が %1 を使用しています</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>設定の「一般」で別のショートカットを選ぶか、デスクトップのキーボードの設定で割り当てを解除してください。</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>デスクトップの確認で拒否されました</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>設定の「一般」から、もう一度確認できます。</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>デスクトップがプログラムにショートカットを割り当てません</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>自分で割り当てる方法は、設定の「一般」に表示されます。</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>確認できませんでした</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>ログアウトして、ログインし直してください。</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>Wayland コンポジターが応答しません</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>Wayland コンポジターと X サーバーが応答しています</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>Wayland コンポジターが応答しています</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>X サーバーが応答しています</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>X サーバーが応答しません</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>ディスプレイがありません</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>DISPLAY または WAYLAND_DISPLAY が設定されたデスクトップのセッションで Quillon を起動してください。</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>最後にコピーしたプログラムが応答しません</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>別のプログラムで何かコピーするか、応答しないプログラムを終了してください。</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>このデスクトップでは、どのプログラムからも読み取れません</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>デスクトップで Xwayland を有効にしてください。</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>%1 を使用。現在は空です</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>%1 を使用。現在の形式: %2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>Quillon が起動していないため、確認していません</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 は空いています</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>デスクトップのショートカット機能が停止しています</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>「%2」が %1 を使用しています</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>設定で無効になっています</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>すべてのウィンドウの上に重なるレイヤー</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>セッションバス上のホストが表示しています</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>X サーバー上のトレイが表示しています</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>このデスクトップにはアイコンが表示されません</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>quillon panel でパネルを開くか、拡張機能などでデスクトップにトレイを追加してください。</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>off</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>on</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>デスクトップの設定で無効になっています</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>有効ですが、開くプログラムが見つかりません</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>もう一度有効にしてください: quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1 (%2 で動作、%3 を使用)</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>起動中で、ショートカットを待っています</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>起動していないため、ショートカットに反応しません</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>Quillon を起動してください。</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>サウンドサーバーまたはサウンドカードがあります</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>サウンドサーバーもサウンドカードもありません</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>PipeWire または PulseAudio を起動してください。</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 が応答しません</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>ディスクまたはネットワーク共有があるか確認してください。</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1 を作成できません</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>自分にアクセス権を付与してください。</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>%1 のあるディスクがいっぱいです</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>ディスクの空きを増やしてください。</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>他のユーザーが %1 の中を見られます</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>他のユーザーの権限を外してください: chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>%1 に書き込めます (空き %2 MB)</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>この Quillon は自動でアップデートされません</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon は自動でアップデートされます</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>今の場所では Quillon を置き換えられません</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>自分が所有するフォルダーに移動してください。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>クリップボード</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>バナー</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>サウンド</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>データフォルダー</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>ログイン時に開く設定</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>キーリング</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時計</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>ボット</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>トピック</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>トピック %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>前の項目でエラーがあったため、問い合わせていません</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram の応答: %1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram が応答しません</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>しばらくしてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>インターネット接続とファイアウォールを確認してください。</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>%1 を修正するか、削除してください。</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>Telegram への接続は正常です</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>libcurl がないか、古すぎます</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>libcurl 7.87 以降をインストールしてください。</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API がサーバーのアドレスではありません</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>修正するか、削除してください。</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>%1 のプロキシの名前が見つかりません</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>サーバーの名前が見つかりません</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>インターネット接続とネームサーバーを確認してください。</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>%1 のプロキシが接続を拒否しています</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>サーバーに接続できません</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>サーバーの証明書が信頼されていません</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>ca-certificates をインストールしてください。プロキシが通信を読み取る場合は、SSL_CERT_FILE でその証明書を指定できます。</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>このコンピューターの時計では、サーバーの証明書は有効期間外です</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>時計を合わせてください。</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>サーバーと暗号化方式を合意できません</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>時間内に応答がありません</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>スマートフォンで削除されました</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>もう一度作成してください: quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>閉じられています</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>スマートフォンで開き直してください。</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>ボットに書き込む権限がありません</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>ボットをグループの管理者にしてください。</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>応答し、ボットのトークンを保存しています</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>ロックされています</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>ロックを解除して、もう一度試してください。</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>応答しますが、ボットのトークンがありません</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>ボットを接続してください: quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>応答しません</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>そのサービスを終了するか、ログインし直してください。</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>トークンを取り出せません。ボットのトークンは Quillon が終了するまでメモリーにあります</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>ロックを解除するか、ボットを接続し直してください。</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>アクセスに必要なセッションバスが応答しません</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>DBUS_SESSION_BUS_ADDRESS が設定されたデスクトップのセッションで Quillon を起動してください。</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>ありません</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>gnome-keyring または KWallet をインストールして、ログインし直してください。</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>%1 のプロキシ経由での Telegram への接続は正常です</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>%1 のプロキシが応答しません</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>サーバーの時刻を取得できませんでした</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>サーバーの時刻と一致しています</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>サーバーより %1 分進んでいます</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>サーバーより %1 分遅れています</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram がトークンを受け付けません</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>@BotFather からトークンを取得して、接続してください: quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram がトークンを受け付けました</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>ボットをグループに追加し、グループで「hi」と送ってから、実行してください: quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>まだ見つかっていません</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>スーパーグループになり、別のグループに変わりました</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>グループで「hi」と送ってから、実行してください: quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>ボットがアクセスできます</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>オンになっています</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>グループでオフになっています</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>スマートフォンで、グループの設定からトピックをオンにしてください。</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>ボットにトピックを管理する権限があります</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>ボットにトピックを管理する権限がありません</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>ボットを「トピックの管理」の権限がある管理者にしてください。</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>まだ作成されていません</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>作成してください: quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>あります</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>別の Quillon が処理中です。終了させるか、終わるまで待ってください。</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>キーリングにボットのトークンが残っています。ロックを解除して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>キーリングがロックされています。ロックを解除して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>キーリングが応答しません。起動またはロックを解除して、もう一度試してください。</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon は待機中です</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>送信コマンドなど、別の Quillon が処理中です。終わりしだい起動します。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>送信中…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>%1 は 50 MB を超えています (Telegram のボットの上限)</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>フォルダーはまだ送信できません: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>%1 を読み取れませんでした</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>送信するにはメモリーが足りません。</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>未送信: 送信は中止されました。</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>%1 件を送信、%2 件は失敗</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>%1 に送信しました</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>%n 件を送信しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Telegram の確認を待たずに Quillon が終了しました。</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>先に Quillon の初期設定を終えてください</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1には送信するものがありません。</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1はテキストでも PNG 画像でもありません。--name でファイル名を付けてください。</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>ボットのトークンではないようです。トークンは 123456:ABC-DEF… のような形です</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>その間にボットの設定が消去されました。</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>先にボットを接続してください。</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>グループがまだ見つかりません。ボットをグループに追加し、グループで「hi」と送ってから、もう一度試してください。</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>「%1」が見つかりましたが、トピックがオフです。グループの設定でトピックをオンにしてください。</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>あなたのグループ</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>トピックを作成できませんでした。ボットを「トピックの管理」の権限がある管理者にして、もう一度試してください。</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>先にグループを探してください。</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon の接続が完了しました。コピーしたものを送るには、コンピューターで %1 を押してください。</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>ショートカットが未設定です。方法は設定にあります。</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>このデスクトップでのショートカットは %2 です。</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>デスクトップが %1 を設定しています。確認を求められたら、そこで答えてください。</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>ショートカットはデスクトップに登録されましたが、キーが未割り当てです。</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>デスクトップがショートカットにキーを割り当てていません。設定をご覧ください。</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>デスクトップの確認でショートカットを拒否しました。</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>ショートカットを拒否しました。設定からもう一度確認できます。</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>デスクトップのショートカット機能が停止しています。復旧すると %1 がまた使えます。</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>このデスクトップはプログラムにショートカットを割り当てません。Quillon がキーボードの設定に %1 を追加できます。そこで変更もできます。</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>ショートカットが未設定です。設定から追加できます。</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>このデスクトップはショートカットを専用のファイルに保存します。%1 を使うには、%3 に次の行を追加してください:</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>デスクトップが %1 を設定していません。もう一度確認するか、キーボードの設定で次のコマンドを割り当ててください:</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>このデスクトップはプログラムにショートカットを割り当てません。キーボードの設定で %1 に次のコマンドを割り当ててください:</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>このデスクトップはプログラムにショートカットを割り当てません。</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>クリップボードをスマートフォンに送信</translation>
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
        <translation>接続済み</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>ボット</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>あなたのグループ</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>未検出</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1 (未作成)</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>トピック</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>キーリング</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram がこのボットのトークンを受け付けませんでした。</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram から空の応答が返りました (エラー %1)。しばらくしてからもう一度試してください。</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram に拒否されました。</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API がサーバーのアドレスではありません。http://127.0.0.1:8081 のような形です</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>このボットのトークンは正しくないようです。</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>Telegram に接続できません。インターネット接続を確認してください。</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>出力に書き込めませんでした。</translation>
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
        <translation>テキスト</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>コピーしたテキスト</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>その他のファイル</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>動画ファイル</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>すべてを取り消す前に停止しました。</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>メッセージ %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>送信がまだ実行中です。終わってから取り消してください。</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>直前の送信はすでに取り消し中です。</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>直前の送信は何も届いていません。</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>取り消すものはありません。</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>直前の送信から 48 時間以上たっています。それを過ぎると、Telegram はボットによるメッセージの削除を許可しません。</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>取り消し中…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>メッセージを取り消しました</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>%1 件だけ取り消しました: %2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>%n 件のメッセージを取り消しました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>アプリをゴミ箱に移動できませんでした。Quillon をアプリケーション用フォルダーからゴミ箱に移動して、完了してください。</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>アプリをゴミ箱に移動できませんでした。パッケージマネージャーで Quillon を削除して、完了してください。</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>Quillon の後片付けが終わりました</translation>
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
        <translation>今の場所では Quillon をアップデートできません。ディスクに書き込めません。</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>一時的な場所から起動された Quillon はアップデートできません。</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>アップデートを Quillon の場所にコピーできませんでした。</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>別の Quillon がアップデートをインストール中か、インストールしたばかりです。</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>Quillon のあるフォルダーを変更する権限がありません。</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>アップデートはキャンセルされました。</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>アップデートを探すアドレスが安全 (https) ではありません。</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>アップデートの一覧を取得できませんでした。接続を確認して、もう一度試してください。</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>アップデートの一覧が壊れています。</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>この Quillon にはアップデートを検証する鍵がないため、アップデートできません。</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>アップデートのアドレスが安全 (https) ではありません。</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>アップデートをダウンロードできませんでした。接続を確認して、もう一度試してください。</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>ダウンロードしたアップデートのサイズが正しくありません。</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>ダウンロードしたアップデートに Quillon の開発元の署名がないため、破棄しました。</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>ダウンロードしたアップデートをキャッシュフォルダーに保存できませんでした。</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>アップデートのアーカイブが破損しているか、暗号化されているか、別の形式です。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>アップデートのアーカイブにフォルダー外のパスがあるため、破棄しました。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>アップデートのアーカイブに「..」を含むパスがあるため、破棄しました。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>アップデートのアーカイブにフォルダー外へのリンクがあるため、破棄しました。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>アップデートのアーカイブにデバイス、パイプ、またはソケットがあるため、破棄しました。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>アップデートのアーカイブに別のユーザーの権限を持つプログラムがあるため、破棄しました。</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>アップデートは展開すると大きすぎるため、破棄しました。</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>アップデートのアーカイブに含まれるアプリケーションが 1 つではありません。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>アップデートのアーカイブに Quillon ではないアプリケーションがあります。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>アップデートのアーカイブのバージョンが告知と異なります。</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>アップデートはこの Quillon より新しくありません。</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>新しいバージョンはこのコンピューターでは起動しません。</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>アップデートに必要な空きがディスクにありません。</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>Quillon のあるディスクでは、2 つのフォルダーを一度に入れ替えられません。</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>クリップボードを送信</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>送信後</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>音を鳴らす(&amp;P)</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>バナーを表示(&amp;B)</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>バナーの位置</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>起動</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>ログイン時に Quillon を開く(&amp;O)</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>このコンピューターの接続を解除(&amp;D)</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>ボット</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>Quillon をアンインストール(&amp;U)…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>%1 は別のアプリが使っています。別のものを選んでください。</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>未検出</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>📝 Notes &amp; text に送信しました</translation>
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
        <translation>未送信</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>送信済み</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>取り消し済み</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>取り消し済み</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>直前の送信のメッセージを削除します</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>直前の送信のメッセージ %n 件をすべて削除します</numerusform>
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
        <translation>あなたのグループ</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>接続済み · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>未設定</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>%1 は別のアプリが使っています。設定で別のショートカットを選んでください。</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>バナーを上に</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>バナーを中央に</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>バナーを下に</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>まだ何も送信していません。</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近の送信</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>クリップボードをスマートフォンに送信</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>送信中…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>クリップボードを送信</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>ドロップして送信</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>ファイル、画像、テキスト</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>初期設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>トピック(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>一般(&amp;G)</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>パネルを開く(&amp;L)</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>このデスクトップには Quillon のアイコンが表示されません。</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>スマートフォンを接続</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>初期設定を始める</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>自分の Telegram ボットで 2 分あれば設定できます。あとは何かをコピーして %1 を押すだけです。</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>ボットを作る</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>トークンを貼り付ける</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>グループを作る</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>トピックを作成する</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**新しいグループ** → 自分のボットを追加 → 好きな名前を付ける (「送信箱」など) → 作成。</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>**グループ名**をタップ → **鉛筆**をタップ → **トピック**をオンにする (「外観」のすぐ下) → 保存。</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>メンバー一覧で自分のボットを**長押し** → **管理者に昇格** → **トピックの管理**をオンのままにする → 保存。</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>グループで「hi」と送る。</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>コンピューターでコピー。スマートフォンで貼り付け。</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>Telegram で **@BotFather** を開き、**/newbot** と送って手順に従うと、トークンがもらえます。このボットはあなただけのものです。</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>BotFather を開く(&amp;O)</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>Telegram での操作:</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>準備ができました。</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>何かをコピーして、次のキーを押します</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>@BotFather で作成済み</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>@%1 に接続済み</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>あなたのボット</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>%1 を検出済み</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>あなたのグループ</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>%n 個のトピックを使えます</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>もう一度探す(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>グループを探す(&amp;F)</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>トピックを使えます(&amp;R)</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>トピックを作成(&amp;R)</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>もう一度確認(&amp;K)</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>キーを選ぶ(&amp;K)…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>ショートカットを追加(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>ショートカットのコマンド</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>処理中</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>手順 %1: %2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
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
        <translation>ボットのトークン</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>接続(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>別のボットを使う(&amp;U)</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>トークンはキーリングに保存されます。</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>グループでのトピックの名前</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>名前を Telegram に保存(&amp;V)</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>先に初期設定を終えてください</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>Telegram に保存しました。</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>クリップボードを送信</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>パネルを開く</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>ほか %n 件: quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>キーリングにあるボットのトークン</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>設定、送信履歴、キャッシュ</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>ログイン時に開く設定</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>そのあとアプリはゴミ箱に移り、終了します</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>Quillon をアンインストールしますか?</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>このコンピューターから次のものを削除します:</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>ボットとグループは Telegram に残ります。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>アンインストール(&amp;U)</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>アップデートを自動的に確認しますか?</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon は 1 日に 1 回、新しいバージョンを確認できます。これはいつでも設定で変更でき、手動でも確認できます。</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>自動的に確認</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>確認しない</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Quillon は最新です</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>バージョン %1 が最新です。</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>Quillon の新しいバージョンがあります</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>お使いの Quillon は %1 です。バージョン %2 を今すぐインストールできます。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>あとで</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>Quillon %1 をダウンロード中</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>接続中…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>Quillon %1 を準備中</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>検証と展開の最中…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 MB</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 をインストールできます</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon は今すぐ新しいバージョンで起動し直すか、終了時にインストールできます。</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>インストールして再起動</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>終了時にインストール</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 をインストールしました</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>次に Quillon を開くと新しくなります。</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>アップデートできませんでした</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>アップデートを自動的に確認(&amp;A)</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>今すぐ確認(&amp;N)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
</context>
</TS>
