<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="app.description">
        <source>Turns the picture of a chart into numbers.</source>
        <extracomment>The first line of the command line's help.</extracomment>
        <translation>Turns the picture of a chart into numbers.</translation>
    </message>
    <message id="app.pictures">
        <source>Pictures of charts to open, each in a window of its own.</source>
        <extracomment>Explains the command line's arguments.</extracomment>
        <translation>Pictures of charts to open, each in a window of its own.</translation>
    </message>
</context>
</TS>
