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
        <source>Bright Inks</source>
        <translation>ライトインク</translation>
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
    <message>
        <source>The ink cartridges that are in the printer.</source>
        <translation>プリンターに入っているインクカートリッジです。</translation>
    </message>
    <message>
        <source>What is printed on; ink amounts and colors are matched to it.</source>
        <translation>印刷する用紙です。インク量と色はこれに合わせられます。</translation>
    </message>
    <message>
        <source>How finely the ink drops are placed: a higher resolution shows more detail and takes longer.</source>
        <translation>インク滴を置く細かさです。解像度が高いほど細部まで表れ、時間がかかります。</translation>
    </message>
    <message>
        <source>How colors that cannot be printed are replaced by colors that can.</source>
        <translation>印刷できない色を印刷できる色に置き換える方法です。</translation>
    </message>
    <message>
        <source>Whether the print is grey or in color, and which kind of color data it is made from.</source>
        <translation>グレーで印刷するかカラーで印刷するか、またどの種類のカラーデータから印刷するかです。</translation>
    </message>
    <message>
        <source>The pattern of ink drops from which shades are made.</source>
        <translation>濃淡を作るインク滴のパターンです。</translation>
    </message>
    <message>
        <source>What the numbers of RGB data mean as colors.</source>
        <translation>RGBデータの数値が表す色を決めます。</translation>
    </message>
    <message>
        <source>What the numbers of CMYK data mean as colors.</source>
        <translation>CMYKデータの数値が表す色を決めます。</translation>
    </message>
    <message>
        <source>Makes the whole print lighter or darker.</source>
        <translation>印刷全体を明るくまたは暗くします。</translation>
    </message>
    <message>
        <source>Makes the difference between light and dark stronger or weaker.</source>
        <translation>明るい部分と暗い部分の差を強くまたは弱くします。</translation>
    </message>
    <message>
        <source>The daylight in which the print will be looked at, from warm (D50) to cool (D80).</source>
        <translation>印刷物を見るときの昼光です。暖かい光（D50）から冷たい光（D80）まであります。</translation>
    </message>
    <message>
        <source>Makes the colors more vivid or more muted.</source>
        <translation>色を鮮やかにまたは控えめにします。</translation>
    </message>
    <message>
        <source>Makes the dark parts of the print lighter or darker.</source>
        <translation>印刷の暗い部分を明るくまたは暗くします。</translation>
    </message>
    <message>
        <source>Gives greys a greenish or reddish tint.</source>
        <translation>グレーに緑がかったまたは赤みがかった色合いを付けます。</translation>
    </message>
    <message>
        <source>Gives greys a bluish or yellowish tint.</source>
        <translation>グレーに青みがかったまたは黄色がかった色合いを付けます。</translation>
    </message>
    <message>
        <source>How much of dark and grey tones is printed with black ink in place of colored inks.</source>
        <translation>暗い色調とグレーの色調のうち、カラーインクの代わりにブラックインクで印刷する割合です。</translation>
    </message>
    <message>
        <source>How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks.</source>
        <translation>シアンの代わりにライトシアンインクを使う量です。マゼンタのスライダーがない場合は、すべてのライトインクの量です。</translation>
    </message>
    <message>
        <source>How much bright magenta ink is used in place of magenta.</source>
        <translation>マゼンタの代わりにライトマゼンタインクを使う量です。</translation>
    </message>
    <message>
        <source>The most ink of all colors together that may fall on one spot.</source>
        <translation>一か所に落とせる、全色を合わせたインク量の上限です。</translation>
    </message>
    <message>
        <source>Takes this share away from the amount of all inks.</source>
        <translation>すべてのインクの量をこの割合だけ減らします。</translation>
    </message>
    <message>
        <source>The most black ink that may fall on one spot.</source>
        <translation>一か所に落とせるブラックインク量の上限です。</translation>
    </message>
    <message>
        <source>The most cyan ink that may fall on one spot.</source>
        <translation>一か所に落とせるシアンインク量の上限です。</translation>
    </message>
    <message>
        <source>The most magenta ink that may fall on one spot.</source>
        <translation>一か所に落とせるマゼンタインク量の上限です。</translation>
    </message>
    <message>
        <source>The most yellow ink that may fall on one spot.</source>
        <translation>一か所に落とせるイエローインク量の上限です。</translation>
    </message>
    <message>
        <source>Adds black to the print or takes it away.</source>
        <translation>印刷にブラックを加えたり、印刷から減らしたりします。</translation>
    </message>
    <message>
        <source>Adds cyan to the print or takes it away.</source>
        <translation>印刷にシアンを加えたり、印刷から減らしたりします。</translation>
    </message>
    <message>
        <source>Adds magenta to the print or takes it away.</source>
        <translation>印刷にマゼンタを加えたり、印刷から減らしたりします。</translation>
    </message>
    <message>
        <source>Adds yellow to the print or takes it away.</source>
        <translation>印刷にイエローを加えたり、印刷から減らしたりします。</translation>
    </message>
    <message>
        <source>The job&apos;s ink is counted, but nothing is printed.</source>
        <translation>ジョブのインク量は数えますが、何も印刷しません。</translation>
    </message>
    <message>
        <source>Lets the four sliders of this page change the colors of the print.</source>
        <translation>このページの4つのスライダーで印刷の色を変えられるようにします。</translation>
    </message>
    <message>
        <source>Ghostscript turns PostScript data into the printed picture, in place of the system&apos;s own interpreter.</source>
        <translation>システムのインタープリターの代わりにGhostscriptがPostScriptデータを印刷画像に変換します。</translation>
    </message>
    <message>
        <source>How much of this ink the last job used.</source>
        <translation>前回のジョブで使われたこのインクの量です。</translation>
    </message>
    <message>
        <source>How much of this ink all jobs together have used.</source>
        <translation>すべてのジョブで使われたこのインクの合計量です。</translation>
    </message>
    <message>
        <source>Reads again how much ink was used.</source>
        <translation>使用されたインクの量を読み直します。</translation>
    </message>
    <message>
        <source>Not available with %1: %2.</source>
        <translation>「%1: %2」では使用できません。</translation>
    </message>
    <message>
        <source>Not available with %1: %2, a media profile without color data.</source>
        <translation>「%1: %2」はカラーデータのない用紙プロファイルなので使用できません。</translation>
    </message>
    <message>
        <source>Available when &quot;%1&quot; is switched on.</source>
        <translation>「%1」をオンにすると使用できます。</translation>
    </message>
    <message>
        <source>Not available: Ghostscript is not installed.</source>
        <translation>Ghostscriptがインストールされていないため使用できません。</translation>
    </message>
    <message>
        <source>Not available with the present settings.</source>
        <translation>現在の設定では使用できません。</translation>
    </message>
    <message>
        <source>This printer has nothing to choose here.</source>
        <translation>このプリンターではここで選べるものはありません。</translation>
    </message>
    <message>
        <source>Not offered with %1: %2 (%3): %4</source>
        <translation>「%1: %2」では選べない項目（%3）: %4</translation>
    </message>
    <message>
        <source>Excluded by %1: %2 (%3): %4</source>
        <translation>「%1: %2」により選べない項目（%3）: %4</translation>
    </message>
    <message>
        <source>Cannot be chosen (%1): %2</source>
        <translation>選べない項目（%1）: %2</translation>
    </message>
    <message>
        <source>A double click or Delete sets the default, %1.</source>
        <translation>ダブルクリックまたはDeleteキーで既定値（%1）に戻ります。</translation>
    </message>
    <message>
        <source>Digits or F2 open a field for a value.</source>
        <translation>数字またはF2キーで値の入力欄が開きます。</translation>
    </message>
    <message>
        <source>Reset to default (%1)</source>
        <translation>既定値に戻す (%1)</translation>
    </message>
    <message>
        <source>Enter a value…</source>
        <translation>値を入力…</translation>
    </message>
    <message>
        <source>Enter a value from %1 to %2.</source>
        <translation>%1から%2までの値を入力してください。</translation>
    </message>
</context>
</TS>
