<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="AxisChanged">
        <source>The axes have changed</source>
        <extracomment>Title of the message shown when a point was taken under other axes than the current series.</extracomment>
        <translation>Die Achsen haben sich geändert</translation>
    </message>
    <message id="NextSeriesUsed">
        <source>The current series was begun with other axes, so the new point went into series %d, which was empty. Go on clicking there.</source>
        <extracomment>%d is the number of the series, counted from 1.</extracomment>
        <translation>Die aktuelle Datenreihe wurde mit anderen Achsen begonnen, darum kam der neue Punkt in die leere Datenreihe %d. Klicken Sie dort weiter.</translation>
    </message>
    <message id="SeriesIsFull">
        <source>The current series was begun with other axes, and no series is empty, so the point was not added. Save your data, then delete a series that you no longer need.</source>
        <extracomment>Shown when no series is left for a point.</extracomment>
        <translation>Die aktuelle Datenreihe wurde mit anderen Achsen begonnen und keine Datenreihe ist leer, darum wurde der Punkt nicht hinzugefügt. Speichern Sie Ihre Daten und löschen Sie dann eine Datenreihe, die Sie nicht mehr brauchen.</translation>
    </message>
    <message id="actionDataAppend">
        <source>Add Point</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>Punkt hinzufügen</translation>
    </message>
    <message id="actionDataDelete">
        <source>Delete Series Data</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>Punkte löschen</translation>
    </message>
    <message id="SaveAllMessage">
        <source>Save all series</source>
        <extracomment>What the save panel says when all series are saved.</extracomment>
        <translation>Alle Datenreihen speichern</translation>
    </message>
    <message id="SaveSelectionMessage">
        <source>Save the selected series</source>
        <extracomment>What the save panel says when the series selected in the table are saved.</extracomment>
        <translation>Die ausgewählten Datenreihen speichern</translation>
    </message>
    <message id="capture.export.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of the message after a failed save; %1 is the file's name.</extracomment>
        <translation>„%1“ konnte nicht gespeichert werden</translation>
    </message>
</context>
</TS>
