<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="ErrorOccurred">
        <source>Something went wrong</source>
        <extracomment>Title of a message that explains why a picture cannot be opened or points cannot be taken.</extracomment>
        <translation>Algo ha ido mal</translation>
    </message>
    <message id="CantMakeConverter">
        <source>The axis settings do not fit together, so points cannot be turned into values. Go back to the axis settings and check that the anchors do not coincide and that the axis values differ.</source>
        <extracomment>Explains why the digitizing page cannot take points.</extracomment>
        <translation>Los ajustes de los ejes no encajan entre sí, así que los puntos no se pueden convertir en valores. Vuelva al ajuste de ejes y compruebe que las anclas no coinciden y que los valores de los ejes son distintos.</translation>
    </message>
    <message id="Trimming">
        <source>Trim the picture?</source>
        <extracomment>Title of the question after a rectangle was dragged to trim the picture to.</extracomment>
        <translation>¿Recortar la imagen?</translation>
    </message>
    <message id="TrimmingMsg">
        <source>Everything outside the dashed rectangle is cut off, and the axes go back to their first places. This cannot be undone; the picture file stays as it is.</source>
        <extracomment>Explains what trimming does.</extracomment>
        <translation>Se corta todo lo que queda fuera del rectángulo discontinuo y los ejes vuelven a sus lugares iniciales. Esto no se puede deshacer; el archivo de la imagen queda como está.</translation>
    </message>
    <message id="Trim">
        <source>Trim</source>
        <extracomment>Button: trims the picture.</extracomment>
        <translation>Recortar</translation>
    </message>
    <message id="imageview.error.missing">
        <source>“%1” could not be found. It may have been moved, renamed or deleted.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>No se ha encontrado «%1». Puede que se haya movido, renombrado o borrado.</translation>
    </message>
    <message id="imageview.error.folder">
        <source>“%1” is a folder. Choose a picture file in it.</source>
        <extracomment>%1 is the name of the folder.</extracomment>
        <translation>«%1» es una carpeta. Elija un archivo de imagen en ella.</translation>
    </message>
    <message id="imageview.error.unreadable">
        <source>“%1” cannot be read. Check that you have the permission to open it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» no se puede leer. Compruebe que tiene permiso para abrirlo.</translation>
    </message>
    <message id="imageview.error.empty">
        <source>“%1” is empty. Get the file once more, then try again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» está vacío. Consiga de nuevo el archivo y vuelva a intentarlo.</translation>
    </message>
    <message id="imageview.error.not-a-picture">
        <source>“%1” is not a picture that can be opened. Choose a PNG, JPEG, TIFF, BMP, GIF, WebP, SVG or PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» no es una imagen que se pueda abrir. Elija un archivo PNG, JPEG, TIFF, BMP, GIF, WebP, SVG o PDF.</translation>
    </message>
    <message id="imageview.error.damaged">
        <source>“%1” is damaged or incomplete. Get the file once more, or save it anew in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» está dañado o incompleto. Consiga de nuevo el archivo, o guárdelo otra vez en el programa que lo creó.</translation>
    </message>
    <message id="imageview.error.too-large">
        <source>“%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or save the picture with fewer pixels.</source>
        <extracomment>%1 is the name of the file, %2 its width and %3 its height.</extracomment>
        <translation>«%1» necesita más memoria de la que hay libre (%2 × %3 píxeles). Cierre otros programas, o guarde la imagen con menos píxeles.</translation>
    </message>
    <message id="imageview.error.cancelled">
        <source>“%1” was not opened.</source>
        <extracomment>%1 is the name of the file; the user has stopped its reading.</extracomment>
        <translation>No se ha abierto «%1».</translation>
    </message>
    <message id="imageview.pasted.name">
        <source>pasted picture</source>
        <extracomment>Stands in place of a file name while a large pasted or dropped picture is read.</extracomment>
        <translation>imagen pegada</translation>
    </message>
    <message id="imageview.pasted.damaged">
        <source>The picture from the other program is damaged or incomplete. Copy or drag it once more, or save it to a file there and open that file.</source>
        <extracomment>A picture was pasted or dropped as data, not as a file.</extracomment>
        <translation>La imagen del otro programa está dañada o incompleta. Cópiela o arrástrela de nuevo, o guárdela allí en un archivo y abra ese archivo.</translation>
    </message>
    <message id="imageview.pasted.not-a-picture">
        <source>What the other program handed over cannot be read as a picture. Save it there as a PNG file and open that file.</source>
        <extracomment>Something was pasted or dropped as picture data, not as a file.</extracomment>
        <translation>Lo que ha entregado el otro programa no se puede leer como imagen. Guárdelo allí como archivo PNG y abra ese archivo.</translation>
    </message>
    <message id="imageview.pasted.too-large">
        <source>The picture from the other program needs more memory than is free (%2 × %3 pixels). Close other programs, or copy it with fewer pixels.</source>
        <extracomment>A picture was pasted or dropped as data; %2 is its width and %3 its height.</extracomment>
        <translation>La imagen del otro programa necesita más memoria de la que hay libre (%2 × %3 píxeles). Cierre otros programas, o cópiela con menos píxeles.</translation>
    </message>
    <message id="imageview.reading.label">
        <source>Opening “%1” …</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>Abriendo «%1» …</translation>
    </message>
    <message id="imageview.reading.cancel-tip">
        <source>Stop opening this file and keep the present picture</source>
        <extracomment>Tooltip of the button that stops the reading of a large file.</extracomment>
        <translation>Dejar de abrir este archivo y conservar la imagen actual</translation>
    </message>
    <message id="imageview.reading.progress-name">
        <source>Reading progress</source>
        <extracomment>Name of the progress bar for screen readers.</extracomment>
        <translation>Progreso de la lectura</translation>
    </message>
    <message id="imageview.view.name">
        <source>Picture of the chart</source>
        <extracomment>Name of the picture view for screen readers.</extracomment>
        <translation>Imagen del gráfico</translation>
    </message>
    <message id="imageview.zoom-slider.name">
        <source>Zoom</source>
        <extracomment>Name of the zoom slider for screen readers.</extracomment>
        <translation>Ampliación</translation>
    </message>
    <message id="imageview.zoom-slider.tip">
        <source>Zoom the picture</source>
        <extracomment>Tooltip of the zoom slider.</extracomment>
        <translation>Ampliar o reducir la imagen</translation>
    </message>
    <message id="PageOfTotal">
        <source>Page %1 of %2</source>
        <extracomment>In the panel that chooses a page of a PDF file: %1 is the number of the page shown, %2 how many there are.</extracomment>
        <translation>Página %1 de %2</translation>
    </message>
    <message id="imageview.error.not-a-pdf">
        <source>“%1” is not a PDF file, although its name says so. Get the file once more, or choose another one.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» no es un archivo PDF, aunque su nombre lo diga. Consiga de nuevo el archivo, o elija otro.</translation>
    </message>
    <message id="imageview.error.pdf-under-other-name">
        <source>“%1” is a PDF file under another name. Let its name end in “.pdf”, in small letters, and open it again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» es un archivo PDF con otro nombre. Haga que su nombre termine en «.pdf», en minúsculas, y ábralo de nuevo.</translation>
    </message>
    <message id="imageview.error.no-pages">
        <source>“%1” has no pages. Choose another PDF file.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» no tiene páginas. Elija otro archivo PDF.</translation>
    </message>
    <message id="imageview.error.page-too-large">
        <source>The page of “%1” needs more memory than is free (%2 × %3 pixels). Close other programs, or choose a smaller PDF reading scale.</source>
        <extracomment>%1 is the name of the file, %2 and %3 the width and height of the picture of its page.</extracomment>
        <translation>La página de «%1» necesita más memoria de la que hay libre (%2 × %3 píxeles). Cierre otros programas, o elija una escala de lectura de PDF más pequeña.</translation>
    </message>
    <message id="imageview.error.needs-password">
        <source>“%1” is locked with a password. Open it once more and type the password.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» está protegido con una contraseña. Ábralo de nuevo y escriba la contraseña.</translation>
    </message>
    <message id="imageview.error.unknown-protection">
        <source>“%1” is protected in a way that is not supported. Save it without protection in the program that made it.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>«%1» está protegido de una forma que no se admite. Guárdelo sin protección en el programa que lo creó.</translation>
    </message>
    <message id="imageview.error.pdf-module-missing">
        <source>“%1” cannot be opened because the part of Curvegrab X that knows PDF files is missing. Please install the program again.</source>
        <extracomment>%1 is the name of the file.</extracomment>
        <translation>No se puede abrir «%1» porque falta la parte de Curvegrab X que lee los archivos PDF. Vuelva a instalar el programa.</translation>
    </message>
    <message id="imageview.pdf.password-title">
        <source>“%1” is locked with a password</source>
        <extracomment>%1 is the name of the PDF file. Title of the sheet that asks for its password.</extracomment>
        <translation>«%1» está protegido con una contraseña</translation>
    </message>
    <message id="imageview.pdf.password-text">
        <source>Type the password to open the file.</source>
        <extracomment>In the sheet that asks for the password of a PDF file.</extracomment>
        <translation>Escriba la contraseña para abrir el archivo.</translation>
    </message>
    <message id="imageview.pdf.password-was-wrong">
        <source>This password is not the right one. Check the Caps Lock key and type it again.</source>
        <extracomment>In the sheet that asks for the password of a PDF file, after a wrong one.</extracomment>
        <translation>Esta contraseña no es la correcta. Compruebe la tecla Bloq Mayús y escríbala de nuevo.</translation>
    </message>
    <message id="imageview.choose-page.title">
        <source>Choose a Page of “%1”</source>
        <extracomment>Title of the panel that chooses a page of a PDF file: %1 is the name of the file.</extracomment>
        <translation>Elegir una página de «%1»</translation>
    </message>
    <message id="imageview.choose-page.rendering">
        <source>Painting the page …</source>
        <extracomment>Shown in place of the preview of a page that takes long.</extracomment>
        <translation>Dibujando la página …</translation>
    </message>
    <message id="imageview.choose-page.unreadable">
        <source>This page cannot be shown.</source>
        <extracomment>Shown in place of the preview of a damaged page.</extracomment>
        <translation>Esta página no se puede mostrar.</translation>
    </message>
    <message id="imageview.choose-page.view-tip">
        <source>Turn pages with the wheel; double-click to open this one</source>
        <extracomment>Tooltip of the preview of a page.</extracomment>
        <translation>Pase las páginas con la rueda; haga doble clic para abrir esta</translation>
    </message>
    <message id="imageview.choose-page.view-name">
        <source>Preview of the page</source>
        <extracomment>Name of the preview for screen readers.</extracomment>
        <translation>Vista previa de la página</translation>
    </message>
    <message id="imageview.choose-page.slider-tip">
        <source>Drag to turn many pages quickly</source>
        <extracomment>Tooltip of the page slider.</extracomment>
        <translation>Arrastre para pasar muchas páginas con rapidez</translation>
    </message>
    <message id="imageview.choose-page.slider-name">
        <source>Page slider</source>
        <extracomment>Name of the slider for screen readers.</extracomment>
        <translation>Deslizador de páginas</translation>
    </message>
    <message id="imageview.choose-page.prev-name">
        <source>Previous page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>Página anterior</translation>
    </message>
    <message id="imageview.choose-page.prev-tip">
        <source>Previous page (Page Up)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Página anterior (Re Pág)</translation>
    </message>
    <message id="imageview.choose-page.next-name">
        <source>Next page</source>
        <extracomment>Name of the button for screen readers.</extracomment>
        <translation>Página siguiente</translation>
    </message>
    <message id="imageview.choose-page.next-tip">
        <source>Next page (Page Down)</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Página siguiente (Av Pág)</translation>
    </message>
    <message id="imageview.choose-page.field-label">
        <source>&amp;Page:</source>
        <extracomment>Label of the field into which a page number is typed.</extracomment>
        <translation>&amp;Página:</translation>
    </message>
    <message id="imageview.choose-page.field-tip">
        <source>Type a page number and press Return</source>
        <extracomment>Tooltip of the field.</extracomment>
        <translation>Escriba un número de página y pulse Intro</translation>
    </message>
    <message id="imageview.choose-page.field-name">
        <source>Page number</source>
        <extracomment>Name of the field for screen readers.</extracomment>
        <translation>Número de página</translation>
    </message>
    <message id="imageview.choose-page.goto">
        <source>&amp;Go</source>
        <extracomment>The button that goes to the page whose number was typed.</extracomment>
        <translation>&amp;Ir</translation>
    </message>
    <message id="imageview.choose-page.goto-tip">
        <source>Show the page with the typed number</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Mostrar la página con el número escrito</translation>
    </message>
    <message id="imageview.choose-page.cancel-tip">
        <source>Open no page and keep the present picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>No abrir ninguna página y conservar la imagen actual</translation>
    </message>
    <message id="imageview.choose-page.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the page shown.</extracomment>
        <translation>&amp;Abrir</translation>
    </message>
    <message id="imageview.choose-page.open-tip">
        <source>Open the page shown as the picture</source>
        <extracomment>Tooltip of the button.</extracomment>
        <translation>Abrir la página mostrada como imagen</translation>
    </message>
</context>
</TS>
