<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="document.damage.noDocument">
        <source>This is not a Curvegrab X document.</source>
        <translation>No es un documento de Curvegrab X.</translation>
    </message>
    <message id="document.damage.endsEarly">
        <source>The file ends too early: something is missing at its end.</source>
        <translation>El archivo termina demasiado pronto: falta algo al final.</translation>
    </message>
    <message id="document.damage.tooLarge">
        <source>Something in the file (%1) is far larger than any document has it.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Algo del archivo (%1) es mucho mayor que en ningún documento.</translation>
    </message>
    <message id="document.damage.repeatedKey">
        <source>Something in the file (%1) is there twice.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Algo del archivo (%1) está dos veces.</translation>
    </message>
    <message id="document.damage.badValue">
        <source>Something in the file (%1) is damaged.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Algo del archivo (%1) está dañado.</translation>
    </message>
    <message id="document.damage.trailing">
        <source>Something that does not belong to the document follows its end.</source>
        <translation>Tras el final del documento sigue algo que no forma parte de él.</translation>
    </message>
    <message id="document.damage.picture">
        <source>The picture is damaged and cannot be shown.</source>
        <translation>La imagen está dañada y no se puede mostrar.</translation>
    </message>
    <message id="document.damage.pictureTooLarge">
        <source>The picture needs more memory than is free. Close other programs, then open the document again.</source>
        <translation>La imagen necesita más memoria de la que hay libre. Cierre otros programas y abra de nuevo el documento.</translation>
    </message>
    <message id="document.damage.unreadable">
        <source>Something in the file (%1) cannot be read.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Algo del archivo (%1) no se puede leer.</translation>
    </message>
    <message id="document.part.picture">
        <source>the picture</source>
        <translation>la imagen</translation>
    </message>
    <message id="document.part.table">
        <source>the data table</source>
        <translation>la tabla de datos</translation>
    </message>
    <message id="document.part.axes">
        <source>the axes</source>
        <translation>los ejes</translation>
    </message>
    <message id="document.part.guide">
        <source>the cursor guide</source>
        <translation>las líneas guía</translation>
    </message>
    <message id="document.part.series">
        <source>the data series</source>
        <translation>las series de datos</translation>
    </message>
    <message id="document.part.window">
        <source>the window</source>
        <translation>la ventana</translation>
    </message>
    <message id="document.part.file">
        <source>the whole file</source>
        <translation>todo el archivo</translation>
    </message>
    <message id="document.saving">
        <source>Saving “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Guardando «%1»…</translation>
    </message>
    <message id="document.saving.preparing">
        <source>Preparing the picture of “%1”…</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>Preparando la imagen de «%1»…</translation>
    </message>
    <message id="document.saving.cancelTip">
        <source>Stop saving; the file stays as it was (Esc)</source>
        <translation>Dejar de guardar; el archivo queda como estaba (Esc)</translation>
    </message>
    <message id="document.saving.progressName">
        <source>Progress of saving</source>
        <translation>Progreso del guardado</translation>
    </message>
    <message id="document.save.overwriteTitle">
        <source>Replace “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>¿Sustituir «%1»?</translation>
    </message>
    <message id="document.save.existsText">
        <source>A document of that name is already there, and this one does not come from it.</source>
        <translation>Ya hay un documento con ese nombre, y este no procede de él.</translation>
    </message>
    <message id="document.save.changedText">
        <source>Another program has changed this file since you opened or saved it. If you replace it, those changes are lost.</source>
        <translation>Otro programa ha cambiado este archivo desde que usted lo abrió o lo guardó. Si lo sustituye, esos cambios se pierden.</translation>
    </message>
    <message id="document.save.saveAs">
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
    <message id="document.save.overwrite">
        <source>Replace</source>
        <translation>Sustituir</translation>
    </message>
    <message id="document.save.failedTitle">
        <source>“%1” could not be saved</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>No se ha podido guardar «%1»</translation>
    </message>
    <message id="document.save.failedText">
        <source>%1
Your work is still open here. What was in the file before is unchanged.</source>
        <extracomment>%1 is the reason, a sentence.</extracomment>
        <translation>%1
Su trabajo sigue abierto aquí. Lo que había antes en el archivo no ha cambiado.</translation>
    </message>
    <message id="document.save.noMemory">
        <source>There is not enough memory to save the picture. Close other windows, then try again.</source>
        <translation>No hay memoria suficiente para guardar la imagen. Cierre otras ventanas y vuelva a intentarlo.</translation>
    </message>
    <message id="document.close.title">
        <source>Save the changes to “%1”?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>¿Guardar los cambios de «%1»?</translation>
    </message>
    <message id="document.close.text">
        <source>If you do not save, the changes are lost.</source>
        <translation>Si no guarda, los cambios se pierden.</translation>
    </message>
    <message id="document.close.save">
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message id="document.close.dontSave">
        <source>Don’t Save</source>
        <translation>No guardar</translation>
    </message>
    <message id="document.revert.title">
        <source>Go back to “%1” as it was saved?</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>¿Volver a «%1» tal como se guardó?</translation>
    </message>
    <message id="document.revert.text">
        <source>Everything that was changed since then is lost, and cannot be undone.</source>
        <translation>Todo lo que se ha cambiado desde entonces se pierde y no se puede recuperar.</translation>
    </message>
    <message id="document.revert.revert">
        <source>Revert</source>
        <translation>Volver</translation>
    </message>
    <message id="document.open.failedTitle">
        <source>“%1” cannot be opened</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>No se puede abrir «%1»</translation>
    </message>
    <message id="document.open.missing">
        <source>There is no such file any more. It may have been moved or renamed.</source>
        <translation>Ese archivo ya no existe. Puede que se haya movido o renombrado.</translation>
    </message>
    <message id="document.open.tooLarge">
        <source>The file needs more memory than is free. Close other programs, then try again.</source>
        <translation>El archivo necesita más memoria de la que hay libre. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message id="document.open.noFile">
        <source>This is a folder or a device, not a file.</source>
        <translation>Esto es una carpeta o un dispositivo, no un archivo.</translation>
    </message>
    <message id="document.open.unknownType">
        <source>Curvegrab X opens its own documents (.crvgrab) and pictures such as PNG, JPEG or TIFF. If this is a picture, give its name the right ending.</source>
        <translation>Curvegrab X abre sus propios documentos (.crvgrab) e imágenes como PNG, JPEG o TIFF. Si es una imagen, dé a su nombre la terminación correcta.</translation>
    </message>
    <message id="document.open.damagedTitle">
        <source>“%1” is damaged</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>«%1» está dañado</translation>
    </message>
    <message id="document.open.remainsText">
        <source>%1
You can open what is left of it as a new document. The file itself stays as it is.</source>
        <extracomment>%1 says what is damaged.</extracomment>
        <translation>%1
Puede abrir lo que queda de él como documento nuevo. El archivo mismo queda como está.</translation>
    </message>
    <message id="document.open.remains">
        <source>Open What Is Left</source>
        <translation>Abrir lo que queda</translation>
    </message>
    <message id="document.command.openRecent">
        <source>Open &amp;Recent</source>
        <translation>Abiertos &amp;recientemente</translation>
    </message>
    <message id="document.command.openPicture">
        <source>Open &amp;Picture Here…</source>
        <translation>Abrir &amp;imagen aquí…</translation>
    </message>
    <message id="document.command.save">
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message id="document.command.saveAs">
        <source>S&amp;ave As…</source>
        <translation>Guardar co&amp;mo…</translation>
    </message>
    <message id="document.command.revert">
        <source>Re&amp;vert to Saved</source>
        <translation>Volver a &amp;lo guardado</translation>
    </message>
    <message id="document.recent.item">
        <source>%1 — %2</source>
        <extracomment>A file and its folder</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message id="document.recent.clear">
        <source>Clear This List</source>
        <translation>Vaciar esta lista</translation>
    </message>
    <message id="document.recovery.title">
        <source>Bring back your unsaved work?</source>
        <translation>¿Recuperar su trabajo sin guardar?</translation>
    </message>
    <message id="document.recovery.text">
        <source>Curvegrab X ended before these documents were saved:
%1
Their changes were kept.</source>
        <extracomment>The names of the documents, one a line</extracomment>
        <translation>Curvegrab X terminó antes de que se guardaran estos documentos:
%1
Sus cambios se han conservado.</translation>
    </message>
    <message id="document.recovery.bringBack">
        <source>Bring Back</source>
        <translation>Recuperar</translation>
    </message>
    <message id="document.recovery.later">
        <source>Ask Later</source>
        <translation>Preguntar más tarde</translation>
    </message>
    <message id="document.recovery.discard">
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message id="document.recovery.failed">
        <source>Unsaved changes are not kept safe from a crash: %1 Save often.</source>
        <extracomment>The reason, a sentence</extracomment>
        <translation>Los cambios sin guardar no están a salvo de un fallo del programa: %1 Guarde a menudo.</translation>
    </message>
    <message id="document.recovery.noFolder">
        <source>The folder for them cannot be made.</source>
        <translation>No se puede crear la carpeta para ellos.</translation>
    </message>
</context>
</TS>
