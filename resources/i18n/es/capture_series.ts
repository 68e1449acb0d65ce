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
        <source>Save all series</source>
        <extracomment>What the save panel says when all series are saved.</extracomment>
        <translation>Guardar todas las series</translation>
    </message>
    <message id="SaveSelectionMessage">
        <source>Save the selected series</source>
        <extracomment>What the save panel says when the series selected in the table are saved.</extracomment>
        <translation>Guardar las series seleccionadas</translation>
    </message>
    <message id="capture.export.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of the message after a failed save; %1 is the file's name.</extracomment>
        <translation>No se ha podido guardar «%1»</translation>
    </message>
</context>
</TS>
