<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="document.damage.noDocument">
        <source>This is not a Curvegrab X document.</source>
        <translation>这不是 Curvegrab X 文档。</translation>
    </message>
    <message id="document.damage.endsEarly">
        <source>The file ends too early: something is missing at its end.</source>
        <translation>文件不完整：末尾缺少内容。</translation>
    </message>
    <message id="document.damage.tooLarge">
        <source>Something in the file (%1) is far larger than any document has it.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>文件中的一部分（%1）远大于任何正常文档。</translation>
    </message>
    <message id="document.damage.repeatedKey">
        <source>Something in the file (%1) is there twice.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>文件中的一部分（%1）重复出现。</translation>
    </message>
    <message id="document.damage.badValue">
        <source>Something in the file (%1) is damaged.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>文件中的一部分（%1）已损坏。</translation>
    </message>
    <message id="document.damage.trailing">
        <source>Something that does not belong to the document follows its end.</source>
        <translation>文档结尾之后有不属于该文档的内容。</translation>
    </message>
    <message id="document.damage.picture">
        <source>The picture is damaged and cannot be shown.</source>
        <translation>图片已损坏，无法显示。</translation>
    </message>
    <message id="document.damage.pictureTooLarge">
        <source>The picture needs more memory than is free. Close other programs, then open the document again.</source>
        <translation>图片所需的内存超过可用内存。请关闭其他程序，然后重新打开文档。</translation>
    </message>
    <message id="document.damage.unreadable">
        <source>Something in the file (%1) cannot be read.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>文件中的一部分（%1）无法读取。</translation>
    </message>
    <message id="document.part.picture">
        <source>the picture</source>
        <translation>图片</translation>
    </message>
    <message id="document.part.table">
        <source>the data table</source>
        <translation>数据表</translation>
    </message>
    <message id="document.part.axes">
        <source>the axes</source>
        <translation>坐标轴</translation>
    </message>
    <message id="document.part.guide">
        <source>the cursor guide</source>
        <translation>参考线</translation>
    </message>
    <message id="document.part.series">
        <source>the data series</source>
        <translation>数据系列</translation>
    </message>
    <message id="document.part.window">
        <source>the window</source>
        <translation>窗口</translation>
    </message>
    <message id="document.part.file">
        <source>the whole file</source>
        <translation>整个文件</translation>
    </message>
    <message id="document.saving">
        <source>Saving “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>正在保存“%1”…</translation>
    </message>
    <message id="document.saving.preparing">
        <source>Preparing the picture of “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>正在准备“%1”的图片…</translation>
    </message>
    <message id="document.saving.cancelTip">
        <source>Stop saving; the file stays as it was (Esc)</source>
        <translation>停止保存；文件保持原样 (Esc)</translation>
    </message>
    <message id="document.saving.progressName">
        <source>Progress of saving</source>
        <translation>保存进度</translation>
    </message>
    <message id="document.save.overwriteTitle">
        <source>Replace “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>要替换“%1”吗？</translation>
    </message>
    <message id="document.save.existsText">
        <source>A document of that name is already there, and this one does not come from it.</source>
        <translation>已有同名的文档，而当前文档并非来自它。</translation>
    </message>
    <message id="document.save.changedText">
        <source>Another program has changed this file since you opened or saved it. If you replace it, those changes are lost.</source>
        <translation>自您打开或保存此文件以来，其他程序已更改了它。如果替换，那些更改将会丢失。</translation>
    </message>
    <message id="document.save.saveAs">
        <source>Save As…</source>
        <translation>另存为…</translation>
    </message>
    <message id="document.save.overwrite">
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message id="document.save.failedTitle">
        <source>“%1” could not be saved</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>无法保存“%1”</translation>
    </message>
    <message id="document.save.failedText">
        <source>%1
Your work is still open here. What was in the file before is unchanged.</source>
        <extracomment>%1 is the reason, a sentence.</extracomment>
        <translation>%1
您的工作仍在这里打开着。文件中原有的内容没有改变。</translation>
    </message>
    <message id="document.save.noMemory">
        <source>There is not enough memory to save the picture. Close other windows, then try again.</source>
        <translation>内存不足，无法保存图片。请关闭其他窗口，然后重试。</translation>
    </message>
    <message id="document.close.title">
        <source>Save the changes to “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>要保存对“%1”的更改吗？</translation>
    </message>
    <message id="document.close.text">
        <source>If you do not save, the changes are lost.</source>
        <translation>如果不保存，更改将会丢失。</translation>
    </message>
    <message id="document.close.save">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="document.close.dontSave">
        <source>Don’t Save</source>
        <translation>不保存</translation>
    </message>
    <message id="document.revert.title">
        <source>Go back to “%1” as it was saved?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>要将“%1”还原到保存时的状态吗？</translation>
    </message>
    <message id="document.revert.text">
        <source>Everything that was changed since then is lost, and cannot be undone.</source>
        <translation>此后的所有更改都将丢失，且无法撤销。</translation>
    </message>
    <message id="document.revert.revert">
        <source>Revert</source>
        <translation>还原</translation>
    </message>
    <message id="document.open.failedTitle">
        <source>“%1” cannot be opened</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>无法打开“%1”</translation>
    </message>
    <message id="document.open.missing">
        <source>There is no such file any more. It may have been moved or renamed.</source>
        <translation>文件已不存在，可能已被移动或重命名。</translation>
    </message>
    <message id="document.open.tooLarge">
        <source>The file needs more memory than is free. Close other programs, then try again.</source>
        <translation>文件所需的内存超过可用内存。请关闭其他程序，然后重试。</translation>
    </message>
    <message id="document.open.noFile">
        <source>This is a folder or a device, not a file.</source>
        <translation>这是文件夹或设备，不是文件。</translation>
    </message>
    <message id="document.open.unknownType">
        <source>Curvegrab X opens its own documents (.crvgrab) and pictures such as PNG, JPEG or TIFF. If this is a picture, give its name the right ending.</source>
        <translation>Curvegrab X 可打开自己的文档 (.crvgrab) 和 PNG、JPEG、TIFF 等图片。如果这是图片，请给它加上正确的扩展名。</translation>
    </message>
    <message id="document.open.damagedTitle">
        <source>“%1” is damaged</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>“%1”已损坏</translation>
    </message>
    <message id="document.open.remainsText">
        <source>%1
You can open what is left of it as a new document. The file itself stays as it is.</source>
        <extracomment>%1 says what is damaged.</extracomment>
        <translation>%1
您可以将剩余的内容作为新文档打开。文件本身保持不变。</translation>
    </message>
    <message id="document.open.remains">
        <source>Open What Is Left</source>
        <translation>打开剩余内容</translation>
    </message>
    <message id="document.command.openRecent">
        <source>Open &amp;Recent</source>
        <translation>最近打开的文件(&amp;R)</translation>
    </message>
    <message id="document.command.openPicture">
        <source>Open &amp;Picture Here…</source>
        <translation>在此打开图片(&amp;P)…</translation>
    </message>
    <message id="document.command.save">
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message id="document.command.saveAs">
        <source>S&amp;ave As…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message id="document.command.revert">
        <source>Re&amp;vert to Saved</source>
        <translation>还原到保存的版本(&amp;V)</translation>
    </message>
    <message id="document.recent.item">
        <source>%1 — %2</source>
        <extracomment>A file and its folder</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message id="document.recent.clear">
        <source>Clear This List</source>
        <translation>清除此列表</translation>
    </message>
    <message id="document.recovery.title">
        <source>Bring back your unsaved work?</source>
        <translation>要恢复未保存的工作吗？</translation>
    </message>
    <message id="document.recovery.text">
        <source>Curvegrab X ended before these documents were saved:
%1
Their changes were kept.</source>
        <extracomment>The names of the documents, one a line</extracomment>
        <translation>Curvegrab X 在以下文档保存之前就已结束：
%1
其中的更改已保留。</translation>
    </message>
    <message id="document.recovery.bringBack">
        <source>Bring Back</source>
        <translation>恢复</translation>
    </message>
    <message id="document.recovery.later">
        <source>Ask Later</source>
        <translation>稍后询问</translation>
    </message>
    <message id="document.recovery.discard">
        <source>Discard</source>
        <translation>丢弃</translation>
    </message>
    <message id="document.recovery.failed">
        <source>Unsaved changes are not kept safe from a crash: %1 Save often.</source>
        <extracomment>The reason, a sentence</extracomment>
        <translation>未保存的更改无法防备程序崩溃：%1 请经常保存。</translation>
    </message>
    <message id="document.recovery.noFolder">
        <source>The folder for them cannot be made.</source>
        <translation>无法为此创建文件夹。</translation>
    </message>
</context>
</TS>
