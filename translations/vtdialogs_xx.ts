<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="xx">
<context>
    <name>ListSubsetDialog</name>
    <message>
        <source>List Selection</source>
        <translation>[Líšt Šéléçtíóñ~~~~]</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>[Áváíláblé~~]</translation>
    </message>
    <message>
        <source>Add Selected</source>
        <translation>[Ádd Šéléçtéd~~~]</translation>
    </message>
    <message>
        <source>Add All</source>
        <translation>[Ádd Áll~]</translation>
    </message>
    <message>
        <source>Remove Selected</source>
        <translation>[Rémóvé Šéléçtéd~~~~]</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>[Rémóvé Áll~~]</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>[Šéléçtéd~]</translation>
    </message>
</context>
<context>
    <name>Select2Dialog</name>
    <message>
        <source>Select Items</source>
        <translation>[Šéléçt Ítémš~~~]</translation>
    </message>
    <message>
        <source>Message1</source>
        <translation>[Méššágé1~]</translation>
    </message>
    <message>
        <source>Message2</source>
        <translation>[Méššágé2~]</translation>
    </message>
    <message>
        <source>Message3</source>
        <translation>[Méššágé3~]</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>[&amp;Ók~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Step up</source>
        <translation>[Štép úp~]</translation>
    </message>
    <message>
        <source>Step down</source>
        <translation>[Štép dówñ~~]</translation>
    </message>
</context>
<context>
    <name>TableDialog</name>
    <message>
        <source>Table Dialog</source>
        <translation>[Táblé Díálóg~~~]</translation>
    </message>
    <message>
        <source>message</source>
        <translation>[méššágé~]</translation>
    </message>
    <message>
        <source>1</source>
        <translation>[1~]</translation>
    </message>
    <message>
        <source>2</source>
        <translation>[2~]</translation>
    </message>
    <message>
        <source>Add &amp;Row</source>
        <translation>[Ádd &amp;Rów~]</translation>
    </message>
    <message>
        <source>Alt+R</source>
        <translation>[Ált+R~]</translation>
    </message>
    <message>
        <source>Remove Row</source>
        <translation>[Rémóvé Rów~~]</translation>
    </message>
    <message>
        <source>Add Co&amp;lumn</source>
        <translation>[Ádd Çó&amp;lúmñ~~]</translation>
    </message>
    <message>
        <source>Alt+L</source>
        <translation>[Ált+L~]</translation>
    </message>
    <message>
        <source>Remove Column</source>
        <translation>[Rémóvé Çólúmñ~~~]</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>[&amp;Ók~]</translation>
    </message>
    <message>
        <source>Alt+O</source>
        <translation>[Ált+Ó~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
</context>
<context>
    <name>VtDesignerPlugin</name>
    <message>
        <source>Number entry with steps, kept as text</source>
        <translation>[Ñúmbér éñtrý wíth štépš, képt áš téxt~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Line of text bound to an element</source>
        <translation>[Líñé óf téxt bóúñd tó áñ éléméñt~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Plain text bound to an element</source>
        <translation>[Pláíñ téxt bóúñd tó áñ éléméñt~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Text taken from the call</source>
        <translation>[Téxt tákéñ fróm thé çáll~~~~~~~~]</translation>
    </message>
    <message>
        <source>Check box, 1 or 0</source>
        <translation>[Çhéçk bóx, 1 ór 0~~~~~]</translation>
    </message>
    <message>
        <source>Checkable group, 1 or 0</source>
        <translation>[Çhéçkáblé gróúp, 1 ór 0~~~~~~~]</translation>
    </message>
    <message>
        <source>Radio buttons; the selected id</source>
        <translation>[Rádíó búttóñš; thé šéléçtéd íd~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Radio button bound to an element</source>
        <translation>[Rádíó búttóñ bóúñd tó áñ éléméñt~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Choice from items separated by |</source>
        <translation>[Çhóíçé fróm ítémš šépárátéd bý |~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>List with selection</source>
        <translation>[Líšt wíth šéléçtíóñ~~~~~~]</translation>
    </message>
    <message>
        <source>Button with an action text</source>
        <translation>[Búttóñ wíth áñ áçtíóñ téxt~~~~~~~~]</translation>
    </message>
    <message>
        <source>Accepts the dialog</source>
        <translation>[Áççéptš thé díálóg~~~~~]</translation>
    </message>
    <message>
        <source>Rejects the dialog</source>
        <translation>[Réjéçtš thé díálóg~~~~~]</translation>
    </message>
</context>
</TS>