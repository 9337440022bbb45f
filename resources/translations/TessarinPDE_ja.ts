<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>TessarinPDE</name>
    <message>
        <source>Tessarin Settings</source>
        <translation>Tessarin 設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>補正</translation>
    </message>
    <message>
        <source>Ink Consumption</source>
        <translation>インク消費量</translation>
    </message>
    <message>
        <source>Ink Usage</source>
        <translation>インク使用</translation>
    </message>
    <message>
        <source>Ink Limits</source>
        <translation>インク制限</translation>
    </message>
    <message>
        <source>Media Type:</source>
        <translation>用紙種類:</translation>
    </message>
    <message>
        <source>Dithering:</source>
        <translation>ディザ方式:</translation>
    </message>
    <message>
        <source>Cartridge:</source>
        <translation>カートリッジ:</translation>
    </message>
    <message>
        <source>Print Resolution:</source>
        <translation>印刷解像度:</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>明るさ:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>コントラスト:</translation>
    </message>
    <message>
        <source>Use Ghostscript for PostScript</source>
        <translation>PostScript に Ghostscript を使用</translation>
    </message>
    <message>
        <source>Rendering Intent:</source>
        <translation>マッチング方法:</translation>
    </message>
    <message>
        <source>Color Mode:</source>
        <translation>カラーモード:</translation>
    </message>
    <message>
        <source>Color Space:</source>
        <translation>色空間:</translation>
    </message>
    <message>
        <source>Reference Light:</source>
        <translation>基準光源:</translation>
    </message>
    <message>
        <source>Color Gamut:</source>
        <translation>色域:</translation>
    </message>
    <message>
        <source>Shadows:</source>
        <translation>シャドウ:</translation>
    </message>
    <message>
        <source>Greytone A:</source>
        <translation>グレー色調 A:</translation>
    </message>
    <message>
        <source>Greytone B:</source>
        <translation>グレー色調 B:</translation>
    </message>
    <message>
        <source>Manual color correction</source>
        <translation>手動カラー補正</translation>
    </message>
    <message>
        <source>Black:</source>
        <translation>ブラック:</translation>
    </message>
    <message>
        <source>Cyan:</source>
        <translation>シアン:</translation>
    </message>
    <message>
        <source>Magenta:</source>
        <translation>マゼンタ:</translation>
    </message>
    <message>
        <source>Yellow:</source>
        <translation>イエロー:</translation>
    </message>
    <message>
        <source>Last Job</source>
        <translation>前回ジョブ</translation>
    </message>
    <message>
        <source>All Jobs</source>
        <translation>全ジョブ</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>合計:</translation>
    </message>
    <message>
        <source>Print simulation (the printer prints nothing)</source>
        <translation>印刷シミュレーション (実際には印刷しません)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読込</translation>
    </message>
    <message>
        <source>Black Usage (UCR):</source>
        <translation>ブラック使用量 (UCR):</translation>
    </message>
    <message>
        <source>Bright Cyan
Usage:</source>
        <translation>ライトシアン
使用量:</translation>
    </message>
    <message>
        <source>Bright Inks
Usage:</source>
        <translation>ライトインク
使用量:</translation>
    </message>
    <message>
        <source>Total Ink Maximum:</source>
        <translation>総インク量上限:</translation>
    </message>
    <message>
        <source>Ink-Intensity:</source>
        <translation>インク濃度:</translation>
    </message>
    <message>
        <source>Ink-Limit Black:</source>
        <translation>ブラック制限:</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan:</source>
        <translation>シアン制限:</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta:</source>
        <translation>マゼンタ制限:</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow:</source>
        <translation>イエロー制限:</translation>
    </message>
    <message>
        <source>Print Simulation</source>
        <translation>印刷シミュレーション</translation>
    </message>
    <message>
        <source>ON - printing is disabled</source>
        <translation>オン - 印刷しません</translation>
    </message>
    <message>
        <source>OFF - printing is enabled</source>
        <translation>オフ - 印刷します</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>カートリッジ</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>用紙種類</translation>
    </message>
    <message>
        <source>Print Resolution</source>
        <translation>印刷解像度</translation>
    </message>
    <message>
        <source>Rendering Intent</source>
        <translation>マッチング方法</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Dithering</source>
        <translation>ディザ方式</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>色空間</translation>
    </message>
    <message>
        <source>CMYK-Colorspace</source>
        <translation>CMYK 色空間</translation>
    </message>
    <message>
        <source>Postscript-Processor</source>
        <translation>PostScript 処理</translation>
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
        <translation>有効</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Reference Light</source>
        <translation>基準光源</translation>
    </message>
    <message>
        <source>Color Gamut</source>
        <translation>色域</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>シャドウ</translation>
    </message>
    <message>
        <source>Greytone A</source>
        <translation>グレー色調 A</translation>
    </message>
    <message>
        <source>Greytone B</source>
        <translation>グレー色調 B</translation>
    </message>
    <message>
        <source>Black Usage (UCR)</source>
        <translation>ブラック使用量 (UCR)</translation>
    </message>
    <message>
        <source>Usage Bright Cyan</source>
        <translation>ライトシアン使用量</translation>
    </message>
    <message>
        <source>Usage Bright Magenta</source>
        <translation>ライトマゼンタ使用量</translation>
    </message>
    <message>
        <source>Bright Inks Usage:</source>
        <translation>ライトインク使用量:</translation>
    </message>
    <message>
        <source>Total Ink Maximum</source>
        <translation>総インク量上限</translation>
    </message>
    <message>
        <source>Ink-Intensity</source>
        <translation>インク濃度</translation>
    </message>
    <message>
        <source>Ink-Limit Black</source>
        <translation>ブラック制限</translation>
    </message>
    <message>
        <source>Ink-Limit Cyan</source>
        <translation>シアン制限</translation>
    </message>
    <message>
        <source>Ink-Limit Magenta</source>
        <translation>マゼンタ制限</translation>
    </message>
    <message>
        <source>Ink-Limit Yellow</source>
        <translation>イエロー制限</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>ブラック</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>イエロー</translation>
    </message>
    <message>
        <source>Photo Black</source>
        <translation>フォト黒</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>bright Grey</source>
        <translation>ライトグレー</translation>
    </message>
    <message>
        <source>bright Mag.</source>
        <translation>Lマゼンタ</translation>
    </message>
    <message>
        <source>bright Cyan</source>
        <translation>ライトシアン</translation>
    </message>
    <message>
        <source>br. Yellow</source>
        <translation>Lイエロー</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>レッド</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>グリーン</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>ブルー</translation>
    </message>
    <message>
        <source>Optimizer</source>
        <translation>光沢最適化</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>バイオレット</translation>
    </message>
    <message>
        <source>PG Black</source>
        <translation>PG黒</translation>
    </message>
    <message>
        <source>Matte Black</source>
        <translation>マット黒</translation>
    </message>
    <message>
        <source>dark Grey</source>
        <translation>ダークグレー</translation>
    </message>
    <message>
        <source>Attention:</source>
        <translation>注意:</translation>
    </message>
    <message>
        <source>You have chosen an incomplete media profile without color data!
This profile should only be used for printing color charts!</source>
        <translation>カラーデータのない不完全な用紙プロファイルが選択されています！
このプロファイルはカラーチャートの印刷にのみ使用してください！</translation>
    </message>
</context>
</TS>
