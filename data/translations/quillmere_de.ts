<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActivityCard</name>
    <message>
        <source>Previous activity</source>
        <translation>Vorige Aktivität</translation>
    </message>
    <message>
        <source>Next activity</source>
        <translation>Nächste Aktivität</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>AssistantCard</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Show recent activities</source>
        <translation>Letzte Aktivitäten zeigen</translation>
    </message>
</context>
<context>
    <name>AssistantTool</name>
    <message>
        <source>Editing file</source>
        <translation>Bearbeitet Datei</translation>
    </message>
    <message>
        <source>Writing file</source>
        <translation>Schreibt Datei</translation>
    </message>
    <message>
        <source>Reading file</source>
        <translation>Liest Datei</translation>
    </message>
    <message>
        <source>Running command</source>
        <translation>Führt Befehl aus</translation>
    </message>
    <message>
        <source>Searching files</source>
        <translation>Sucht Dateien</translation>
    </message>
    <message>
        <source>Searching code</source>
        <translation>Sucht im Code</translation>
    </message>
    <message>
        <source>Running sub-agent</source>
        <translation>Lässt Helfer arbeiten</translation>
    </message>
    <message>
        <source>Fetching web page</source>
        <translation>Lädt Webseite</translation>
    </message>
    <message>
        <source>Searching web</source>
        <translation>Sucht im Netz</translation>
    </message>
    <message>
        <source>Updating tasks</source>
        <translation>Aktualisiert Aufgaben</translation>
    </message>
</context>
<context>
    <name>BrowserAuthSession</name>
    <message>
        <source>The browser would not find its way back: %1</source>
        <translation>Der Browser fände nicht zurück: %1</translation>
    </message>
    <message>
        <source>There is no browser to sign in with.</source>
        <translation>Es gibt keinen Browser für die Anmeldung.</translation>
    </message>
</context>
<context>
    <name>CalendarEvents</name>
    <message>
        <source>Upcoming event</source>
        <translation>Bevorstehender Termin</translation>
    </message>
</context>
<context>
    <name>ClockPanel</name>
    <message>
        <source>Choose where sound plays</source>
        <translation>Tonausgabe wählen</translation>
    </message>
</context>
<context>
    <name>DeviceHUD</name>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
</context>
<context>
    <name>EmailMonitor</name>
    <message>
        <source>This is a test email notification</source>
        <translation>Dies ist eine Test-E-Mail</translation>
    </message>
    <message>
        <source>Testing email HUD display</source>
        <translation>So sieht eine neue E-Mail aus</translation>
    </message>
    <message>
        <source>Test notification sent!</source>
        <translation>Testbenachrichtigung gesendet!</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>File Added</source>
        <translation>Datei hinzugefügt</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FinishStep</name>
    <message>
        <source>Change the volume and look at the top of the screen.</source>
        <translation>Ändern Sie die Lautstärke und schauen Sie an den oberen Bildschirmrand.</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>The island is there whenever you are.</source>
        <translation>Die Insel ist da, wenn Sie da sind.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>Press the island to open the dashboard: what plays, the weather, the load, files.</source>
        <translation>Ein Druck auf die Insel öffnet die Übersicht: Wiedergabe, Wetter, Auslastung, Dateien.</translation>
    </message>
    <message>
        <source>Scroll over it to change the volume.</source>
        <translation>Scrollen darüber ändert die Lautstärke.</translation>
    </message>
    <message>
        <source>The icon in the status bar has the settings, which show this window again, and ends Quillmere.</source>
        <translation>Über das Symbol in der Statusleiste geht es zu den Einstellungen, die dieses Fenster wieder zeigen, und zum Beenden.</translation>
    </message>
</context>
<context>
    <name>FocusAlerts</name>
    <message>
        <source>Do Not Disturb</source>
        <translation>Nicht stören</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>GoogleAccountBox</name>
    <message>
        <source>Signed in as %1</source>
        <translation>Angemeldet als %1</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>Nicht angemeldet</translation>
    </message>
    <message>
        <source>Sign in with the browser that has opened…</source>
        <translation>Melden Sie sich im geöffneten Browser an …</translation>
    </message>
    <message>
        <source>Sign in with Google</source>
        <translation>Mit Google anmelden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Hide the client ID</source>
        <translation>Client-ID verbergen</translation>
    </message>
    <message>
        <source>Use another client ID</source>
        <translation>Andere Client-ID verwenden</translation>
    </message>
    <message>
        <source>Google wants to know which program asks. Make a client ID of your own, in a minute and for nothing:</source>
        <translation>Google will wissen, welches Programm fragt. Legen Sie eine eigene Client-ID an, in einer Minute und kostenlos:</translation>
    </message>
    <message>
        <source>Google OAuth client ID</source>
        <translation>Google-OAuth-Client-ID</translation>
    </message>
</context>
<context>
    <name>GoogleSignIn</name>
    <message>
        <source>Paste your Google OAuth client ID first.</source>
        <translation>Fügen Sie zuerst Ihre Google-OAuth-Client-ID ein.</translation>
    </message>
    <message>
        <source>That does not look like a client ID of a Google installed-app client (…%1).</source>
        <translation>Das sieht nicht nach der Client-ID einer installierten Google-App aus (…%1).</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Die Anmeldung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Google returned no refresh token. Remove Quillmere&apos;s access on your Google account&apos;s permissions page (%1), then sign in again.</source>
        <translation>Google hat kein Aktualisierungstoken geliefert. Entziehen Sie Quillmere den Zugriff auf der Berechtigungsseite Ihres Google-Kontos (%1) und melden Sie sich dann noch einmal an.</translation>
    </message>
    <message>
        <source>Not signed in to Google.</source>
        <translation>Nicht bei Google angemeldet.</translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it and sign in again.</source>
        <translation>Ihr Schlüsselbund ist gesperrt. Entsperren Sie ihn und melden Sie sich noch einmal an.</translation>
    </message>
    <message>
        <source>There is no keyring to keep the sign-in in. It needs a running one, such as GNOME Keyring or KWallet, and is kept nowhere else.</source>
        <translation>Es gibt keinen Schlüsselbund für die Anmeldung. Nötig ist ein laufender, etwa GNOME Keyring oder KWallet; anderswo wird sie nicht aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>HUD</name>
    <message>
        <source>%1%</source>
        <extracomment>A percentage, such as &quot;46%&quot;</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %2 percent</source>
        <translation>%1 %2 Prozent</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Volume muted</source>
        <translation>Ton aus</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Nothing is playing</source>
        <translation>Keine Wiedergabe</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Playing: %1</source>
        <translation>Läuft: %1</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Angehalten: %1</translation>
    </message>
    <message>
        <source>Copy title and artist</source>
        <translation>Titel und Interpret kopieren</translation>
    </message>
    <message>
        <source>Repeat, all</source>
        <translation>Alle wiederholen</translation>
    </message>
    <message>
        <source>Repeat, this track</source>
        <translation>Diesen Titel wiederholen</translation>
    </message>
    <message>
        <source>Repeat, off</source>
        <translation>Wiederholen aus</translation>
    </message>
    <message>
        <source>Shuffle, on</source>
        <translation>Zufallswiedergabe ein</translation>
    </message>
    <message>
        <source>Shuffle, off</source>
        <translation>Zufallswiedergabe aus</translation>
    </message>
</context>
<context>
    <name>MediaPanel</name>
    <message>
        <source>Show where it plays</source>
        <translation>Zeigen, wo es läuft</translation>
    </message>
    <message>
        <source>Previous track</source>
        <translation>Voriger Titel</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Next track</source>
        <translation>Nächster Titel</translation>
    </message>
    <message>
        <source>Sound plays on %1; choose another output</source>
        <translation>Ton läuft über %1; andere Ausgabe wählen</translation>
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
        <translation>Neue E-Mail</translation>
    </message>
</context>
<context>
    <name>NeedsStep</name>
    <message>
        <source>On this machine</source>
        <translation>Auf diesem Rechner</translation>
    </message>
    <message>
        <source>What you switched on, and what it needs here.</source>
        <translation>Was Sie eingeschaltet haben und was es hier braucht.</translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message>
        <source>New message</source>
        <translation>Neue Nachricht</translation>
    </message>
</context>
<context>
    <name>NotificationCenterMonitor</name>
    <message>
        <source>No %1 notifications in database. Send yourself a DM or have someone message you, then try again. If you see &quot;Access denied&quot;, grant Full Disk Access: System Settings → Privacy &amp; Security → Full Disk Access → Quillmere.</source>
        <translation>Keine Benachrichtigungen von %1 in der Datenbank. Schicken Sie sich selbst eine Nachricht oder lassen Sie sich eine schicken und versuchen Sie es noch einmal. Erscheint „Access denied“, gewähren Sie Festplattenvollzugriff: Systemeinstellungen → Datenschutz &amp; Sicherheit → Festplattenvollzugriff → Quillmere.</translation>
    </message>
    <message>
        <source>Found %1 notification. Showing in island.</source>
        <translation>Benachrichtigung von %1 gefunden. Die Insel zeigt sie.</translation>
    </message>
</context>
<context>
    <name>OutputPicker</name>
    <message>
        <source>Sound output</source>
        <translation>Tonausgabe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No output device</source>
        <translation>Kein Ausgabegerät</translation>
    </message>
</context>
<context>
    <name>PageDots</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>PageView</name>
    <message>
        <source>Reset this page</source>
        <translation>Diese Seite zurücksetzen</translation>
    </message>
</context>
<context>
    <name>PlaceSearchPanel</name>
    <message>
        <source>City or place</source>
        <translation>Stadt oder Ort</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Meinen Standort verwenden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Gefundene Orte</translation>
    </message>
</context>
<context>
    <name>PowerAlerts</name>
    <message>
        <source>%1% remaining</source>
        <extracomment>What is left in a battery, such as &quot;20% remaining&quot;</extracomment>
        <translation>Noch %1 %</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message>
        <source>Plugged In</source>
        <translation>Netzbetrieb</translation>
    </message>
    <message>
        <source>On Battery</source>
        <translation>Akkubetrieb</translation>
    </message>
    <message>
        <source>Low Battery</source>
        <translation>Akku fast leer</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>Bluetooth-Gerät</translation>
    </message>
    <message>
        <source>The machine saves power and may be slower.</source>
        <translation>Der Rechner spart Strom und ist vielleicht langsamer.</translation>
    </message>
    <message>
        <source>The machine runs at its usual speed again.</source>
        <translation>Der Rechner läuft wieder so schnell wie sonst.</translation>
    </message>
    <message>
        <source>Low Power Mode On</source>
        <translation>Stromsparmodus ein</translation>
    </message>
    <message>
        <source>Low Power Mode Off</source>
        <translation>Stromsparmodus aus</translation>
    </message>
</context>
<context>
    <name>PreviewStrip</name>
    <message>
        <source>The open island</source>
        <translation>Die geöffnete Insel</translation>
    </message>
</context>
<context>
    <name>QuillmereShortcuts</name>
    <message>
        <source>minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>there is no intent &quot;%1&quot;</source>
        <translation>es gibt keinen Kurzbefehl „%1“</translation>
    </message>
    <message>
        <source>there is no action &quot;%1&quot;</source>
        <translation>es gibt keine Aktion „%1“</translation>
    </message>
    <message>
        <source>Pomodoro started — %1 %2 of focus.</source>
        <translation>Pomodoro gestartet – %1 %2 Konzentration.</translation>
    </message>
    <message>
        <source>No Pomodoro session is running.</source>
        <translation>Es läuft kein Pomodoro.</translation>
    </message>
    <message>
        <source>Pomodoro stopped.</source>
        <translation>Pomodoro beendet.</translation>
    </message>
    <message>
        <source>Break skipped.</source>
        <translation>Pause übersprungen.</translation>
    </message>
    <message>
        <source>Focus session skipped.</source>
        <translation>Konzentrationsphase übersprungen.</translation>
    </message>
    <message>
        <source>Countdown started — %1 %2 to go.</source>
        <translation>Countdown gestartet – noch %1 %2.</translation>
    </message>
    <message>
        <source>No timer was running.</source>
        <translation>Es lief kein Timer.</translation>
    </message>
    <message>
        <source>Timer cancelled.</source>
        <translation>Timer abgebrochen.</translation>
    </message>
    <message>
        <source>Toggled the island.</source>
        <translation>Insel umgeschaltet.</translation>
    </message>
</context>
<context>
    <name>Scrubber</name>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search settings</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Show new mail</source>
        <translation>Neue E-Mails zeigen</translation>
    </message>
    <message>
        <source>Sender and subject, as mail arrives.</source>
        <translation>Absender und Betreff, sobald eine E-Mail kommt.</translation>
    </message>
    <message>
        <source>Show for</source>
        <translation>Anzeigedauer</translation>
    </message>
    <message>
        <source>How long a mail stays on the island.</source>
        <translation>Wie lange eine E-Mail auf der Insel bleibt.</translation>
    </message>
    <message>
        <source>Look every</source>
        <translation>Nachsehen alle</translation>
    </message>
    <message>
        <source>How often the mail folders are looked at.</source>
        <translation>Wie oft in den Mailordnern nachgesehen wird.</translation>
    </message>
    <message>
        <source>Show new Gmail messages</source>
        <translation>Neue Gmail-Nachrichten zeigen</translation>
    </message>
    <message>
        <source>Sender and subject of unread messages in the inbox.</source>
        <translation>Absender und Betreff ungelesener Nachrichten im Posteingang.</translation>
    </message>
    <message>
        <source>Show coming events</source>
        <translation>Kommende Termine zeigen</translation>
    </message>
    <message>
        <source>Events of your Google calendar, before they begin.</source>
        <translation>Termine Ihres Google-Kalenders, bevor sie beginnen.</translation>
    </message>
    <message>
        <source>Tell of events</source>
        <translation>Termine ankündigen</translation>
    </message>
    <message>
        <source>How long before they begin.</source>
        <translation>Wie lange vor ihrem Beginn.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>How often Google is asked for news.</source>
        <translation>Wie oft Google nach Neuem gefragt wird.</translation>
    </message>
    <message>
        <source>Client ID</source>
        <translation>Client-ID</translation>
    </message>
    <message>
        <source>Of a Google project of your own; empty for the built-in one.</source>
        <translation>Eines eigenen Google-Projekts; leer für die eingebaute.</translation>
    </message>
    <message>
        <source>Show messages</source>
        <translation>Nachrichten zeigen</translation>
    </message>
    <message>
        <source>Who wrote and what, as it comes.</source>
        <translation>Wer was schreibt, sobald es kommt.</translation>
    </message>
    <message>
        <source>How long a message stays on the island.</source>
        <translation>Wie lange eine Nachricht auf der Insel bleibt.</translation>
    </message>
    <message>
        <source>How often stored notifications are looked at. What the desktop announces is shown at once.</source>
        <translation>Wie oft gespeicherte Benachrichtigungen durchgesehen werden. Was der Desktop meldet, erscheint sofort.</translation>
    </message>
    <message>
        <source>New mail</source>
        <translation>Neue E-Mail</translation>
    </message>
    <message>
        <source>Gmail and calendar</source>
        <translation>Gmail und Kalender</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Zugang</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Instant</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>Keep size</source>
        <translation>Gleich groß</translation>
    </message>
    <message>
        <source>Grow</source>
        <translation>Wachsend</translation>
    </message>
    <message>
        <source>Display messages</source>
        <translation>Meldungen des Bildschirms</translation>
    </message>
    <message>
        <source>All that the display has to tell; off is off for all.</source>
        <translation>Alles, was der Bildschirm meldet; aus heißt aus für alles.</translation>
    </message>
    <message>
        <source>Show the brightness</source>
        <translation>Helligkeit zeigen</translation>
    </message>
    <message>
        <source>When you change it. What the machine does is not shown.</source>
        <translation>Wenn Sie sie ändern. Was der Rechner selbst tut, erscheint nicht.</translation>
    </message>
    <message>
        <source>How long the brightness stays on the island.</source>
        <translation>Wie lange die Helligkeit auf der Insel bleibt.</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>The colour of the bar.</source>
        <translation>Die Farbe des Balkens.</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Accent</source>
        <translation>Akzent</translation>
    </message>
    <message>
        <source>Glow</source>
        <translation>Leuchten</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>How the bar gets to a new level.</source>
        <translation>Wie der Balken zu einem neuen Stand kommt.</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Whether the sun grows with the level.</source>
        <translation>Ob die Sonne mit der Helligkeit wächst.</translation>
    </message>
    <message>
        <source>Show the percentage</source>
        <translation>Prozentzahl zeigen</translation>
    </message>
    <message>
        <source>A figure beside the bar.</source>
        <translation>Eine Zahl neben dem Balken.</translation>
    </message>
    <message>
        <source>Hide the label</source>
        <translation>Beschriftung ausblenden</translation>
    </message>
    <message>
        <source>Without the word Min at the dark end.</source>
        <translation>Ohne das Wort „Min.“ am dunklen Ende.</translation>
    </message>
    <message>
        <source>No bump at the ends</source>
        <translation>Kein Federn an den Enden</translation>
    </message>
    <message>
        <source>The bar stops short instead of bouncing.</source>
        <translation>Der Balken hält an, statt zu federn.</translation>
    </message>
    <message>
        <source>Sound messages</source>
        <translation>Meldungen zum Ton</translation>
    </message>
    <message>
        <source>All that sound has to tell; off is off for all.</source>
        <translation>Alles, was den Ton betrifft; aus heißt aus für alles.</translation>
    </message>
    <message>
        <source>Show the volume</source>
        <translation>Lautstärke zeigen</translation>
    </message>
    <message>
        <source>Whoever changes it.</source>
        <translation>Wer auch immer sie ändert.</translation>
    </message>
    <message>
        <source>How long the volume stays on the island.</source>
        <translation>Wie lange die Lautstärke auf der Insel bleibt.</translation>
    </message>
    <message>
        <source>Scroll to change the volume</source>
        <translation>Lautstärke durch Scrollen ändern</translation>
    </message>
    <message>
        <source>With the pointer over the resting pill.</source>
        <translation>Mit dem Zeiger über der ruhenden Insel.</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Nach Pegel</translation>
    </message>
    <message>
        <source>A speaker, or the device that sounds.</source>
        <translation>Ein Lautsprecher oder das Gerät, das klingt.</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Lautsprecher</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Size of the symbol</source>
        <translation>Größe des Symbols</translation>
    </message>
    <message>
        <source>Whether the symbol grows with the level.</source>
        <translation>Ob das Symbol mit der Lautstärke wächst.</translation>
    </message>
    <message>
        <source>Without the word Mute at the silent end.</source>
        <translation>Ohne das Wort „Stumm“ am leisen Ende.</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>The power service does not answer. Install the package upower.</source>
        <translation>Der Energiedienst antwortet nicht. Installieren Sie das Paket upower.</translation>
    </message>
    <message>
        <source>This machine has no battery.</source>
        <translation>Dieser Rechner hat keinen Akku.</translation>
    </message>
    <message>
        <source>This desktop has no way to leave a window out of screen captures.</source>
        <translation>Dieser Desktop kann kein Fenster aus Bildschirmaufnahmen heraushalten.</translation>
    </message>
    <message>
        <source>This desktop decides by itself what its overview shows.</source>
        <translation>Dieser Desktop entscheidet selbst, was seine Übersicht zeigt.</translation>
    </message>
    <message>
        <source>This desktop does not tell which window fills the screen.</source>
        <translation>Dieser Desktop sagt nicht, welches Fenster den Bildschirm füllt.</translation>
    </message>
    <message>
        <source>This desktop tells of a drag only once it is over the island.</source>
        <translation>Dieser Desktop meldet ein Ziehen erst, wenn es über der Insel ist.</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>This desktop has no place for status icons, so there is no menu there. On GNOME, the AppIndicator extension adds one.</source>
        <translation>Dieser Desktop hat keinen Platz für Statussymbole, darum gibt es dort kein Menü. Unter GNOME schafft die Erweiterung AppIndicator einen.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>This machine</source>
        <translation>Dieser Rechner</translation>
    </message>
    <message>
        <source>The battery is at %1 %.</source>
        <translation>Der Akku steht bei %1 %.</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Dieser Bildschirm</translation>
    </message>
    <message>
        <source>Its brightness is %1 %.</source>
        <translation>Seine Helligkeit beträgt %1 %.</translation>
    </message>
    <message>
        <source>No display here tells its brightness. For an external one, load the module i2c-dev and join the group i2c.</source>
        <translation>Hier meldet kein Bildschirm seine Helligkeit. Für einen externen laden Sie das Modul i2c-dev und treten Sie der Gruppe i2c bei.</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>No sound server answers. Start it with: systemctl --user start pipewire-pulse</source>
        <translation>Kein Tonserver antwortet. Starten Sie ihn mit: systemctl --user start pipewire-pulse</translation>
    </message>
    <message>
        <source>Mail folders</source>
        <translation>Mailordner</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Wird gesucht …</translation>
    </message>
    <message>
        <source>No mail was found here: no Maildir, mbox or notmuch, and no Thunderbird or Evolution. A program unread-mail of your own in the folder scripts beside the settings can answer instead.</source>
        <translation>Hier wurde keine E-Mail gefunden: kein Maildir, mbox oder notmuch, kein Thunderbird oder Evolution. Ein eigenes Programm unread-mail im Ordner scripts neben den Einstellungen kann stattdessen antworten.</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Shows a mail as it would come.</source>
        <translation>Zeigt eine E-Mail, wie sie käme.</translation>
    </message>
    <message>
        <source>Send a test</source>
        <translation>Test senden</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Where from</source>
        <translation>Woher</translation>
    </message>
    <message>
        <source>From the notifications the application shows on this desktop. Turn them on there; nothing is read elsewhere.</source>
        <translation>Aus den Benachrichtigungen, die das Programm auf diesem Desktop zeigt. Schalten Sie sie dort ein; anderswo wird nichts gelesen.</translation>
    </message>
    <message>
        <source>Shows the last message that came.</source>
        <translation>Zeigt die zuletzt eingetroffene Nachricht.</translation>
    </message>
    <message>
        <source>Playing now</source>
        <translation>Läuft gerade</translation>
    </message>
    <message>
        <source>There is no session bus, so no player can be asked.</source>
        <translation>Es gibt keinen Sitzungsbus, also kann kein Player gefragt werden.</translation>
    </message>
    <message>
        <source>Browser tabs</source>
        <translation>Browser-Tabs</translation>
    </message>
    <message>
        <source>No player plays anything.</source>
        <translation>Kein Player spielt etwas.</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <translation>%1, von %2</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Weather now</source>
        <translation>Wetter jetzt</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>%1, as you typed it.</source>
        <translation>%1, wie eingegeben.</translation>
    </message>
    <message>
        <source>Forget it</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Where this machine is, as its location service tells.</source>
        <translation>Wo dieser Rechner ist, wie sein Standortdienst meldet.</translation>
    </message>
    <message>
        <source>Nobody was asked yet. You can also type a place on the island.</source>
        <translation>Noch wurde niemand gefragt. Sie können auch auf der Insel einen Ort eingeben.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Fragen</translation>
    </message>
    <message>
        <source>The location is refused. Allow it in the privacy settings of the desktop, or type a place on the island.</source>
        <translation>Der Standort wird verweigert. Erlauben Sie ihn in den Privatsphäre-Einstellungen des Desktops oder geben Sie auf der Insel einen Ort ein.</translation>
    </message>
    <message>
        <source>There is no location service. Install the package geoclue-2.0, or type a place on the island.</source>
        <translation>Es gibt keinen Standortdienst. Installieren Sie das Paket geoclue-2.0 oder geben Sie auf der Insel einen Ort ein.</translation>
    </message>
    <message>
        <source>None was reported yet.</source>
        <translation>Noch keines gemeldet.</translation>
    </message>
    <message>
        <source>%1: %2 %3, %4</source>
        <translation>%1: %2 %3, %4</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT-Lizenz</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Log folder</source>
        <translation>Protokollordner</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>What was shown when Quillmere first started.</source>
        <translation>Was beim ersten Start von Quillmere zu sehen war.</translation>
    </message>
    <message>
        <source>Show again</source>
        <translation>Noch einmal zeigen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Quillmere</source>
        <translation>Quillmere</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>Coloured</source>
        <translation>Farbig</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Show media</source>
        <translation>Medien zeigen</translation>
    </message>
    <message>
        <source>Artwork and waveform beside the notch while something plays.</source>
        <translation>Cover und Wellenform neben der Insel, während etwas läuft.</translation>
    </message>
    <message>
        <source>Hide while the player is in front</source>
        <translation>Ausblenden, wenn der Player vorn ist</translation>
    </message>
    <message>
        <source>Nothing doubles what you already look at.</source>
        <translation>Nichts wiederholt, was Sie ohnehin sehen.</translation>
    </message>
    <message>
        <source>Keep after pausing</source>
        <translation>Nach Pause behalten</translation>
    </message>
    <message>
        <source>How long a paused track stays on the island.</source>
        <translation>Wie lange ein angehaltener Titel auf der Insel bleibt.</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Geöffnet</translation>
    </message>
    <message>
        <source>Style of the waveform in the dashboard.</source>
        <translation>Stil der Wellenform in der Übersicht.</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>Style of the waveform beside the notch.</source>
        <translation>Stil der Wellenform neben der Insel.</translation>
    </message>
    <message>
        <source>No waveform beside the notch</source>
        <translation>Keine Wellenform neben der Insel</translation>
    </message>
    <message>
        <source>Only the artwork stays there.</source>
        <translation>Nur das Cover bleibt dort.</translation>
    </message>
    <message>
        <source>Extra button</source>
        <translation>Zusatztaste</translation>
    </message>
    <message>
        <source>Where the player cannot do it, there is none.</source>
        <translation>Kann der Player es nicht, gibt es keine.</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>Zufallswiedergabe</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Short titles</source>
        <translation>Kurze Titel</translation>
    </message>
    <message>
        <source>Without remarks such as official video, remastered or guests.</source>
        <translation>Ohne Zusätze wie Official Video, Remastered oder Gäste.</translation>
    </message>
    <message>
        <source>Colours of the artwork</source>
        <translation>Farben des Covers</translation>
    </message>
    <message>
        <source>Waveform and buttons take the artwork&apos;s main colour.</source>
        <translation>Wellenform und Tasten nehmen die Hauptfarbe des Covers an.</translation>
    </message>
    <message>
        <source>Artwork does not turn over</source>
        <translation>Cover dreht sich nicht um</translation>
    </message>
    <message>
        <source>A new cover fades in instead.</source>
        <translation>Ein neues Cover wird stattdessen eingeblendet.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>The player that plays, then a browser tab.</source>
        <translation>Der Player, der spielt, sonst ein Browser-Tab.</translation>
    </message>
    <message>
        <source>Show changes of the weather</source>
        <translation>Wetterwechsel zeigen</translation>
    </message>
    <message>
        <source>When it is not what was shown last.</source>
        <translation>Wenn es anders ist als zuletzt gezeigt.</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>Fahrenheit</translation>
    </message>
    <message>
        <source>Temperatures in °F instead of °C.</source>
        <translation>Temperaturen in °F statt °C.</translation>
    </message>
    <message>
        <source>File tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Files dropped on the island stay on a page of their own.</source>
        <translation>Auf der Insel abgelegte Dateien bleiben auf einer eigenen Seite.</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>Höchstens behalten</translation>
    </message>
    <message>
        <source>The oldest file leaves first.</source>
        <translation>Die älteste Datei geht zuerst.</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Island</source>
        <translation>Insel</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Focus timer</source>
        <translation>Fokus-Timer</translation>
    </message>
    <message>
        <source>Work and breaks by the clock, on a page of the island.</source>
        <translation>Arbeit und Pausen nach der Uhr, auf einer Seite der Insel.</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Length of a session.</source>
        <translation>Länge einer Phase.</translation>
    </message>
    <message>
        <source>Short break</source>
        <translation>Kurze Pause</translation>
    </message>
    <message>
        <source>After a session.</source>
        <translation>Nach einer Phase.</translation>
    </message>
    <message>
        <source>Long break</source>
        <translation>Lange Pause</translation>
    </message>
    <message>
        <source>After every fourth session.</source>
        <translation>Nach jeder vierten Phase.</translation>
    </message>
    <message>
        <source>System monitor</source>
        <translation>Systemmonitor</translation>
    </message>
    <message>
        <source>Processor, memory and disk on a page of the island.</source>
        <translation>Prozessor, Speicher und Datenträger auf einer Seite der Insel.</translation>
    </message>
    <message>
        <source>Show the assistant</source>
        <translation>Assistenten zeigen</translation>
    </message>
    <message>
        <source>What Claude Code does, beside the notch. Puts a hook into its settings while it is on, and takes it out again.</source>
        <translation>Was Claude Code tut, neben der Insel. Trägt einen Hook in dessen Einstellungen ein, solange es an ist, und nimmt ihn wieder heraus.</translation>
    </message>
    <message>
        <source>Countdown and stopwatch</source>
        <translation>Countdown und Stoppuhr</translation>
    </message>
    <message>
        <source>A timer and a stopwatch on a page of the island.</source>
        <translation>Ein Timer und eine Stoppuhr auf einer Seite der Insel.</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Fehlerprotokoll</translation>
    </message>
    <message>
        <source>Writes what happens and why, for finding faults.</source>
        <translation>Schreibt auf, was geschieht und warum, zur Fehlersuche.</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Auslastung</translation>
    </message>
    <message>
        <source>Assistant</source>
        <translation>Assistent</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>Timer</translation>
    </message>
    <message>
        <source>Finding faults</source>
        <translation>Fehlersuche</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Show power changes</source>
        <translation>Stromwechsel zeigen</translation>
    </message>
    <message>
        <source>When the charger goes in or out, and when the battery is low.</source>
        <translation>Wenn das Ladegerät ein- oder ausgesteckt wird und wenn der Akku schwach ist.</translation>
    </message>
    <message>
        <source>How long a message about the battery stays.</source>
        <translation>Wie lange eine Meldung zum Akku bleibt.</translation>
    </message>
    <message>
        <source>The picture of the battery says enough.</source>
        <translation>Das Bild des Akkus sagt genug.</translation>
    </message>
    <message>
        <source>Hide the percentage</source>
        <translation>Prozentzahl ausblenden</translation>
    </message>
    <message>
        <source>No figure beside the battery.</source>
        <translation>Keine Zahl neben dem Akku.</translation>
    </message>
    <message>
        <source>Notify as well</source>
        <translation>Auch benachrichtigen</translation>
    </message>
    <message>
        <source>A low battery, and power saving on or off, as a notification.</source>
        <translation>Schwacher Akku und Stromsparen ein oder aus, als Benachrichtigung.</translation>
    </message>
    <message>
        <source>Warn of a low battery</source>
        <translation>Vor schwachem Akku warnen</translation>
    </message>
    <message>
        <source>Once each time the charge falls below the limit.</source>
        <translation>Jedes Mal einmal, wenn die Ladung unter die Grenze fällt.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenze</translation>
    </message>
    <message>
        <source>The charge from which the battery counts as low.</source>
        <translation>Die Ladung, ab der der Akku als schwach gilt.</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Ton abspielen</translation>
    </message>
    <message>
        <source>Together with the warning.</source>
        <translation>Zusammen mit der Warnung.</translation>
    </message>
    <message>
        <source>Show devices</source>
        <translation>Geräte zeigen</translation>
    </message>
    <message>
        <source>Headphones and speakers that connect, and devices that run low.</source>
        <translation>Kopfhörer und Lautsprecher, die sich verbinden, und Geräte mit schwacher Ladung.</translation>
    </message>
    <message>
        <source>How long a device stays on the island.</source>
        <translation>Wie lange ein Gerät auf der Insel bleibt.</translation>
    </message>
    <message>
        <source>Warn of a low device</source>
        <translation>Vor schwachem Gerät warnen</translation>
    </message>
    <message>
        <source>Once each time a device&apos;s charge falls below the limit.</source>
        <translation>Jedes Mal einmal, wenn die Ladung eines Geräts unter die Grenze fällt.</translation>
    </message>
    <message>
        <source>The charge from which a device counts as low.</source>
        <translation>Die Ladung, ab der ein Gerät als schwach gilt.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>Low battery</source>
        <translation>Schwacher Akku</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Low charge</source>
        <translation>Schwache Ladung</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>How the open island is drawn. The pill is always black.</source>
        <translation>Wie die geöffnete Insel aussieht. Geschlossen ist sie immer schwarz.</translation>
    </message>
    <message>
        <source>Glass</source>
        <translation>Glas</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Durchsichtigkeit</translation>
    </message>
    <message>
        <source>How much of the wallpaper the glass lets through.</source>
        <translation>Wie viel vom Hintergrundbild das Glas durchlässt.</translation>
    </message>
    <message>
        <source>Use the accent colour</source>
        <translation>Akzentfarbe verwenden</translation>
    </message>
    <message>
        <source>Marks and bars take the desktop&apos;s accent colour.</source>
        <translation>Zeichen und Balken nehmen die Akzentfarbe des Desktops an.</translation>
    </message>
    <message>
        <source>Open on hover</source>
        <translation>Beim Überfahren öffnen</translation>
    </message>
    <message>
        <source>The pointer alone opens the island, without a click.</source>
        <translation>Der Zeiger allein öffnet die Insel, ohne Klick.</translation>
    </message>
    <message>
        <source>Close after</source>
        <translation>Schließen nach</translation>
    </message>
    <message>
        <source>How long the island stays open once the pointer left.</source>
        <translation>Wie lange die Insel offen bleibt, nachdem der Zeiger fort ist.</translation>
    </message>
    <message>
        <source>Haptic feedback</source>
        <translation>Haptische Rückmeldung</translation>
    </message>
    <message>
        <source>A short buzz on devices that have a motor for it.</source>
        <translation>Ein kurzes Vibrieren auf Geräten mit Motor dafür.</translation>
    </message>
    <message>
        <source>Beside the notch</source>
        <translation>Neben der Insel</translation>
    </message>
    <message>
        <source>What the resting pill shows. The calendar has nothing to show there yet.</source>
        <translation>Was die ruhende Insel zeigt. Der Kalender hat dort noch nichts zu zeigen.</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beides</translation>
    </message>
    <message>
        <source>Show the last event</source>
        <translation>Letztes Ereignis zeigen</translation>
    </message>
    <message>
        <source>With nothing else beside the notch, what came last.</source>
        <translation>Wenn sonst nichts daneben steht, was zuletzt kam.</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Which screen carries the island.</source>
        <translation>Welcher Bildschirm die Insel trägt.</translation>
    </message>
    <message>
        <source>Built-in</source>
        <translation>Eingebaut</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Haupt</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Width of the pill</source>
        <translation>Breite der Insel</translation>
    </message>
    <message>
        <source>On screens without a camera housing; 60 to 600.</source>
        <translation>Auf Bildschirmen ohne Kameraaussparung; 60 bis 600.</translation>
    </message>
    <message>
        <source>Height of the pill</source>
        <translation>Höhe der Insel</translation>
    </message>
    <message>
        <source>On screens without a camera housing; 20 to 100.</source>
        <translation>Auf Bildschirmen ohne Kameraaussparung; 20 bis 100.</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <translation>Über Vollbildfenstern ausblenden</translation>
    </message>
    <message>
        <source>The resting pill goes away; what happens is still shown.</source>
        <translation>Die ruhende Insel verschwindet; was geschieht, erscheint weiterhin.</translation>
    </message>
    <message>
        <source>Silent over full-screen windows</source>
        <translation>Über Vollbildfenstern still</translation>
    </message>
    <message>
        <source>Nothing at all is shown over a full-screen window.</source>
        <translation>Über einem Vollbildfenster erscheint gar nichts.</translation>
    </message>
    <message>
        <source>Hide in the overview</source>
        <translation>In der Übersicht ausblenden</translation>
    </message>
    <message>
        <source>Leaves the island out of the desktop&apos;s overview.</source>
        <translation>Lässt die Insel aus der Übersicht des Desktops weg.</translation>
    </message>
    <message>
        <source>Hide from screen capture</source>
        <translation>In Bildschirmaufnahmen ausblenden</translation>
    </message>
    <message>
        <source>Leaves the island out of screenshots and recordings.</source>
        <translation>Lässt die Insel aus Bildschirmfotos und Aufnahmen weg.</translation>
    </message>
    <message>
        <source>Swipe to open and close</source>
        <translation>Wischen zum Öffnen und Schließen</translation>
    </message>
    <message>
        <source>Down opens the island, up closes it.</source>
        <translation>Nach unten öffnet die Insel, nach oben schließt sie.</translation>
    </message>
    <message>
        <source>Swipe through events</source>
        <translation>Durch Ereignisse wischen</translation>
    </message>
    <message>
        <source>Sideways goes through what came lately.</source>
        <translation>Seitwärts geht durch das zuletzt Gekommene.</translation>
    </message>
    <message>
        <source>Swipe to dismiss</source>
        <translation>Wischen zum Ausblenden</translation>
    </message>
    <message>
        <source>Up takes away what is shown.</source>
        <translation>Nach oben nimmt weg, was gezeigt wird.</translation>
    </message>
    <message>
        <source>Swipe to skip a track</source>
        <translation>Wischen zum Titelwechsel</translation>
    </message>
    <message>
        <source>Sideways over playing media goes to the next or last.</source>
        <translation>Seitwärts über laufenden Medien geht zum nächsten oder vorigen.</translation>
    </message>
    <message>
        <source>Natural direction</source>
        <translation>Natürliche Richtung</translation>
    </message>
    <message>
        <source>Content follows the fingers instead of the scroll bar.</source>
        <translation>Der Inhalt folgt den Fingern statt dem Rollbalken.</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Quillmere is there as soon as you are.</source>
        <translation>Quillmere ist da, sobald Sie da sind.</translation>
    </message>
    <message>
        <source>Share settings</source>
        <translation>Einstellungen teilen</translation>
    </message>
    <message>
        <source>Through the folder below, from the next start on.</source>
        <translation>Über den Ordner unten, ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Geteilter Ordner</translation>
    </message>
    <message>
        <source>One that Nextcloud, Syncthing or the like carries to your other machines. Used from the next start on.</source>
        <translation>Einer, den Nextcloud, Syncthing oder Ähnliches zu Ihren anderen Rechnern trägt. Gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>Gesten</translation>
    </message>
    <message>
        <source>Size and place</source>
        <translation>Größe und Ort</translation>
    </message>
    <message>
        <source>Start and sharing</source>
        <translation>Start und Teilen</translation>
    </message>
    <message>
        <source>Quillmere Settings</source>
        <translation>Quillmere-Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Connectivity</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
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
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>File Tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Sperrbildschirm</translation>
    </message>
    <message>
        <source>Quillmere shows nothing on the lock screen yet, so there is nothing to set here.</source>
        <translation>Quillmere zeigt auf dem Sperrbildschirm noch nichts, darum gibt es hier nichts einzustellen.</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Quillmere keeps no history of the clipboard yet, so there is nothing to set here.</source>
        <translation>Quillmere führt noch keinen Verlauf der Zwischenablage, darum gibt es hier nichts einzustellen.</translation>
    </message>
    <message>
        <source>Pomodoro</source>
        <translation>Pomodoro</translation>
    </message>
    <message>
        <source>Camera Mirror</source>
        <translation>Kameraspiegel</translation>
    </message>
    <message>
        <source>Quillmere has no camera mirror yet, so there is nothing to set here.</source>
        <translation>Quillmere hat noch keinen Kameraspiegel, darum gibt es hier nichts einzustellen.</translation>
    </message>
    <message>
        <source>Network Speed</source>
        <translation>Netzgeschwindigkeit</translation>
    </message>
    <message>
        <source>Quillmere does not measure the network yet, so there is nothing to set here.</source>
        <translation>Quillmere misst das Netz noch nicht, darum gibt es hier nichts einzustellen.</translation>
    </message>
    <message>
        <source>System Monitor</source>
        <translation>Systemmonitor</translation>
    </message>
    <message>
        <source>Claude Code</source>
        <translation>Claude Code</translation>
    </message>
    <message>
        <source>App Shortcuts</source>
        <translation>App-Kurzbefehle</translation>
    </message>
    <message>
        <source>Quillmere has no shortcuts to applications yet, so there is nothing to set here.</source>
        <translation>Quillmere hat noch keine Kurzbefehle für Programme, darum gibt es hier nichts einzustellen.</translation>
    </message>
    <message>
        <source>Quick Notes</source>
        <translation>Schnellnotizen</translation>
    </message>
    <message>
        <source>Quillmere takes no notes yet, so there is nothing to set here.</source>
        <translation>Quillmere nimmt noch keine Notizen auf, darum gibt es hier nichts einzustellen.</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Quillmere keeps no bookmarks yet, so there is nothing to set here.</source>
        <translation>Quillmere führt noch keine Lesezeichen, darum gibt es hier nichts einzustellen.</translation>
    </message>
    <message>
        <source>Countdown Timer</source>
        <translation>Countdown-Timer</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message>
        <source>Quillmere reads no reminders yet, so there is nothing to set here.</source>
        <translation>Quillmere liest noch keine Erinnerungen, darum gibt es hier nichts einzustellen.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2 %</translation>
    </message>
    <message>
        <source>No connected device tells its charge.</source>
        <translation>Kein verbundenes Gerät meldet seine Ladung.</translation>
    </message>
    <message>
        <source>Its hook needs Python. Install the package python3.</source>
        <translation>Sein Hook braucht Python. Installieren Sie das Paket python3.</translation>
    </message>
    <message>
        <source>It is set up on this machine.</source>
        <translation>Er ist auf diesem Rechner eingerichtet.</translation>
    </message>
    <message>
        <source>Show Do Not Disturb</source>
        <translation>„Nicht stören“ anzeigen</translation>
    </message>
    <message>
        <source>When it is switched on or off on the desktop.</source>
        <translation>Wenn der Desktop es ein- oder ausschaltet.</translation>
    </message>
    <message>
        <source>How long the change stays on the island.</source>
        <translation>Wie lange die Änderung auf der Insel bleibt.</translation>
    </message>
    <message>
        <source>The symbol says enough.</source>
        <translation>Das Symbol sagt genug.</translation>
    </message>
    <message>
        <source>The charger and the battery are told of meanwhile.</source>
        <translation>Ladegerät und Akku werden währenddessen gemeldet.</translation>
    </message>
    <message>
        <source>Devices that connect are told of meanwhile.</source>
        <translation>Geräte, die sich verbinden, werden währenddessen gemeldet.</translation>
    </message>
    <message>
        <source>Changes of the brightness show meanwhile.</source>
        <translation>Änderungen der Helligkeit erscheinen währenddessen.</translation>
    </message>
    <message>
        <source>Changes of the volume show meanwhile.</source>
        <translation>Änderungen der Lautstärke erscheinen währenddessen.</translation>
    </message>
    <message>
        <source>Do Not Disturb</source>
        <translation>Nicht stören</translation>
    </message>
    <message>
        <source>What still shows</source>
        <translation>Was trotzdem erscheint</translation>
    </message>
    <message>
        <source>This desktop</source>
        <translation>Dieser Desktop</translation>
    </message>
    <message>
        <source>It does not tell of Do Not Disturb. GNOME, Plasma, Xfce, Cinnamon, MATE, dunst, SwayNC and newer versions of mako do. Until it does, this page has no effect.</source>
        <translation>Er meldet „Nicht stören“ nicht. GNOME, Plasma, Xfce, Cinnamon, MATE, dunst, SwayNC und neuere Versionen von mako tun es. Bis dahin hat diese Seite keine Wirkung.</translation>
    </message>
    <message>
        <source>Do Not Disturb is on in %1.</source>
        <translation>„Nicht stören“ ist in %1 eingeschaltet.</translation>
    </message>
    <message>
        <source>Do Not Disturb is off in %1.</source>
        <translation>„Nicht stören“ ist in %1 ausgeschaltet.</translation>
    </message>
    <message>
        <source>It was not found in ~/.local/bin, ~/.claude/bin or /usr/local/bin. If it is elsewhere, put a link to it there.</source>
        <translation>In ~/.local/bin, ~/.claude/bin und /usr/local/bin wurde es nicht gefunden. Liegt es anderswo, legen Sie dort eine Verknüpfung darauf an.</translation>
    </message>
    <message>
        <source>Quiet during events</source>
        <translation>Ruhe während Terminen</translation>
    </message>
    <message>
        <source>No messages, mail and weather while an event of your Google calendar is going on.</source>
        <translation>Keine Nachrichten, E-Mails und kein Wetter, während ein Termin Ihres Google-Kalenders läuft.</translation>
    </message>
    <message>
        <source>No weather on days without events</source>
        <translation>Kein Wetter an Tagen ohne Termine</translation>
    </message>
    <message>
        <source>The weather then stays on its page.</source>
        <translation>Das Wetter bleibt dann auf seiner Seite.</translation>
    </message>
    <message>
        <source>Your day</source>
        <translation>Ihr Tag</translation>
    </message>
    <message>
        <source>A keyring of this desktop</source>
        <translation>Ein Schlüsselbund dieses Desktops</translation>
    </message>
    <message>
        <source>%1. It starts when it is needed.</source>
        <translation>%1. Er startet, wenn er gebraucht wird.</translation>
    </message>
    <message>
        <source>%1. It keeps nothing yet and will ask for a password for that.</source>
        <translation>%1. Er verwahrt noch nichts und wird dafür nach einem Passwort fragen.</translation>
    </message>
    <message>
        <source>%1. It is locked, and will ask for its password when it is needed.</source>
        <translation>%1. Er ist gesperrt und fragt nach seinem Passwort, wenn er gebraucht wird.</translation>
    </message>
    <message>
        <source>%1. It is unlocked.</source>
        <translation>%1. Er ist entsperrt.</translation>
    </message>
    <message>
        <source>No keyring was found, and the sign-in is kept nowhere else. Install the package gnome-keyring, or turn on the secret service of KeePassXC or KWallet.</source>
        <translation>Es wurde kein Schlüsselbund gefunden, und anderswo wird die Anmeldung nicht aufbewahrt. Installieren Sie das Paket gnome-keyring oder schalten Sie in KeePassXC oder KWallet den Dienst für Geheimnisse ein.</translation>
    </message>
    <message>
        <source>Sign-in is kept in</source>
        <translation>Die Anmeldung liegt in</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Schlüsselbund</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Chromium and its kin tell of their tabs only when they are started so:
chromium --remote-debugging-port=0</source>
        <translation>Chromium und seine Verwandten verraten ihre Tabs nur, wenn sie so gestartet werden:
chromium --remote-debugging-port=0</translation>
    </message>
    <message>
        <source>No player is running.</source>
        <translation>Es läuft kein Player.</translation>
    </message>
</context>
<context>
    <name>Setup</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>SetupNeeds</name>
    <message>
        <source>No sound server answers. Install PipeWire or PulseAudio.</source>
        <translation>Kein Tonserver antwortet. Installieren Sie PipeWire oder PulseAudio.</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Bereit.</translation>
    </message>
    <message>
        <source>Ready. Sound goes to %1.</source>
        <translation>Bereit. Der Ton geht an %1.</translation>
    </message>
    <message>
        <source>Ready. The sound server tells when they connect.</source>
        <translation>Bereit. Der Tonserver meldet, wenn welche verbunden werden.</translation>
    </message>
    <message>
        <source>Ready. The display tells its brightness.</source>
        <translation>Bereit. Der Bildschirm meldet seine Helligkeit.</translation>
    </message>
    <message>
        <source>No display here tells its brightness yet.</source>
        <translation>Noch meldet kein Bildschirm seine Helligkeit.</translation>
    </message>
    <message>
        <source>Ready. Players and browsers are found by themselves.</source>
        <translation>Bereit. Player und Browser werden von selbst gefunden.</translation>
    </message>
    <message>
        <source>There is no session bus to hear players on.</source>
        <translation>Ohne Sitzungsbus sind keine Player zu hören.</translation>
    </message>
    <message>
        <source>No power service answers. Install UPower.</source>
        <translation>Kein Energiedienst antwortet. Installieren Sie UPower.</translation>
    </message>
    <message>
        <source>Ready. The battery is at %1 %.</source>
        <translation>Bereit. Der Akku steht bei %1 %.</translation>
    </message>
    <message>
        <source>This machine has no battery.</source>
        <translation>Dieser Rechner hat keinen Akku.</translation>
    </message>
    <message>
        <source>Ready, for the place you typed.</source>
        <translation>Bereit, für den eingegebenen Ort.</translation>
    </message>
    <message>
        <source>Ready. The desktop tells where you are.</source>
        <translation>Bereit. Der Desktop meldet Ihren Standort.</translation>
    </message>
    <message>
        <source>Asks the desktop where you are, or type a place on its page.</source>
        <translation>Fragt den Desktop nach dem Standort; oder geben Sie auf der Seite einen Ort ein.</translation>
    </message>
    <message>
        <source>The desktop keeps your location private. Type a place on its page.</source>
        <translation>Der Desktop verrät Ihren Standort nicht. Geben Sie auf der Seite einen Ort ein.</translation>
    </message>
    <message>
        <source>There is no location service. Type a place on its page.</source>
        <translation>Es gibt keinen Standortdienst. Geben Sie auf der Seite einen Ort ein.</translation>
    </message>
    <message>
        <source>Read from the desktop&apos;s notifications, which show as before.</source>
        <translation>Aus den Benachrichtigungen gelesen, die wie bisher erscheinen.</translation>
    </message>
    <message>
        <source>Read where Thunderbird, Evolution or a mail folder keeps it.</source>
        <translation>Gelesen, wo Thunderbird, Evolution oder ein Mailordner sie aufbewahrt.</translation>
    </message>
    <message>
        <source>Ready. Drag files to the top of the screen.</source>
        <translation>Bereit. Ziehen Sie Dateien an den oberen Bildschirmrand.</translation>
    </message>
    <message>
        <source>Ready. They are on the last page of the dashboard.</source>
        <translation>Bereit. Zu finden auf der letzten Seite der Übersicht.</translation>
    </message>
    <message>
        <source>Not found in ~/.local/bin, ~/.claude/bin or /usr/local/bin.</source>
        <translation>Nicht gefunden in ~/.local/bin, ~/.claude/bin und /usr/local/bin.</translation>
    </message>
    <message>
        <source>Its hook needs Python. Install python3.</source>
        <translation>Sein Hook braucht Python. Installieren Sie python3.</translation>
    </message>
    <message>
        <source>Puts a hook into its settings. That tells Quillmere, and nobody else, the folder, the tool and how a prompt begins.</source>
        <translation>Ein Hook in dessen Einstellungen meldet nur Quillmere den Ordner, das Werkzeug und den Anfang einer Eingabe.</translation>
    </message>
</context>
<context>
    <name>ShortcutIntent</name>
    <message>
        <source>Start Pomodoro</source>
        <translation>Pomodoro starten</translation>
    </message>
    <message>
        <source>Start a Pomodoro in %1</source>
        <translation>Starte einen Pomodoro in %1</translation>
    </message>
    <message>
        <source>Start a focus session in %1</source>
        <translation>Starte eine Konzentrationsphase in %1</translation>
    </message>
    <message>
        <source>Stop Pomodoro</source>
        <translation>Pomodoro beenden</translation>
    </message>
    <message>
        <source>Stop the Pomodoro in %1</source>
        <translation>Beende den Pomodoro in %1</translation>
    </message>
    <message>
        <source>End the %1 focus session</source>
        <translation>Beende die Konzentrationsphase von %1</translation>
    </message>
    <message>
        <source>Skip Pomodoro Phase</source>
        <translation>Pomodoro-Phase überspringen</translation>
    </message>
    <message>
        <source>Start Countdown Timer</source>
        <translation>Countdown starten</translation>
    </message>
    <message>
        <source>Start Timer</source>
        <translation>Timer starten</translation>
    </message>
    <message>
        <source>Start a timer in %1</source>
        <translation>Starte einen Timer in %1</translation>
    </message>
    <message>
        <source>Start a countdown in %1</source>
        <translation>Starte einen Countdown in %1</translation>
    </message>
    <message>
        <source>Stop Countdown Timer</source>
        <translation>Countdown beenden</translation>
    </message>
    <message>
        <source>Stop Timer</source>
        <translation>Timer beenden</translation>
    </message>
    <message>
        <source>Stop the timer in %1</source>
        <translation>Beende den Timer in %1</translation>
    </message>
    <message>
        <source>Cancel the %1 timer</source>
        <translation>Brich den Timer von %1 ab</translation>
    </message>
    <message>
        <source>Toggle Island</source>
        <translation>Insel umschalten</translation>
    </message>
    <message>
        <source>Toggle the island in %1</source>
        <translation>Schalte die Insel von %1 um</translation>
    </message>
    <message>
        <source>Show the %1 island</source>
        <translation>Zeige die Insel von %1</translation>
    </message>
    <message>
        <source>Start a %1-minute countdown</source>
        <translation>Countdown von %1 Minuten starten</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Length of the countdown in minutes.</source>
        <translation>Länge des Countdowns in Minuten.</translation>
    </message>
    <message>
        <source>%1 has no parameter &quot;%2&quot;</source>
        <translation>%1 hat keinen Parameter „%2“</translation>
    </message>
    <message>
        <source>minutes must be a whole number from %1 to %2</source>
        <translation>minutes muss eine ganze Zahl von %1 bis %2 sein</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>SourcesStep</name>
    <message>
        <source>What should it show?</source>
        <translation>Was soll sie zeigen?</translation>
    </message>
    <message>
        <source>You can change all of this later in the settings.</source>
        <translation>All dies lässt sich später in den Einstellungen ändern.</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Show Island</source>
        <translation>Insel zeigen</translation>
    </message>
    <message>
        <source>Refresh Now Playing</source>
        <translation>Wiedergabe neu abfragen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Quillmere</source>
        <translation>Quillmere beenden</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>Measuring…</source>
        <translation>Wird gemessen …</translation>
    </message>
</context>
<context>
    <name>TimerMessages</name>
    <message>
        <source>Focus session complete</source>
        <translation>Konzentrationsphase beendet</translation>
    </message>
    <message>
        <source>Time for a break! Session %1 done.</source>
        <translation>Zeit für eine Pause! Phase %1 geschafft.</translation>
    </message>
    <message>
        <source>Break&apos;s over</source>
        <translation>Die Pause ist vorbei</translation>
    </message>
    <message>
        <source>Ready to focus again?</source>
        <translation>Bereit für die nächste Phase?</translation>
    </message>
    <message>
        <source>Timer Complete</source>
        <translation>Timer abgelaufen</translation>
    </message>
    <message>
        <source>Your %1 minute timer has finished.</source>
        <translation>Ihr Timer über %1 Minuten ist abgelaufen.</translation>
    </message>
</context>
<context>
    <name>TimerPage</name>
    <message>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>Another length</source>
        <translation>Andere Dauer</translation>
    </message>
    <message>
        <source>Minutes, 1:30 or 90s</source>
        <translation>Minuten, 1:30 oder 90s</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>TrayPage</name>
    <message>
        <source>Drop to add</source>
        <translation>Zum Hinzufügen loslassen</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Dateien hierher ziehen</translation>
    </message>
    <message>
        <source>Dropped files</source>
        <translation>Abgelegte Dateien</translation>
    </message>
    <message>
        <source>Remove from the tray</source>
        <translation>Aus der Ablage entfernen</translation>
    </message>
</context>
<context>
    <name>UpdateHUD</name>
    <message>
        <source>Quillmere %1 is available</source>
        <translation>Quillmere %1 ist verfügbar</translation>
    </message>
    <message>
        <source>Press to see what is new</source>
        <translation>Drücken, um Neues zu sehen</translation>
    </message>
    <message>
        <source>Quillmere is up to date</source>
        <translation>Quillmere ist aktuell</translation>
    </message>
    <message>
        <source>There is no newer version</source>
        <translation>Es gibt keine neuere Version</translation>
    </message>
    <message>
        <source>Could not look for updates</source>
        <translation>Suche nach Aktualisierungen gescheitert</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>This Quillmere has no address to look for updates at.</source>
        <translation>Dieses Quillmere kennt keine Adresse für Aktualisierungen.</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>Die Angaben zur Aktualisierung waren nicht lesbar.</translation>
    </message>
</context>
<context>
    <name>WeatherCondition</name>
    <message>
        <source>Clear</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Mostly Clear</source>
        <translation>Überwiegend klar</translation>
    </message>
    <message>
        <source>Partly Cloudy</source>
        <translation>Teils bewölkt</translation>
    </message>
    <message>
        <source>Overcast</source>
        <translation>Bedeckt</translation>
    </message>
    <message>
        <source>Foggy</source>
        <translation>Nebel</translation>
    </message>
    <message>
        <source>Drizzle</source>
        <translation>Nieselregen</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Heavy Rain</source>
        <translation>Starker Regen</translation>
    </message>
    <message>
        <source>Freezing Rain</source>
        <translation>Gefrierender Regen</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>Heavy Snow</source>
        <translation>Starker Schneefall</translation>
    </message>
    <message>
        <source>Snow Grains</source>
        <translation>Schneegriesel</translation>
    </message>
    <message>
        <source>Rain Showers</source>
        <translation>Regenschauer</translation>
    </message>
    <message>
        <source>Snow Showers</source>
        <translation>Schneeschauer</translation>
    </message>
    <message>
        <source>Thunderstorm</source>
        <translation>Gewitter</translation>
    </message>
    <message>
        <source>Thunderstorm with Hail</source>
        <translation>Gewitter mit Hagel</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>Bewölkt</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heiß</translation>
    </message>
    <message>
        <source>Mostly Cloudy</source>
        <translation>Überwiegend bewölkt</translation>
    </message>
    <message>
        <source>Breezy</source>
        <translation>Leichter Wind</translation>
    </message>
    <message>
        <source>Windy</source>
        <translation>Windig</translation>
    </message>
    <message>
        <source>Blowing Dust</source>
        <translation>Staubverwehungen</translation>
    </message>
    <message>
        <source>Haze</source>
        <translation>Dunst</translation>
    </message>
    <message>
        <source>Smoky</source>
        <translation>Rauch</translation>
    </message>
    <message>
        <source>Freezing Drizzle</source>
        <translation>Gefrierender Niesel</translation>
    </message>
    <message>
        <source>Sleet</source>
        <translation>Schneeregen</translation>
    </message>
    <message>
        <source>Hail</source>
        <translation>Hagel</translation>
    </message>
    <message>
        <source>Wintry Mix</source>
        <translation>Schnee und Regen</translation>
    </message>
    <message>
        <source>Flurries</source>
        <translation>Schneegestöber</translation>
    </message>
    <message>
        <source>Sun Flurries</source>
        <translation>Sonne und Schnee</translation>
    </message>
    <message>
        <source>Blizzard</source>
        <translation>Schneesturm</translation>
    </message>
    <message>
        <source>Blowing Snow</source>
        <translation>Schneeverwehungen</translation>
    </message>
    <message>
        <source>Frigid</source>
        <translation>Eisig</translation>
    </message>
    <message>
        <source>Sun Showers</source>
        <translation>Sonne und Schauer</translation>
    </message>
    <message>
        <source>Thunderstorms</source>
        <translation>Gewitter</translation>
    </message>
    <message>
        <source>Isolated Thunderstorms</source>
        <translation>Einzelne Gewitter</translation>
    </message>
    <message>
        <source>Scattered Thunderstorms</source>
        <translation>Vereinzelte Gewitter</translation>
    </message>
    <message>
        <source>Strong Storms</source>
        <translation>Schwere Gewitter</translation>
    </message>
    <message>
        <source>Tropical Storm</source>
        <translation>Tropensturm</translation>
    </message>
    <message>
        <source>Hurricane</source>
        <translation>Hurrikan</translation>
    </message>
</context>
<context>
    <name>WeatherHUD</name>
    <message>
        <source>%1, %2 to %3</source>
        <comment>place, today&apos;s lowest and highest temperature</comment>
        <translation>%1, %2 bis %3</translation>
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
        <translation>Ort wählen</translation>
    </message>
</context>
<context>
    <name>WeatherPanel</name>
    <message>
        <source>Choose a place</source>
        <translation>Ort wählen</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Willkommen bei Quillmere</translation>
    </message>
    <message>
        <source>A small black island at the top of your screen. It grows for a moment when something happens, and stays out of the way when nothing does.</source>
        <translation>Eine kleine schwarze Insel am oberen Bildschirmrand. Sie wächst für einen Augenblick, wenn etwas geschieht, und stört nicht, wenn nichts geschieht.</translation>
    </message>
</context>
<context>
    <name>quillmere::AssistantModel</name>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>Arbeitet …</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Compacting</source>
        <translation>Fasst zusammen</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>vor %1 Min.</translation>
    </message>
    <message>
        <source>Claude Code</source>
        <translation>Claude Code</translation>
    </message>
    <message>
        <source>Claude Code: %1, %2</source>
        <translation>Claude Code: %1, %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>quillmere::DashboardModel</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>File tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>Timer</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>dddd, d MMMM</source>
        <extracomment>A date without a year, as QLocale writes it: Saturday, 21 November</extracomment>
        <translation>dddd, d. MMMM</translation>
    </message>
</context>
<context>
    <name>quillmere::GoogleAccountModel</name>
    <message>
        <source>Make a project; any name will do.</source>
        <translation>Legen Sie ein Projekt an; der Name ist gleichgültig.</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Switch on the Gmail API in it.</source>
        <translation>Schalten Sie darin die Gmail-API ein.</translation>
    </message>
    <message>
        <source>Gmail API</source>
        <translation>Gmail-API</translation>
    </message>
    <message>
        <source>And the Google Calendar API.</source>
        <translation>Und die Google-Kalender-API.</translation>
    </message>
    <message>
        <source>Calendar API</source>
        <translation>Kalender-API</translation>
    </message>
    <message>
        <source>Fill in the consent screen: audience External, and yourself as a test user.</source>
        <translation>Füllen Sie den Zustimmungsbildschirm aus: Zielgruppe „Extern“ und Sie selbst als Testnutzer.</translation>
    </message>
    <message>
        <source>Consent screen</source>
        <translation>Zustimmungsbildschirm</translation>
    </message>
    <message>
        <source>Make a client of the type iOS, the only one that needs no secret, with the bundle ID com.quillmere.Quillmere. Paste its client ID below.</source>
        <translation>Legen Sie einen Client vom Typ iOS an, den einzigen ohne Geheimnis, mit der Bundle-ID com.quillmere.Quillmere. Fügen Sie seine Client-ID unten ein.</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Neuer Client</translation>
    </message>
    <message>
        <source>Reading mail is what Google calls a restricted scope. For a project of your own it warns once that the app is not verified. While the project is being tested it signs you out every seven days; published, it does not. To let more than 100 people use one client ID, Google asks for a verification and a security assessment each year, which is why everyone brings their own.</source>
        <translation>Das Lesen von E-Mail ist für Google ein eingeschränkter Zugriff. Bei einem eigenen Projekt warnt es einmal, dass die App nicht überprüft ist. Solange das Projekt im Test ist, meldet es Sie alle sieben Tage ab; veröffentlicht nicht mehr. Damit mehr als 100 Personen eine Client-ID benutzen dürfen, verlangt Google jedes Jahr eine Überprüfung und eine Sicherheitsbewertung; darum bringt jeder seine eigene mit.</translation>
    </message>
    <message>
        <source>The keyring is locked and still holds the sign-in. Unlock it and sign out again, or remove Quillmere&apos;s access on your Google account&apos;s page.</source>
        <translation>Der Schlüsselbund ist gesperrt und enthält die Anmeldung noch. Entsperren Sie ihn und melden Sie sich noch einmal ab, oder entziehen Sie Quillmere den Zugriff auf der Seite Ihres Google-Kontos.</translation>
    </message>
</context>
<context>
    <name>quillmere::HUDManager</name>
    <message>
        <source>Low Battery</source>
        <translation>Akku fast leer</translation>
    </message>
    <message>
        <source>%1% remaining</source>
        <translation>Noch %1 %</translation>
    </message>
</context>
<context>
    <name>quillmere::IslandModel</name>
    <message>
        <source>Island</source>
        <translation>Insel</translation>
    </message>
</context>
<context>
    <name>quillmere::SetupSource</name>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Now playing</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Headphones</source>
        <translation>Kopfhörer</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Slack and Discord</source>
        <translation>Slack und Discord</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>File tray</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Timers</source>
        <translation>Timer</translation>
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
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>1 core</source>
        <translation>1 Kern</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 Kerne</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
</context>
<context>
    <name>quillmere::TimerModel</name>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Countdown</source>
        <translation>Countdown</translation>
    </message>
    <message>
        <source>Stopwatch</source>
        <translation>Stoppuhr</translation>
    </message>
    <message>
        <source>Short Break</source>
        <translation>Kurze Pause</translation>
    </message>
    <message>
        <source>Long Break</source>
        <translation>Lange Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
</context>
<context>
    <name>quillmere::WeatherModel</name>
    <message>
        <source>%1 km/h</source>
        <translation>%1 km/h</translation>
    </message>
    <message>
        <source>%1 mph</source>
        <translation>%1 mph</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 mi</source>
        <translation>%1 mi</translation>
    </message>
    <message>
        <source>feels like %1</source>
        <translation>gefühlt %1</translation>
    </message>
    <message>
        <source>H %1</source>
        <extracomment>Today&apos;s highest and lowest temperature, in as few letters as can be</extracomment>
        <translation>H %1</translation>
    </message>
    <message>
        <source>L %1</source>
        <translation>T %1</translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation>Feuchte</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Sicht</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>%1, just now</source>
        <comment>who the weather comes from, and when it came</comment>
        <translation>%1, gerade eben</translation>
    </message>
    <message>
        <source>%1, %2 min ago</source>
        <translation>%1, vor %2 Min.</translation>
    </message>
    <message>
        <source>%1, %2 h ago</source>
        <translation>%1, vor %2 Std.</translation>
    </message>
    <message>
        <source>Nobody has allowed Quillmere yet to know where this machine is.</source>
        <translation>Noch hat niemand Quillmere erlaubt, den Standort dieses Rechners zu erfahren.</translation>
    </message>
    <message>
        <source>This machine cannot tell where it is: it has no location service.</source>
        <translation>Dieser Rechner kann nicht sagen, wo er ist: Er hat keinen Standortdienst.</translation>
    </message>
    <message>
        <source>Quillmere is not allowed to know where this machine is.</source>
        <translation>Quillmere darf den Standort dieses Rechners nicht erfahren.</translation>
    </message>
    <message>
        <source>No weather has come yet. It is asked for again every 15 minutes.</source>
        <translation>Noch ist kein Wetter da. Alle 15 Minuten wird wieder gefragt.</translation>
    </message>
    <message>
        <source>The search for places did not work: %1</source>
        <translation>Die Ortssuche ist gescheitert: %1</translation>
    </message>
    <message>
        <source>No place of that name</source>
        <translation>Kein Ort dieses Namens</translation>
    </message>
</context>
<context>
    <name>quillmere::WeatherService</name>
    <message>
        <source>Current Location</source>
        <translation>Aktueller Standort</translation>
    </message>
</context>
</TS>
