<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="AxisChanged">
        <source>The axes have changed</source>
        <extracomment>Title of the message shown when a point was taken under other axes than the current series.</extracomment>
        <translation>Los ejes han cambiado</translation>
    </message>
    <message id="NextSeriesUsed">
        <source>The current series was begun with other axes, so the new point went into series %d, which was empty. Go on clicking there.</source>
        <extracomment>%d is the number of the series, counted from 1.</extracomment>
        <translation>La serie actual se empezó con otros ejes, así que el nuevo punto ha ido a la serie %d, que estaba vacía. Siga pulsando ahí.</translation>
    </message>
    <message id="SeriesIsFull">
        <source>The current series was begun with other axes, and no series is empty, so the point was not added. Save your data, then delete a series that you no longer need.</source>
        <extracomment>Shown when no series is left for a point.</extracomment>
        <translation>La serie actual se empezó con otros ejes y no hay ninguna serie vacía, así que el punto no se ha añadido. Guarde sus datos y borre después una serie que ya no necesite.</translation>
    </message>
    <message id="actionDataAppend">
        <source>Add Point</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>Añadir punto</translation>
    </message>
    <message id="actionDataDelete">
        <source>Delete Series Data</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>Borrar datos de series</translation>
    </message>
    <message id="SaveAllMessage">
        <source>Save all series as tab-separated text</source>
        <extracomment>What the save panel says when all series are saved.</extracomment>
        <translation>Guardar todas las series como texto separado por tabuladores</translation>
    </message>
    <message id="SaveSelectionMessage">
        <source>Save the selected series as tab-separated text</source>
        <extracomment>What the save panel says when the series selected in the table are saved.</extracomment>
        <translation>Guardar las series seleccionadas como texto separado por tabuladores</translation>
    </message>
    <message id="capture.export.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of the message after a failed save; %1 is the file's name.</extracomment>
        <translation>No se ha podido guardar «%1»</translation>
    </message>
    <message id="capture.export.no-folder">
        <source>The folder “%1” does not exist any more. Choose another folder.</source>
        <extracomment>Why a file was not saved; %1 is the folder's name.</extracomment>
        <translation>La carpeta «%1» ya no existe. Elija otra carpeta.</translation>
    </message>
    <message id="capture.export.is-folder">
        <source>There is a folder of this name. Choose another name.</source>
        <extracomment>Why a file was not saved.</extracomment>
        <translation>Hay una carpeta con este nombre. Elija otro nombre.</translation>
    </message>
    <message id="capture.export.not-allowed">
        <source>You are not allowed to write there. Choose another folder.</source>
        <extracomment>Why a file was not saved.</extracomment>
        <translation>No tiene permiso para escribir ahí. Elija otra carpeta.</translation>
    </message>
    <message id="capture.export.not-written">
        <source>The disk may be full or no longer connected. Make room or choose another folder, then save again.</source>
        <extracomment>Why a file was not saved, when the reason is not known exactly.</extracomment>
        <translation>Puede que el disco esté lleno o ya no esté conectado. Libere espacio o elija otra carpeta y guarde de nuevo.</translation>
    </message>
</context>
</TS>
