<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>ListSubsetDialog</name>
    <message>
        <source>List Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Select2Dialog</name>
    <message>
        <source>Select Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Step up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableDialog</name>
    <message>
        <source>Table Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+R</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Co&amp;lumn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VtDesignerPlugin</name>
    <message>
        <source>Number entry with steps, kept as text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line of text bound to an element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain text bound to an element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text taken from the call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check box, 1 or 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checkable group, 1 or 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radio buttons; the selected id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radio button bound to an element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choice from items separated by |</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List with selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Button with an action text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accepts the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rejects the dialog</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
