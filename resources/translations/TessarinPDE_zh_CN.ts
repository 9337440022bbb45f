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
</context>
</TS>
