<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ActivityCard</name>
    <message>
        <source>Previous activity</source>
        <translation>上一条活动</translation>
    </message>
    <message>
        <source>Next activity</source>
        <translation>下一条活动</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>忽略</translation>
    </message>
</context>
<context>
    <name>AssistantCard</name>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Show recent activities</source>
        <translation>显示最近的活动</translation>
    </message>
</context>
<context>
    <name>AssistantTool</name>
    <message>
        <source>Editing file</source>
        <translation>编辑文件</translation>
    </message>
    <message>
        <source>Writing file</source>
        <translation>写入文件</translation>
    </message>
    <message>
        <source>Reading file</source>
        <translation>读取文件</translation>
    </message>
    <message>
        <source>Running command</source>
        <translation>运行命令</translation>
    </message>
    <message>
        <source>Searching files</source>
        <translation>搜索文件</translation>
    </message>
    <message>
        <source>Searching code</source>
        <translation>搜索代码</translation>
    </message>
    <message>
        <source>Running sub-agent</source>
        <translation>运行子代理</translation>
    </message>
    <message>
        <source>Fetching web page</source>
        <translation>获取网页</translation>
    </message>
    <message>
        <source>Searching web</source>
        <translation>搜索网络</translation>
    </message>
    <message>
        <source>Updating tasks</source>
        <translation>更新任务</translation>
    </message>
</context>
<context>
    <name>BrowserAuthSession</name>
    <message>
        <source>The browser would not find its way back: %1</source>
        <translation>浏览器无法返回：%1</translation>
    </message>
    <message>
        <source>There is no browser to sign in with.</source>
        <translation>没有可用于登录的浏览器。</translation>
    </message>
</context>
<context>
    <name>CalendarEvents</name>
    <message>
        <source>Upcoming event</source>
        <translation>即将开始的日程</translation>
    </message>
</context>
<context>
    <name>ClockPanel</name>
    <message>
        <source>Choose where sound plays</source>
        <translation>选择声音输出位置</translation>
    </message>
</context>
<context>
    <name>DeviceHUD</name>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
</context>
<context>
    <name>EmailMonitor</name>
    <message>
        <source>This is a test email notification</source>
        <translation>这是一封测试邮件</translation>
    </message>
    <message>
        <source>Testing email HUD display</source>
        <translation>测试邮件提示的显示</translation>
    </message>
    <message>
        <source>Test notification sent!</source>
        <translation>测试通知已发送！</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>File Added</source>
        <translation>已添加文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 和另外 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FinishStep</name>
    <message>
        <source>Change the volume and look at the top of the screen.</source>
        <translation>调节一下音量，看看屏幕顶端。</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>The island is there whenever you are.</source>
        <translation>只要您在，小岛就在。</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>一切就绪</translation>
    </message>
    <message>
        <source>Press the island to open the dashboard: what plays, the weather, the load, files.</source>
        <translation>点按小岛即可打开面板：正在播放、天气、负载、文件。</translation>
    </message>
    <message>
        <source>Scroll over it to change the volume.</source>
        <translation>在上面滚动可调节音量。</translation>
    </message>
    <message>
        <source>The icon in the status bar has the settings, which show this window again, and ends Quillmere.</source>
        <translation>通过状态栏中的图标可以打开设置（其中可再次显示本窗口）和退出 Quillmere。</translation>
    </message>
</context>
<context>
    <name>FocusAlerts</name>
    <message>
        <source>Do Not Disturb</source>
        <translation>勿扰模式</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>GoogleAccountBox</name>
    <message>
        <source>Signed in as %1</source>
        <translation>已登录为 %1</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>未登录</translation>
    </message>
    <message>
        <source>Sign in with the browser that has opened…</source>
        <translation>请在打开的浏览器中登录…</translation>
    </message>
    <message>
        <source>Sign in with Google</source>
        <translation>使用 Google 登录</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Hide the client ID</source>
        <translation>隐藏客户端 ID</translation>
    </message>
    <message>
        <source>Use another client ID</source>
        <translation>使用其他客户端 ID</translation>
    </message>
    <message>
        <source>Google wants to know which program asks. Make a client ID of your own, in a minute and for nothing:</source>
        <translation>Google 需要知道是哪个程序在请求。请创建您自己的客户端 ID，只需一分钟且免费：</translation>
    </message>
    <message>
        <source>Google OAuth client ID</source>
        <translation>Google OAuth 客户端 ID</translation>
    </message>
</context>
<context>
    <name>GoogleSignIn</name>
    <message>
        <source>Paste your Google OAuth client ID first.</source>
        <translation>请先粘贴您的 Google OAuth 客户端 ID。</translation>
    </message>
    <message>
        <source>That does not look like a client ID of a Google installed-app client (…%1).</source>
        <translation>这看起来不像 Google 已安装应用的客户端 ID（…%1）。</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>登录已取消。</translation>
    </message>
    <message>
        <source>Google returned no refresh token. Remove Quillmere&apos;s access on your Google account&apos;s permissions page (%1), then sign in again.</source>
        <translation>Google 没有返回刷新令牌。请在您的 Google 账号权限页面（%1）移除 Quillmere 的访问权限，然后重新登录。</translation>
    </message>
    <message>
        <source>Not signed in to Google.</source>
        <translation>未登录 Google。</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and sign in again.</source>
        <translation>您的密钥环已锁定。请解锁后重新登录。</translation>
    </message>
    <message>
        <source>There is no keyring to keep the sign-in in. It needs a running one, such as GNOME Keyring or KWallet, and is kept nowhere else.</source>
        <translation>没有可保存登录信息的密钥环。需要正在运行的密钥环，例如 GNOME Keyring 或 KWallet；登录信息不会保存在其他地方。</translation>
    </message>
</context>
<context>
    <name>HUD</name>
    <message>
        <source>%1%</source>
        <extracomment>A percentage, such as &quot;46%&quot;</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 %2 percent</source>
        <translation>%1 百分之 %2</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Volume muted</source>
        <translation>已静音</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Nothing is playing</source>
        <translation>没有正在播放的内容</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Playing: %1</source>
        <translation>正在播放：%1</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>已暂停：%1</translation>
    </message>
    <message>
        <source>Copy title and artist</source>
        <translation>复制曲名和艺人</translation>
    </message>
    <message>
        <source>Repeat, all</source>
        <translation>重复全部</translation>
    </message>
    <message>
        <source>Repeat, this track</source>
        <translation>重复此曲</translation>
    </message>
    <message>
        <source>Repeat, off</source>
        <translation>重复已关闭</translation>
    </message>
    <message>
        <source>Shuffle, on</source>
        <translation>随机播放已打开</translation>
    </message>
    <message>
        <source>Shuffle, off</source>
        <translation>随机播放已关闭</translation>
    </message>
</context>
<context>
    <name>MediaPanel</name>
    <message>
        <source>Show where it plays</source>
        <translation>显示播放来源</translation>
    </message>
    <message>
        <source>Previous track</source>
        <translation>上一首</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Next track</source>
        <translation>下一首</translation>
    </message>
    <message>
        <source>Sound plays on %1; choose another output</source>
        <translation>声音从 %1 输出；选择其他输出</translation>
    </message>
</context>
<context>
    <name>MessageHUD</name>
    <message>
        <source>%1 · %2</source>
        <comment>where or who, and what</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>New email</source>
        <translation>新邮件</translation>
    </message>
</context>
<context>
    <name>NeedsStep</name>
    <message>
        <source>On this machine</source>
        <translation>在这台电脑上</translation>
    </message>
    <message>
        <source>What you switched on, and what it needs here.</source>
        <translation>您打开的来源，以及它们在这里需要什么。</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>New message</source>
        <translation>新消息</translation>
    </message>
</context>
<context>
    <name>NotificationCenterMonitor</name>
    <message>
        <source>No %1 notifications in database. Send yourself a DM or have someone message you, then try again. If you see &quot;Access denied&quot;, grant Full Disk Access: System Settings → Privacy &amp; Security → Full Disk Access → Quillmere.</source>
        <translation>数据库中没有 %1 的通知。请给自己发一条私信，或让别人给您发消息，然后重试。如果看到“Access denied”，请授予完全磁盘访问权限：系统设置 → 隐私与安全性 → 完全磁盘访问权限 → Quillmere。</translation>
    </message>
    <message>
        <source>Found %1 notification. Showing in island.</source>
        <translation>找到 %1 的通知，正在小岛中显示。</translation>
    </message>
</context>
<context>
    <name>OutputPicker</name>
    <message>
        <source>Sound output</source>
        <translation>声音输出</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>No output device</source>
        <translation>没有输出设备</translation>
    </message>
</context>
<context>
    <name>PageDots</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>PageView</name>
    <message>
        <source>Reset this page</source>
        <translation>重置本页</translation>
    </message>
</context>
<context>
    <name>PlaceSearchPanel</name>
    <message>
        <source>City or place</source>
        <translation>城市或地点</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>使用我的位置</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>找到的地点</translation>
    </message>
</context>
<context>
    <name>PowerAlerts</name>
    <message>
        <source>%1% remaining</source>
        <extracomment>What is left in a battery, such as &quot;20% remaining&quot;</extracomment>
        <translation>剩余 %1%</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>正在充电</translation>
    </message>
    <message>
        <source>Plugged In</source>
        <translation>已接通电源</translation>
    </message>
    <message>
        <source>On Battery</source>
        <translation>使用电池</translation>
    </message>
    <message>
        <source>Low Battery</source>
        <translation>电量不足</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>蓝牙设备</translation>
    </message>
    <message>
        <source>The machine saves power and may be slower.</source>
        <translation>电脑正在省电，速度可能变慢。</translation>
    </message>
    <message>
        <source>The machine runs at its usual speed again.</source>
        <translation>电脑已恢复正常速度。</translation>
    </message>
    <message>
        <source>Low Power Mode On</source>
        <translation>低电量模式已打开</translation>
    </message>
    <message>
        <source>Low Power Mode Off</source>
        <translation>低电量模式已关闭</translation>
    </message>
</context>
<context>
    <name>PreviewStrip</name>
    <message>
        <source>The open island</source>
        <translation>展开的小岛</translation>
    </message>
</context>
<context>
    <name>QuillmereShortcuts</name>
    <message>
        <source>minute</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>there is no intent &quot;%1&quot;</source>
        <translation>没有名为“%1”的快捷指令</translation>
    </message>
    <message>
        <source>there is no action &quot;%1&quot;</source>
        <translation>没有名为“%1”的操作</translation>
    </message>
    <message>
        <source>Pomodoro started — %1 %2 of focus.</source>
        <translation>番茄钟已开始，专注 %1 %2。</translation>
    </message>
    <message>
        <source>No Pomodoro session is running.</source>
        <translation>没有正在进行的番茄钟。</translation>
    </message>
    <message>
        <source>Pomodoro stopped.</source>
        <translation>番茄钟已停止。</translation>
    </message>
    <message>
        <source>Break skipped.</source>
        <translation>已跳过休息。</translation>
    </message>
    <message>
        <source>Focus session skipped.</source>
        <translation>已跳过专注时段。</translation>
    </message>
    <message>
        <source>Countdown started — %1 %2 to go.</source>
        <translation>倒计时已开始，还有 %1 %2。</translation>
    </message>
    <message>
        <source>No timer was running.</source>
        <translation>没有正在运行的计时器。</translation>
    </message>
    <message>
        <source>Timer cancelled.</source>
        <translation>计时器已取消。</translation>
    </message>
    <message>
        <source>Toggled the island.</source>
        <translation>已切换小岛。</translation>
    </message>
</context>
<context>
    <name>Scrubber</name>
    <message>
        <source>Position</source>
        <translation>播放位置</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search settings</source>
        <translation>搜索设置</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Show new mail</source>
        <translation>显示新邮件</translation>
    </message>
    <message>
        <source>Sender and subject, as mail arrives.</source>
        <translation>邮件到达时显示发件人和主题。</translation>
    </message>
    <message>
        <source>Show for</source>
        <translation>显示时长</translation>
    </message>
    <message>
        <source>How long a mail stays on the island.</source>
        <translation>邮件在小岛上停留的时间。</translation>
    </message>
    <message>
        <source>Look every</source>
        <translation>检查间隔</translation>
    </message>
    <message>
        <source>How often the mail folders are looked at.</source>
        <translation>检查邮件文件夹的频率。</translation>
    </message>
    <message>
        <source>Show new Gmail messages</source>
        <translation>显示新的 Gmail 邮件</translation>
    </message>
    <message>
        <source>Sender and subject of unread messages in the inbox.</source>
        <translation>收件箱中未读邮件的发件人和主题。</translation>
    </message>
    <message>
        <source>Show coming events</source>
        <translation>显示即将开始的日程</translation>
    </message>
    <message>
        <source>Events of your Google calendar, before they begin.</source>
        <translation>在 Google 日历的日程开始前显示。</translation>
    </message>
    <message>
        <source>Tell of events</source>
        <translation>提前提醒</translation>
    </message>
    <message>
        <source>How long before they begin.</source>
        <translation>日程开始前多久提醒。</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>How often Google is asked for news.</source>
        <translation>向 Google 查询新内容的频率。</translation>
    </message>
    <message>
        <source>Client ID</source>
        <translation>客户端 ID</translation>
    </message>
    <message>
        <source>Of a Google project of your own; empty for the built-in one.</source>
        <translation>您自己的 Google 项目的 ID；留空则使用内置的。</translation>
    </message>
    <message>
        <source>Show messages</source>
        <translation>显示消息</translation>
    </message>
    <message>
        <source>Who wrote and what, as it comes.</source>
        <translation>消息到达时显示发送者和内容。</translation>
    </message>
    <message>
        <source>How long a message stays on the island.</source>
        <translation>消息在小岛上停留的时间。</translation>
    </message>
    <message>
        <source>How often stored notifications are looked at. What the desktop announces is shown at once.</source>
        <translation>检查已存储通知的频率。桌面发布的通知会立即显示。</translation>
    </message>
    <message>
        <source>New mail</source>
        <translation>新邮件</translation>
    </message>
    <message>
        <source>Gmail and calendar</source>
        <translation>Gmail 和日历</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>访问权限</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>正在充电</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>平滑</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快速</translation>
    </message>
    <message>
        <source>Instant</source>
        <translation>即时</translation>
    </message>
    <message>
        <source>Keep size</source>
        <translation>保持大小</translation>
    </message>
    <message>
        <source>Grow</source>
        <translation>随之变大</translation>
    </message>
    <message>
        <source>Display messages</source>
        <translation>显示器消息</translation>
    </message>
    <message>
        <source>All that the display has to tell; off is off for all.</source>
        <translation>显示器的所有消息；关闭则全部关闭。</translation>
    </message>
    <message>
        <source>Show the brightness</source>
        <translation>显示亮度</translation>
    </message>
    <message>
        <source>When you change it. What the machine does is not shown.</source>
        <translation>在您调节时显示。电脑自动调节时不显示。</translation>
    </message>
    <message>
        <source>How long the brightness stays on the island.</source>
        <translation>亮度在小岛上停留的时间。</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>The colour of the bar.</source>
        <translation>进度条的颜色。</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Accent</source>
        <translation>强调色</translation>
    </message>
    <message>
        <source>Glow</source>
        <translation>发光</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>动效</translation>
    </message>
    <message>
        <source>How the bar gets to a new level.</source>
        <translation>进度条到达新位置的方式。</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Whether the sun grows with the level.</source>
        <translation>太阳图标是否随亮度变大。</translation>
    </message>
    <message>
        <source>Show the percentage</source>
        <translation>显示百分比</translation>
    </message>
    <message>
        <source>A figure beside the bar.</source>
        <translation>在进度条旁显示数字。</translation>
    </message>
    <message>
        <source>Hide the label</source>
        <translation>隐藏标签</translation>
    </message>
    <message>
        <source>Without the word Min at the dark end.</source>
        <translation>最暗时不显示“最低”字样。</translation>
    </message>
    <message>
        <source>No bump at the ends</source>
        <translation>到头时不回弹</translation>
    </message>
    <message>
        <source>The bar stops short instead of bouncing.</source>
        <translation>进度条直接停住，不回弹。</translation>
    </message>
    <message>
        <source>Sound messages</source>
        <translation>声音消息</translation>
    </message>
    <message>
        <source>All that sound has to tell; off is off for all.</source>
        <translation>声音的所有消息；关闭则全部关闭。</translation>
    </message>
    <message>
        <source>Show the volume</source>
        <translation>显示音量</translation>
    </message>
    <message>
        <source>Whoever changes it.</source>
        <translation>无论由谁调节。</translation>
    </message>
    <message>
        <source>How long the volume stays on the island.</source>
        <translation>音量在小岛上停留的时间。</translation>
    </message>
    <message>
        <source>Scroll to change the volume</source>
        <translation>滚动调节音量</translation>
    </message>
    <message>
        <source>With the pointer over the resting pill.</source>
        <translation>指针位于收起的小岛上时。</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>按响度</translation>
    </message>
    <message>
        <source>A speaker, or the device that sounds.</source>
        <translation>显示扬声器，或正在发声的设备。</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>扬声器</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Size of the symbol</source>
        <translation>图标大小</translation>
    </message>
    <message>
        <source>Whether the symbol grows with the level.</source>
        <translation>图标是否随音量变大。</translation>
    </message>
    <message>
        <source>Without the word Mute at the silent end.</source>
        <translation>静音时不显示“静音”字样。</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>The power service does not answer. Install the package upower.</source>
        <translation>电源服务没有响应。请安装软件包 upower。</translation>
    </message>
    <message>
        <source>This machine has no battery.</source>
        <translation>这台电脑没有电池。</translation>
    </message>
    <message>
        <source>This desktop has no way to leave a window out of screen captures.</source>
        <translation>此桌面无法把窗口排除在截屏之外。</translation>
    </message>
    <message>
        <source>This desktop decides by itself what its overview shows.</source>
        <translation>此桌面自行决定概览中显示的内容。</translation>
    </message>
    <message>
        <source>This desktop does not tell which window fills the screen.</source>
        <translation>此桌面不会告知哪个窗口占满屏幕。</translation>
    </message>
    <message>
        <source>This desktop tells of a drag only once it is over the island.</source>
        <translation>此桌面只在拖动到小岛上方时才会告知。</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>状态栏</translation>
    </message>
    <message>
        <source>This desktop has no place for status icons, so there is no menu there. On GNOME, the AppIndicator extension adds one.</source>
        <translation>此桌面没有状态图标区域，因此那里没有菜单。在 GNOME 上，AppIndicator 扩展可以添加。</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>This machine</source>
        <translation>这台电脑</translation>
    </message>
    <message>
        <source>The battery is at %1 %.</source>
        <translation>电池电量 %1%。</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>已找到</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>此显示器</translation>
    </message>
    <message>
        <source>Its brightness is %1 %.</source>
        <translation>亮度为 %1%。</translation>
    </message>
    <message>
        <source>No display here tells its brightness. For an external one, load the module i2c-dev and join the group i2c.</source>
        <translation>没有显示器告知亮度。对于外接显示器，请加载模块 i2c-dev 并加入用户组 i2c。</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>No sound server answers. Start it with: systemctl --user start pipewire-pulse</source>
        <translation>没有声音服务器响应。用以下命令启动：systemctl --user start pipewire-pulse</translation>
    </message>
    <message>
        <source>Mail folders</source>
        <translation>邮件文件夹</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>正在查找…</translation>
    </message>
    <message>
        <source>No mail was found here: no Maildir, mbox or notmuch, and no Thunderbird or Evolution. A program unread-mail of your own in the folder scripts beside the settings can answer instead.</source>
        <translation>这里没有找到邮件：没有 Maildir、mbox 或 notmuch，也没有 Thunderbird 或 Evolution。可以在设置旁的 scripts 文件夹中放置您自己的 unread-mail 程序来代替。</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Shows a mail as it would come.</source>
        <translation>按邮件到达时的样子显示一封。</translation>
    </message>
    <message>
        <source>Send a test</source>
        <translation>发送测试</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Where from</source>
        <translation>来自哪里</translation>
    </message>
    <message>
        <source>From the notifications the application shows on this desktop. Turn them on there; nothing is read elsewhere.</source>
        <translation>来自该应用在此桌面上显示的通知。请在应用中打开通知；不会读取其他内容。</translation>
    </message>
    <message>
        <source>Shows the last message that came.</source>
        <translation>显示最近收到的消息。</translation>
    </message>
    <message>
        <source>Playing now</source>
        <translation>正在播放</translation>
    </message>
    <message>
        <source>There is no session bus, so no player can be asked.</source>
        <translation>没有会话总线，因此无法询问播放器。</translation>
    </message>
    <message>
        <source>Browser tabs</source>
        <translation>浏览器标签页</translation>
    </message>
    <message>
        <source>No player plays anything.</source>
        <translation>没有播放器在播放。</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <translation>%1，来自 %2</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Weather now</source>
        <translation>当前天气</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>%1, as you typed it.</source>
        <translation>%1，由您输入。</translation>
    </message>
    <message>
        <source>Forget it</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Where this machine is, as its location service tells.</source>
        <translation>由定位服务告知的这台电脑的位置。</translation>
    </message>
    <message>
        <source>Nobody was asked yet. You can also type a place on the island.</source>
        <translation>尚未询问。您也可以在小岛上输入地点。</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>The location is refused. Allow it in the privacy settings of the desktop, or type a place on the island.</source>
        <translation>位置被拒绝。请在桌面的隐私设置中允许，或在小岛上输入地点。</translation>
    </message>
    <message>
        <source>There is no location service. Install the package geoclue-2.0, or type a place on the island.</source>
        <translation>没有定位服务。请安装软件包 geoclue-2.0，或在小岛上输入地点。</translation>
    </message>
    <message>
        <source>None was reported yet.</source>
        <translation>尚无报告。</translation>
    </message>
    <message>
        <source>%1: %2 %3, %4</source>
        <translation>%1：%2 %3，%4</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT 许可证</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>阅读</translation>
    </message>
    <message>
        <source>Log folder</source>
        <translation>日志文件夹</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>首次设置</translation>
    </message>
    <message>
        <source>What was shown when Quillmere first started.</source>
        <translation>Quillmere 首次启动时显示的内容。</translation>
    </message>
    <message>
        <source>Show again</source>
        <translation>再次显示</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Quillmere</source>
        <translation>Quillmere</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>单色</translation>
    </message>
    <message>
        <source>Coloured</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>Show media</source>
        <translation>显示媒体</translation>
    </message>
    <message>
        <source>Artwork and waveform beside the notch while something plays.</source>
        <translation>播放时在凹口旁显示封面和波形。</translation>
    </message>
    <message>
        <source>Hide while the player is in front</source>
        <translation>播放器在前台时隐藏</translation>
    </message>
    <message>
        <source>Nothing doubles what you already look at.</source>
        <translation>不重复显示您正在看的内容。</translation>
    </message>
    <message>
        <source>Keep after pausing</source>
        <translation>暂停后保留</translation>
    </message>
    <message>
        <source>How long a paused track stays on the island.</source>
        <translation>暂停的曲目在小岛上停留的时间。</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>展开时</translation>
    </message>
    <message>
        <source>Style of the waveform in the dashboard.</source>
        <translation>面板中波形的样式。</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>收起时</translation>
    </message>
    <message>
        <source>Style of the waveform beside the notch.</source>
        <translation>凹口旁波形的样式。</translation>
    </message>
    <message>
        <source>No waveform beside the notch</source>
        <translation>凹口旁不显示波形</translation>
    </message>
    <message>
        <source>Only the artwork stays there.</source>
        <translation>只保留封面。</translation>
    </message>
    <message>
        <source>Extra button</source>
        <translation>附加按钮</translation>
    </message>
    <message>
        <source>Where the player cannot do it, there is none.</source>
        <translation>播放器不支持时不显示。</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>随机播放</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复播放</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Short titles</source>
        <translation>简短曲名</translation>
    </message>
    <message>
        <source>Without remarks such as official video, remastered or guests.</source>
        <translation>省略“官方视频”“重制版”“嘉宾”等附注。</translation>
    </message>
    <message>
        <source>Colours of the artwork</source>
        <translation>封面颜色</translation>
    </message>
    <message>
        <source>Waveform and buttons take the artwork&apos;s main colour.</source>
        <translation>波形和按钮采用封面的主色。</translation>
    </message>
    <message>
        <source>Artwork does not turn over</source>
        <translation>封面不翻转</translation>
    </message>
    <message>
        <source>A new cover fades in instead.</source>
        <translation>新封面改为淡入。</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>The player that plays, then a browser tab.</source>
        <translation>正在播放的播放器，其次是浏览器标签页。</translation>
    </message>
    <message>
        <source>Show changes of the weather</source>
        <translation>显示天气变化</translation>
    </message>
    <message>
        <source>When it is not what was shown last.</source>
        <translation>与上次显示的不同时显示。</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>华氏度</translation>
    </message>
    <message>
        <source>Temperatures in °F instead of °C.</source>
        <translation>温度以 °F 而非 °C 显示。</translation>
    </message>
    <message>
        <source>File tray</source>
        <translation>文件托盘</translation>
    </message>
    <message>
        <source>Files dropped on the island stay on a page of their own.</source>
        <translation>拖放到小岛上的文件保存在单独的页面。</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>最多保留</translation>
    </message>
    <message>
        <source>The oldest file leaves first.</source>
        <translation>最早的文件先移除。</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 个文件</translation>
    </message>
    <message>
        <source>Island</source>
        <translation>小岛</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>曲目</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天气</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>托盘</translation>
    </message>
    <message>
        <source>Focus timer</source>
        <translation>专注计时</translation>
    </message>
    <message>
        <source>Work and breaks by the clock, on a page of the island.</source>
        <translation>在小岛的页面上按时工作和休息。</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>工作</translation>
    </message>
    <message>
        <source>Length of a session.</source>
        <translation>每个时段的长度。</translation>
    </message>
    <message>
        <source>Short break</source>
        <translation>短休息</translation>
    </message>
    <message>
        <source>After a session.</source>
        <translation>每个时段之后。</translation>
    </message>
    <message>
        <source>Long break</source>
        <translation>长休息</translation>
    </message>
    <message>
        <source>After every fourth session.</source>
        <translation>每四个时段之后。</translation>
    </message>
    <message>
        <source>System monitor</source>
        <translation>系统监视</translation>
    </message>
    <message>
        <source>Processor, memory and disk on a page of the island.</source>
        <translation>在小岛的页面上显示处理器、内存和磁盘。</translation>
    </message>
    <message>
        <source>Show the assistant</source>
        <translation>显示助手</translation>
    </message>
    <message>
        <source>What Claude Code does, beside the notch. Puts a hook into its settings while it is on, and takes it out again.</source>
        <translation>在凹口旁显示 Claude Code 的动态。打开时会在其设置中加入钩子，关闭时移除。</translation>
    </message>
    <message>
        <source>Countdown and stopwatch</source>
        <translation>倒计时和秒表</translation>
    </message>
    <message>
        <source>A timer and a stopwatch on a page of the island.</source>
        <translation>在小岛的页面上显示计时器和秒表。</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>调试日志</translation>
    </message>
    <message>
        <source>Writes what happens and why, for finding faults.</source>
        <translation>记录发生的事情及原因，用于排查故障。</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>负载</translation>
    </message>
    <message>
        <source>Assistant</source>
        <translation>助手</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>计时器</translation>
    </message>
    <message>
        <source>Finding faults</source>
        <translation>故障排查</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Show power changes</source>
        <translation>显示电源变化</translation>
    </message>
    <message>
        <source>When the charger goes in or out, and when the battery is low.</source>
        <translation>插拔充电器以及电量低时显示。</translation>
    </message>
    <message>
        <source>How long a message about the battery stays.</source>
        <translation>电池消息停留的时间。</translation>
    </message>
    <message>
        <source>The picture of the battery says enough.</source>
        <translation>电池图标已足够说明。</translation>
    </message>
    <message>
        <source>Hide the percentage</source>
        <translation>隐藏百分比</translation>
    </message>
    <message>
        <source>No figure beside the battery.</source>
        <translation>电池旁不显示数字。</translation>
    </message>
    <message>
        <source>Notify as well</source>
        <translation>同时发送通知</translation>
    </message>
    <message>
        <source>A low battery, and power saving on or off, as a notification.</source>
        <translation>电量低以及省电模式开启或关闭时发送通知。</translation>
    </message>
    <message>
        <source>Warn of a low battery</source>
        <translation>电量低时警告</translation>
    </message>
    <message>
        <source>Once each time the charge falls below the limit.</source>
        <translation>每次电量低于界限时警告一次。</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>界限</translation>
    </message>
    <message>
        <source>The charge from which the battery counts as low.</source>
        <translation>低于此电量视为电量低。</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>播放声音</translation>
    </message>
    <message>
        <source>Together with the warning.</source>
        <translation>与警告同时播放。</translation>
    </message>
    <message>
        <source>Show devices</source>
        <translation>显示设备</translation>
    </message>
    <message>
        <source>Headphones and speakers that connect, and devices that run low.</source>
        <translation>连接的耳机和扬声器，以及电量低的设备。</translation>
    </message>
    <message>
        <source>How long a device stays on the island.</source>
        <translation>设备在小岛上停留的时间。</translation>
    </message>
    <message>
        <source>Warn of a low device</source>
        <translation>设备电量低时警告</translation>
    </message>
    <message>
        <source>Once each time a device&apos;s charge falls below the limit.</source>
        <translation>每次设备电量低于界限时警告一次。</translation>
    </message>
    <message>
        <source>The charge from which a device counts as low.</source>
        <translation>低于此电量的设备视为电量低。</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Low battery</source>
        <translation>电量不足</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>蓝牙</translation>
    </message>
    <message>
        <source>Low charge</source>
        <translation>设备电量不足</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 点</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>How the open island is drawn. The pill is always black.</source>
        <translation>展开的小岛的绘制方式。收起时始终为黑色。</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>玻璃</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>How much of the wallpaper the glass lets through.</source>
        <translation>玻璃透出多少壁纸。</translation>
    </message>
    <message>
        <source>Use the accent colour</source>
        <translation>使用强调色</translation>
    </message>
    <message>
        <source>Marks and bars take the desktop&apos;s accent colour.</source>
        <translation>标记和进度条采用桌面的强调色。</translation>
    </message>
    <message>
        <source>Open on hover</source>
        <translation>悬停时展开</translation>
    </message>
    <message>
        <source>The pointer alone opens the island, without a click.</source>
        <translation>只需移动指针即可展开小岛，无需点击。</translation>
    </message>
    <message>
        <source>Close after</source>
        <translation>自动收起</translation>
    </message>
    <message>
        <source>How long the island stays open once the pointer left.</source>
        <translation>指针离开后小岛保持展开的时间。</translation>
    </message>
    <message>
        <source>Haptic feedback</source>
        <translation>触感反馈</translation>
    </message>
    <message>
        <source>A short buzz on devices that have a motor for it.</source>
        <translation>在带有马达的设备上短暂振动。</translation>
    </message>
    <message>
        <source>Beside the notch</source>
        <translation>凹口旁</translation>
    </message>
    <message>
        <source>What the resting pill shows. The calendar has nothing to show there yet.</source>
        <translation>收起的小岛显示的内容。日历目前还没有可显示的内容。</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>两者</translation>
    </message>
    <message>
        <source>Show the last event</source>
        <translation>显示最近的事件</translation>
    </message>
    <message>
        <source>With nothing else beside the notch, what came last.</source>
        <translation>凹口旁没有其他内容时，显示最近发生的事。</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Which screen carries the island.</source>
        <translation>小岛显示在哪个屏幕上。</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>内置</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>主屏幕</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>活动屏幕</translation>
    </message>
    <message>
        <source>Width of the pill</source>
        <translation>小岛宽度</translation>
    </message>
    <message>
        <source>On screens without a camera housing; 60 to 600.</source>
        <translation>用于没有摄像头凹口的屏幕；60 到 600。</translation>
    </message>
    <message>
        <source>Height of the pill</source>
        <translation>小岛高度</translation>
    </message>
    <message>
        <source>On screens without a camera housing; 20 to 100.</source>
        <translation>用于没有摄像头凹口的屏幕；20 到 100。</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <translation>在全屏窗口上隐藏</translation>
    </message>
    <message>
        <source>The resting pill goes away; what happens is still shown.</source>
        <translation>收起的小岛会消失；有事发生时仍会显示。</translation>
    </message>
    <message>
        <source>Silent over full-screen windows</source>
        <translation>在全屏窗口上静默</translation>
    </message>
    <message>
        <source>Nothing at all is shown over a full-screen window.</source>
        <translation>在全屏窗口上不显示任何内容。</translation>
    </message>
    <message>
        <source>Hide in the overview</source>
        <translation>在概览中隐藏</translation>
    </message>
    <message>
        <source>Leaves the island out of the desktop&apos;s overview.</source>
        <translation>桌面概览中不显示小岛。</translation>
    </message>
    <message>
        <source>Hide from screen capture</source>
        <translation>在截屏中隐藏</translation>
    </message>
    <message>
        <source>Leaves the island out of screenshots and recordings.</source>
        <translation>截图和录屏中不包含小岛。</translation>
    </message>
    <message>
        <source>Swipe to open and close</source>
        <translation>滑动展开和收起</translation>
    </message>
    <message>
        <source>Down opens the island, up closes it.</source>
        <translation>向下展开小岛，向上收起。</translation>
    </message>
    <message>
        <source>Swipe through events</source>
        <translation>滑动浏览事件</translation>
    </message>
    <message>
        <source>Sideways goes through what came lately.</source>
        <translation>左右滑动浏览最近的事件。</translation>
    </message>
    <message>
        <source>Swipe to dismiss</source>
        <translation>滑动忽略</translation>
    </message>
    <message>
        <source>Up takes away what is shown.</source>
        <translation>向上滑动移除正在显示的内容。</translation>
    </message>
    <message>
        <source>Swipe to skip a track</source>
        <translation>滑动切换曲目</translation>
    </message>
    <message>
        <source>Sideways over playing media goes to the next or last.</source>
        <translation>在播放的媒体上左右滑动切换上一首或下一首。</translation>
    </message>
    <message>
        <source>Natural direction</source>
        <translation>自然方向</translation>
    </message>
    <message>
        <source>Content follows the fingers instead of the scroll bar.</source>
        <translation>内容跟随手指，而非滚动条。</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Quillmere is there as soon as you are.</source>
        <translation>您一登录，Quillmere 就在。</translation>
    </message>
    <message>
        <source>Share settings</source>
        <translation>共享设置</translation>
    </message>
    <message>
        <source>Through the folder below, from the next start on.</source>
        <translation>通过下面的文件夹，下次启动时生效。</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>One that Nextcloud, Syncthing or the like carries to your other machines. Used from the next start on.</source>
        <translation>由 Nextcloud、Syncthing 等同步到您其他电脑的文件夹。下次启动时生效。</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>行为</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>手势</translation>
    </message>
    <message>
        <source>Size and place</source>
        <translation>大小和位置</translation>
    </message>
    <message>
        <source>Start and sharing</source>
        <translation>启动和共享</translation>
    </message>
    <message>
        <source>Quillmere Settings</source>
        <translation>Quillmere 设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Connectivity</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮件</translation>
    </message>
    <message>
        <source>Google</source>
        <translation>Google</translation>
    </message>
    <message>
        <source>Discord</source>
        <translation>Discord</translation>
    </message>
    <message>
        <source>Slack</source>
        <translation>Slack</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>专注</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示器</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>正在播放</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>文件托盘</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>锁屏</translation>
    </message>
    <message>
        <source>Quillmere shows nothing on the lock screen yet, so there is nothing to set here.</source>
        <translation>Quillmere 尚不在锁屏上显示内容，因此这里没有可设置的内容。</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>剪贴板</translation>
    </message>
    <message>
        <source>Quillmere keeps no history of the clipboard yet, so there is nothing to set here.</source>
        <translation>Quillmere 尚不保存剪贴板历史，因此这里没有可设置的内容。</translation>
    </message>
    <message>
        <source>Pomodoro</source>
        <translation>番茄钟</translation>
    </message>
    <message>
        <source>Camera Mirror</source>
        <translation>相机镜子</translation>
    </message>
    <message>
        <source>Quillmere has no camera mirror yet, so there is nothing to set here.</source>
        <translation>Quillmere 尚无相机镜子，因此这里没有可设置的内容。</translation>
    </message>
    <message>
        <source>Network Speed</source>
        <translation>网速</translation>
    </message>
    <message>
        <source>Quillmere does not measure the network yet, so there is nothing to set here.</source>
        <translation>Quillmere 尚不测量网络，因此这里没有可设置的内容。</translation>
    </message>
    <message>
        <source>System Monitor</source>
        <translation>系统监视</translation>
    </message>
    <message>
        <source>Claude Code</source>
        <translation>Claude Code</translation>
    </message>
    <message>
        <source>App Shortcuts</source>
        <translation>应用快捷方式</translation>
    </message>
    <message>
        <source>Quillmere has no shortcuts to applications yet, so there is nothing to set here.</source>
        <translation>Quillmere 尚无应用快捷方式，因此这里没有可设置的内容。</translation>
    </message>
    <message>
        <source>Quick Notes</source>
        <translation>快速笔记</translation>
    </message>
    <message>
        <source>Quillmere takes no notes yet, so there is nothing to set here.</source>
        <translation>Quillmere 尚不支持笔记，因此这里没有可设置的内容。</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>书签</translation>
    </message>
    <message>
        <source>Quillmere keeps no bookmarks yet, so there is nothing to set here.</source>
        <translation>Quillmere 尚不保存书签，因此这里没有可设置的内容。</translation>
    </message>
    <message>
        <source>Countdown Timer</source>
        <translation>倒计时</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>提醒事项</translation>
    </message>
    <message>
        <source>Quillmere reads no reminders yet, so there is nothing to set here.</source>
        <translation>Quillmere 尚不读取提醒事项，因此这里没有可设置的内容。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1：%2%</translation>
    </message>
    <message>
        <source>No connected device tells its charge.</source>
        <translation>没有已连接的设备告知电量。</translation>
    </message>
    <message>
        <source>Its hook needs Python. Install the package python3.</source>
        <translation>它的钩子需要 Python。请安装软件包 python3。</translation>
    </message>
    <message>
        <source>It is set up on this machine.</source>
        <translation>已在这台电脑上设置好。</translation>
    </message>
    <message>
        <source>Show Do Not Disturb</source>
        <translation>显示勿扰模式</translation>
    </message>
    <message>
        <source>When it is switched on or off on the desktop.</source>
        <translation>在桌面开启或关闭勿扰模式时显示。</translation>
    </message>
    <message>
        <source>How long the change stays on the island.</source>
        <translation>变化在小岛上停留的时间。</translation>
    </message>
    <message>
        <source>The symbol says enough.</source>
        <translation>图标已足够说明。</translation>
    </message>
    <message>
        <source>The charger and the battery are told of meanwhile.</source>
        <translation>勿扰期间仍提示充电器和电池状态。</translation>
    </message>
    <message>
        <source>Devices that connect are told of meanwhile.</source>
        <translation>勿扰期间仍提示设备连接。</translation>
    </message>
    <message>
        <source>Changes of the brightness show meanwhile.</source>
        <translation>勿扰期间仍显示亮度变化。</translation>
    </message>
    <message>
        <source>Changes of the volume show meanwhile.</source>
        <translation>勿扰期间仍显示音量变化。</translation>
    </message>
    <message>
        <source>Do Not Disturb</source>
        <translation>勿扰模式</translation>
    </message>
    <message>
        <source>What still shows</source>
        <translation>仍会显示的内容</translation>
    </message>
    <message>
        <source>This desktop</source>
        <translation>此桌面</translation>
    </message>
    <message>
        <source>It does not tell of Do Not Disturb. GNOME, Plasma, Xfce, Cinnamon, MATE, dunst, SwayNC and newer versions of mako do. Until it does, this page has no effect.</source>
        <translation>它不提供勿扰状态。GNOME、Plasma、Xfce、Cinnamon、MATE、dunst、SwayNC 和较新版本的 mako 提供。在此之前，本页设置不起作用。</translation>
    </message>
    <message>
        <source>Do Not Disturb is on in %1.</source>
        <translation>%1 的勿扰模式已开启。</translation>
    </message>
    <message>
        <source>Do Not Disturb is off in %1.</source>
        <translation>%1 的勿扰模式已关闭。</translation>
    </message>
    <message>
        <source>It was not found in ~/.local/bin, ~/.claude/bin or /usr/local/bin. If it is elsewhere, put a link to it there.</source>
        <translation>在 ~/.local/bin、~/.claude/bin 和 /usr/local/bin 中都没有找到。如果它在别处，请在其中之一建立指向它的链接。</translation>
    </message>
    <message>
        <source>Quiet during events</source>
        <translation>日程进行时保持安静</translation>
    </message>
    <message>
        <source>No messages, mail and weather while an event of your Google calendar is going on.</source>
        <translation>您的 Google 日历中有日程进行时，不显示消息、邮件和天气。</translation>
    </message>
    <message>
        <source>No weather on days without events</source>
        <translation>没有日程的日子不显示天气</translation>
    </message>
    <message>
        <source>The weather then stays on its page.</source>
        <translation>此时天气只保留在它的页面上。</translation>
    </message>
    <message>
        <source>Your day</source>
        <translation>您的一天</translation>
    </message>
    <message>
        <source>A keyring of this desktop</source>
        <translation>此桌面的密钥环</translation>
    </message>
    <message>
        <source>%1. It starts when it is needed.</source>
        <translation>%1。需要时会自动启动。</translation>
    </message>
    <message>
        <source>%1. It keeps nothing yet and will ask for a password for that.</source>
        <translation>%1。其中尚无内容，保存时会要求设置密码。</translation>
    </message>
    <message>
        <source>%1. It is locked, and will ask for its password when it is needed.</source>
        <translation>%1。已锁定，需要时会询问密码。</translation>
    </message>
    <message>
        <source>%1. It is unlocked.</source>
        <translation>%1。已解锁。</translation>
    </message>
    <message>
        <source>No keyring was found, and the sign-in is kept nowhere else. Install the package gnome-keyring, or turn on the secret service of KeePassXC or KWallet.</source>
        <translation>没有找到密钥环，登录信息不会保存在其他地方。请安装软件包 gnome-keyring，或在 KeePassXC 或 KWallet 中启用密钥服务。</translation>
    </message>
    <message>
        <source>Sign-in is kept in</source>
        <translation>登录信息保存在</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>密钥环</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>播放器</translation>
    </message>
    <message>
        <source>Chromium and its kin tell of their tabs only when they are started so:
chromium --remote-debugging-port=0</source>
        <translation>Chromium 及同类浏览器只有这样启动时才会提供标签页信息：
chromium --remote-debugging-port=0</translation>
    </message>
    <message>
        <source>No player is running.</source>
        <translation>没有正在运行的播放器。</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>SetupNeeds</name>
    <message>
        <source>No sound server answers. Install PipeWire or PulseAudio.</source>
        <translation>没有声音服务器响应。请安装 PipeWire 或 PulseAudio。</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>就绪。</translation>
    </message>
    <message>
        <source>Ready. Sound goes to %1.</source>
        <translation>就绪。声音从 %1 输出。</translation>
    </message>
    <message>
        <source>Ready. The sound server tells when they connect.</source>
        <translation>就绪。连接时声音服务器会告知。</translation>
    </message>
    <message>
        <source>Ready. The display tells its brightness.</source>
        <translation>就绪。显示器会告知亮度。</translation>
    </message>
    <message>
        <source>No display here tells its brightness yet.</source>
        <translation>目前没有显示器告知亮度。</translation>
    </message>
    <message>
        <source>Ready. Players and browsers are found by themselves.</source>
        <translation>就绪。播放器和浏览器会被自动找到。</translation>
    </message>
    <message>
        <source>There is no session bus to hear players on.</source>
        <translation>没有会话总线，无法得知播放器的状态。</translation>
    </message>
    <message>
        <source>No power service answers. Install UPower.</source>
        <translation>没有电源服务响应。请安装 UPower。</translation>
    </message>
    <message>
        <source>Ready. The battery is at %1 %.</source>
        <translation>就绪。电池电量 %1%。</translation>
    </message>
    <message>
        <source>This machine has no battery.</source>
        <translation>这台电脑没有电池。</translation>
    </message>
    <message>
        <source>Ready, for the place you typed.</source>
        <translation>就绪，使用您输入的地点。</translation>
    </message>
    <message>
        <source>Ready. The desktop tells where you are.</source>
        <translation>就绪。桌面会告知您的位置。</translation>
    </message>
    <message>
        <source>Asks the desktop where you are, or type a place on its page.</source>
        <translation>会向桌面询问您的位置，也可以在天气页输入地点。</translation>
    </message>
    <message>
        <source>The desktop keeps your location private. Type a place on its page.</source>
        <translation>桌面未公开您的位置。请在天气页输入地点。</translation>
    </message>
    <message>
        <source>There is no location service. Type a place on its page.</source>
        <translation>没有定位服务。请在天气页输入地点。</translation>
    </message>
    <message>
        <source>Read from the desktop&apos;s notifications, which show as before.</source>
        <translation>从桌面通知中读取，通知照常显示。</translation>
    </message>
    <message>
        <source>Read where Thunderbird, Evolution or a mail folder keeps it.</source>
        <translation>从 Thunderbird、Evolution 或邮件文件夹中读取。</translation>
    </message>
    <message>
        <source>Ready. Drag files to the top of the screen.</source>
        <translation>就绪。把文件拖到屏幕顶端即可。</translation>
    </message>
    <message>
        <source>Ready. They are on the last page of the dashboard.</source>
        <translation>就绪。它们在面板的最后一页。</translation>
    </message>
    <message>
        <source>Not found in ~/.local/bin, ~/.claude/bin or /usr/local/bin.</source>
        <translation>在 ~/.local/bin、~/.claude/bin 和 /usr/local/bin 中都没有找到。</translation>
    </message>
    <message>
        <source>Its hook needs Python. Install python3.</source>
        <translation>它的钩子需要 Python。请安装 python3。</translation>
    </message>
    <message>
        <source>Puts a hook into its settings. That tells Quillmere, and nobody else, the folder, the tool and how a prompt begins.</source>
        <translation>在其设置中加入钩子。钩子只向 Quillmere 报告文件夹、工具和提示词的开头。</translation>
    </message>
</context>
<context>
    <name>ShortcutIntent</name>
    <message>
        <source>Start Pomodoro</source>
        <translation>开始番茄钟</translation>
    </message>
    <message>
        <source>Start a Pomodoro in %1</source>
        <translation>在 %1 中开始番茄钟</translation>
    </message>
    <message>
        <source>Start a focus session in %1</source>
        <translation>在 %1 中开始专注</translation>
    </message>
    <message>
        <source>Stop Pomodoro</source>
        <translation>停止番茄钟</translation>
    </message>
    <message>
        <source>Stop the Pomodoro in %1</source>
        <translation>在 %1 中停止番茄钟</translation>
    </message>
    <message>
        <source>End the %1 focus session</source>
        <translation>结束 %1 的专注</translation>
    </message>
    <message>
        <source>Skip Pomodoro Phase</source>
        <translation>跳过番茄钟阶段</translation>
    </message>
    <message>
        <source>Start Countdown Timer</source>
        <translation>开始倒计时</translation>
    </message>
    <message>
        <source>Start Timer</source>
        <translation>开始计时</translation>
    </message>
    <message>
        <source>Start a timer in %1</source>
        <translation>在 %1 中开始计时</translation>
    </message>
    <message>
        <source>Start a countdown in %1</source>
        <translation>在 %1 中开始倒计时</translation>
    </message>
    <message>
        <source>Stop Countdown Timer</source>
        <translation>停止倒计时</translation>
    </message>
    <message>
        <source>Stop Timer</source>
        <translation>停止计时</translation>
    </message>
    <message>
        <source>Stop the timer in %1</source>
        <translation>在 %1 中停止计时</translation>
    </message>
    <message>
        <source>Cancel the %1 timer</source>
        <translation>取消 %1 的计时</translation>
    </message>
    <message>
        <source>Toggle Island</source>
        <translation>切换小岛</translation>
    </message>
    <message>
        <source>Toggle the island in %1</source>
        <translation>切换 %1 的小岛</translation>
    </message>
    <message>
        <source>Show the %1 island</source>
        <translation>显示 %1 的小岛</translation>
    </message>
    <message>
        <source>Start a %1-minute countdown</source>
        <translation>开始 %1 分钟倒计时</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>Length of the countdown in minutes.</source>
        <translation>倒计时的分钟数。</translation>
    </message>
    <message>
        <source>%1 has no parameter &quot;%2&quot;</source>
        <translation>%1 没有参数“%2”</translation>
    </message>
    <message>
        <source>minutes must be a whole number from %1 to %2</source>
        <translation>minutes 必须是 %1 到 %2 之间的整数</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到结果</translation>
    </message>
</context>
<context>
    <name>SourcesStep</name>
    <message>
        <source>What should it show?</source>
        <translation>要显示哪些内容？</translation>
    </message>
    <message>
        <source>You can change all of this later in the settings.</source>
        <translation>以后都可以在设置中更改。</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Show Island</source>
        <translation>显示小岛</translation>
    </message>
    <message>
        <source>Refresh Now Playing</source>
        <translation>刷新正在播放</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit Quillmere</source>
        <translation>退出 Quillmere</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>Measuring…</source>
        <translation>正在测量…</translation>
    </message>
</context>
<context>
    <name>TimerMessages</name>
    <message>
        <source>Focus session complete</source>
        <translation>专注时段完成</translation>
    </message>
    <message>
        <source>Time for a break! Session %1 done.</source>
        <translation>该休息了！第 %1 个专注时段已完成。</translation>
    </message>
    <message>
        <source>Break&apos;s over</source>
        <translation>休息结束</translation>
    </message>
    <message>
        <source>Ready to focus again?</source>
        <translation>准备好继续专注了吗？</translation>
    </message>
    <message>
        <source>Timer Complete</source>
        <translation>计时结束</translation>
    </message>
    <message>
        <source>Your %1 minute timer has finished.</source>
        <translation>您的 %1 分钟计时已结束。</translation>
    </message>
</context>
<context>
    <name>TimerPage</name>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>Another length</source>
        <translation>其他时长</translation>
    </message>
    <message>
        <source>Minutes, 1:30 or 90s</source>
        <translation>分钟数、1:30 或 90s</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
</context>
<context>
    <name>TrayPage</name>
    <message>
        <source>Drop to add</source>
        <translation>松开以添加</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>将文件拖到这里</translation>
    </message>
    <message>
        <source>Dropped files</source>
        <translation>已放入的文件</translation>
    </message>
    <message>
        <source>Remove from the tray</source>
        <translation>从托盘中移除</translation>
    </message>
</context>
<context>
    <name>UpdateHUD</name>
    <message>
        <source>Quillmere %1 is available</source>
        <translation>Quillmere %1 可用</translation>
    </message>
    <message>
        <source>Press to see what is new</source>
        <translation>点按查看新功能</translation>
    </message>
    <message>
        <source>Quillmere is up to date</source>
        <translation>Quillmere 已是最新版本</translation>
    </message>
    <message>
        <source>There is no newer version</source>
        <translation>没有更新的版本</translation>
    </message>
    <message>
        <source>Could not look for updates</source>
        <translation>无法检查更新</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>This Quillmere has no address to look for updates at.</source>
        <translation>此 Quillmere 没有用于检查更新的地址。</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>无法读取更新信息。</translation>
    </message>
</context>
<context>
    <name>WeatherCondition</name>
    <message>
        <source>Clear</source>
        <translation>晴</translation>
    </message>
    <message>
        <source>Mostly Clear</source>
        <translation>大部晴朗</translation>
    </message>
    <message>
        <source>Partly Cloudy</source>
        <translation>局部多云</translation>
    </message>
    <message>
        <source>Overcast</source>
        <translation>阴</translation>
    </message>
    <message>
        <source>Foggy</source>
        <translation>有雾</translation>
    </message>
    <message>
        <source>Drizzle</source>
        <translation>毛毛雨</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>雨</translation>
    </message>
    <message>
        <source>Heavy Rain</source>
        <translation>大雨</translation>
    </message>
    <message>
        <source>Freezing Rain</source>
        <translation>冻雨</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>雪</translation>
    </message>
    <message>
        <source>Heavy Snow</source>
        <translation>大雪</translation>
    </message>
    <message>
        <source>Snow Grains</source>
        <translation>米雪</translation>
    </message>
    <message>
        <source>Rain Showers</source>
        <translation>阵雨</translation>
    </message>
    <message>
        <source>Snow Showers</source>
        <translation>阵雪</translation>
    </message>
    <message>
        <source>Thunderstorm</source>
        <translation>雷暴</translation>
    </message>
    <message>
        <source>Thunderstorm with Hail</source>
        <translation>雷暴伴冰雹</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>多云</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>炎热</translation>
    </message>
    <message>
        <source>Mostly Cloudy</source>
        <translation>大部多云</translation>
    </message>
    <message>
        <source>Breezy</source>
        <translation>微风</translation>
    </message>
    <message>
        <source>Windy</source>
        <translation>大风</translation>
    </message>
    <message>
        <source>Blowing Dust</source>
        <translation>扬尘</translation>
    </message>
    <message>
        <source>Haze</source>
        <translation>霾</translation>
    </message>
    <message>
        <source>Smoky</source>
        <translation>烟雾</translation>
    </message>
    <message>
        <source>Freezing Drizzle</source>
        <translation>冻毛毛雨</translation>
    </message>
    <message>
        <source>Sleet</source>
        <translation>雨夹雪</translation>
    </message>
    <message>
        <source>Hail</source>
        <translation>冰雹</translation>
    </message>
    <message>
        <source>Wintry Mix</source>
        <translation>雨雪混合</translation>
    </message>
    <message>
        <source>Flurries</source>
        <translation>小阵雪</translation>
    </message>
    <message>
        <source>Sun Flurries</source>
        <translation>太阳雪</translation>
    </message>
    <message>
        <source>Blizzard</source>
        <translation>暴风雪</translation>
    </message>
    <message>
        <source>Blowing Snow</source>
        <translation>吹雪</translation>
    </message>
    <message>
        <source>Frigid</source>
        <translation>严寒</translation>
    </message>
    <message>
        <source>Sun Showers</source>
        <translation>太阳雨</translation>
    </message>
    <message>
        <source>Thunderstorms</source>
        <translation>雷暴</translation>
    </message>
    <message>
        <source>Isolated Thunderstorms</source>
        <translation>局部雷暴</translation>
    </message>
    <message>
        <source>Scattered Thunderstorms</source>
        <translation>零星雷暴</translation>
    </message>
    <message>
        <source>Strong Storms</source>
        <translation>强雷暴</translation>
    </message>
    <message>
        <source>Tropical Storm</source>
        <translation>热带风暴</translation>
    </message>
    <message>
        <source>Hurricane</source>
        <translation>飓风</translation>
    </message>
</context>
<context>
    <name>WeatherHUD</name>
    <message>
        <source>%1, %2 to %3</source>
        <comment>place, today&apos;s lowest and highest temperature</comment>
        <translation>%1，%2 至 %3</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>temperature and condition</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>WeatherPage</name>
    <message>
        <source>Choose a place</source>
        <translation>选择地点</translation>
    </message>
</context>
<context>
    <name>WeatherPanel</name>
    <message>
        <source>Choose a place</source>
        <translation>选择地点</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>欢迎使用 Quillmere</translation>
    </message>
    <message>
        <source>A small black island at the top of your screen. It grows for a moment when something happens, and stays out of the way when nothing does.</source>
        <translation>屏幕顶端的一个黑色小岛。有事发生时它会展开片刻，平时不会打扰您。</translation>
    </message>
</context>
<context>
    <name>quillmere::AssistantModel</name>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>工作中…</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Compacting</source>
        <translation>压缩中</translation>
    </message>
    <message>
        <source>now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>Claude Code</source>
        <translation>Claude Code</translation>
    </message>
    <message>
        <source>Claude Code: %1, %2</source>
        <translation>Claude Code：%1，%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
</context>
<context>
    <name>quillmere::DashboardModel</name>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天气</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>File tray</source>
        <translation>文件托盘</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>计时器</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>dddd, d MMMM</source>
        <extracomment>A date without a year, as QLocale writes it: Saturday, 21 November</extracomment>
        <translation>M月d日 dddd</translation>
    </message>
</context>
<context>
    <name>quillmere::GoogleAccountModel</name>
    <message>
        <source>Make a project; any name will do.</source>
        <translation>新建一个项目，名称随意。</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>Switch on the Gmail API in it.</source>
        <translation>在项目中启用 Gmail API。</translation>
    </message>
    <message>
        <source>Gmail API</source>
        <translation>Gmail API</translation>
    </message>
    <message>
        <source>And the Google Calendar API.</source>
        <translation>再启用 Google 日历 API。</translation>
    </message>
    <message>
        <source>Calendar API</source>
        <translation>日历 API</translation>
    </message>
    <message>
        <source>Fill in the consent screen: audience External, and yourself as a test user.</source>
        <translation>填写同意屏幕：受众选“外部”，并把您自己加为测试用户。</translation>
    </message>
    <message>
        <source>Consent screen</source>
        <translation>同意屏幕</translation>
    </message>
    <message>
        <source>Make a client of the type iOS, the only one that needs no secret, with the bundle ID com.quillmere.Quillmere. Paste its client ID below.</source>
        <translation>新建一个类型为 iOS 的客户端（唯一不需要密钥的类型），Bundle ID 填 com.quillmere.Quillmere，然后把客户端 ID 粘贴到下面。</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>新建客户端</translation>
    </message>
    <message>
        <source>Reading mail is what Google calls a restricted scope. For a project of your own it warns once that the app is not verified. While the project is being tested it signs you out every seven days; published, it does not. To let more than 100 people use one client ID, Google asks for a verification and a security assessment each year, which is why everyone brings their own.</source>
        <translation>读取邮件属于 Google 所说的受限权限。对您自己的项目，它会提示一次该应用未经验证。项目处于测试状态时，每七天会让您退出登录；发布之后则不会。要让超过 100 人使用同一个客户端 ID，Google 每年都要求验证和安全评估，因此每个人使用自己的 ID。</translation>
    </message>
    <message>
        <source>The keyring is locked and still holds the sign-in. Unlock it and sign out again, or remove Quillmere&apos;s access on your Google account&apos;s page.</source>
        <translation>密钥环已锁定，仍保存着登录信息。请解锁后再次退出登录，或在您的 Google 账号页面移除 Quillmere 的访问权限。</translation>
    </message>
</context>
<context>
    <name>quillmere::HUDManager</name>
    <message>
        <source>Low Battery</source>
        <translation>电量不足</translation>
    </message>
    <message>
        <source>%1% remaining</source>
        <translation>剩余 %1%</translation>
    </message>
</context>
<context>
    <name>quillmere::IslandModel</name>
    <message>
        <source>Island</source>
        <translation>小岛</translation>
    </message>
</context>
<context>
    <name>quillmere::SetupSource</name>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Now playing</source>
        <translation>正在播放</translation>
    </message>
    <message>
        <source>Headphones</source>
        <translation>耳机</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天气</translation>
    </message>
    <message>
        <source>Slack and Discord</source>
        <translation>Slack 和 Discord</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>邮件</translation>
    </message>
    <message>
        <source>File tray</source>
        <translation>文件托盘</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>计时器</translation>
    </message>
    <message>
        <source>Claude Code</source>
        <translation>Claude Code</translation>
    </message>
</context>
<context>
    <name>quillmere::SystemModel</name>
    <message>
        <source>%1 of %2 GB</source>
        <translation>%1 / %2 GB</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
    <message>
        <source>1 core</source>
        <translation>1 个核心</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 个核心</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
</context>
<context>
    <name>quillmere::TimerModel</name>
    <message>
        <source>Focus</source>
        <translation>专注</translation>
    </message>
    <message>
        <source>Countdown</source>
        <translation>倒计时</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>秒表</translation>
    </message>
    <message>
        <source>Short Break</source>
        <translation>短休息</translation>
    </message>
    <message>
        <source>Long Break</source>
        <translation>长休息</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>quillmere::WeatherModel</name>
    <message>
        <source>%1 km/h</source>
        <translation>%1 公里/时</translation>
    </message>
    <message>
        <source>%1 mph</source>
        <translation>%1 英里/时</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 公里</translation>
    </message>
    <message>
        <source>%1 mi</source>
        <translation>%1 英里</translation>
    </message>
    <message>
        <source>feels like %1</source>
        <translation>体感 %1</translation>
    </message>
    <message>
        <source>H %1</source>
        <extracomment>Today&apos;s highest and lowest temperature, in as few letters as can be</extracomment>
        <translation>高 %1</translation>
    </message>
    <message>
        <source>L %1</source>
        <translation>低 %1</translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation>湿度</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>风速</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>能见度</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>%1, just now</source>
        <comment>who the weather comes from, and when it came</comment>
        <translation>%1，刚刚</translation>
    </message>
    <message>
        <source>%1, %2 min ago</source>
        <translation>%1，%2 分钟前</translation>
    </message>
    <message>
        <source>%1, %2 h ago</source>
        <translation>%1，%2 小时前</translation>
    </message>
    <message>
        <source>Nobody has allowed Quillmere yet to know where this machine is.</source>
        <translation>尚未允许 Quillmere 获知这台电脑的位置。</translation>
    </message>
    <message>
        <source>This machine cannot tell where it is: it has no location service.</source>
        <translation>这台电脑没有定位服务，无法得知位置。</translation>
    </message>
    <message>
        <source>Quillmere is not allowed to know where this machine is.</source>
        <translation>不允许 Quillmere 获知这台电脑的位置。</translation>
    </message>
    <message>
        <source>No weather has come yet. It is asked for again every 15 minutes.</source>
        <translation>尚未收到天气，每 15 分钟会再次查询。</translation>
    </message>
    <message>
        <source>The search for places did not work: %1</source>
        <translation>搜索地点失败：%1</translation>
    </message>
    <message>
        <source>No place of that name</source>
        <translation>没有这个地点</translation>
    </message>
</context>
<context>
    <name>quillmere::WeatherService</name>
    <message>
        <source>Current Location</source>
        <translation>当前位置</translation>
    </message>
</context>
</TS>
