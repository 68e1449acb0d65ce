<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="ErrorOccurred">
        <source>Something went wrong</source>
        <extracomment>Title of a message that explains why a picture cannot be opened or points cannot be taken.</extracomment>
        <translation>出现问题</translation>
    </message>
    <message id="CantMakeConverter">
        <source>The axis settings do not fit together, so points cannot be turned into values. Go back to the axis settings and check that the anchors do not coincide and that the axis values differ.</source>
        <extracomment>Explains why the digitizing page cannot take points.</extracomment>
        <translation>坐标轴的设置不一致，无法将点换算成值。请返回坐标轴设置，检查锚点是否互不重合、坐标轴的值是否互不相同。</translation>
    </message>
    <message id="Trimming">
        <source>Trim the picture?</source>
        <extracomment>Title of the question after a rectangle was dragged to trim the picture to.</extracomment>
        <translation>要裁剪图片吗？</translation>
    </message>
    <message id="TrimmingMsg">
        <source>Everything outside the dashed rectangle is cut off, and the axes go back to their first places. This cannot be undone; the picture file stays as it is.</source>
        <extracomment>Explains what trimming does.</extracomment>
        <translation>虚线矩形之外的部分将全部切除，坐标轴将回到初始位置。此操作无法撤销；图片文件保持不变。</translation>
    </message>
    <message id="Trim">
        <source>Trim</source>
        <extracomment>Button: trims the picture.</extracomment>
        <translation>裁剪</translation>
    </message>
    <message id="imageview.error.missing">
        <source>“%1” could not be found. It may have been moved, renamed or deleted.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>找不到“%1”，它可能已被移动、重命名或删除。</translation>
    </message>
    <message id="imageview.error.folder">
        <source>“%1” is a folder. Choose a picture file in it.</source>
        <extracomment>%1 is the name of the folder.</extracomment>
        <translation>“%1”是文件夹。请选择其中的图片文件。</translation>
    </message>
    <message id="imageview.error.unreadable">
        <source>“%1” cannot be read. Check that you have the permission to open it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>无法读取“%1”。请检查您是否有打开它的权限。</translation>
    </message>
    <message id="imageview.error.empty">
        <source>“%1” is empty. Get the file once more, then try again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1”是空文件。请重新获取该文件，然后重试。</translation>
    </message>
    <message id="imageview.error.not-a-picture">
        <source>“%1” is not a picture that can be opened. Choose a PNG, JPEG, TIFF, BMP, GIF, WebP, SVG or PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1”不是可以打开的图片。请选择 PNG、JPEG、TIFF、BMP、GIF、WebP、SVG 或 PDF 文件。</translation>
    </message>
    <message id="imageview.error.damaged">
        <source>“%1” is damaged or incomplete. Get the file once more, or save it anew in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1”已损坏或不完整。请重新获取该文件，或在制作它的程序中重新保存。</translation>
    </message>
    <message id="imageview.error.too-large">
        <source>“%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or save the picture with fewer pixels.</source>
        <extracomment>%1 is the name of the file, %2 its width and %3 its height.</extracomment>
        <translation>“%1”所需的内存超过可用内存（%2 × %3 像素）。请关闭其他程序，或以较少的像素保存图片。</translation>
    </message>
    <message id="imageview.error.cancelled">
        <source>“%1” was not opened.</source>
        <extracomment>%1 is the name of the file; the user has stopped its reading.</extracomment>
        <translation>未打开“%1”。</translation>
    </message>
    <message id="imageview.pasted.name">
        <source>pasted picture</source>
        <extracomment>Stands in place of a file name while a large pasted or dropped picture is read.</extracomment>
        <translation>粘贴的图片</translation>
    </message>
    <message id="imageview.pasted.damaged">
        <source>The picture from the other program is damaged or incomplete. Copy or drag it once more, or save it to a file there and open that file.</source>
        <extracomment>A picture was pasted or dropped as data, not as a file.</extracomment>
        <translation>来自其他程序的图片已损坏或不完整。请重新复制或拖动，或者在那个程序中将其保存为文件再打开。</translation>
    </message>
    <message id="imageview.pasted.not-a-picture">
        <source>What the other program handed over cannot be read as a picture. Save it there as a PNG file and open that file.</source>
        <extracomment>Something was pasted or dropped as picture data, not as a file.</extracomment>
        <translation>其他程序提供的内容无法作为图片读取。请在那个程序中将其保存为 PNG 文件再打开。</translation>
    </message>
    <message id="imageview.pasted.too-large">
        <source>The picture from the other program needs more memory than is free (%2 × %3 pixels). Close other programs, or copy it with fewer pixels.</source>
        <extracomment>A picture was pasted or dropped as data; %2 is its width and %3 its height.</extracomment>
        <translation>来自其他程序的图片所需的内存超过可用内存（%2 × %3 像素）。请关闭其他程序，或以较少的像素复制。</translation>
    </message>
    <message id="imageview.reading.label">
        <source>Opening “%1” …</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>正在打开“%1” …</translation>
    </message>
    <message id="imageview.reading.cancel-tip">
        <source>Stop opening this file and keep the present picture</source>
        <extracomment>Tooltip of the button that stops the reading of a large file.</extracomment>
        <translation>停止打开此文件，保留当前图片</translation>
    </message>
    <message id="imageview.reading.progress-name">
        <source>Reading progress</source>
        <extracomment>Name of the progress bar for screen readers.</extracomment>
        <translation>读取进度</translation>
    </message>
    <message id="imageview.view.name">
        <source>Picture of the chart</source>
        <extracomment>Name of the picture view for screen readers.</extracomment>
        <translation>图表的图片</translation>
    </message>
    <message id="imageview.zoom-slider.name">
        <source>Zoom</source>
        <extracomment>Name of the zoom slider for screen readers.</extracomment>
        <translation>缩放</translation>
    </message>
    <message id="imageview.zoom-slider.tip">
        <source>Zoom the picture</source>
        <extracomment>Tooltip of the zoom slider.</extracomment>
        <translation>缩放图片</translation>
    </message>
    <message id="PageOfTotal">
        <source>Page %1 of %2</source>
        <extracomment>In the panel that chooses a page of a PDF file: %1 is the number of the page shown, %2 how many there are.</extracomment>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message id="imageview.error.not-a-pdf">
        <source>“%1” is not a PDF file, although its name says so. Get the file once more, or choose another one.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1”虽然名为 PDF，却不是 PDF 文件。请重新获取该文件，或选择其他文件。</translation>
    </message>
    <message id="imageview.error.pdf-under-other-name">
        <source>“%1” is a PDF file under another name. Let its name end in “.pdf”, in small letters, and open it again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1”是使用了其他名称的 PDF 文件。请将名称结尾改为小写的“.pdf”，然后重新打开。</translation>
    </message>
    <message id="imageview.error.no-pages">
        <source>“%1” has no pages. Choose another PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1”没有页面。请选择其他 PDF 文件。</translation>
    </message>
    <message id="imageview.error.page-too-large">
        <source>The page of “%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or choose a smaller PDF reading scale.</source>
        <extracomment>%1 is the name of the file, %2 and %3 the width and height of the picture of its page.</extracomment>
        <translation>“%1”的页面所需的内存超过可用内存（%2 × %3 像素）。请关闭其他程序，或选择较小的 PDF 读取比例。</translation>
    </message>
    <message id="imageview.error.needs-password">
        <source>“%1” is locked with a password. Open it once more and type the password.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1”受密码保护。请重新打开并输入密码。</translation>
    </message>
    <message id="imageview.error.unknown-protection">
        <source>“%1” is protected in a way that is not supported. Save it without protection in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1”的保护方式不受支持。请在制作它的程序中以不加保护的方式保存。</translation>
    </message>
    <message id="imageview.error.pdf-module-missing">
        <source>“%1” cannot be opened because the part of Curvegrab X that knows PDF files is missing. Please install the program again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>无法打开“%1”，因为缺少 Curvegrab X 中读取 PDF 文件的部分。请重新安装本程序。</translation>
    </message>
    <message id="imageview.pdf.password-title">
        <source>“%1” is locked with a password</source>
        <extracomment>%1 is the name of the PDF file. Title of the sheet that asks for its password.</extracomment>
        <translation>“%1”受密码保护</translation>
    </message>
    <message id="imageview.pdf.password-text">
        <source>Type the password to open the file.</source>
        <extracomment>In the sheet that asks for the password of a PDF file.</extracomment>
        <translation>请输入密码以打开文件。</translation>
    </message>
    <message id="imageview.pdf.password-was-wrong">
        <source>This password is not the right one. Check the Caps Lock key and type it again.</source>
        <extracomment>In the sheet that asks for the password of a PDF file, after a wrong one.</extracomment>
        <translation>密码不正确。请检查大写锁定键，然后重新输入。</translation>
    </message>
    <message id="imageview.choose-page.title">
        <source>Choose a Page of “%1”</source>
        <extracomment>Title of the panel that chooses a page of a PDF file: %1 is the name of the file.</extracomment>
        <translation>选择“%1”的页面</translation>
    </message>
    <message id="imageview.choose-page.rendering">
        <source>Painting the page …</source>
        <extracomment>Shown in place of the preview of a page that takes long.</extracomment>
        <translation>正在绘制页面 …</translation>
    </message>
    <message id="imageview.choose-page.unreadable">
        <source>This page cannot be shown.</source>
        <extracomment>Shown in place of the preview of a damaged page.</extracomment>
        <translation>无法显示此页。</translation>
    </message>
    <message id="imageview.choose-page.view-tip">
        <source>Turn pages with the wheel; double-click to open this one</source>
        <extracomment>Tooltip of the preview of a page.</extracomment>
        <translation>滚动滚轮翻页；双击以打开此页</translation>
    </message>
    <message id="imageview.choose-page.view-name">
        <source>Preview of the page</source>
        <extracomment>Name of the preview for screen readers.</extracomment>
        <translation>页面预览</translation>
    </message>
    <message id="imageview.choose-page.slider-tip">
        <source>Drag to turn many pages quickly</source>
        <extracomment>Tooltip of the page slider.</extracomment>
        <translation>拖动可快速翻过多页</translation>
    </message>
    <message id="imageview.choose-page.slider-name">
        <source>Page slider</source>
        <extracomment>Name of the slider for screen readers.</extracomment>
        <translation>页面滑块</translation>
    </message>
    <message id="imageview.choose-page.prev-name">
        <source>Previous page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>上一页</translation>
    </message>
    <message id="imageview.choose-page.prev-tip">
        <source>Previous page (Page Up)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>上一页 (Page Up)</translation>
    </message>
    <message id="imageview.choose-page.next-name">
        <source>Next page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>下一页</translation>
    </message>
    <message id="imageview.choose-page.next-tip">
        <source>Next page (Page Down)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>下一页 (Page Down)</translation>
    </message>
    <message id="imageview.choose-page.field-label">
        <source>&amp;Page:</source>
        <extracomment>Label of the field into which a page number is typed.</extracomment>
        <translation>页码(&amp;P)：</translation>
    </message>
    <message id="imageview.choose-page.field-tip">
        <source>Type a page number and press Return</source>
        <extracomment>Tooltip of the field.</extracomment>
        <translation>输入页码并按回车键</translation>
    </message>
    <message id="imageview.choose-page.field-name">
        <source>Page number</source>
        <extracomment>Name of the field for screen readers.</extracomment>
        <translation>页码</translation>
    </message>
    <message id="imageview.choose-page.goto">
        <source>&amp;Go</source>
        <extracomment>The button that goes to the page whose number was typed.</extracomment>
        <translation>转到(&amp;G)</translation>
    </message>
    <message id="imageview.choose-page.goto-tip">
        <source>Show the page with the typed number</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>显示所输入页码的页面</translation>
    </message>
    <message id="imageview.choose-page.cancel-tip">
        <source>Open no page and keep the present picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>不打开任何页面，保留当前图片</translation>
    </message>
    <message id="imageview.choose-page.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the page shown.</extracomment>
        <translation>打开(&amp;O)</translation>
    </message>
    <message id="imageview.choose-page.open-tip">
        <source>Open the page shown as the picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>将显示的页面作为图片打开</translation>
    </message>
</context>
</TS>
