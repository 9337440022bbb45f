<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>TessarinPrint</name>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>The print dialog cannot be opened.</source>
        <translation>无法打开打印对话框。</translation>
    </message>
    <message>
        <source>there is no printer: name one with --printer, --ppd or --sample</source>
        <translation>没有打印机：请使用 --printer、--ppd 或 --sample 指定一台</translation>
    </message>
    <message>
        <source>nothing was printed; pictures of the dialog (%1) are in %2, the options that Print would send are on standard output</source>
        <translation>未打印任何内容；对话框的图片 (%1) 位于 %2，“打印”将会发送的选项已写到标准输出</translation>
    </message>
    <message>
        <source>the panel gives no summary</source>
        <translation>面板未提供摘要</translation>
    </message>
    <message>
        <source>standard output: the summary cannot be written</source>
        <translation>标准输出：无法写入摘要</translation>
    </message>
    <message>
        <source>standard output: it cannot be written</source>
        <translation>标准输出：无法写入</translation>
    </message>
    <message>
        <source>there is no display: to get a window, run this in a desktop session, set DISPLAY or WAYLAND_DISPLAY, or use a virtual display: xvfb-run -a tessarin-print</source>
        <translation>没有显示器：要显示窗口，请在桌面会话中运行，设置 DISPLAY 或 WAYLAND_DISPLAY，或使用虚拟显示：xvfb-run -a tessarin-print</translation>
    </message>
    <message>
        <source>Show the printer that a PPD file describes.</source>
        <translation>显示 PPD 文件所描述的打印机。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Print on a queue of the print server.</source>
        <translation>在打印服务器的某个队列上打印。</translation>
    </message>
    <message>
        <source>queue</source>
        <translation>队列</translation>
    </message>
    <message>
        <source>Show the sample printer that comes with the program.</source>
        <translation>显示程序自带的示例打印机。</translation>
    </message>
    <message>
        <source>Set an option of the printer or the job; may be given more than once.</source>
        <translation>设置打印机或作业的选项；可多次指定。</translation>
    </message>
    <message>
        <source>key=value</source>
        <translation>键=值</translation>
    </message>
    <message>
        <source>Print this many copies.</source>
        <translation>打印指定的份数。</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Print these pages, such as 1-3,5,8-.</source>
        <translation>打印这些页面，例如 1-3,5,8-。</translation>
    </message>
    <message>
        <source>ranges</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>Start from a preset of the printer; -o, -n and -P go over it.</source>
        <translation>以打印机的某个预设为基础；-o、-n 和 -P 的设置优先于预设。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Print at once, without a window; the panel&apos;s rules apply all the same.</source>
        <translation>不显示窗口，立即打印；面板的规则仍然适用。</translation>
    </message>
    <message>
        <source>Print nothing: list the printer&apos;s presets, one a line.</source>
        <translation>不打印：列出打印机的预设，每行一个。</translation>
    </message>
    <message>
        <source>Print each document as a job of its own.</source>
        <translation>将每个文档作为单独的作业打印。</translation>
    </message>
    <message>
        <source>Write the job&apos;s options to a file, one key=value per line (&quot;-&quot;: to standard output, which is the default without a queue).</source>
        <translation>将作业的选项写入文件，每行一个“键=值”（&quot;-&quot;：写到标准输出，没有队列时默认如此）。</translation>
    </message>
    <message>
        <source>Send the panel&apos;s diagnostic log to stderr, none, syslog (default) or a file.</source>
        <translation>将面板的诊断日志发送到 stderr、none、syslog（默认）或某个文件。</translation>
    </message>
    <message>
        <source>where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Load the panel from this folder (else from $TESSARIN_BUNDLE, else the one installed with the program).</source>
        <translation>从此文件夹加载面板（否则从 $TESSARIN_BUNDLE 加载，再否则使用随程序安装的面板）。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Show the dialog in this language, such as de or pt_BR.</source>
        <translation>以此语言显示对话框，例如 de 或 pt_BR。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Print nothing: save a picture of each page in this folder and list the job&apos;s options on standard output. Without a display this happens anyway, in ./tessarin-pages.</source>
        <translation>不打印：将每个页面的图片保存到此文件夹，并在标准输出上列出作业的选项。没有显示器时总是如此，图片保存在 ./tessarin-pages 中。</translation>
    </message>
    <message>
        <source>Print nothing and open no window: list the settings on standard output, as text or, with &quot;json&quot;, as JSON.</source>
        <translation>不打印，也不打开窗口：在标准输出上以文本形式列出设置，指定 &quot;json&quot; 时则以 JSON 形式列出。</translation>
    </message>
    <message>
        <source>[json]</source>
        <translation>[json]</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>The documents to print (&quot;-&quot;: standard input).</source>
        <translation>要打印的文档（&quot;-&quot;：标准输入）。</translation>
    </message>
    <message>
        <source>usage: -o %1: there is no key before the &quot;=&quot;</source>
        <translation>用法错误：-o %1：&quot;=&quot; 前没有键</translation>
    </message>
    <message>
        <source>usage: -n %1: not a number of copies from 1 to 9999</source>
        <translation>用法错误：-n %1：不是 1 到 9999 之间的份数</translation>
    </message>
    <message>
        <source>usage: -P %1: %2</source>
        <translation>用法错误：-P %1：%2</translation>
    </message>
    <message>
        <source>usage: --ppd and --printer cannot be given together: one printer at a time</source>
        <translation>用法错误：--ppd 和 --printer 不能同时指定：一次只能使用一台打印机</translation>
    </message>
    <message>
        <source>usage: --printer %1: no name of a queue</source>
        <translation>用法错误：--printer %1：不是队列名称</translation>
    </message>
    <message>
        <source>usage: --sample cannot be given with --ppd or --printer: one printer at a time</source>
        <translation>用法错误：--sample 不能与 --ppd 或 --printer 同时指定：一次只能使用一台打印机</translation>
    </message>
    <message>
        <source>usage: --no-dialog prints, which --pictures, --summary and --list-presets do not</source>
        <translation>用法错误：--no-dialog 会打印，而 --pictures、--summary 和 --list-presets 不打印</translation>
    </message>
    <message>
        <source>usage: no document: there is nothing to print on queue %1</source>
        <translation>用法错误：没有文档：没有可在队列 %1 上打印的内容</translation>
    </message>
    <message>
        <source>(the default)</source>
        <translation>(默认)</translation>
    </message>
    <message>
        <source>usage: standard input (&quot;-&quot;) can be printed only once</source>
        <translation>用法错误：标准输入 (&quot;-&quot;) 只能打印一次</translation>
    </message>
    <message>
        <source>usage: a document has an empty name</source>
        <translation>用法错误：有文档的名称为空</translation>
    </message>
    <message>
        <source>usage: --language %1: not a language code such as de or pt_BR</source>
        <translation>用法错误：--language %1：不是 de 或 pt_BR 这样的语言代码</translation>
    </message>
    <message>
        <source>usage: --summary %1: not a form, which is text or json</source>
        <translation>用法错误：--summary %1：不是有效的格式，应为 text 或 json</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>用法错误：%1</translation>
    </message>
    <message>
        <source>usage: --%1: the value is empty</source>
        <translation>用法错误：--%1：值为空</translation>
    </message>
    <message>
        <source>A print dialog with the panel of printer settings. Without --printer, --ppd or --sample it starts with the printer that was used last, or the default one.</source>
        <translation>带有打印机设置面板的打印对话框。未指定 --printer、--ppd 或 --sample 时，以上次使用的打印机或默认打印机启动。</translation>
    </message>
    <message>
        <source>
Exit codes: 0 printed (or done what was asked in place of printing), 1 cancelled, 2 usage, settings that are not possible or a file that cannot be written, 3 printer, 4 document, 5 plug-in.
</source>
        <translation>
退出代码：0 已打印（或已完成代替打印的请求），1 已取消，2 用法错误、设置不可用或文件无法写入，3 打印机错误，4 文档错误，5 插件错误。
</translation>
    </message>
    <message>
        <source>Custom Paper Size</source>
        <translation>自定义纸张大小</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H):</translation>
    </message>
    <message>
        <source> in</source>
        <translation> 英寸</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> 毫米</translation>
    </message>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>重试(&amp;Y)</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>正在查找打印机…</translation>
    </message>
    <message>
        <source>Print each document as a &amp;job of its own</source>
        <translation>将每个文档作为单独的作业打印(&amp;J)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>正在打开 %1…</translation>
    </message>
    <message>
        <source>Print – %1</source>
        <translation>打印 – %1</translation>
    </message>
    <message>
        <source>Not possible on this printer</source>
        <translation>在此打印机上不可用</translation>
    </message>
    <message>
        <source>There is no printer open.</source>
        <translation>没有打开的打印机。</translation>
    </message>
    <message>
        <source>There are no printers. Choose another destination from the list above, or add a printer in the system&apos;s settings and look again.</source>
        <translation>没有打印机。请从上方列表中选择其他目标，或在系统设置中添加打印机后重新查找。</translation>
    </message>
    <message>
        <source>print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a setting, %2 its value
----------
%1 says what was tried, %2 lists the settings</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Settings that exclude each other</source>
        <translation>相互冲突的设置</translation>
    </message>
    <message>
        <source>The printer cannot do all of this at once: %1.</source>
        <translation>打印机无法同时满足以下设置：%1。</translation>
    </message>
    <message>
        <source>Nothing was printed. Change one of these settings.</source>
        <translation>未打印任何内容。请更改其中一项设置。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>取消作业</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close the dialog and let the job go on</source>
        <translation>关闭对话框并让作业继续</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>未打印：%1</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>未打印</translation>
    </message>
    <message>
        <source>Your document and settings are kept: you can try again.</source>
        <translation>您的文档和设置已保留：可以重试。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>另存为 PDF(&amp;S)…</translation>
    </message>
    <message>
        <source>There is no document to save as PDF.</source>
        <translation>没有可另存为 PDF 的文档。</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>另存为 PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF 文件 (*.pdf)</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>%1 is possible %2.</source>
        <extracomment>%1 is a setting with its value, %2 says what it does not go with</extracomment>
        <translation>%1 %2。</translation>
    </message>
    <message>
        <source>Change the other setting first.</source>
        <translation>请先更改另一项设置。</translation>
    </message>
    <message>
        <source>To make it fit, this would be set, too: %1.</source>
        <translation>为使设置相容，还将同时设置：%1。</translation>
    </message>
    <message>
        <source>&amp;Change Both</source>
        <translation>同时更改两项(&amp;C)</translation>
    </message>
    <message>
        <source>Changed, too: %1</source>
        <translation>同时更改了：%1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤消(&amp;U)</translation>
    </message>
    <message>
        <source>Preset %1: not possible on this printer now</source>
        <translation>预设 %1：目前在此打印机上不可用</translation>
    </message>
    <message>
        <source>Preset applied: %1</source>
        <translation>已应用预设：%1</translation>
    </message>
    <message>
        <source>Its default is not possible now</source>
        <translation>其默认值目前不可用</translation>
    </message>
    <message>
        <source>Reset to its default: %1</source>
        <translation>已重置为默认值：%1</translation>
    </message>
    <message>
        <source>Reset to defaults.</source>
        <translation>已重置为默认值。</translation>
    </message>
    <message>
        <source>All settings are at their defaults.</source>
        <translation>所有设置均为默认值。</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>查找功能</translation>
    </message>
    <message>
        <source>This printer has no further features.</source>
        <translation>此打印机没有其他功能。</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>No feature of this printer has “%1” in its name or choices.</source>
        <translation>此打印机没有名称或选项中包含“%1”的功能。</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>逐份打印(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>页面(&amp;G):</translation>
    </message>
    <message>
        <source>O&amp;f these:</source>
        <translation>其中(&amp;F):</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>纸张大小(&amp;E):</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>方向(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Two-sided:</source>
        <translation>双面打印(&amp;T):</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>每张页数(&amp;H):</translation>
    </message>
    <message>
        <source>Custom Size…</source>
        <translation>自定义大小…</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Whole copies one after the other</source>
        <translation>打印完整的一份后再打印下一份</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>份数(&amp;C):</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>要打印的页面</translation>
    </message>
    <message>
        <source>1-3, 5, 8-</source>
        <translation>1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>打印:</translation>
    </message>
    <message>
        <source>Which pages? For example 1-3, 5, 8-</source>
        <translation>哪些页面？例如 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>正在等待</translation>
    </message>
    <message>
        <source>held</source>
        <translation>已挂起</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>已被打印服务器中止</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <extracomment>%1 is a job&apos;s number, %2 what it is doing</extracomment>
        <translation>作业 %1：%2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>%1 is a choice, %2 says what it does not go with</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>a line was cut short</source>
        <translation>有一行被截断</translation>
    </message>
    <message>
        <source>log %1: %2</source>
        <translation>日志 %1：%2</translation>
    </message>
    <message>
        <source>log file %1: %2</source>
        <translation>日志文件 %1：%2</translation>
    </message>
    <message>
        <source>%1=%2 (with the other settings it is %3)</source>
        <translation>%1=%2（在其他设置下为 %3）</translation>
    </message>
    <message>
        <source>not possible on this printer: %1</source>
        <translation>在此打印机上不可用：%1</translation>
    </message>
    <message>
        <source>the printer cannot do all of this at once: %1</source>
        <translation>打印机无法同时满足以下设置：%1</translation>
    </message>
    <message>
        <source>job %1-%2
</source>
        <translation>作业 %1-%2
</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>关闭通知</translation>
    </message>
    <message>
        <source>picture %1: %2</source>
        <translation>图片 %1：%2</translation>
    </message>
    <message>
        <source>folder for pictures %1: it cannot be made</source>
        <translation>图片文件夹 %1：无法创建</translation>
    </message>
    <message>
        <source>page %1 (%2) cannot be selected for this printer: no picture of it</source>
        <translation>无法为此打印机选择页面 %1 (%2)：没有该页面的图片</translation>
    </message>
    <message>
        <source>The printer&apos;s plug-in offers no panel of settings.</source>
        <translation>打印机的插件未提供设置面板。</translation>
    </message>
    <message>
        <source>%1 is for other printers: this one has none of its options.</source>
        <translation>%1 适用于其他打印机：此打印机没有它的任何选项。</translation>
    </message>
    <message>
        <source>The panel could not read the printer&apos;s settings.</source>
        <translation>面板无法读取打印机的设置。</translation>
    </message>
    <message>
        <source>The panel of printer settings could not load its controls.</source>
        <translation>打印机设置面板无法加载其控件。</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>打印机设置</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>打印机功能</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>You can print all the same, with the settings of the other pages.</source>
        <translation>您仍然可以使用其他页面的设置进行打印。</translation>
    </message>
    <message>
        <source>plug-in %1: %2</source>
        <translation>插件 %1：%2</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>没有此文件夹</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>the bundle&apos;s description is missing</source>
        <translation>缺少插件包的描述</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>第 %1 字节处：%2</translation>
    </message>
    <message>
        <source>it does not give &quot;%1&quot;</source>
        <translation>未给出 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the library &quot;%1&quot; is not a file of the bundle&apos;s folder</source>
        <translation>库 &quot;%1&quot; 不是插件包文件夹中的文件</translation>
    </message>
    <message>
        <source>the bundle&apos;s library is missing</source>
        <translation>缺少插件包的库</translation>
    </message>
    <message>
        <source>it is not a plug-in (%1)</source>
        <translation>不是插件 (%1)</translation>
    </message>
    <message>
        <source>it is a plug-in for something else (%1), not a print dialog panel</source>
        <translation>是用于其他用途的插件 (%1)，不是打印对话框面板</translation>
    </message>
    <message>
        <source>it does not say for which version of the panel protocol it was made</source>
        <translation>未说明适用于哪个版本的面板协议</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel protocol; this dialog has version %2</source>
        <translation>适用于面板协议版本 %1；此对话框使用版本 %2</translation>
    </message>
    <message>
        <source>its root object is not a panel factory</source>
        <translation>其根对象不是面板工厂</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>未给出原因</translation>
    </message>
    <message>
        <source>its panel factory could not be made</source>
        <translation>无法创建其面板工厂</translation>
    </message>
    <message>
        <source>Pre&amp;sets</source>
        <translation>预设(&amp;S)</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>默认设置</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>上次使用</translation>
    </message>
    <message>
        <source>preset %1: this printer has none of this name</source>
        <translation>预设 %1：此打印机没有此名称的预设</translation>
    </message>
    <message>
        <source>preset %1: %2</source>
        <translation>预设 %1：%2</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>另存为预设(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Make These &amp;My Defaults</source>
        <translation>设为我的默认设置(&amp;M)</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>已保存预设：%1</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>重命名预设</translation>
    </message>
    <message>
        <source>New name of the preset:</source>
        <translation>预设的新名称:</translation>
    </message>
    <message>
        <source>Preset renamed: %1</source>
        <translation>已重命名预设：%1</translation>
    </message>
    <message>
        <source>Preset deleted: %1</source>
        <translation>已删除预设：%1</translation>
    </message>
    <message>
        <source>These settings are your defaults for %1 now, in every program (%2).</source>
        <translation>这些设置现已成为您在所有程序中使用 %1 时的默认设置（%2）。</translation>
    </message>
    <message>
        <source>Sample printer</source>
        <translation>示例打印机</translation>
    </message>
    <message>
        <source>Print lists the job&apos;s options</source>
        <translation>“打印”将列出作业的选项</translation>
    </message>
    <message>
        <source>Print writes the pages into a file</source>
        <translation>“打印”会将页面写入文件</translation>
    </message>
    <message>
        <source>PPD file %1: Print lists the job&apos;s options</source>
        <translation>PPD 文件 %1：“打印”将列出作业的选项</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>打印机(&amp;R):</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Look for printers again (F5)</source>
        <translation>重新查找打印机 (F5)</translation>
    </message>
    <message>
        <source>Look for printers again</source>
        <translation>重新查找打印机</translation>
    </message>
    <message>
        <source>looking for printers…</source>
        <translation>正在查找打印机…</translation>
    </message>
    <message>
        <source>Paper and &amp;layout</source>
        <translation>纸张和布局(&amp;L)</translation>
    </message>
    <message>
        <source>Printer settings</source>
        <translation>打印机设置</translation>
    </message>
    <message>
        <source>Printer &amp;features</source>
        <translation>打印机功能(&amp;F)</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>另存为预设</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N):</translation>
    </message>
    <message>
        <source>The preset keeps:</source>
        <translation>预设保留的内容:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Choose what the preset keeps.</source>
        <translation>选择预设保留的内容。</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>这将替换同名的预设。</translation>
    </message>
    <message>
        <source>set for this job</source>
        <translation>已为此作业设置</translation>
    </message>
    <message>
        <source>changed (default: none)</source>
        <translation>已更改（默认：无）</translation>
    </message>
    <message>
        <source>changed (default: %1)</source>
        <translation>已更改（默认：%1）</translation>
    </message>
    <message>
        <source>Reset to &amp;Default</source>
        <translation>重置为默认值(&amp;D)</translation>
    </message>
    <message>
        <source>Reset A&amp;ll to Defaults</source>
        <translation>全部重置为默认值(&amp;L)</translation>
    </message>
    <message>
        <source>Reset the selected settings (Delete)</source>
        <translation>重置所选设置 (Delete)</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Other options of the job</source>
        <translation>作业的其他选项</translation>
    </message>
    <message>
        <source>not with %1</source>
        <extracomment>%1 lists settings, such as &quot;Media Type: Canvas&quot;</extracomment>
        <translation>不能与 %1 同时使用</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>多份打印顺序</translation>
    </message>
    <message>
        <source>collated (1, 2, 3, 1, 2, 3)</source>
        <translation>逐份 (1, 2, 3, 1, 2, 3)</translation>
    </message>
    <message>
        <source>page by page (1, 1, 2, 2, 3, 3)</source>
        <translation>逐页 (1, 1, 2, 2, 3, 3)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Of these</source>
        <translation>其中</translation>
    </message>
    <message>
        <source>odd and even pages</source>
        <translation>奇数页和偶数页</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>奇数页</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>偶数页</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>reverse landscape</source>
        <translation>反向横向</translation>
    </message>
    <message>
        <source>reverse portrait</source>
        <translation>反向纵向</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>每张页数</translation>
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
        <translation>页面范围：&quot;%1&quot; 不是页码，也不是 2-5 这样的范围</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; names a page that cannot be</source>
        <translation>页面范围：&quot;%1&quot; 指定了不可能存在的页面</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; ends before it begins</source>
        <translation>页面范围：&quot;%1&quot; 的结束页在起始页之前</translation>
    </message>
    <message>
        <source>page ranges: &quot;%1&quot; does not follow the pages before it: a job prints its pages in their order, each once</source>
        <translation>页面范围：&quot;%1&quot; 未接在前面的页面之后：作业按顺序打印页面，每页一次</translation>
    </message>
    <message>
        <source>a preset needs a name</source>
        <translation>预设需要名称</translation>
    </message>
    <message numerus="yes">
        <source>the name of a preset has at most %n characters</source>
        <translation>
            <numerusform>预设名称最多 %n 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>the name of a preset is one line, without control characters</source>
        <translation>预设名称只能有一行，且不含控制字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is always there: no other preset can have its name</source>
        <translation>&quot;%1&quot; 始终存在：其他预设不能使用此名称</translation>
    </message>
    <message>
        <source>presets file %1: %2</source>
        <translation>预设文件 %1：%2</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>是目录</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>不是常规文件</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行，第 %2 列</translation>
    </message>
    <message>
        <source>&quot;presets&quot; is not a list</source>
        <translation>&quot;presets&quot; 不是列表</translation>
    </message>
    <message>
        <source>&quot;lastUsed&quot; is not an object</source>
        <translation>&quot;lastUsed&quot; 不是对象</translation>
    </message>
    <message>
        <source>line 1: not a JSON object</source>
        <translation>第 1 行：不是 JSON 对象</translation>
    </message>
    <message>
        <source>&quot;version&quot; is not a version number</source>
        <translation>&quot;version&quot; 不是版本号</translation>
    </message>
    <message>
        <source>it was written by a later version of this program (its format is %1, this program knows %2): its presets can be used, not changed</source>
        <translation>由此程序的更高版本写入（其格式为 %1，此程序支持 %2）：其中的预设可以使用，但不能更改</translation>
    </message>
    <message>
        <source>presets folder %1: %2</source>
        <translation>预设文件夹 %1：%2</translation>
    </message>
    <message>
        <source>another program is changing presets and does not come to an end</source>
        <translation>另一个程序正在更改预设，且迟迟没有结束</translation>
    </message>
    <message>
        <source>it cannot be locked</source>
        <translation>无法锁定</translation>
    </message>
    <message>
        <source>it would become too large</source>
        <translation>将会变得过大</translation>
    </message>
    <message>
        <source>too many damaged files beside it</source>
        <translation>同一位置的损坏文件过多</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;</source>
        <translation>没有预设 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is already a preset &quot;%1&quot;</source>
        <translation>已有预设 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>presets: the printer has no name</source>
        <translation>预设：打印机没有名称</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;: a value has no key</source>
        <translation>预设 &quot;%1&quot;：有一个值没有键</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1；已保留为 %2</translation>
    </message>
    <message>
        <source>print server %1: it cannot be reached: %2</source>
        <translation>打印服务器 %1：无法连接：%2</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>连接已断开</translation>
    </message>
    <message>
        <source>nothing answers there</source>
        <translation>该地址无响应</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>没有响应</translation>
    </message>
    <message>
        <source>the print server %1 has no queue of this name</source>
        <translation>打印服务器 %1 没有此名称的队列</translation>
    </message>
    <message>
        <source>the print server %1 says: %2</source>
        <translation>打印服务器 %1 报告：%2</translation>
    </message>
    <message>
        <source>queue %1: %2</source>
        <translation>队列 %1：%2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: %2</source>
        <translation>队列 %1 的 PPD 文件夹：%2</translation>
    </message>
    <message>
        <source>folder for the PPD of queue %1: the path %2 is too long</source>
        <translation>队列 %1 的 PPD 文件夹：路径 %2 过长</translation>
    </message>
    <message>
        <source>file %1: it cannot be written</source>
        <translation>文件 %1：无法写入</translation>
    </message>
    <message>
        <source>queue %1: its PPD file cannot be fetched: %2</source>
        <translation>队列 %1：无法获取其 PPD 文件：%2</translation>
    </message>
    <message>
        <source>%1
Printed already: %2
Not printed: %3</source>
        <translation>%1
已打印：%2
未打印：%3</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>不接受作业</translation>
    </message>
    <message>
        <source>print server %1: it does not list its queues: %2</source>
        <translation>打印服务器 %1：未列出其队列：%2</translation>
    </message>
    <message>
        <source>document %1: %2</source>
        <translation>文档 %1：%2</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>没有内容</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>it can be printed only once</source>
        <translation>只能打印一次</translation>
    </message>
    <message>
        <source>the print server does not cancel it: %1</source>
        <translation>打印服务器未将其取消：%1</translation>
    </message>
    <message>
        <source>the print server no longer has the queue %1</source>
        <translation>打印服务器上已没有队列 %1</translation>
    </message>
    <message>
        <source>the print server keeps no record of it</source>
        <translation>打印服务器没有其记录</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>打印机已停止</translation>
    </message>
    <message>
        <source>sheets so far: %1</source>
        <translation>已打印张数：%1</translation>
    </message>
    <message>
        <source>job %1: the print server %2 does not tell how it is: %3</source>
        <translation>作业 %1：打印服务器 %2 未报告其状态：%3</translation>
    </message>
    <message>
        <source>it is not accepting jobs</source>
        <translation>目前不接受作业</translation>
    </message>
    <message>
        <source>it does not take the job: %1</source>
        <translation>不接受该作业：%1</translation>
    </message>
    <message>
        <source>it does not take the document %1: %2</source>
        <translation>不接受文档 %1：%2</translation>
    </message>
    <message>
        <source> (job %1 may remain on the server: %2)</source>
        <translation> (作业 %1 可能仍留在服务器上：%2)</translation>
    </message>
    <message>
        <source>there is no document to print</source>
        <translation>没有要打印的文档</translation>
    </message>
    <message>
        <source>it is a directory, not a PPD file</source>
        <translation>是目录，不是 PPD 文件</translation>
    </message>
    <message>
        <source>PPD file %1: %2</source>
        <translation>PPD 文件 %1：%2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>being paused</source>
        <translation>正在暂停</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>已关机</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>脱机</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>正在连接打印机</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>打印机没有响应</translation>
    </message>
    <message>
        <source>paper is needed</source>
        <translation>需要装入纸张</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>缺纸</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>纸张不足</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>卡纸</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>盖板已打开</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>机门已打开</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>缺少纸盒</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>出纸盒已满</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>墨水已用尽</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>墨水不足</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>废料盒已满</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>废料盒将满</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>碳粉已用尽</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>碳粉不足</translation>
    </message>
    <message>
        <source>the print server has no room left</source>
        <translation>打印服务器没有剩余空间</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新作业将被挂起</translation>
    </message>
    <message>
        <source>a program of its driver is missing</source>
        <translation>缺少其驱动程序的某个组件</translation>
    </message>
    <message>
        <source>a program of its driver can be changed by others</source>
        <translation>其驱动程序的某个组件可被他人更改</translation>
    </message>
    <message>
        <source>the printer is partly stopped</source>
        <translation>打印机已部分停止</translation>
    </message>
    <message>
        <source>it waits for its time or its release</source>
        <translation>正在等待预定时间或释放</translation>
    </message>
    <message>
        <source>documents are still to come</source>
        <translation>仍有文档待传入</translation>
    </message>
    <message>
        <source>cancelled by a person</source>
        <translation>已被用户取消</translation>
    </message>
    <message>
        <source>cancelled by an operator</source>
        <translation>已被操作员取消</translation>
    </message>
    <message>
        <source>cancelled at the printer</source>
        <translation>已在打印机上取消</translation>
    </message>
    <message>
        <source>the document is damaged</source>
        <translation>文档已损坏</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>打印机无法打印此类文档</translation>
    </message>
    <message>
        <source>printed with warnings</source>
        <translation>已打印，但有警告</translation>
    </message>
    <message>
        <source>printed with errors</source>
        <translation>已打印，但有错误</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>包含值为零的字节</translation>
    </message>
    <message>
        <source>a backslash is not followed by \, =, n or r</source>
        <translation>反斜杠后不是 \、=、n 或 r</translation>
    </message>
    <message>
        <source>there is no &quot;=&quot; in it</source>
        <translation>其中没有 &quot;=&quot;</translation>
    </message>
    <message>
        <source>there is no key before the &quot;=&quot;</source>
        <translation>&quot;=&quot; 前没有键</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>ticket on standard output: %1</source>
        <translation>标准输出上的作业单：%1</translation>
    </message>
    <message>
        <source>ticket file %1: %2</source>
        <translation>作业单文件 %1：%2</translation>
    </message>
    <message>
        <source>file %1: %2</source>
        <translation>文件 %1：%2</translation>
    </message>
    <message>
        <source>; it could not be removed again</source>
        <translation>；未能再将其移除</translation>
    </message>
    <message>
        <source>; the earlier ones are in %1</source>
        <translation>；先前的内容在 %1 中</translation>
    </message>
    <message>
        <source>these options of %1 could not be kept: %2</source>
        <translation>无法保留 %1 的以下选项：%2</translation>
    </message>
    <message>
        <source>file %1: it cannot be written: %2</source>
        <translation>文件 %1：无法写入：%2</translation>
    </message>
    <message>
        <source>queue %1: the values of these options cannot be kept as defaults: %2</source>
        <translation>队列 %1：以下选项的值无法保留为默认值：%2</translation>
    </message>
    <message>
        <source>queue %1: the print server has no queue of this name</source>
        <translation>队列 %1：打印服务器没有此名称的队列</translation>
    </message>
    <message>
        <source>%1, for all users</source>
        <translation>%1，适用于所有用户</translation>
    </message>
    <message>
        <source>the image cannot be read: %1</source>
        <translation>无法读取图像：%1</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation>无法绘制第 %1 页</translation>
    </message>
    <message>
        <source>there is no room for the paper</source>
        <translation>没有显示纸张的空间</translation>
    </message>
    <message>
        <source>there is no preview of this kind of document</source>
        <translation>此类文档没有预览</translation>
    </message>
    <message>
        <source>the PDF file is damaged</source>
        <translation>PDF 文件已损坏</translation>
    </message>
    <message>
        <source>the PDF file is protected by a password</source>
        <translation>PDF 文件受密码保护</translation>
    </message>
    <message>
        <source>the PDF file has no pages</source>
        <translation>PDF 文件没有页面</translation>
    </message>
    <message>
        <source>none of the pages is selected</source>
        <translation>未选择任何页面</translation>
    </message>
    <message>
        <source>a page cannot be begun: %1</source>
        <translation>无法开始新的一页：%1</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>There is no document.</source>
        <translation>没有文档。</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>正在打开…</translation>
    </message>
    <message numerus="yes">
        <source>None of the document&apos;s %n pages is selected.</source>
        <translation>
            <numerusform>文档的 %n 个页面均未选中。</numerusform>
        </translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>正在绘制…</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>第 %1 张，共 %2 张</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>only the first page is shown here; all pages are printed</source>
        <translation>此处仅显示第一页；所有页面都会打印</translation>
    </message>
    <message>
        <source>the text is longer than %1 MB</source>
        <translation>文本超过 %1 MB</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>the part of this program that reads PDF files is missing</source>
        <translation>缺少本程序中读取 PDF 文件的部分</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB, or damaged</source>
        <translation>超过 %1 MiB 或已损坏</translation>
    </message>
</context>
</TS>
