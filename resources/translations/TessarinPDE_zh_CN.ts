<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Tessarin 设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>墨水消耗</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>墨水使用</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>墨量限制</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>介质类型:</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>抖动:</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>墨盒:</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>打印分辨率:</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>亮度:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>对比度:</translation>
    </message>
    <message>
        <source>Use Ghostscript for PostScript</source>
        <translation>用 Ghostscript 处理 PostScript</translation>
    </message>
    <message>
        <source>Rendering Intent:</source>
        <translation>渲染意图:</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>颜色模式:</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>色彩空间:</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>参考光源:</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>色域:</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>阴影:</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>灰色调 A:</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>灰色调 B:</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>手动颜色校正</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>黑色:</translation>
    </message>
    <message>
        <source>Cyan:</source>
        <translation>青色:</translation>
    </message>
    <message>
        <source>Magenta:</source>
        <translation>品红:</translation>
    </message>
    <message>
        <source>Yellow:</source>
        <translation>黄色:</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>上次作业</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>所有作业</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>合计:</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>打印模拟 (打印机不实际打印)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重载</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>黑色用量 (UCR):</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>浅青墨
用量:</translation>
    </message>
    <message>
        <source>Bright Inks
Usage:</source>
        <translation>浅色墨
用量:</translation>
    </message>
    <message>
        <source>Total Ink Maximum:</source>
        <translation>总墨量上限:</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>墨水浓度:</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>黑色墨量限制:</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>青色墨量限制:</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>品红墨量限制:</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>黄色墨量限制:</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>打印模拟</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>开 - 不进行打印</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>关 - 正常打印</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>墨盒</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>介质类型</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>打印分辨率</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>渲染意图</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>颜色模式</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>抖动</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>色彩空间</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>CMYK 色彩空间</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>PostScript 解释器</translation>
    </message>
    <message>
        <source>Ghostscript</source>
        <translation>Ghostscript</translation>
    </message>
    <message>
        <source>Mac OS</source>
        <translation>Mac OS</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>参考光源</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>阴影</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>灰色调 A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>灰色调 B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>黑色用量 (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>浅青墨用量</translation>
    </message>
    <message>
        <source>Usage Bright Magenta</source>
        <translation>浅品红墨用量</translation>
    </message>
    <message>
        <source>Bright Inks Usage:</source>
        <translation>浅色墨用量:</translation>
    </message>
    <message>
        <source>Bright Inks</source>
        <translation>浅色墨</translation>
    </message>
    <message>
        <source>Total Ink Maximum</source>
        <translation>总墨量上限</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>墨水浓度</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>黑色墨量限制</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>青色墨量限制</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>品红墨量限制</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>黄色墨量限制</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>品红</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>照片黑</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>浅灰</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>浅品红</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>浅青</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>浅黄</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Optimizer</source>
        <translation>光泽优化</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>PG 黑</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>哑光黑</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>深灰</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>注意:</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>您选择了不含颜色数据的不完整介质配置文件！
此配置文件仅应用于打印色卡！</translation>
    </message>
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>打印机中安装的墨盒。</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>要打印的介质；墨量和颜色会与之匹配。</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>墨滴放置的精细程度：分辨率越高，细节越多，耗时越长。</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>如何用可打印的颜色替代无法打印的颜色。</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>以灰度还是彩色打印，以及使用哪种颜色数据。</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>用于形成色调层次的墨滴图案。</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>RGB 数据中的数值所代表的颜色。</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>CMYK 数据中的数值所代表的颜色。</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>使整个打印件变亮或变暗。</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>增强或减弱明暗之间的差别。</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>观看打印件时的日光，从暖色 (D50) 到冷色 (D80)。</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>使颜色更鲜艳或更柔和。</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>使打印件的暗部变亮或变暗。</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>使灰色偏绿或偏红。</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>使灰色偏蓝或偏黄。</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>暗色调和灰色调中以黑色墨水代替彩色墨水打印的比例。</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>用浅青色墨水代替青色墨水的量；没有品红色滑块时，为所有浅色墨水的量。</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>用浅品红色墨水代替品红色墨水的量。</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>同一位置上所有颜色墨水总量的上限。</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>将所有墨水的用量减少此比例。</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>同一位置上黑色墨水的上限。</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>同一位置上青色墨水的上限。</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>同一位置上品红色墨水的上限。</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>同一位置上黄色墨水的上限。</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>增加或减少打印件中的黑色。</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>增加或减少打印件中的青色。</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>增加或减少打印件中的品红色。</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>增加或减少打印件中的黄色。</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>会统计作业的墨量，但不打印任何内容。</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>允许本页的四个滑块更改打印件的颜色。</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>由 Ghostscript 代替系统自带的解释器将 PostScript 数据转换为打印图像。</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>上一个作业使用的此墨水量。</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>所有作业合计使用的此墨水量。</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>重新读取墨水使用量。</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>“%1：%2”时不可用。</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>“%1：%2”是没有颜色数据的介质配置文件，因此不可用。</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>打开“%1”后可用。</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>不可用：未安装 Ghostscript。</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>当前设置下不可用。</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>此打印机在这里没有可选项。</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>“%1：%2”时不提供 (%3)：%4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>被“%1：%2”排除 (%3)：%4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>无法选择 (%1)：%2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>双击或按 Delete 键恢复默认值 %1。</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>按数字键或 F2 可打开数值输入框。</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>恢复默认值 (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>输入数值…</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>请输入 %1 到 %2 之间的数值。</translation>
    </message>
</context>
</TS>
