<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>印刷ダイアログを開けません。</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>プリンターがありません: --printer、--ppd、--sample のいずれかで指定してください</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>何も印刷していません。ダイアログの画像 (%1) は %2 にあり、「印刷」で送信されるオプションは標準出力に出力しました</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>パネルが概要を返しません</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>標準出力: 概要を書き込めません</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>標準出力: 書き込めません</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>ディスプレイがありません: ウィンドウを表示するには、デスクトップセッションで実行するか、DISPLAY または WAYLAND_DISPLAY を設定するか、仮想ディスプレイを使用してください: xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>PPD ファイルに記述されたプリンターを表示します。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>印刷サーバーのキューで印刷します。</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>キュー</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>プログラムに付属するサンプルプリンターを表示します。</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>プリンターまたはジョブのオプションを設定します。複数回指定できます。</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>キー=値</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>印刷する部数を指定します。</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>印刷するページを指定します (例: 1-3,5,8-)。</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>プリンターのプリセットを元にします。-o、-n、-P の指定が優先されます。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>ウィンドウを表示せず、すぐに印刷します。パネルの規則は同様に適用されます。</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>印刷せず、プリンターのプリセットを 1 行に 1 つずつ一覧表示します。</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>ドキュメントごとに別のジョブとして印刷します。</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>ジョブのオプションを 1 行に 1 つずつ「キー=値」の形式でファイルに書き込みます (&quot;-&quot;: 標準出力。キューを指定しない場合のデフォルト)。</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>パネルの診断ログの出力先を stderr、none、syslog (デフォルト)、またはファイルにします。</translation>
    </message>
    <message>
        <source>where</source>
        <translation>出力先</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>パネルをこのフォルダーから読み込みます (指定がなければ $TESSARIN_BUNDLE、それもなければプログラムとともにインストールされたもの)。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>ダイアログの表示言語を指定します (例: de、pt_BR)。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>印刷せず、各ページの画像をこのフォルダーに保存し、ジョブのオプションを標準出力に一覧表示します。ディスプレイがない場合は、指定がなくても ./tessarin-pages に対して実行されます。</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>印刷せず、ウィンドウも開かずに、設定を標準出力に一覧表示します。形式はテキスト、&quot;json&quot; を指定した場合は JSON です。</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>このテキストを表示します。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>印刷するドキュメント (&quot;-&quot;: 標準入力)。</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>使い方: -o %1: &quot;=&quot; の前にキーがありません</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>使い方: -n %1: 1 から 9999 までの部数ではありません</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>使い方: -P %1: %2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>使い方: --ppd と --printer は同時に指定できません: プリンターは一度に 1 台だけです</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>使い方: --printer %1: キューの名前ではありません</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>使い方: --sample は --ppd や --printer と同時に指定できません: プリンターは一度に 1 台だけです</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>使い方: --no-dialog は印刷を行いますが、--pictures、--summary、--list-presets は印刷を行いません</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>使い方: ドキュメントがありません: キュー %1 で印刷するものがありません</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(デフォルト)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>使い方: 標準入力 (&quot;-&quot;) は一度しか印刷できません</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>使い方: 名前が空のドキュメントがあります</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>使い方: --language %1: de や pt_BR のような言語コードではありません</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>使い方: --summary %1: 形式は text か json でなければなりません</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>使い方: --%1: 値が空です</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>プリンター設定のパネルを備えた印刷ダイアログです。--printer、--ppd、--sample のいずれも指定しない場合は、最後に使用したプリンターまたはデフォルトのプリンターで起動します。</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
終了コード: 0 印刷完了 (または印刷の代わりに指定された処理の完了)、1 キャンセル、2 使い方の誤り、使用できない設定、または書き込めないファイル、3 プリンター、4 ドキュメント、5 プラグイン。
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>カスタム用紙サイズ</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高さ(&amp;H):</translation>
    </message>
    <message>
        <source> in</source>
        <translation> インチ</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>もう一度試す(&amp;Y)</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>プリンターを探しています…</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>ドキュメントごとに別のジョブで印刷(&amp;J)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 を開いています…</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>印刷 – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>このプリンターでは使用できません</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>プリンターが開かれていません。</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>プリンターがありません。上の一覧から別の出力先を選択するか、システムの設定でプリンターを追加してもう一度検索してください。</translation>
    </message>
    <message>
        <source>print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a setting, %2 its value
----------
%1 says what was tried, %2 lists the settings</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Settings that exclude each other</source>
        <translation>同時に使用できない設定</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>このプリンターでは次の設定を同時に使用できません: %1。</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>何も印刷されませんでした。これらの設定のいずれかを変更してください。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブをキャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>ダイアログを閉じて、ジョブはそのまま続行します</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>印刷されていません: %1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>印刷されていません</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>ドキュメントと設定は保持されています。もう一度試すことができます。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>PDF として保存(&amp;S)…</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>PDF として保存するドキュメントがありません。</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF として保存</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF ファイル (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>印刷しています…</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>停止しています…</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 は %2です。</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>先にもう一方の設定を変更してください。</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>整合させるため、次の設定も変更されます: %1。</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>両方を変更(&amp;C)</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>同時に変更: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>プリセット %1: 現在このプリンターでは使用できません</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>プリセットを適用しました: %1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>デフォルト値は現在使用できません</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>デフォルト値に戻しました: %1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>デフォルト値に戻しました。</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>すべての設定はデフォルト値です。</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>機能を検索</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>このプリンターにはこれ以上の機能はありません。</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>このプリンターには、名前または選択肢に「%1」を含む機能はありません。</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>部単位で印刷(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>奇数/偶数(&amp;F):</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>用紙サイズ(&amp;E):</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>用紙の向き(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>両面印刷(&amp;T):</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>1 枚あたりのページ数(&amp;H):</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>カスタムサイズ…</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>1 部ずつまとめて印刷します</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>印刷するページ</translation>
    </message>
    <message>
        <source>1-3, 5, 8-</source>
        <translation>1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>印刷範囲:</translation>
    </message>
    <message>
        <source>Which pages? For example 1-3, 5, 8-</source>
        <translation>どのページですか? 例: 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>held</source>
        <translation>保留中</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>印刷サーバーにより中止</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>ジョブ %1: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>1 行が途中で切り詰められました</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>ログ %1: %2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>ログファイル %1: %2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2 (他の設定により %3 になります)</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>このプリンターでは使用できません: %1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>このプリンターでは次の設定を同時に使用できません: %1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>ジョブ %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>通知を閉じる</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>画像 %1: %2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>画像用フォルダー %1: 作成できません</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>ページ %1 (%2) はこのプリンターでは選択できません: 画像はありません</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>プリンターのプラグインに設定パネルがありません。</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 は他のプリンター用です: このプリンターには該当するオプションがありません。</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>パネルがプリンターの設定を読み取れませんでした。</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>プリンター設定のパネルがコントロールを読み込めませんでした。</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>プリンター設定</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>プリンターの機能</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>他のページの設定を使用して、そのまま印刷できます。</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>プラグイン %1: %2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>フォルダーが存在しません</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>バンドルの記述ファイルがありません</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>%1 バイト目: %2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>&quot;%1&quot; が指定されていません</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>ライブラリ &quot;%1&quot; はバンドルのフォルダーにあるファイルではありません</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>バンドルのライブラリがありません</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>プラグインではありません (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>印刷ダイアログのパネルではなく、別の用途のプラグインです (%1)</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>どのバージョンのパネルプロトコル用に作成されたかが示されていません</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>パネルプロトコルのバージョン %1 用に作成されていますが、このダイアログのバージョンは %2 です</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>ルートオブジェクトがパネルファクトリーではありません</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>理由は示されていません</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>パネルファクトリーを作成できませんでした</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>プリセット(&amp;S)</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>デフォルト設定</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>前回使用した設定</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>プリセット %1: この名前のプリセットはこのプリンターにありません</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>プリセット %1: %2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>プリセットとして保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>現在の設定を自分のデフォルトにする(&amp;M)</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>プリセットを保存しました: %1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>プリセットの名前を変更</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>プリセットの新しい名前:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>プリセットの名前を変更しました: %1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>プリセットを削除しました: %1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>これらの設定は、すべてのプログラムで %1 のデフォルトになりました (%2)。</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>サンプルプリンター</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>「印刷」でジョブのオプションを一覧表示</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>「印刷」でページをファイルに書き込み</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>PPD ファイル %1: 「印刷」でジョブのオプションを一覧表示</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R):</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>プリンターを再検索 (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>プリンターを再検索</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>プリンターを探しています…</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>用紙とレイアウト(&amp;L)</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>プリンター設定</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>プリンターの機能(&amp;F)</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>プリセットに保存する項目:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>プリセットに保存する項目を選択してください。</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>同じ名前のプリセットは置き換えられます。</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>このジョブ用に設定</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>変更済み (デフォルト: なし)</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>変更済み (デフォルト: %1)</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>デフォルト値に戻す(&amp;D)</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>すべてデフォルト値に戻す(&amp;L)</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>選択した設定をデフォルト値に戻す (Delete)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備考</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>ジョブのその他のオプション</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>%1 との併用不可</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>部の印刷順序</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>部単位 (1, 2, 3, 1, 2, 3)</translation>
    </message>
    <message>
        <source>page by page (1, 1, 2, 2, 3, 3)</source>
        <translation>ページ単位 (1, 1, 2, 2, 3, 3)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Of these</source>
        <translation>奇数/偶数</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>奇数ページと偶数ページ</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>奇数ページ</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>偶数ページ</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>用紙の向き</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>横 (逆方向)</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>縦 (逆方向)</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>1 枚あたりのページ数</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 is &quot;Custom&quot; in the printer&apos;s words, %2 the custom value, such as a paper size
----------
%1 is a printer&apos;s state, %2 lists the reasons</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; is not a page or a range such as 2-5</source>
        <translation>ページ範囲: &quot;%1&quot; はページ番号でも 2-5 のような範囲でもありません</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>ページ範囲: &quot;%1&quot; はあり得ないページを指定しています</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>ページ範囲: &quot;%1&quot; は終わりが始まりより前です</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>ページ範囲: &quot;%1&quot; が前のページより後になっていません: ジョブはページを順番どおりに 1 回ずつ印刷します</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>プリセットには名前が必要です</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>プリセットの名前は最大 %n 文字です</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>プリセットの名前は 1 行で、制御文字は使用できません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; は常に存在します: 他のプリセットにこの名前は使用できません</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>プリセットファイル %1: %2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>ディレクトリです</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>%1 行 %2 列</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; がリストではありません</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; がオブジェクトではありません</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>1 行目: JSON オブジェクトではありません</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; がバージョン番号ではありません</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>このプログラムの新しいバージョンで作成されています (ファイルの形式は %1、このプログラムの対応形式は %2): プリセットは使用できますが、変更はできません</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>プリセットフォルダー %1: %2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>別のプログラムがプリセットを変更中で、終了しません</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>ロックできません</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>大きくなりすぎます</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>同じ場所に破損したファイルが多すぎます</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>プリセット &quot;%1&quot; はありません</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>プリセット &quot;%1&quot; はすでにあります</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>プリセット: プリンターに名前がありません</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>プリセット &quot;%1&quot;: キーのない値があります</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1 (%2 として保管しました)</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>印刷サーバー %1: 接続できません: %2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>接続が切断されました</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>接続先から応答がありません</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>印刷サーバー %1 にこの名前のキューはありません</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>印刷サーバー %1 からのメッセージ: %2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>キュー %1: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>キュー %1 の PPD 用フォルダー: %2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>キュー %1 の PPD 用フォルダー: パス %2 が長すぎます</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>ファイル %1: 書き込めません</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>キュー %1: PPD ファイルを取得できません: %2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
印刷済み: %2
未印刷: %3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>印刷サーバー %1: キューの一覧を取得できません: %2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>ドキュメント %1: %2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>内容がありません</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>一度しか印刷できません</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>印刷サーバーがキャンセルできません: %1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>印刷サーバーにキュー %1 はもうありません</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>印刷サーバーに記録が残っていません</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>プリンターは停止しています</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>印刷済みの枚数: %1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>ジョブ %1: 印刷サーバー %2 から状態を取得できません: %3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>ジョブが受け付けられません: %1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>ドキュメント %1 が受け付けられません: %2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (ジョブ %1 がサーバーに残っている可能性があります: %2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>印刷するドキュメントがありません</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>PPD ファイルではなくディレクトリです</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>PPD ファイル %1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>一時停止の処理中</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源オフ</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>プリンターに接続しています</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>プリンターから応答がありません</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>用紙が必要です</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>用紙残りわずか</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>紙詰まり</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>給紙トレイがありません</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>排紙トレイがいっぱいです</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>インク切れ</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>インク残りわずか</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>廃棄ボックスがいっぱいです</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>廃棄ボックスがもうすぐいっぱいです</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>トナー切れ</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>トナー残りわずか</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>印刷サーバーに空き容量がありません</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新しいジョブは保留されます</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>ドライバーのプログラムが見つかりません</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>ドライバーのプログラムが他のユーザーにより変更可能です</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>プリンターは一部停止しています</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>指定時刻または保留の解除を待っています</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>残りのドキュメントを待っています</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>ユーザーがキャンセルしました</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>オペレーターがキャンセルしました</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>プリンター側でキャンセルされました</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>ドキュメントが破損しています</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>プリンターはこの種類のドキュメントを印刷できません</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>印刷されましたが、警告があります</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>印刷されましたが、エラーがあります</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>NUL バイトが含まれています</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>バックスラッシュの後に \、=、n、r のいずれもありません</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>&quot;=&quot; が含まれていません</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>&quot;=&quot; の前にキーがありません</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>UTF-8 のテキストではありません</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>標準出力へのチケット: %1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>チケットファイル %1: %2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>ファイル %1: %2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>。このファイルは削除できませんでした</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>。以前のものは %1 にあります</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>%1 の次のオプションは保持できませんでした: %2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>ファイル %1: 書き込めません: %2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>キュー %1: 次のオプションの値はデフォルトとして保持できません: %2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>キュー %1: 印刷サーバーにこの名前のキューはありません</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1、全ユーザー用</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>画像を読み取れません: %1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>ページ %1 を描画できません</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>用紙を表示する領域がありません</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>この種類のドキュメントはプレビューできません</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>PDF ファイルが破損しています</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>PDF ファイルはパスワードで保護されています</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>PDF ファイルにページがありません</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>ページが 1 つも選択されていません</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>ページを開始できません: %1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>ドキュメントがありません。</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>開いています…</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>ドキュメントの全 %n ページのうち、選択されているページはありません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>描画しています…</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>%1/%2 枚目</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1/%2 ページ</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>ここには最初のページだけが表示されますが、すべてのページが印刷されます</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>テキストが %1 MB を超えています</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>PDF ファイルを読み込むためのこのプログラムの部品がありません</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>%1 MiB を超えているか、壊れています</translation>
    </message>
</context>
</TS>
