<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Alert</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>App</name>
    <message>
        <source>There is no X server, and Qt&apos;s part for Wayland is not installed. Debian&apos;s package is qt6-wayland.</source>
        <translation>没有 X 服务器，也没有安装 Qt 的 Wayland 组件。Debian 的软件包是 qt6-wayland。</translation>
    </message>
    <message>
        <source>There is no desktop to work on: neither an X server nor a Wayland compositor answers.</source>
        <translation>没有可用的桌面：X 服务器和 Wayland 合成器都没有响应。</translation>
    </message>
</context>
<context>
    <name>AppMover</name>
    <message>
        <source>macOS is running Quillon from a hidden copy. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>Quillon 正从隐藏的副本运行。请打开“下载”文件夹，将 Quillon 移到主目录中的“Applications”，再从那里打开。</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow Quillon to write to the Applications folder. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>电脑不允许 Quillon 写入应用程序文件夹。请打开“下载”文件夹，将 Quillon 移到主目录中的“Applications”，再从那里打开。</translation>
    </message>
    <message>
        <source>An older Quillon is open from Applications. Quit it from its menu, then try again.</source>
        <translation>应用程序文件夹中的旧版 Quillon 正在运行。请从菜单中退出它，然后重试。</translation>
    </message>
    <message>
        <source>Couldn&apos;t replace the older Quillon in Applications. Move it to the Trash yourself, then try again.</source>
        <translation>无法替换应用程序文件夹中的旧版 Quillon。请将它移到回收站，然后重试。</translation>
    </message>
    <message>
        <source>Your Mac didn&apos;t allow the move. Open your Downloads folder and drag Quillon into Applications yourself, then open it from there.</source>
        <translation>电脑不允许移动。请打开“下载”文件夹，将 Quillon 移到主目录中的“Applications”，再从那里打开。</translation>
    </message>
    <message>
        <source>Quillon couldn&apos;t move itself</source>
        <translation>Quillon 无法移动自身</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Move Quillon to your Applications folder?</source>
        <translation>将 Quillon 移到应用程序文件夹？</translation>
    </message>
    <message>
        <source>It needs to be there to update itself.</source>
        <translation>只有在那里它才能更新自身。</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>以后再说</translation>
    </message>
</context>
<context>
    <name>BannerPosition</name>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Image · %1×%2</source>
        <comment>width and height in pixels</comment>
        <translation>图片 · %1×%2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a copied text</comment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>The clipboard is empty</source>
        <translation>剪贴板为空</translation>
    </message>
    <message>
        <source>The clipboard is out of reach. This desktop offers neither data-control nor Xwayland.</source>
        <translation>无法访问剪贴板。此桌面既不提供 data-control，也不提供 Xwayland。</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>Bot token: </source>
        <translation>机器人令牌: </translation>
    </message>
    <message>
        <source>Another send is still running.</source>
        <translation>另一次发送仍在进行。</translation>
    </message>
    <message>
        <source>The setup could not be saved. Is there room on the disk?</source>
        <translation>无法保存配置。磁盘是否还有空间？</translation>
    </message>
    <message>
        <source>The bot answers, but no keyring could keep its token.</source>
        <translation>机器人有响应，但没有密钥环能保存它的令牌。</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>已连接到 %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>您的群组</translation>
    </message>
    <message>
        <source>Found “%1”</source>
        <translation>已找到“%1”</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>已在桌面设置中关闭</translation>
    </message>
    <message>
        <source>on, but what it would open is not there: switch it on again</source>
        <translation>已开启，但要打开的程序不存在：请重新开启</translation>
    </message>
    <message>
        <source>Quillon could not be set to open at login.</source>
        <translation>无法将 Quillon 设为登录时打开。</translation>
    </message>
    <message>
        <source>Quillon could not be kept from opening at login.</source>
        <translation>无法取消 Quillon 在登录时打开。</translation>
    </message>
    <message>
        <source>Quillon and all it has stored are gone; the app is in the Trash</source>
        <translation>Quillon 及其保存的所有内容已删除；应用在回收站中</translation>
    </message>
    <message>
        <source>The app is in the Trash</source>
        <translation>应用在回收站中</translation>
    </message>
    <message>
        <source>The keyring still holds the bot&apos;s token, for it is locked.</source>
        <translation>密钥环已锁定，因此仍保存着机器人的令牌。</translation>
    </message>
    <message>
        <source>Waiting for your keyring, which may be asking for its password in a window of its own. Press Ctrl-C to stop.</source>
        <translation>正在等待密钥环，它可能正在另一个窗口中询问密码。按 Ctrl-C 停止。</translation>
    </message>
    <message>
        <source>The Quillon that is running does not answer. End it and try again.</source>
        <translation>正在运行的 Quillon 没有响应。请结束它，然后重试。</translation>
    </message>
    <message>
        <source>Quillon ended before it was done.</source>
        <translation>Quillon 在完成之前就结束了。</translation>
    </message>
    <message>
        <source>Quillon %1 is up to date.</source>
        <translation>Quillon %1 是最新版本。</translation>
    </message>
    <message>
        <source>Quillon %1 is available.</source>
        <translation>有可用的 Quillon %1。</translation>
    </message>
    <message>
        <source>Downloading…</source>
        <translation>正在下载…</translation>
    </message>
    <message>
        <source>Quillon %1 is installed.</source>
        <translation>Quillon %1 已安装。</translation>
    </message>
    <message>
        <source>The one that runs is still %1, until you quit it and start it again.</source>
        <translation>在您退出并重新启动之前，运行的仍是 %1。</translation>
    </message>
    <message>
        <source>This copy of Quillon does not update itself.</source>
        <translation>此 Quillon 副本不会自行更新。</translation>
    </message>
    <message>
        <source>Quillon was not ready to send within a minute.</source>
        <translation>Quillon 在一分钟内未能准备好发送。</translation>
    </message>
    <message>
        <source>There is no Quillon running to follow.</source>
        <translation>没有正在运行的 Quillon 可供跟踪。</translation>
    </message>
    <message>
        <source>The Quillon that is running is another version, which does not know this command. Quit it and try again.</source>
        <translation>正在运行的 Quillon 是另一个版本，不支持此命令。请退出它，然后重试。</translation>
    </message>
    <message>
        <source>Standard input could not be read.</source>
        <translation>无法读取标准输入。</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>标准输入</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Quillon sends what you copy to your phone, through your own Telegram bot.

Usage: quillon [COMMAND]

Without a command it stays, and sends whenever you press its shortcut.

</source>
        <translation>Quillon 通过您自己的 Telegram 机器人，将您复制的内容发送到手机。

用法: quillon [命令]

不带命令时，它会保持运行，并在您按下快捷键时发送。

</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command line was not understood.</source>
        <translation>退出状态：0 完成，1 失败，2 无法理解命令行。</translation>
    </message>
    <message>
        <source>answer as JSON</source>
        <translation>以 JSON 格式回答</translation>
    </message>
    <message>
        <source>show the panel; starts Quillon if it is not running</source>
        <translation>显示面板；如果 Quillon 未运行则启动它</translation>
    </message>
    <message>
        <source>show the settings; starts Quillon if it is not running</source>
        <translation>显示设置；如果 Quillon 未运行则启动它</translation>
    </message>
    <message>
        <source>connect your bot; reads its token from standard input</source>
        <translation>连接您的机器人；从标准输入读取令牌</translation>
    </message>
    <message>
        <source>find the group in which you wrote to the bot</source>
        <translation>查找您给机器人写过消息的群组</translation>
    </message>
    <message>
        <source>create the four topics, or find them again</source>
        <translation>创建四个话题，或重新找到它们</translation>
    </message>
    <message>
        <source>give the topics the names set here</source>
        <translation>将这里设置的名称用于话题</translation>
    </message>
    <message>
        <source>forget the bot, the group and the topics</source>
        <translation>忘记机器人、群组和话题</translation>
    </message>
    <message>
        <source>tell what is set up</source>
        <translation>显示已配置的内容</translation>
    </message>
    <message>
        <source>list what was sent, newest first</source>
        <translation>列出已发送的内容，最新的在前</translation>
    </message>
    <message>
        <source>open it</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>do not</source>
        <translation>不打开</translation>
    </message>
    <message>
        <source>tell which</source>
        <translation>显示当前状态</translation>
    </message>
    <message>
        <source>open Quillon at login, or do not</source>
        <translation>是否在登录时打开 Quillon</translation>
    </message>
    <message>
        <source>install it too</source>
        <translation>同时安装</translation>
    </message>
    <message>
        <source>tell whether there is a newer version; install it</source>
        <translation>显示是否有新版本；安装新版本</translation>
    </message>
    <message>
        <source>yes, remove it</source>
        <translation>是，删除</translation>
    </message>
    <message>
        <source>remove Quillon and all it has stored</source>
        <translation>删除 Quillon 及其保存的所有内容</translation>
    </message>
    <message>
        <source>print this</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>a file to send</source>
        <translation>要发送的文件</translation>
    </message>
    <message>
        <source>to notes, images, files or videos</source>
        <translation>发送到 notes、images、files 或 videos</translation>
    </message>
    <message>
        <source>standard input as a file of this name</source>
        <translation>将标准输入作为此名称的文件</translation>
    </message>
    <message>
        <source>send the clipboard, files, or with - or by a pipe standard input</source>
        <translation>发送剪贴板、文件，或用 - 或管道发送标准输入</translation>
    </message>
    <message>
        <source>wait up to a minute until it can send</source>
        <translation>最多等待一分钟，直到可以发送</translation>
    </message>
    <message>
        <source>print what is sent from now on</source>
        <translation>显示从现在起发送的内容</translation>
    </message>
    <message>
        <source>tell names, too</source>
        <translation>同时显示名称</translation>
    </message>
    <message>
        <source>tell what is wrong, and how to mend it</source>
        <translation>说明哪里有问题以及如何修复</translation>
    </message>
    <message>
        <source>take the last send back, for 48 hours</source>
        <translation>撤回上一次发送（48 小时内）</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>not looked at, for the display is missing</source>
        <translation>未检查，因为没有显示服务器</translation>
    </message>
    <message>
        <source>the desktop has not answered yet</source>
        <translation>桌面尚未响应</translation>
    </message>
    <message>
        <source>If it asks you, answer there.</source>
        <translation>如果它询问您，请在那里回答。</translation>
    </message>
    <message>
        <source>%1 works</source>
        <translation>%1 可用</translation>
    </message>
    <message>
        <source>the desktop knows it, but gives it no keys</source>
        <translation>桌面已知道它，但未分配按键</translation>
    </message>
    <message>
        <source>Choose keys in the settings, under General.</source>
        <translation>请在设置的“常规”中选择按键。</translation>
    </message>
    <message>
        <source>another program or the desktop itself has %1</source>
        <translation>%1 已被其他程序或桌面本身占用</translation>
    </message>
    <message>
        <source>Choose another in the settings, under General, or free it in the desktop&apos;s keyboard settings.</source>
        <translation>请在设置的“常规”中另选一个快捷键，或在桌面的键盘设置中解除占用。</translation>
    </message>
    <message>
        <source>it was declined when the desktop asked</source>
        <translation>桌面询问时被拒绝</translation>
    </message>
    <message>
        <source>Have it ask again in the settings, under General.</source>
        <translation>可以在设置的“常规”中再次询问。</translation>
    </message>
    <message>
        <source>the desktop gives programs no shortcuts</source>
        <translation>桌面不给程序分配快捷键</translation>
    </message>
    <message>
        <source>The settings show, under General, how to bind one yourself.</source>
        <translation>设置的“常规”中说明了如何自行绑定。</translation>
    </message>
    <message>
        <source>could not be looked at</source>
        <translation>无法检查</translation>
    </message>
    <message>
        <source>Log out and in again.</source>
        <translation>请注销后重新登录。</translation>
    </message>
    <message>
        <source>the Wayland compositor does not answer</source>
        <translation>Wayland 合成器没有响应</translation>
    </message>
    <message>
        <source>the Wayland compositor and an X server answer</source>
        <translation>Wayland 合成器和 X 服务器均有响应</translation>
    </message>
    <message>
        <source>the Wayland compositor answers</source>
        <translation>Wayland 合成器有响应</translation>
    </message>
    <message>
        <source>the X server answers</source>
        <translation>X 服务器有响应</translation>
    </message>
    <message>
        <source>the X server does not answer</source>
        <translation>X 服务器没有响应</translation>
    </message>
    <message>
        <source>there is no display</source>
        <translation>没有显示服务器</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DISPLAY or WAYLAND_DISPLAY names the display.</source>
        <translation>请在设有 DISPLAY 或 WAYLAND_DISPLAY 的桌面会话中运行 Quillon。</translation>
    </message>
    <message>
        <source>the program that copied last does not answer</source>
        <translation>上次执行复制的程序没有响应</translation>
    </message>
    <message>
        <source>Copy something in another program, or end that one.</source>
        <translation>请在其他程序中复制内容，或结束没有响应的程序。</translation>
    </message>
    <message>
        <source>this desktop lets no program read it</source>
        <translation>此桌面不允许任何程序读取</translation>
    </message>
    <message>
        <source>Switch on Xwayland in the desktop.</source>
        <translation>请在桌面中启用 Xwayland。</translation>
    </message>
    <message>
        <source>by %1; empty now</source>
        <translation>通过 %1；当前为空</translation>
    </message>
    <message>
        <source>by %1; on offer now: %2</source>
        <translation>通过 %1；当前提供：%2</translation>
    </message>
    <message>
        <source>not looked at, for Quillon does not run</source>
        <translation>未检查，因为 Quillon 未运行</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 未被占用</translation>
    </message>
    <message>
        <source>the desktop&apos;s shortcuts have stopped</source>
        <translation>桌面的快捷键功能已停止</translation>
    </message>
    <message>
        <source>“%2” has %1</source>
        <translation>%1 已被“%2”占用</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>已在设置中关闭</translation>
    </message>
    <message>
        <source>a layer over all windows</source>
        <translation>所有窗口之上的图层</translation>
    </message>
    <message>
        <source>a window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>shown by a host on the session bus</source>
        <translation>由会话总线上的宿主程序显示</translation>
    </message>
    <message>
        <source>shown by a tray on the X server</source>
        <translation>由 X 服务器上的托盘显示</translation>
    </message>
    <message>
        <source>this desktop shows no icons</source>
        <translation>此桌面不显示图标</translation>
    </message>
    <message>
        <source>Open the panel with: quillon panel. Or give the desktop a tray, such as an extension.</source>
        <translation>请用 quillon panel 打开面板，或通过扩展等方式为桌面添加托盘。</translation>
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
        <translation>错误</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>off</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>on</source>
        <translation>已开启</translation>
    </message>
    <message>
        <source>switched off in the desktop&apos;s settings</source>
        <translation>已在桌面设置中关闭</translation>
    </message>
    <message>
        <source>on, but the program that it would open is not there</source>
        <translation>已开启，但要打开的程序不存在</translation>
    </message>
    <message>
        <source>Switch it on again: quillon launch-at-login on</source>
        <translation>请重新开启：quillon launch-at-login on</translation>
    </message>
    <message>
        <source>%1 on %2, with %3</source>
        <translation>%1，运行于 %2，使用 %3</translation>
    </message>
    <message>
        <source>runs, and waits for the shortcut</source>
        <translation>正在运行，等待快捷键</translation>
    </message>
    <message>
        <source>does not run, so that nothing waits for the shortcut</source>
        <translation>未运行，因此无法响应快捷键</translation>
    </message>
    <message>
        <source>Start Quillon.</source>
        <translation>请启动 Quillon。</translation>
    </message>
    <message>
        <source>there is a sound server or a sound card</source>
        <translation>有声音服务器或声卡</translation>
    </message>
    <message>
        <source>there is no sound server, and no sound card</source>
        <translation>既没有声音服务器，也没有声卡</translation>
    </message>
    <message>
        <source>Start PipeWire or PulseAudio.</source>
        <translation>请启动 PipeWire 或 PulseAudio。</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 没有响应</translation>
    </message>
    <message>
        <source>See whether its disk or network share is there.</source>
        <translation>请检查其磁盘或网络共享是否存在。</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>无法创建 %1</translation>
    </message>
    <message>
        <source>Give yourself the rights to it.</source>
        <translation>请为自己授予相应权限。</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>%1 所在的磁盘已满</translation>
    </message>
    <message>
        <source>Make room on it.</source>
        <translation>请在该磁盘上腾出空间。</translation>
    </message>
    <message>
        <source>others can look into %1</source>
        <translation>其他用户可以查看 %1 的内容</translation>
    </message>
    <message>
        <source>Take their rights: chmod 700 %1</source>
        <translation>请取消其他用户的权限：chmod 700 %1</translation>
    </message>
    <message>
        <source>%1 can be written; %2 MB free</source>
        <translation>%1 可写入；剩余 %2 MB</translation>
    </message>
    <message>
        <source>this copy does not update itself</source>
        <translation>此副本不会自行更新</translation>
    </message>
    <message>
        <source>Quillon updates itself</source>
        <translation>Quillon 会自行更新</translation>
    </message>
    <message>
        <source>Quillon cannot replace itself where it lies</source>
        <translation>Quillon 无法在当前位置替换自身</translation>
    </message>
    <message>
        <source>Move it to a folder of yours.</source>
        <translation>请将它移到您自己的文件夹。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>剪贴板</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>横幅</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>数据文件夹</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>登录时打开</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>密钥环</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>机器人</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群组</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>话题</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>Topic %1</source>
        <translation>话题 %1</translation>
    </message>
    <message>
        <source>not asked, for something before it failed</source>
        <translation>未查询，因为前面的项目出错</translation>
    </message>
    <message>
        <source>Telegram says: %1</source>
        <translation>Telegram 返回：%1</translation>
    </message>
    <message>
        <source>Telegram does not answer</source>
        <translation>Telegram 没有响应</translation>
    </message>
    <message>
        <source>Try again in a moment.</source>
        <translation>请稍后重试。</translation>
    </message>
    <message>
        <source>Check the internet connection and its firewall.</source>
        <translation>请检查网络连接及其防火墙。</translation>
    </message>
    <message>
        <source>Correct %1, or take it away.</source>
        <translation>请更正 %1，或将其删除。</translation>
    </message>
    <message>
        <source>the way to Telegram is good</source>
        <translation>与 Telegram 的连接正常</translation>
    </message>
    <message>
        <source>libcurl is missing, or too old</source>
        <translation>缺少 libcurl，或其版本过旧</translation>
    </message>
    <message>
        <source>Install libcurl 7.87 or a newer one.</source>
        <translation>请安装 libcurl 7.87 或更高版本。</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server</source>
        <translation>QUILLON_BOT_API 不是服务器地址</translation>
    </message>
    <message>
        <source>Correct it, or take it away.</source>
        <translation>请更正，或将其删除。</translation>
    </message>
    <message>
        <source>the name of the proxy in %1 is not found</source>
        <translation>找不到 %1 中代理的名称</translation>
    </message>
    <message>
        <source>the server&apos;s name is not found</source>
        <translation>找不到服务器的名称</translation>
    </message>
    <message>
        <source>Check the internet connection and its name server.</source>
        <translation>请检查网络连接及其域名服务器。</translation>
    </message>
    <message>
        <source>the proxy in %1 turns the connection away</source>
        <translation>%1 中的代理拒绝连接</translation>
    </message>
    <message>
        <source>no connection to the server comes about</source>
        <translation>无法连接到服务器</translation>
    </message>
    <message>
        <source>the server&apos;s certificate is not trusted</source>
        <translation>服务器的证书不受信任</translation>
    </message>
    <message>
        <source>Install ca-certificates. Where a proxy reads along, SSL_CERT_FILE can name its certificate.</source>
        <translation>请安装 ca-certificates。如果代理会读取通信内容，可用 SSL_CERT_FILE 指定其证书。</translation>
    </message>
    <message>
        <source>by this computer&apos;s clock, the server&apos;s certificate is out of its time</source>
        <translation>按此电脑的时钟，服务器的证书不在有效期内</translation>
    </message>
    <message>
        <source>Set the clock.</source>
        <translation>请校准时钟。</translation>
    </message>
    <message>
        <source>no encryption can be agreed with the server</source>
        <translation>无法与服务器协商加密方式</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>未及时收到响应</translation>
    </message>
    <message>
        <source>it was deleted on the phone</source>
        <translation>已在手机上删除</translation>
    </message>
    <message>
        <source>Create it again: quillon create-topics</source>
        <translation>请重新创建：quillon create-topics</translation>
    </message>
    <message>
        <source>it is closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Reopen it on the phone.</source>
        <translation>请在手机上重新打开。</translation>
    </message>
    <message>
        <source>the bot may not write in it</source>
        <translation>机器人无权在其中发送消息</translation>
    </message>
    <message>
        <source>Make the bot an admin of the group.</source>
        <translation>请将机器人设为群组的管理员。</translation>
    </message>
    <message>
        <source>answers, and has the bot&apos;s token</source>
        <translation>有响应，并保存着机器人的令牌</translation>
    </message>
    <message>
        <source>it is locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>Unlock it, and try again.</source>
        <translation>请将其解锁，然后重试。</translation>
    </message>
    <message>
        <source>it answers, but has no bot&apos;s token</source>
        <translation>有响应，但没有机器人的令牌</translation>
    </message>
    <message>
        <source>Connect your bot: quillon connect</source>
        <translation>请连接您的机器人：quillon connect</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>没有响应</translation>
    </message>
    <message>
        <source>End its service, or log out and in again.</source>
        <translation>请结束其服务，或注销后重新登录。</translation>
    </message>
    <message>
        <source>it gives no token; the bot&apos;s is in memory until Quillon ends</source>
        <translation>无法从中取得令牌；机器人的令牌在 Quillon 结束前保留在内存中</translation>
    </message>
    <message>
        <source>Unlock it, or connect your bot again.</source>
        <translation>请将其解锁，或重新连接您的机器人。</translation>
    </message>
    <message>
        <source>no session bus answers, by which it is reached</source>
        <translation>用于访问它的会话总线没有响应</translation>
    </message>
    <message>
        <source>Run Quillon in your desktop&apos;s session, where DBUS_SESSION_BUS_ADDRESS names the bus.</source>
        <translation>请在设有 DBUS_SESSION_BUS_ADDRESS 的桌面会话中运行 Quillon。</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>Install gnome-keyring or KWallet, and log in again.</source>
        <translation>请安装 gnome-keyring 或 KWallet，然后重新登录。</translation>
    </message>
    <message>
        <source>the way to Telegram is good, through the proxy in %1</source>
        <translation>通过 %1 中的代理与 Telegram 的连接正常</translation>
    </message>
    <message>
        <source>the proxy in %1 does not answer</source>
        <translation>%1 中的代理没有响应</translation>
    </message>
    <message>
        <source>the server did not tell its time</source>
        <translation>服务器未提供时间</translation>
    </message>
    <message>
        <source>it agrees with the server&apos;s</source>
        <translation>与服务器的时间一致</translation>
    </message>
    <message>
        <source>it is %1 min ahead of the server&apos;s</source>
        <translation>比服务器快 %1 分钟</translation>
    </message>
    <message>
        <source>it is %1 min behind the server&apos;s</source>
        <translation>比服务器慢 %1 分钟</translation>
    </message>
    <message>
        <source>Telegram does not accept its token</source>
        <translation>Telegram 不接受其令牌</translation>
    </message>
    <message>
        <source>Get its token from @BotFather, and connect it: quillon connect</source>
        <translation>请从 @BotFather 获取其令牌，然后连接：quillon connect</translation>
    </message>
    <message>
        <source>Telegram accepts its token</source>
        <translation>Telegram 接受其令牌</translation>
    </message>
    <message>
        <source>Add the bot to the group, write “hi” there, and: quillon find-group</source>
        <translation>请将机器人添加到群组，在群组中发送“hi”，然后运行：quillon find-group</translation>
    </message>
    <message>
        <source>it is not found yet</source>
        <translation>尚未找到</translation>
    </message>
    <message>
        <source>it has become a supergroup, which is another one</source>
        <translation>已升级为超级群组，成为另一个群组</translation>
    </message>
    <message>
        <source>Write “hi” there, and: quillon find-group</source>
        <translation>请在群组中发送“hi”，然后运行：quillon find-group</translation>
    </message>
    <message>
        <source>the bot reaches it</source>
        <translation>机器人可以访问</translation>
    </message>
    <message>
        <source>they are switched on</source>
        <translation>已开启</translation>
    </message>
    <message>
        <source>they are switched off in the group</source>
        <translation>在群组中未开启</translation>
    </message>
    <message>
        <source>Switch on Topics in the group&apos;s settings on the phone.</source>
        <translation>请在手机上的群组设置中开启话题。</translation>
    </message>
    <message>
        <source>the bot may manage topics</source>
        <translation>机器人有权管理话题</translation>
    </message>
    <message>
        <source>the bot may not manage topics</source>
        <translation>机器人无权管理话题</translation>
    </message>
    <message>
        <source>Make it an admin with “Manage Topics”.</source>
        <translation>请将机器人设为拥有“管理话题”权限的管理员。</translation>
    </message>
    <message>
        <source>it is not created yet</source>
        <translation>尚未创建</translation>
    </message>
    <message>
        <source>Create it: quillon create-topics</source>
        <translation>请创建：quillon create-topics</translation>
    </message>
    <message>
        <source>it is there</source>
        <translation>存在</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>Another Quillon is at work. Quit it, or wait until it is done.</source>
        <translation>另一个 Quillon 正在工作。请退出它，或等待它完成。</translation>
    </message>
</context>
<context>
    <name>Keyring</name>
    <message>
        <source>The keyring still holds the bot&apos;s token. Unlock it and try again.</source>
        <translation>密钥环中仍保存着机器人的令牌。请将其解锁，然后重试。</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and try again.</source>
        <translation>您的密钥环已锁定。请将其解锁，然后重试。</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t answer. Start or unlock it and try again.</source>
        <translation>您的密钥环没有响应。请启动或解锁它，然后重试。</translation>
    </message>
</context>
<context>
    <name>Resident</name>
    <message>
        <source>Quillon is waiting</source>
        <translation>Quillon 正在等待</translation>
    </message>
    <message>
        <source>Another Quillon is at work, such as a command that sends. This one starts as soon as it is done.</source>
        <translation>另一个 Quillon 正在工作，例如发送命令。它完成后，这一个会立即启动。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>Send</name>
    <message>
        <source>Sending…</source>
        <translation>正在发送…</translation>
    </message>
    <message>
        <source>%1 is over 50 MB (Telegram&apos;s limit for bots)</source>
        <translation>%1 超过 50 MB（Telegram 对机器人的限制）</translation>
    </message>
    <message>
        <source>Folders can&apos;t be sent yet: %1</source>
        <translation>暂时无法发送文件夹：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>There is not enough memory to send this.</source>
        <translation>内存不足，无法发送。</translation>
    </message>
    <message>
        <source>Not sent: the send was stopped.</source>
        <translation>未发送：发送已停止。</translation>
    </message>
    <message>
        <source>%1 sent, %2 failed</source>
        <translation>已发送 %1 个，失败 %2 个</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>已发送到 %1</translation>
    </message>
    <message numerus="yes">
        <source>Sent %n items</source>
        <translation>
            <numerusform>已发送 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Quillon ended before Telegram confirmed it.</source>
        <translation>Quillon 在 Telegram 确认之前就结束了。</translation>
    </message>
    <message>
        <source>Finish setting up Quillon first</source>
        <translation>请先完成 Quillon 的初始设置</translation>
    </message>
    <message>
        <source>%1 holds nothing to send.</source>
        <translation>%1：没有可发送的内容。</translation>
    </message>
    <message>
        <source>%1 is neither text nor a PNG picture. Give it a file name with --name.</source>
        <translation>%1：既不是文本也不是 PNG 图片。请用 --name 指定文件名。</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>That doesn&apos;t look like a bot token. It looks like 123456:ABC-DEF…</source>
        <translation>这不像是机器人令牌。令牌的格式为 123456:ABC-DEF…</translation>
    </message>
    <message>
        <source>The bot was forgotten meanwhile.</source>
        <translation>在此期间机器人已被忘记。</translation>
    </message>
    <message>
        <source>Connect your bot first.</source>
        <translation>请先连接您的机器人。</translation>
    </message>
    <message>
        <source>No group found yet. Add the bot to your group, then send “hi” in the group and try again.</source>
        <translation>尚未找到群组。请将机器人添加到群组，在群组中发送“hi”，然后重试。</translation>
    </message>
    <message>
        <source>Found “%1”, but Topics are off. Turn on Topics in the group settings.</source>
        <translation>已找到“%1”，但话题未开启。请在群组设置中开启话题。</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>您的群组</translation>
    </message>
    <message>
        <source>Couldn&apos;t create topics. Make the bot an admin with “Manage Topics” and try again.</source>
        <translation>无法创建话题。请将机器人设为拥有“管理话题”权限的管理员，然后重试。</translation>
    </message>
    <message>
        <source>Find your group first.</source>
        <translation>请先找到您的群组。</translation>
    </message>
    <message>
        <source>✅ Quillon is connected. Press %1 on your Mac to send what you copied.</source>
        <translation>✅ Quillon 已连接。在电脑上按 %1 即可发送您复制的内容。</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>The shortcut is not set up yet. Settings shows how.</source>
        <translation>快捷键尚未设置。设置中有说明。</translation>
    </message>
    <message>
        <source>On this desktop the shortcut is %2.</source>
        <translation>此桌面上的快捷键是 %2。</translation>
    </message>
    <message>
        <source>Your desktop is setting up %1. If it asks you, answer there.</source>
        <translation>您的桌面正在设置 %1。如果它询问您，请在那里回答。</translation>
    </message>
    <message>
        <source>Your desktop knows the shortcut, but gives it no keys yet.</source>
        <translation>您的桌面已知道该快捷键，但尚未分配按键。</translation>
    </message>
    <message>
        <source>Your desktop gives the shortcut no keys yet. See Settings.</source>
        <translation>您的桌面尚未给快捷键分配按键。请查看设置。</translation>
    </message>
    <message>
        <source>You declined the shortcut when your desktop asked.</source>
        <translation>您的桌面询问时，您拒绝了该快捷键。</translation>
    </message>
    <message>
        <source>You declined the shortcut. Settings can ask again.</source>
        <translation>您拒绝了该快捷键。可以在设置中再次询问。</translation>
    </message>
    <message>
        <source>Your desktop&apos;s shortcuts have stopped. %1 works again as soon as they are back.</source>
        <translation>您桌面的快捷键功能已停止。恢复后 %1 即可再次使用。</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. Quillon can add %1 to your keyboard settings, where you can change it.</source>
        <translation>您的桌面不给程序分配快捷键。Quillon 可以将 %1 添加到键盘设置，您可以在那里更改。</translation>
    </message>
    <message>
        <source>The shortcut is not set up yet. Settings can add it.</source>
        <translation>快捷键尚未设置。可以在设置中添加。</translation>
    </message>
    <message>
        <source>Your desktop keeps shortcuts in a file of its own. For %1, add this line to %3:</source>
        <translation>您的桌面将快捷键保存在自己的文件中。要使用 %1，请将此行添加到 %3：</translation>
    </message>
    <message>
        <source>Your desktop has not set up %1. Ask it again, or bind this command in its keyboard settings:</source>
        <translation>您的桌面没有设置 %1。请再次询问，或在键盘设置中绑定此命令：</translation>
    </message>
    <message>
        <source>Your desktop gives programs no shortcuts. For %1, bind this command in its keyboard settings:</source>
        <translation>您的桌面不给程序分配快捷键。要使用 %1，请在键盘设置中绑定此命令：</translation>
    </message>
    <message>
        <source>This desktop gives programs no shortcuts.</source>
        <translation>此桌面不给程序分配快捷键。</translation>
    </message>
    <message>
        <source>Send the clipboard to the phone</source>
        <translation>将剪贴板发送到手机</translation>
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
        <translation>%1：</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>机器人</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群组</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>您的群组</translation>
    </message>
    <message>
        <source>not found yet</source>
        <translation>尚未找到</translation>
    </message>
    <message>
        <source>%1 (not created yet)</source>
        <translation>%1（尚未创建）</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>话题</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>密钥环</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>Telegram</name>
    <message>
        <source>Telegram didn&apos;t accept that bot token.</source>
        <translation>Telegram 不接受该机器人令牌。</translation>
    </message>
    <message>
        <source>Telegram sent an empty reply (error %1). Try again in a moment.</source>
        <translation>Telegram 返回了空响应（错误 %1）。请稍后重试。</translation>
    </message>
    <message>
        <source>Telegram said no.</source>
        <translation>Telegram 拒绝了请求。</translation>
    </message>
    <message>
        <source>QUILLON_BOT_API is not the address of a server. It looks like http://127.0.0.1:8081</source>
        <translation>QUILLON_BOT_API 不是服务器地址。其格式为 http://127.0.0.1:8081</translation>
    </message>
    <message>
        <source>That bot token doesn&apos;t look right.</source>
        <translation>该机器人令牌看起来不正确。</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach Telegram. Check your internet connection.</source>
        <translation>无法连接 Telegram。请检查您的网络连接。</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>The output could not be written.</source>
        <translation>无法写入输出。</translation>
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
        <translation>文本</translation>
    </message>
    <message>
        <source>copied text</source>
        <translation>复制的文本</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>any other file</source>
        <translation>其他任何文件</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>video files</source>
        <translation>视频文件</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message>
        <source>Stopped before all was taken back.</source>
        <translation>在全部撤回之前已停止。</translation>
    </message>
    <message>
        <source>Message %1</source>
        <translation>消息 %1</translation>
    </message>
    <message>
        <source>A send is still running. Take it back once it has ended.</source>
        <translation>发送仍在进行。请在结束后再撤回。</translation>
    </message>
    <message>
        <source>The last send is being taken back already.</source>
        <translation>上一次发送已在撤回中。</translation>
    </message>
    <message>
        <source>Nothing of the last send has arrived.</source>
        <translation>上一次发送没有任何内容送达。</translation>
    </message>
    <message>
        <source>There is nothing to take back.</source>
        <translation>没有可撤回的内容。</translation>
    </message>
    <message>
        <source>The last send is more than 48 hours old. Telegram lets bots delete messages no longer than that.</source>
        <translation>上一次发送已超过 48 小时。此后 Telegram 不允许机器人删除消息。</translation>
    </message>
    <message>
        <source>Taking back…</source>
        <translation>正在撤回…</translation>
    </message>
    <message>
        <source>Took back the message</source>
        <translation>已撤回该消息</translation>
    </message>
    <message>
        <source>Took back only %1: %2</source>
        <comment>number of messages, reason</comment>
        <translation>仅撤回 %1 条：%2</translation>
    </message>
    <message numerus="yes">
        <source>Took back %n messages</source>
        <translation>
            <numerusform>已撤回 %n 条消息</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Drag Quillon from Applications to the Trash to finish.</source>
        <translation>Quillon 无法将自身移到回收站。请将它从应用程序文件夹移到回收站以完成卸载。</translation>
    </message>
    <message>
        <source>It couldn&apos;t move itself to the Trash. Remove Quillon with your package manager to finish.</source>
        <translation>Quillon 无法将自身移到回收站。请用软件包管理器将它删除以完成卸载。</translation>
    </message>
    <message>
        <source>Quillon is cleaned up</source>
        <translation>Quillon 已清理完毕</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>UpdateError</name>
    <message>
        <source>Quillon cannot update itself where it lies now: that disk cannot be written to.</source>
        <translation>Quillon 无法在当前位置更新：该磁盘不可写入。</translation>
    </message>
    <message>
        <source>Quillon cannot update itself from the temporary place it was started from.</source>
        <translation>Quillon 无法在启动它的临时位置更新。</translation>
    </message>
    <message>
        <source>The update could not be copied to where Quillon lies.</source>
        <translation>无法将更新复制到 Quillon 所在的位置。</translation>
    </message>
    <message>
        <source>Another Quillon is installing an update, or has just done so.</source>
        <translation>另一个 Quillon 正在安装更新，或刚刚安装完。</translation>
    </message>
    <message>
        <source>You are not allowed to change the folder that Quillon lies in.</source>
        <translation>您无权更改 Quillon 所在的文件夹。</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>更新已取消。</translation>
    </message>
    <message>
        <source>The address to look for updates at is not a secure one (https).</source>
        <translation>查找更新的地址不安全 (https)。</translation>
    </message>
    <message>
        <source>The list of updates could not be fetched. Check your connection and try again.</source>
        <translation>无法获取更新列表。请检查您的连接，然后重试。</translation>
    </message>
    <message>
        <source>The list of updates is broken.</source>
        <translation>更新列表已损坏。</translation>
    </message>
    <message>
        <source>This copy of Quillon holds no key to check updates with, so it cannot update itself.</source>
        <translation>此 Quillon 副本没有用于验证更新的密钥，因此无法更新。</translation>
    </message>
    <message>
        <source>The update&apos;s address is not a secure one (https).</source>
        <translation>更新的地址不安全 (https)。</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Check your connection and try again.</source>
        <translation>无法下载更新。请检查您的连接，然后重试。</translation>
    </message>
    <message>
        <source>The downloaded update does not have the size it should have.</source>
        <translation>下载的更新大小不正确。</translation>
    </message>
    <message>
        <source>The downloaded update is not signed by Quillon&apos;s makers, so it was thrown away.</source>
        <translation>下载的更新没有 Quillon 开发者的签名，已被丢弃。</translation>
    </message>
    <message>
        <source>The downloaded update could not be stored in your cache folder.</source>
        <translation>无法将下载的更新保存到缓存文件夹。</translation>
    </message>
    <message>
        <source>The update&apos;s archive is damaged, encrypted or of another kind.</source>
        <translation>更新的归档已损坏、已加密或类型不符。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path outside of its folder, so it was thrown away.</source>
        <translation>更新的归档中有超出其文件夹的路径，已被丢弃。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a path with &quot;..&quot;, so it was thrown away.</source>
        <translation>更新的归档中有包含“..”的路径，已被丢弃。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a link that leaves its folder, so it was thrown away.</source>
        <translation>更新的归档中有指向其文件夹之外的链接，已被丢弃。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a device, pipe or socket, so it was thrown away.</source>
        <translation>更新的归档中有设备、管道或套接字，已被丢弃。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds a program with another user&apos;s rights, so it was thrown away.</source>
        <translation>更新的归档中有拥有其他用户权限的程序，已被丢弃。</translation>
    </message>
    <message>
        <source>The update is too large when unpacked, so it was thrown away.</source>
        <translation>更新解压后过大，已被丢弃。</translation>
    </message>
    <message>
        <source>The update&apos;s archive does not hold exactly one application.</source>
        <translation>更新的归档中的应用程序不止一个或没有。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another application than Quillon.</source>
        <translation>更新的归档中不是 Quillon，而是另一个应用程序。</translation>
    </message>
    <message>
        <source>The update&apos;s archive holds another version than was announced.</source>
        <translation>更新的归档中的版本与公布的不同。</translation>
    </message>
    <message>
        <source>The update is not newer than this version of Quillon.</source>
        <translation>更新并不比此版本的 Quillon 新。</translation>
    </message>
    <message>
        <source>The new version does not start on this computer.</source>
        <translation>新版本无法在此电脑上启动。</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update.</source>
        <translation>磁盘空间不足，无法更新。</translation>
    </message>
    <message>
        <source>The disk that Quillon lies on cannot exchange two folders in one step.</source>
        <translation>Quillon 所在的磁盘无法一步交换两个文件夹。</translation>
    </message>
</context>
<context>
    <name>quillon::Badge</name>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>quillon::GeneralView</name>
    <message>
        <source>Shortcut</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>发送剪贴板</translation>
    </message>
    <message>
        <source>After sending</source>
        <translation>发送之后</translation>
    </message>
    <message>
        <source>&amp;Play a sound</source>
        <translation>播放声音(&amp;P)</translation>
    </message>
    <message>
        <source>Show a &amp;banner</source>
        <translation>显示横幅(&amp;B)</translation>
    </message>
    <message>
        <source>Banner position</source>
        <translation>横幅位置</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>&amp;Open Quillon when I log in</source>
        <translation>登录时打开 Quillon(&amp;O)</translation>
    </message>
    <message>
        <source>Telegram</source>
        <translation>Telegram</translation>
    </message>
    <message>
        <source>&amp;Disconnect this Mac</source>
        <translation>断开此电脑(&amp;D)</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>机器人</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群组</translation>
    </message>
    <message>
        <source>&amp;Uninstall Quillon…</source>
        <translation>卸载 Quillon(&amp;U)…</translation>
    </message>
    <message>
        <source>Another app already uses %1. Pick another one.</source>
        <translation>另一个应用已在使用 %1。请另选一个。</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>@%1</source>
        <translation>@%1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Not found yet</source>
        <translation>尚未找到</translation>
    </message>
    <message>
        <source>Sent to 📝 Notes &amp; text</source>
        <translation>已发送到 📝 Notes &amp; text</translation>
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
        <translation>未发送</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Taken back</source>
        <translation>已撤回</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤回</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>已撤回</translation>
    </message>
    <message>
        <source>Deletes the message of the last send</source>
        <translation>删除上一次发送的消息</translation>
    </message>
    <message numerus="yes">
        <source>Deletes all %n messages of the last send</source>
        <translation>
            <numerusform>删除上一次发送的全部 %n 条消息</numerusform>
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
        <translation>您的群组</translation>
    </message>
    <message>
        <source>Connected · %1</source>
        <translation>已连接 · %1</translation>
    </message>
    <message>
        <source>Not set up yet</source>
        <translation>尚未配置</translation>
    </message>
</context>
<context>
    <name>quillon::PanelView</name>
    <message>
        <source>just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut in Settings.</source>
        <translation>另一个应用已在使用 %1。请在设置中选择其他快捷键。</translation>
    </message>
</context>
<context>
    <name>quillon::PositionCard</name>
    <message>
        <source>Banner in the top</source>
        <translation>横幅在顶部</translation>
    </message>
    <message>
        <source>Banner in the middle</source>
        <translation>横幅在中间</translation>
    </message>
    <message>
        <source>Banner in the bottom</source>
        <translation>横幅在底部</translation>
    </message>
</context>
<context>
    <name>quillon::RecentSends</name>
    <message>
        <source>Nothing sent yet.</source>
        <translation>尚未发送任何内容。</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近</translation>
    </message>
</context>
<context>
    <name>quillon::SendButton</name>
    <message>
        <source>Send clipboard to phone</source>
        <translation>将剪贴板发送到手机</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>正在发送…</translation>
    </message>
    <message>
        <source>Send clipboard</source>
        <translation>发送剪贴板</translation>
    </message>
    <message>
        <source>Drop to send</source>
        <translation>拖放到此处发送</translation>
    </message>
    <message>
        <source>Files, a picture or text</source>
        <translation>文件、图片或文本</translation>
    </message>
</context>
<context>
    <name>quillon::SettingsView</name>
    <message>
        <source>&amp;Setup</source>
        <translation>开始使用(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>话题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>常规(&amp;G)</translation>
    </message>
    <message>
        <source>Open pane&amp;l</source>
        <translation>打开面板(&amp;L)</translation>
    </message>
    <message>
        <source>This desktop shows no icon for Quillon.</source>
        <translation>此桌面不显示 Quillon 的图标。</translation>
    </message>
</context>
<context>
    <name>quillon::SetupCard</name>
    <message>
        <source>Connect your phone</source>
        <translation>连接您的手机</translation>
    </message>
    <message>
        <source>Start setup</source>
        <translation>开始设置</translation>
    </message>
    <message>
        <source>A two-minute setup with your own Telegram bot. Then copy anything and press %1.</source>
        <translation>用您自己的 Telegram 机器人，两分钟即可完成设置。之后复制任意内容并按 %1。</translation>
    </message>
</context>
<context>
    <name>quillon::SetupView</name>
    <message>
        <source>Create your bot</source>
        <translation>创建机器人</translation>
    </message>
    <message>
        <source>Paste the token</source>
        <translation>粘贴令牌</translation>
    </message>
    <message>
        <source>Make your group</source>
        <translation>创建群组</translation>
    </message>
    <message>
        <source>Create the topics</source>
        <translation>创建话题</translation>
    </message>
    <message>
        <source>**New Group** → add your bot → name it anything (like “My Outbox”) → Create.</source>
        <translation>**新建群组** → 添加您的机器人 → 随意命名（例如“我的发件箱”）→ 创建。</translation>
    </message>
    <message>
        <source>Tap the **group name** → tap the **pencil** → turn on **Topics** (just below Appearance) → Save.</source>
        <translation>点按**群组名称** → 点按**铅笔** → 开启**话题**（在“外观”下方）→ 保存。</translation>
    </message>
    <message>
        <source>In the members list, **hold** your bot → **Promote to admin** → keep **Manage Topics** on → Save.</source>
        <translation>在成员列表中**长按**您的机器人 → **设为管理员** → 保持**管理话题**开启 → 保存。</translation>
    </message>
    <message>
        <source>Send “hi” in the group.</source>
        <translation>在群组中发送“hi”。</translation>
    </message>
    <message>
        <source>Copy on Mac. Paste on phone.</source>
        <translation>在电脑上复制。在手机上粘贴。</translation>
    </message>
    <message>
        <source>In Telegram, open **@BotFather**, send **/newbot** and follow the steps. It gives you a token. The bot is yours alone.</source>
        <translation>在 Telegram 中打开 **@BotFather**，发送 **/newbot** 并按步骤操作。它会给您一个令牌。这个机器人只属于您。</translation>
    </message>
    <message>
        <source>&amp;Open BotFather</source>
        <translation>打开 BotFather(&amp;O)</translation>
    </message>
    <message>
        <source>In Telegram:</source>
        <translation>在 Telegram 中：</translation>
    </message>
    <message>
        <source>You&apos;re all set.</source>
        <translation>一切就绪。</translation>
    </message>
    <message>
        <source>Copy anything, then press</source>
        <translation>复制任意内容，然后按</translation>
    </message>
    <message>
        <source>Made with @BotFather</source>
        <translation>已通过 @BotFather 创建</translation>
    </message>
    <message>
        <source>Connected to @%1</source>
        <translation>已连接到 @%1</translation>
    </message>
    <message>
        <source>your bot</source>
        <translation>您的机器人</translation>
    </message>
    <message>
        <source>Found %1</source>
        <translation>已找到 %1</translation>
    </message>
    <message>
        <source>your group</source>
        <translation>您的群组</translation>
    </message>
    <message numerus="yes">
        <source>%n topics ready</source>
        <translation>
            <numerusform>%n 个话题已就绪</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Find again</source>
        <translation>重新查找(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Find my group</source>
        <translation>查找我的群组(&amp;F)</translation>
    </message>
    <message>
        <source>Topics &amp;ready</source>
        <translation>话题已就绪(&amp;R)</translation>
    </message>
    <message>
        <source>C&amp;reate the topics</source>
        <translation>创建话题(&amp;R)</translation>
    </message>
</context>
<context>
    <name>quillon::ShortcutNote</name>
    <message>
        <source>As&amp;k again</source>
        <translation>再次询问(&amp;K)</translation>
    </message>
    <message>
        <source>Choose &amp;keys…</source>
        <translation>选择按键(&amp;K)…</translation>
    </message>
    <message>
        <source>Add the s&amp;hortcut</source>
        <translation>添加快捷键(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Command for the shortcut</source>
        <translation>快捷键的命令</translation>
    </message>
</context>
<context>
    <name>quillon::Spinner</name>
    <message>
        <source>Working</source>
        <translation>正在处理</translation>
    </message>
</context>
<context>
    <name>quillon::StepRow</name>
    <message>
        <source>Step %1: %2</source>
        <translation>步骤 %1：%2</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
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
        <translation>机器人令牌</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Use another bot</source>
        <translation>使用其他机器人(&amp;U)</translation>
    </message>
    <message>
        <source>The token is kept in your Mac&apos;s Keychain.</source>
        <translation>令牌保存在您的密钥环中。</translation>
    </message>
</context>
<context>
    <name>quillon::TopicsView</name>
    <message>
        <source>Topic names in your group</source>
        <translation>群组中的话题名称</translation>
    </message>
    <message>
        <source>Sa&amp;ve names to Telegram</source>
        <translation>将名称保存到 Telegram(&amp;V)</translation>
    </message>
    <message>
        <source>Finish setup first</source>
        <translation>请先完成初始设置</translation>
    </message>
    <message>
        <source>Saved to Telegram.</source>
        <translation>已保存到 Telegram。</translation>
    </message>
</context>
<context>
    <name>quillon::TrayIcon</name>
    <message>
        <source>Send clipboard</source>
        <translation>发送剪贴板</translation>
    </message>
    <message>
        <source>Open panel</source>
        <translation>打开面板</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>quillon::TroubleStrip</name>
    <message numerus="yes">
        <source>%n more: quillon doctor</source>
        <translation>
            <numerusform>另有 %n 项：quillon doctor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::UninstallSheet</name>
    <message>
        <source>The bot token in the Keychain</source>
        <translation>密钥环中的机器人令牌</translation>
    </message>
    <message>
        <source>Settings, send history and caches</source>
        <translation>设置、发送历史和缓存</translation>
    </message>
    <message>
        <source>Its preferences</source>
        <translation>偏好选项</translation>
    </message>
    <message>
        <source>Opening at login</source>
        <translation>登录时打开</translation>
    </message>
    <message>
        <source>Then it moves the app to the Trash and quits</source>
        <translation>然后将应用移到回收站并退出</translation>
    </message>
    <message>
        <source>Uninstall Quillon?</source>
        <translation>卸载 Quillon？</translation>
    </message>
    <message>
        <source>This removes from this Mac:</source>
        <translation>将从此电脑中删除：</translation>
    </message>
    <message>
        <source>Your bot and group stay in Telegram.</source>
        <translation>您的机器人和群组仍保留在 Telegram 中。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>卸载(&amp;U)</translation>
    </message>
</context>
<context>
    <name>quillon::UpdateWindows</name>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>自动检查更新？</translation>
    </message>
    <message>
        <source>Quillon can look for a new version once a day. You can change this in its settings at any time, or check by hand.</source>
        <translation>Quillon 可以每天检查一次新版本。您可以随时在设置中更改，也可以手动检查。</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>自动检查</translation>
    </message>
    <message>
        <source>Don&apos;t Check</source>
        <translation>不检查</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Quillon is up to date</source>
        <translation>Quillon 是最新版本</translation>
    </message>
    <message>
        <source>Version %1 is the newest there is.</source>
        <translation>版本 %1 是最新的。</translation>
    </message>
    <message>
        <source>A new version of Quillon is available</source>
        <translation>有新版本的 Quillon</translation>
    </message>
    <message>
        <source>You have Quillon %1. Version %2 can be installed now.</source>
        <translation>您使用的是 Quillon %1。现在可以安装版本 %2。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Downloading Quillon %1</source>
        <translation>正在下载 Quillon %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Preparing Quillon %1</source>
        <translation>正在准备 Quillon %1</translation>
    </message>
    <message>
        <source>Checking and unpacking…</source>
        <translation>正在检查并解压…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 / %2 MB</translation>
    </message>
    <message>
        <source>Quillon %1 is ready to install</source>
        <translation>Quillon %1 已可安装</translation>
    </message>
    <message>
        <source>Quillon can start again with it now, or install it when you quit.</source>
        <translation>Quillon 可以现在用新版本重新启动，或在您退出时安装。</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>安装并重新启动</translation>
    </message>
    <message>
        <source>Install on Quit</source>
        <translation>退出时安装</translation>
    </message>
    <message>
        <source>Quillon %1 is installed</source>
        <translation>Quillon %1 已安装</translation>
    </message>
    <message>
        <source>It will be there the next time you open Quillon.</source>
        <translation>下次打开 Quillon 时即可使用。</translation>
    </message>
    <message>
        <source>The update did not work</source>
        <translation>更新失败</translation>
    </message>
</context>
<context>
    <name>quillon::UpdatesCard</name>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for updates &amp;automatically</source>
        <translation>自动检查更新(&amp;A)</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>立即检查(&amp;N)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
</TS>
