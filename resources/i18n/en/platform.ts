<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="OK">
        <source>OK</source>
        <extracomment>The button that closes a message.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <extracomment>The button that gives up a question without doing anything.</extracomment>
        <translation>Cancel</translation>
    </message>
</context>
</TS>
