<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="ErrorOccurred">
        <source>Something went wrong</source>
        <extracomment>Title of a message that explains why a picture cannot be opened or points cannot be taken.</extracomment>
        <translation>Something went wrong</translation>
    </message>
    <message id="CantMakeConverter">
        <source>The axis settings do not fit together, so points cannot be turned into values. Go back to the axis settings and check that the anchors do not coincide and that the axis values differ.</source>
        <extracomment>Explains why the digitizing page cannot take points.</extracomment>
        <translation>The axis settings do not fit together, so points cannot be turned into values. Go back to the axis settings and check that the anchors do not coincide and that the axis values differ.</translation>
    </message>
    <message id="Trimming">
        <source>Trim the picture?</source>
        <extracomment>Title of the question after a rectangle was dragged to trim the picture to.</extracomment>
        <translation>Trim the picture?</translation>
    </message>
    <message id="TrimmingMsg">
        <source>Everything outside the dashed rectangle is cut off, and the axes go back to their first places. This cannot be undone; the picture file stays as it is.</source>
        <extracomment>Explains what trimming does.</extracomment>
        <translation>Everything outside the dashed rectangle is cut off, and the axes go back to their first places. This cannot be undone; the picture file stays as it is.</translation>
    </message>
    <message id="Trim">
        <source>Trim</source>
        <extracomment>Button: trims the picture.</extracomment>
        <translation>Trim</translation>
    </message>
    <message id="imageview.error.missing">
        <source>“%1” could not be found. It may have been moved, renamed or deleted.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” could not be found. It may have been moved, renamed or deleted.</translation>
    </message>
    <message id="imageview.error.folder">
        <source>“%1” is a folder. Choose a picture file in it.</source>
        <extracomment>%1 is the name of the folder.</extracomment>
        <translation>“%1” is a folder. Choose a picture file in it.</translation>
    </message>
    <message id="imageview.error.unreadable">
        <source>“%1” cannot be read. Check that you have the permission to open it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” cannot be read. Check that you have the permission to open it.</translation>
    </message>
    <message id="imageview.error.empty">
        <source>“%1” is empty. Get the file once more, then try again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” is empty. Get the file once more, then try again.</translation>
    </message>
    <message id="imageview.error.not-a-picture">
        <source>“%1” is not a picture that can be opened. Choose a PNG, JPEG, TIFF, BMP, GIF, WebP, SVG or PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” is not a picture that can be opened. Choose a PNG, JPEG, TIFF, BMP, GIF, WebP, SVG or PDF file.</translation>
    </message>
    <message id="imageview.error.damaged">
        <source>“%1” is damaged or incomplete. Get the file once more, or save it anew in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” is damaged or incomplete. Get the file once more, or save it anew in the program that made it.</translation>
    </message>
    <message id="imageview.error.too-large">
        <source>“%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or save the picture with fewer pixels.</source>
        <extracomment>%1 is the name of the file, %2 its width and %3 its height.</extracomment>
        <translation>“%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or save the picture with fewer pixels.</translation>
    </message>
    <message id="imageview.error.cancelled">
        <source>“%1” was not opened.</source>
        <extracomment>%1 is the name of the file; the user has stopped its reading.</extracomment>
        <translation>“%1” was not opened.</translation>
    </message>
    <message id="imageview.pasted.name">
        <source>pasted picture</source>
        <extracomment>Stands in place of a file name while a large pasted or dropped picture is read.</extracomment>
        <translation>pasted picture</translation>
    </message>
    <message id="imageview.pasted.damaged">
        <source>The picture from the other program is damaged or incomplete. Copy or drag it once more, or save it to a file there and open that file.</source>
        <extracomment>A picture was pasted or dropped as data, not as a file.</extracomment>
        <translation>The picture from the other program is damaged or incomplete. Copy or drag it once more, or save it to a file there and open that file.</translation>
    </message>
    <message id="imageview.pasted.not-a-picture">
        <source>What the other program handed over cannot be read as a picture. Save it there as a PNG file and open that file.</source>
        <extracomment>Something was pasted or dropped as picture data, not as a file.</extracomment>
        <translation>What the other program handed over cannot be read as a picture. Save it there as a PNG file and open that file.</translation>
    </message>
    <message id="imageview.pasted.too-large">
        <source>The picture from the other program needs more memory than is free (%2 × %3 pixels). Close other programs, or copy it with fewer pixels.</source>
        <extracomment>A picture was pasted or dropped as data; %2 is its width and %3 its height.</extracomment>
        <translation>The picture from the other program needs more memory than is free (%2 × %3 pixels). Close other programs, or copy it with fewer pixels.</translation>
    </message>
    <message id="imageview.reading.label">
        <source>Opening “%1” …</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>Opening “%1” …</translation>
    </message>
    <message id="imageview.reading.cancel-tip">
        <source>Stop opening this file and keep the present picture</source>
        <extracomment>Tooltip of the button that stops the reading of a large file.</extracomment>
        <translation>Stop opening this file and keep the present picture</translation>
    </message>
    <message id="imageview.reading.progress-name">
        <source>Reading progress</source>
        <extracomment>Name of the progress bar for screen readers.</extracomment>
        <translation>Reading progress</translation>
    </message>
    <message id="imageview.view.name">
        <source>Picture of the chart</source>
        <extracomment>Name of the picture view for screen readers.</extracomment>
        <translation>Picture of the chart</translation>
    </message>
    <message id="imageview.zoom-slider.name">
        <source>Zoom</source>
        <extracomment>Name of the zoom slider for screen readers.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message id="imageview.zoom-slider.tip">
        <source>Zoom the picture</source>
        <extracomment>Tooltip of the zoom slider.</extracomment>
        <translation>Zoom the picture</translation>
    </message>
    <message id="PageOfTotal">
        <source>Page %1 of %2</source>
        <extracomment>In the panel that chooses a page of a PDF file: %1 is the number of the page shown, %2 how many there are.</extracomment>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="imageview.error.not-a-pdf">
        <source>“%1” is not a PDF file, although its name says so. Get the file once more, or choose another one.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” is not a PDF file, although its name says so. Get the file once more, or choose another one.</translation>
    </message>
    <message id="imageview.error.pdf-under-other-name">
        <source>“%1” is a PDF file under another name. Let its name end in “.pdf”, in small letters, and open it again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” is a PDF file under another name. Let its name end in “.pdf”, in small letters, and open it again.</translation>
    </message>
    <message id="imageview.error.no-pages">
        <source>“%1” has no pages. Choose another PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” has no pages. Choose another PDF file.</translation>
    </message>
    <message id="imageview.error.page-too-large">
        <source>The page of “%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or choose a smaller PDF reading scale.</source>
        <extracomment>%1 is the name of the file, %2 and %3 the width and height of the picture of its page.</extracomment>
        <translation>The page of “%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or choose a smaller PDF reading scale.</translation>
    </message>
    <message id="imageview.error.needs-password">
        <source>“%1” is locked with a password. Open it once more and type the password.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” is locked with a password. Open it once more and type the password.</translation>
    </message>
    <message id="imageview.error.unknown-protection">
        <source>“%1” is protected in a way that is not supported. Save it without protection in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” is protected in a way that is not supported. Save it without protection in the program that made it.</translation>
    </message>
    <message id="imageview.error.pdf-module-missing">
        <source>“%1” cannot be opened because the part of Curvegrab X that knows PDF files is missing. Please install the program again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>“%1” cannot be opened because the part of Curvegrab X that knows PDF files is missing. Please install the program again.</translation>
    </message>
    <message id="imageview.pdf.password-title">
        <source>“%1” is locked with a password</source>
        <extracomment>%1 is the name of the PDF file. Title of the sheet that asks for its password.</extracomment>
        <translation>“%1” is locked with a password</translation>
    </message>
    <message id="imageview.pdf.password-text">
        <source>Type the password to open the file.</source>
        <extracomment>In the sheet that asks for the password of a PDF file.</extracomment>
        <translation>Type the password to open the file.</translation>
    </message>
    <message id="imageview.pdf.password-was-wrong">
        <source>This password is not the right one. Check the Caps Lock key and type it again.</source>
        <extracomment>In the sheet that asks for the password of a PDF file, after a wrong one.</extracomment>
        <translation>This password is not the right one. Check the Caps Lock key and type it again.</translation>
    </message>
    <message id="imageview.choose-page.title">
        <source>Choose a Page of “%1”</source>
        <extracomment>Title of the panel that chooses a page of a PDF file: %1 is the name of the file.</extracomment>
        <translation>Choose a Page of “%1”</translation>
    </message>
    <message id="imageview.choose-page.rendering">
        <source>Painting the page …</source>
        <extracomment>Shown in place of the preview of a page that takes long.</extracomment>
        <translation>Painting the page …</translation>
    </message>
    <message id="imageview.choose-page.unreadable">
        <source>This page cannot be shown.</source>
        <extracomment>Shown in place of the preview of a damaged page.</extracomment>
        <translation>This page cannot be shown.</translation>
    </message>
    <message id="imageview.choose-page.view-tip">
        <source>Turn pages with the wheel; double-click to open this one</source>
        <extracomment>Tooltip of the preview of a page.</extracomment>
        <translation>Turn pages with the wheel; double-click to open this one</translation>
    </message>
    <message id="imageview.choose-page.view-name">
        <source>Preview of the page</source>
        <extracomment>Name of the preview for screen readers.</extracomment>
        <translation>Preview of the page</translation>
    </message>
    <message id="imageview.choose-page.slider-tip">
        <source>Drag to turn many pages quickly</source>
        <extracomment>Tooltip of the page slider.</extracomment>
        <translation>Drag to turn many pages quickly</translation>
    </message>
    <message id="imageview.choose-page.slider-name">
        <source>Page slider</source>
        <extracomment>Name of the slider for screen readers.</extracomment>
        <translation>Page slider</translation>
    </message>
    <message id="imageview.choose-page.prev-name">
        <source>Previous page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>Previous page</translation>
    </message>
    <message id="imageview.choose-page.prev-tip">
        <source>Previous page (Page Up)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Previous page (Page Up)</translation>
    </message>
    <message id="imageview.choose-page.next-name">
        <source>Next page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>Next page</translation>
    </message>
    <message id="imageview.choose-page.next-tip">
        <source>Next page (Page Down)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Next page (Page Down)</translation>
    </message>
    <message id="imageview.choose-page.field-label">
        <source>&amp;Page:</source>
        <extracomment>Label of the field into which a page number is typed.</extracomment>
        <translation>&amp;Page:</translation>
    </message>
    <message id="imageview.choose-page.field-tip">
        <source>Type a page number and press Return</source>
        <extracomment>Tooltip of the field.</extracomment>
        <translation>Type a page number and press Return</translation>
    </message>
    <message id="imageview.choose-page.field-name">
        <source>Page number</source>
        <extracomment>Name of the field for screen readers.</extracomment>
        <translation>Page number</translation>
    </message>
    <message id="imageview.choose-page.goto">
        <source>&amp;Go</source>
        <extracomment>The button that goes to the page whose number was typed.</extracomment>
        <translation>&amp;Go</translation>
    </message>
    <message id="imageview.choose-page.goto-tip">
        <source>Show the page with the typed number</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Show the page with the typed number</translation>
    </message>
    <message id="imageview.choose-page.cancel-tip">
        <source>Open no page and keep the present picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Open no page and keep the present picture</translation>
    </message>
    <message id="imageview.choose-page.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the page shown.</extracomment>
        <translation>&amp;Open</translation>
    </message>
    <message id="imageview.choose-page.open-tip">
        <source>Open the page shown as the picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Open the page shown as the picture</translation>
    </message>
</context>
</TS>
