<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="prefs.title">
        <source>Preferences</source>
        <extracomment>Title of the preferences window.</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message id="prefs.axes">
        <source>Axes and anchors</source>
        <extracomment>Title of a group.</extracomment>
        <translation>Achsen und Anker</translation>
    </message>
    <message id="prefs.axis.color">
        <source>Colour:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Farbe:</translation>
    </message>
    <message id="prefs.color.tip">
        <source>Click to choose a colour and how opaque it is</source>
        <extracomment>Tool tip of every colour button.</extracomment>
        <translation>Klicken, um Farbe und Deckkraft zu wählen</translation>
    </message>
    <message id="prefs.axis.color.name">
        <source>Axis colour</source>
        <extracomment>Accessible name of the colour button.</extracomment>
        <translation>Farbe der Achsen</translation>
    </message>
    <message id="prefs.axis.thickness">
        <source>Line thickness:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Linienstärke:</translation>
    </message>
    <message id="prefs.axis.thickness.tip">
        <source>How thick the axes are drawn</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>Wie dick die Achsen gezeichnet werden</translation>
    </message>
    <message id="prefs.axis.thickness.name">
        <source>Axis thickness</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Linienstärke der Achsen</translation>
    </message>
    <message id="prefs.unit.thickness">
        <source>1 – 5 points</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>1 – 5 Punkte</translation>
    </message>
    <message id="prefs.axis.anchor">
        <source>Anchor size:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Größe der Anker:</translation>
    </message>
    <message id="prefs.axis.anchor.tip">
        <source>How large the squares at the ends of the axes are</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>Wie groß die Quadrate an den Enden der Achsen sind</translation>
    </message>
    <message id="prefs.axis.anchor.name">
        <source>Anchor size</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Größe der Anker</translation>
    </message>
    <message id="prefs.unit.size">
        <source>3 – 15 points</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>3 – 15 Punkte</translation>
    </message>
    <message id="prefs.guide">
        <source>Guide lines</source>
        <extracomment>Title of a group: the lines that follow the pointer.</extracomment>
        <translation>Hilfslinien</translation>
    </message>
    <message id="prefs.guide.color">
        <source>Colour:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Farbe:</translation>
    </message>
    <message id="prefs.guide.color.name">
        <source>Guide colour</source>
        <extracomment>Accessible name of the colour button.</extracomment>
        <translation>Farbe der Hilfslinien</translation>
    </message>
    <message id="prefs.guide.thickness">
        <source>Line thickness:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Linienstärke:</translation>
    </message>
    <message id="prefs.guide.thickness.tip">
        <source>How thick the lines that follow the pointer are drawn</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>Wie dick die Linien gezeichnet werden, die dem Zeiger folgen</translation>
    </message>
    <message id="prefs.guide.thickness.name">
        <source>Guide thickness</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Linienstärke der Hilfslinien</translation>
    </message>
    <message id="prefs.guide.interval">
        <source>Follow the pointer every:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Dem Zeiger folgen alle:</translation>
    </message>
    <message id="prefs.guide.interval.tip">
        <source>How often guide and values follow the pointer: a shorter time is smoother, a longer one spares the battery</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>Wie oft Hilfslinien und Werte dem Zeiger folgen: Eine kürzere Zeit ist flüssiger, eine längere schont den Akku</translation>
    </message>
    <message id="prefs.guide.interval.name">
        <source>Guide interval</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Intervall der Hilfslinien</translation>
    </message>
    <message id="prefs.unit.interval">
        <source>0.01 – 0.2 s</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>0.01 – 0.2 s</translation>
    </message>
    <message id="prefs.pdf">
        <source>PDF pages</source>
        <extracomment>Title of a group.</extracomment>
        <translation>PDF-Seiten</translation>
    </message>
    <message id="prefs.pdf.scale">
        <source>Read at:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Lesen mit:</translation>
    </message>
    <message id="prefs.pdf.scale.tip">
        <source>How large a PDF page becomes as a picture: a larger scale shows finer detail and needs more memory</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>Wie groß eine PDF-Seite als Bild wird: Ein größerer Maßstab zeigt feinere Einzelheiten und braucht mehr Speicher</translation>
    </message>
    <message id="prefs.pdf.scale.name">
        <source>PDF reading scale</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Maßstab zum Lesen von PDF</translation>
    </message>
    <message id="prefs.unit.percent">
        <source>100 – 800 %</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>100 – 800 %</translation>
    </message>
    <message id="prefs.export">
        <source>Data as text</source>
        <extracomment>Title of a group.</extracomment>
        <translation>Daten als Text</translation>
    </message>
    <message id="prefs.export.copy.tip">
        <source>Begin copied data with a line of titles</source>
        <extracomment>Tool tip of the check box.</extracomment>
        <translation>Kopierte Daten mit einer Titelzeile beginnen</translation>
    </message>
    <message id="prefs.export.copy">
        <source>Titles when co&amp;pying</source>
        <extracomment>Check box in the preferences window.</extracomment>
        <translation>&amp;Titel beim Kopieren</translation>
    </message>
    <message id="prefs.export.save.tip">
        <source>Begin saved text files with a line of titles</source>
        <extracomment>Tool tip of the check box.</extracomment>
        <translation>Gespeicherte Textdateien mit einer Titelzeile beginnen</translation>
    </message>
    <message id="prefs.export.save">
        <source>Titles when &amp;saving</source>
        <extracomment>Check box in the preferences window.</extracomment>
        <translation>Titel beim &amp;Speichern</translation>
    </message>
    <message id="prefs.markers">
        <source>Markers of the series</source>
        <extracomment>Title of a group.</extracomment>
        <translation>Marker der Datenreihen</translation>
    </message>
    <message id="prefs.markers.color">
        <source>Colour</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>Farbe</translation>
    </message>
    <message id="prefs.markers.shape">
        <source>Shape</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>Form</translation>
    </message>
    <message id="prefs.markers.size">
        <source>Size</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>Größe</translation>
    </message>
    <message id="prefs.series.1">
        <source>Series 1</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 1</translation>
    </message>
    <message id="prefs.series.1.color">
        <source>Colour of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 1</translation>
    </message>
    <message id="prefs.series.1.shape">
        <source>Marker shape of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 1</translation>
    </message>
    <message id="prefs.markers.size.tip">
        <source>Size of the markers, 3 to 15 points</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Größe der Marker, 3 bis 15 Punkte</translation>
    </message>
    <message id="prefs.series.1.size">
        <source>Marker size of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 1</translation>
    </message>
    <message id="prefs.series.2">
        <source>Series 2</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 2</translation>
    </message>
    <message id="prefs.series.2.color">
        <source>Colour of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 2</translation>
    </message>
    <message id="prefs.series.2.shape">
        <source>Marker shape of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 2</translation>
    </message>
    <message id="prefs.series.2.size">
        <source>Marker size of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 2</translation>
    </message>
    <message id="prefs.series.3">
        <source>Series 3</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 3</translation>
    </message>
    <message id="prefs.series.3.color">
        <source>Colour of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 3</translation>
    </message>
    <message id="prefs.series.3.shape">
        <source>Marker shape of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 3</translation>
    </message>
    <message id="prefs.series.3.size">
        <source>Marker size of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 3</translation>
    </message>
    <message id="prefs.series.4">
        <source>Series 4</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 4</translation>
    </message>
    <message id="prefs.series.4.color">
        <source>Colour of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 4</translation>
    </message>
    <message id="prefs.series.4.shape">
        <source>Marker shape of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 4</translation>
    </message>
    <message id="prefs.series.4.size">
        <source>Marker size of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 4</translation>
    </message>
    <message id="prefs.series.5">
        <source>Series 5</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 5</translation>
    </message>
    <message id="prefs.series.5.color">
        <source>Colour of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 5</translation>
    </message>
    <message id="prefs.series.5.shape">
        <source>Marker shape of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 5</translation>
    </message>
    <message id="prefs.series.5.size">
        <source>Marker size of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 5</translation>
    </message>
    <message id="prefs.series.6">
        <source>Series 6</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 6</translation>
    </message>
    <message id="prefs.series.6.color">
        <source>Colour of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 6</translation>
    </message>
    <message id="prefs.series.6.shape">
        <source>Marker shape of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 6</translation>
    </message>
    <message id="prefs.series.6.size">
        <source>Marker size of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 6</translation>
    </message>
    <message id="prefs.series.7">
        <source>Series 7</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 7</translation>
    </message>
    <message id="prefs.series.7.color">
        <source>Colour of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 7</translation>
    </message>
    <message id="prefs.series.7.shape">
        <source>Marker shape of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 7</translation>
    </message>
    <message id="prefs.series.7.size">
        <source>Marker size of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 7</translation>
    </message>
    <message id="prefs.series.8">
        <source>Series 8</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 8</translation>
    </message>
    <message id="prefs.series.8.color">
        <source>Colour of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 8</translation>
    </message>
    <message id="prefs.series.8.shape">
        <source>Marker shape of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 8</translation>
    </message>
    <message id="prefs.series.8.size">
        <source>Marker size of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 8</translation>
    </message>
    <message id="prefs.series.9">
        <source>Series 9</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 9</translation>
    </message>
    <message id="prefs.series.9.color">
        <source>Colour of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 9</translation>
    </message>
    <message id="prefs.series.9.shape">
        <source>Marker shape of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 9</translation>
    </message>
    <message id="prefs.series.9.size">
        <source>Marker size of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 9</translation>
    </message>
    <message id="prefs.series.10">
        <source>Series 10</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Datenreihe 10</translation>
    </message>
    <message id="prefs.series.10.color">
        <source>Colour of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Farbe der Datenreihe 10</translation>
    </message>
    <message id="prefs.series.10.shape">
        <source>Marker shape of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Form der Marker von Datenreihe 10</translation>
    </message>
    <message id="prefs.series.10.size">
        <source>Marker size of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Größe der Marker von Datenreihe 10</translation>
    </message>
    <message id="prefs.markers.size.unit">
        <source>Sizes are 3 to 15 points on the screen.</source>
        <extracomment>Note below the ten rows.</extracomment>
        <translation>Größen sind 3 bis 15 Punkte auf dem Bildschirm.</translation>
    </message>
    <message id="prefs.help">
        <source>&amp;Help</source>
        <extracomment>Button.</extracomment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="prefs.help.tip">
        <source>Explain the preferences</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Die Einstellungen erklären</translation>
    </message>
    <message id="prefs.factory">
        <source>&amp;Factory Settings</source>
        <extracomment>Button.</extracomment>
        <translation>&amp;Werkseinstellungen</translation>
    </message>
    <message id="prefs.factory.tip">
        <source>Show the settings that the program came with; nothing is stored until OK</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Die Einstellungen zeigen, mit denen das Programm geliefert wird; vor OK wird nichts gespeichert</translation>
    </message>
    <message id="prefs.cancel.tip">
        <source>Close and leave every setting as it was</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Schließen und jede Einstellung lassen, wie sie war</translation>
    </message>
    <message id="prefs.ok.tip">
        <source>Store the settings and show them in every window</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Die Einstellungen speichern und in jedem Fenster zeigen</translation>
    </message>
    <message id="prefs.color.value">
        <source>%1, opacity %2 %</source>
        <extracomment>What a colour button tells screen readers: the colour in hexadecimal (%1), its opacity in percent (%2).</extracomment>
        <translation>%1, Deckkraft %2 %</translation>
    </message>
    <message id="prefs.shape.0">
        <source>Filled square</source>
        <extracomment>Marker shape.</extracomment>
        <translation>Gefülltes Quadrat</translation>
    </message>
    <message id="prefs.shape.1">
        <source>Open square</source>
        <extracomment>Marker shape.</extracomment>
        <translation>Offenes Quadrat</translation>
    </message>
    <message id="prefs.shape.2">
        <source>Filled circle</source>
        <extracomment>Marker shape.</extracomment>
        <translation>Gefüllter Kreis</translation>
    </message>
    <message id="prefs.shape.3">
        <source>Open circle</source>
        <extracomment>Marker shape.</extracomment>
        <translation>Offener Kreis</translation>
    </message>
    <message id="prefs.color.title">
        <source>Choose a colour</source>
        <extracomment>Title of the colour chooser.</extracomment>
        <translation>Eine Farbe wählen</translation>
    </message>
</context>
</TS>
