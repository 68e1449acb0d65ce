<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="plot.window.title">
        <source>%1 – Result</source>
        <extracomment>Title of the plot window; %1 is the name of the document.</extracomment>
        <translation>%1 – 结果</translation>
    </message>
    <message id="plot.view.name">
        <source>Plot of the captured points</source>
        <extracomment>Accessible name of the plot.</extracomment>
        <translation>已采集点的绘图</translation>
    </message>
    <message id="plot.save">
        <source>&amp;Save Picture…</source>
        <extracomment>Button below the plot.</extracomment>
        <translation>保存图片(&amp;S)…</translation>
    </message>
    <message id="plot.save.tip">
        <source>Save the plot as an SVG, PDF or PNG file</source>
        <extracomment>Tool tip of the button.</extracomment>
        <translation>将绘图保存为 SVG、PDF 或 PNG 文件</translation>
    </message>
    <message id="plot.save.message">
        <source>Save the plot</source>
        <extracomment>Title of the save panel.</extracomment>
        <translation>保存绘图</translation>
    </message>
    <message id="plot.format.svg">
        <source>SVG drawing</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>SVG 绘图</translation>
    </message>
    <message id="plot.format.pdf">
        <source>PDF document</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>PDF 文档</translation>
    </message>
    <message id="plot.format.png">
        <source>PNG picture</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>PNG 图片</translation>
    </message>
    <message id="plot.empty">
        <source>No points have been captured yet.</source>
        <extracomment>Below an empty plot.</extracomment>
        <translation>尚未采集任何点。</translation>
    </message>
    <message id="plot.leftOut">
        <source>Points that have no place on these axes: %d</source>
        <extracomment>Below the plot; %d is their number. Such points are not above zero on a logarithmic axis, or no numbers.</extracomment>
        <translation>在这些坐标轴上没有位置的点数：%d</translation>
    </message>
    <message id="plot.missing">
        <source>Plots cannot be shown because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>In place of the plot; %1 is a folder.</extracomment>
        <translation>无法显示绘图，因为缺少 Curvegrab X 的一部分。请重新安装本程序。该部分应位于 %1。</translation>
    </message>
    <message id="plot.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of a message; %1 is the name of a file.</extracomment>
        <translation>无法保存“%1”</translation>
    </message>
    <message id="plot.noMemory">
        <source>There is not enough memory for a picture of this size. Make the window smaller, and try again.</source>
        <extracomment>Explanation of a message.</extracomment>
        <translation>内存不足，无法生成这么大的图片。请缩小窗口后重试。</translation>
    </message>
</context>
</TS>
