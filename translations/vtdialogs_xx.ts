<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="xx">
<context>
    <name>BrelvonOptionsDialog</name>
    <message>
        <source>BRELVON Options</source>
        <translation>[BRÉLVÓÑ Óptíóñš~~~~]</translation>
    </message>
    <message>
        <source>Model Extraction</source>
        <translation>[Módél Éxtráçtíóñ~~~~]</translation>
    </message>
    <message>
        <source>MOSFET</source>
        <translation>[MÓŠFÉT~]</translation>
    </message>
    <message>
        <source>Initial place preference</source>
        <translation>[Íñítíál pláçé préféréñçé~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Extracted model</source>
        <translation>[Éxtráçtéd módél~~~~]</translation>
    </message>
    <message>
        <source>User-defined model</source>
        <translation>[Úšér-défíñéd módél~~~~~]</translation>
    </message>
    <message>
        <source>Automatically copy extracted 

parameters to User-defined parameters</source>
        <translation>[Áútómátíçállý çópý éxtráçtéd~~~~~~ ~~~~~~ 

párámétérš tó Úšér-défíñéd párámétérš~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Default model extraction test conditions</source>
        <translation>[Défáúlt módél éxtráçtíóñ téšt çóñdítíóñš~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Drain current</source>
        <translation>[Dráíñ çúrréñt~~~]</translation>
    </message>
    <message>
        <source>A</source>
        <translation>[Á~]</translation>
    </message>
    <message>
        <source>Drain to source voltage</source>
        <translation>[Dráíñ tó šóúrçé vóltágé~~~~~~ ~]</translation>
    </message>
    <message>
        <source>V</source>
        <translation>[V~]</translation>
    </message>
    <message>
        <source>Gate drive voltage</source>
        <translation>[Gáté drívé vóltágé~~~~~]</translation>
    </message>
    <message>
        <source>Model level</source>
        <translation>[Módél lévél~~]</translation>
    </message>
    <message>
        <source>Model temperature</source>
        <translation>[Módél témpérátúré~~~~~]</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>[°Ç~]</translation>
    </message>
    <message>
        <source>Number of body diode segments</source>
        <translation>[Ñúmbér óf bódý díódé šégméñtš~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Limit maximum off resistance</source>
        <translation>[Límít máxímúm óff réšíštáñçé~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Maximum off resistance</source>
        <translation>[Máxímúm óff réšíštáñçé~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Ω</source>
        <translation>[Ω~]</translation>
    </message>
    <message>
        <source>Reset form to default values</source>
        <translation>[Réšét fórm tó défáúlt válúéš~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>[Šhów ádváñçéd óptíóñš~~~~~~]</translation>
    </message>
    <message>
        <source>Advanced options</source>
        <translation>[Ádváñçéd óptíóñš~~~~]</translation>
    </message>
    <message>
        <source>The extraction draws a straight line between two points on the
drain current vs. gate drive voltage curves, set here as ratios of the peak drain current.</source>
        <translation>[Thé éxtráçtíóñ dráwš á štráíght líñé bétwééñ twó póíñtš óñ thé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~
dráíñ çúrréñt vš. gáté drívé vóltágé çúrvéš, šét héré áš rátíóš óf thé péák dráíñ çúrréñt.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Peak curve fit point expressed as the ratio of peak drain current</source>
        <translation>[Péák çúrvé fít póíñt éxpréššéd áš thé rátíó óf péák dráíñ çúrréñt~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Minimum curve fit point expressed as the ratio of peak drain current</source>
        <translation>[Míñímúm çúrvé fít póíñt éxpréššéd áš thé rátíó óf péák dráíñ çúrréñt~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Maximum instantaneous power dissipation</source>
        <translation>[Máxímúm íñštáñtáñéóúš pówér díššípátíóñ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>W</source>
        <translation>[W~]</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>[Débúg~]</translation>
    </message>
    <message>
        <source>Output parameter debug statements to the deck file</source>
        <translation>[Óútpút párámétér débúg štátéméñtš tó thé déçk fílé~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Diode</source>
        <translation>[Díódé~]</translation>
    </message>
    <message>
        <source>Forward current</source>
        <translation>[Fórwárd çúrréñt~~~~]</translation>
    </message>
    <message>
        <source>Reverse voltage</source>
        <translation>[Révéršé vóltágé~~~~]</translation>
    </message>
    <message>
        <source>Number of diode segments</source>
        <translation>[Ñúmbér óf díódé šégméñtš~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>IGBT</source>
        <translation>[ÍGBT~]</translation>
    </message>
    <message>
        <source>Collector current</source>
        <translation>[Çólléçtór çúrréñt~~~~~]</translation>
    </message>
    <message>
        <source>Collector to emitter voltage</source>
        <translation>[Çólléçtór tó émíttér vóltágé~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Number of anti-parallel diode segments</source>
        <translation>[Ñúmbér óf áñtí-párállél díódé šégméñtš~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>The extraction draws a straight line between two points on the
collector current vs. gate drive voltage curves, set here as ratios of the peak collector current.</source>
        <translation>[Thé éxtráçtíóñ dráwš á štráíght líñé bétwééñ twó póíñtš óñ thé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~
çólléçtór çúrréñt vš. gáté drívé vóltágé çúrvéš, šét héré áš rátíóš óf thé péák çólléçtór çúrréñt.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Peak curve fit point expressed as the ratio of peak collector current</source>
        <translation>[Péák çúrvé fít póíñt éxpréššéd áš thé rátíó óf péák çólléçtór çúrréñt~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Minimum curve fit point expressed as the ratio of peak collector current</source>
        <translation>[Míñímúm çúrvé fít póíñt éxpréššéd áš thé rátíó óf péák çólléçtór çúrréñt~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>JFET</source>
        <translation>[JFÉT~]</translation>
    </message>
    <message>
        <source>Off-state gate drive voltage</source>
        <translation>[Óff-štáté gáté drívé vóltágé~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Zener</source>
        <translation>[Zéñér~]</translation>
    </message>
    <message>
        <source>Test current</source>
        <translation>[Téšt çúrréñt~~~]</translation>
    </message>
    <message>
        <source>Number of segments</source>
        <translation>[Ñúmbér óf šégméñtš~~~~~]</translation>
    </message>
    <message>
        <source>3 Segment Zener</source>
        <translation>[3 Šégméñt Zéñér~~~~]</translation>
    </message>
    <message>
        <source>5 Segment Zener</source>
        <translation>[5 Šégméñt Zéñér~~~~]</translation>
    </message>
    <message>
        <source>BJT</source>
        <translation>[BJT~]</translation>
    </message>
    <message>
        <source>Translated model</source>
        <translation>[Tráñšlátéd módél~~~~]</translation>
    </message>
    <message>
        <source>Automatically copy translated

parameters to User-defined parameters</source>
        <translation>[Áútómátíçállý çópý tráñšlátéd~~~~~~ ~~~~~~

párámétérš tó Úšér-défíñéd párámétérš~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Default translation parameters</source>
        <translation>[Défáúlt tráñšlátíóñ párámétérš~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>ASCII Model/Symbol Creation</source>
        <translation>[ÁŠÇÍÍ Módél/Šýmból Çréátíóñ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Symbol creation options</source>
        <translation>[Šýmból çréátíóñ óptíóñš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Save symbol to:</source>
        <translation>[Šávé šýmból tó:~~~~]</translation>
    </message>
    <message>
        <source>Local symbol library</source>
        <translation>[Lóçál šýmból líbrárý~~~~~~]</translation>
    </message>
    <message>
        <source>If selected, the symbol is output to a symbol library in the schematic directory.</source>
        <translation>[Íf šéléçtéd, thé šýmból íš óútpút tó á šýmból líbrárý íñ thé šçhémátíç díréçtórý.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Global symbol library</source>
        <translation>[Glóbál šýmból líbrárý~~~~~~]</translation>
    </message>
    <message>
        <source>If selected, the symbol is output to the specified global symbol library.</source>
        <translation>[Íf šéléçtéd, thé šýmból íš óútpút tó thé špéçífíéd glóbál šýmból líbrárý.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Global symbol file name.</source>
        <translation>[Glóbál šýmból fílé ñámé.~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>[Brówšé...~~]</translation>
    </message>
    <message>
        <source>Symbol category</source>
        <translation>[Šýmból çátégórý~~~~]</translation>
    </message>
    <message>
        <source>Symbol category with a seimcolon delimiter to define sub categories.</source>
        <translation>[Šýmból çátégórý wíth á šéímçólóñ délímítér tó défíñé šúb çátégóríéš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Model creation options</source>
        <translation>[Módél çréátíóñ óptíóñš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Do not check .INCLUDE files for .VAR statements</source>
        <translation>[Dó ñót çhéçk .ÍÑÇLÚDÉ fíléš fór .VÁR štátéméñtš~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Dangerous: with this checked, .INLCUDE files are not searched for .VAR statements, and a model that relies on them may be wrong. Only check this option if you REALLY know what you are doing.</source>
        <translation>[Dáñgéróúš: wíth thíš çhéçkéd, .ÍÑLÇÚDÉ fíléš áré ñót šéárçhéd fór .VÁR štátéméñtš, áñd á módél thát rélíéš óñ thém máý bé wróñg. Óñlý çhéçk thíš óptíóñ íf ýóú RÉÁLLÝ kñów whát ýóú áré dóíñg.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Comment out all .GRAPH statements</source>
        <translation>[Çómméñt óút áll .GRÁPH štátéméñtš~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Comment out all .PRINT statements</source>
        <translation>[Çómméñt óút áll .PRÍÑT štátéméñtš~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>[Ók~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>Hide Advanced Options</source>
        <translation>[Hídé Ádváñçéd Óptíóñš~~~~~~]</translation>
    </message>
    <message>
        <source>Show Advanced Options</source>
        <translation>[Šhów Ádváñçéd Óptíóñš~~~~~~]</translation>
    </message>
    <message>
        <source>Symbol Libraries (*.%1)</source>
        <translation>[Šýmból Líbráríéš (*.%1)~~~~~~]</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>[Šávé Áš~]</translation>
    </message>
</context>
<context>
    <name>ConvergenceDialog</name>
    <message>
        <source>Convergence Dialog</source>
        <translation>[Çóñvérgéñçé Díálóg~~~~~]</translation>
    </message>
    <message>
        <source>Use these options when a run stops with "No convergence in transient analysis"
or "Cannot find DC operating point". Try advanced iteration first: it has no
disadvantages other than a slight loss of speed.</source>
        <translation>[Úšé théšé óptíóñš whéñ á rúñ štópš wíth "Ñó çóñvérgéñçé íñ tráñšíéñt áñálýšíš"~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~
ór "Çáññót fíñd DÇ ópérátíñg póíñt". Trý ádváñçéd ítérátíóñ fíršt: ít háš ñó~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
díšádváñtágéš óthér tháñ á šlíght lóšš óf špééd.~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Advanced iteration</source>
        <translation>[Ádváñçéd ítérátíóñ~~~~~]</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>[Éñáblé~]</translation>
    </message>
    <message>
        <source>Advanced iteration nearly always improves convergence and accuracy. It may
slow a simulation down by 5 to 10%, but it can also speed it up. Not all types
of device support it yet; you will be warned if your circuit holds one that
does not.</source>
        <translation>[Ádváñçéd ítérátíóñ ñéárlý álwáýš ímpróvéš çóñvérgéñçé áñd áççúráçý. Ít máý~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
šlów á šímúlátíóñ dówñ bý 5 tó 10%, bút ít çáñ álšó špééd ít úp. Ñót áll týpéš~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~
óf dévíçé šúppórt ít ýét; ýóú wíll bé wárñéd íf ýóúr çírçúít hóldš óñé thát~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
dóéš ñót.~~]</translation>
    </message>
    <message>
        <source>Tolerances</source>
        <translation>[Tóléráñçéš~~]</translation>
    </message>
    <message>
        <source>Absolute current</source>
        <translation>[Ábšólúté çúrréñt~~~~]</translation>
    </message>
    <message>
        <source>A</source>
        <translation>[Á~]</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>[Défáúlt~]</translation>
    </message>
    <message>
        <source>The absolute current tolerance defaults to 1pA, which is sometimes too low. A
value of up to 1nA often solves convergence problems.</source>
        <translation>[Thé ábšólúté çúrréñt tóléráñçé défáúltš tó 1pÁ, whíçh íš šómétíméš tóó lów. Á~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~
válúé óf úp tó 1ñÁ óftéñ šólvéš çóñvérgéñçé próblémš.~~~~~~ ~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Time step</source>
        <translation>[Tímé štép~~]</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>[Míñímúm~]</translation>
    </message>
    <message>
        <source>s</source>
        <translation>[š~]</translation>
    </message>
    <message>
        <source>A minimum time step of 1f or less can sometimes help transient analysis to
converge, and does not significantly affect the simulation time.</source>
        <translation>[Á míñímúm tímé štép óf 1f ór léšš çáñ šómétíméš hélp tráñšíéñt áñálýšíš tó~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
çóñvérgé, áñd dóéš ñót šígñífíçáñtlý áfféçt thé šímúlátíóñ tímé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Slew rate for discontinuous sources</source>
        <translation>[Šléw ráté fór díšçóñtíñúóúš šóúrçéš~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Slew rate</source>
        <translation>[Šléw ráté~~]</translation>
    </message>
    <message>
        <source>V/s</source>
        <translation>[V/š~]</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>[Díšáblé~]</translation>
    </message>
    <message>
        <source>Applies to arbitrary sources with expressions of the form IF(expression,
constant, constant), common in power controller models, and removes their
discontinuity. Do not set it lower than 1E9.</source>
        <translation>[Ápplíéš tó árbítrárý šóúrçéš wíth éxpréššíóñš óf thé fórm ÍF(éxpréššíóñ,~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~
çóñštáñt, çóñštáñt), çómmóñ íñ pówér çóñtróllér módélš, áñd rémóvéš théír~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~
díšçóñtíñúítý. Dó ñót šét ít lówér tháñ 1É9.~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Shunt capacitance</source>
        <translation>[Šhúñt çápáçítáñçé~~~~~]</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>[Çápáçítáñçé~~]</translation>
    </message>
    <message>
        <source>F</source>
        <translation>[F~]</translation>
    </message>
    <message>
        <source>Apply shunt capacitance globally</source>
        <translation>[Ápplý šhúñt çápáçítáñçé glóbállý~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>For transient analysis only: a small capacitance to ground from all top level
nodes, that is nodes not in a subcircuit or hierarchical block. As little as
1fF can improve convergence. Applying it globally puts it on all nodes; use
that with care, as it can affect subcircuit models.</source>
        <translation>[Fór tráñšíéñt áñálýšíš óñlý: á šmáll çápáçítáñçé tó gróúñd fróm áll tóp lévél~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~
ñódéš, thát íš ñódéš ñót íñ á šúbçírçúít ór híérárçhíçál blóçk. Áš líttlé áš~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
1fF çáñ ímpróvé çóñvérgéñçé. Ápplýíñg ít glóbállý pútš ít óñ áll ñódéš; úšé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
thát wíth çáré, áš ít çáñ áfféçt šúbçírçúít módélš.~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
</context>
<context>
    <name>CreateDiodeDialog</name>
    <message>
        <source>Create Diode Model</source>
        <translation>[Çréáté Díódé Módél~~~~~]</translation>
    </message>
    <message>
        <source>Reverse recovery specification</source>
        <translation>[Révéršé réçóvérý špéçífíçátíóñ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>IF - Forward current</source>
        <translation>[ÍF - Fórwárd çúrréñt~~~~~~]</translation>
    </message>
    <message>
        <source>IRM - Peak reverse current</source>
        <translation>[ÍRM - Péák révéršé çúrréñt~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>dIf/dt</source>
        <translation>[dÍf/dt~]</translation>
    </message>
    <message>
        <source>Tr - Recovery time</source>
        <translation>[Tr - Réçóvérý tímé~~~~~]</translation>
    </message>
    <message>
        <source>Parameters define a soft recovery characteristic.
Tr is the time to recover to 37% of the peak
reverse current from the zero crossing</source>
        <translation>[Párámétérš défíñé á šóft réçóvérý çháráçtéríštíç.~~~~~~ ~~~~~~ ~~~~~~ ~~
Tr íš thé tímé tó réçóvér tó 37% óf thé péák~~~~~~ ~~~~~~ ~~~~~~
révéršé çúrréñt fróm thé zéró çróššíñg~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>DC Forward bias spec</source>
        <translation>[DÇ Fórwárd bíáš špéç~~~~~~]</translation>
    </message>
    <message>
        <source>Vd1</source>
        <translation>[Vd1~]</translation>
    </message>
    <message>
        <source>@ Id1</source>
        <translation>[@ Íd1~]</translation>
    </message>
    <message>
        <source>Vd2</source>
        <translation>[Vd2~]</translation>
    </message>
    <message>
        <source>@ Id2</source>
        <translation>[@ Íd2~]</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>[Çápáçítáñçé~~]</translation>
    </message>
    <message>
        <source>Cj0 - Capacitance 

at zero bias</source>
        <translation>[Çj0 - Çápáçítáñçé~~~~~~ ~ 

át zéró bíáš~~~]</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>[Šávé óptíóñš~~~]</translation>
    </message>
    <message>
        <source>Save to schematic symbol</source>
        <translation>[Šávé tó šçhémátíç šýmból~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Save to model library</source>
        <translation>[Šávé tó módél líbrárý~~~~~~]</translation>
    </message>
    <message>
        <source>Device name:</source>
        <translation>[Dévíçé ñámé:~~~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
</context>
<context>
    <name>CreateNewTitleBlock</name>
    <message>
        <source>Create Title Block</source>
        <translation>[Çréáté Títlé Blóçk~~~~~]</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>[Títlé~]</translation>
    </message>
    <message>
        <source>Company Name</source>
        <translation>[Çómpáñý Ñámé~~~]</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>[Áúthór~]</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>[Ñótéš~]</translation>
    </message>
    <message>
        <source>Layout Style</source>
        <translation>[Láýóút Štýlé~~~]</translation>
    </message>
    <message>
        <source>Horizontal Style</source>
        <translation>[Hórízóñtál Štýlé~~~~]</translation>
    </message>
    <message>
        <source>Vertical Style (limited)</source>
        <translation>[Vértíçál Štýlé (límítéd)~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>[Véršíóñ~]</translation>
    </message>
    <message>
        <source>Auto Version</source>
        <translation>[Áútó Véršíóñ~~~]</translation>
    </message>
    <message>
        <source>Manual Version</source>
        <translation>[Máñúál Véršíóñ~~~~]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>[Dáté~]</translation>
    </message>
    <message>
        <source>Auto Date</source>
        <translation>[Áútó Dáté~~]</translation>
    </message>
    <message>
        <source>Manual Date</source>
        <translation>[Máñúál Dáté~~]</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>[Lógó~]</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>[Çhóóšé...~~]</translation>
    </message>
    <message>
        <source>Set company name as default</source>
        <translation>[Šét çómpáñý ñámé áš défáúlt~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Set logo file path as default</source>
        <translation>[Šét lógó fílé páth áš défáúlt~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Set author as default</source>
        <translation>[Šét áúthór áš défáúlt~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>[&amp;ÓK~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
</context>
<context>
    <name>CreateNewTitleBlockDialog</name>
    <message>
        <source>Open Image</source>
        <translation>[Ópéñ Ímágé~~]</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>[Ímágé Fíléš (*.pñg *.jpg *.bmp)~~~~~~ ~~~~]</translation>
    </message>
</context>
<context>
    <name>CreatePowerInductorModelDialog</name>
    <message>
        <source>Create Power Inductor Model</source>
        <translation>[Çréáté Pówér Íñdúçtór Módél~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Series
resistance</source>
        <translation>[Šéríéš~~
réšíštáñçé~~]</translation>
    </message>
    <message>
        <source>Shunt
resistance</source>
        <translation>[Šhúñt~~
réšíštáñçé~~]</translation>
    </message>
    <message>
        <source>Infinity</source>
        <translation>[Íñfíñítý~]</translation>
    </message>
    <message>
        <source>Initial
condition</source>
        <translation>[Íñítíál~~~
çóñdítíóñ~~]</translation>
    </message>
    <message>
        <source>With an initial condition the inductor behaves like a current source of this value
during the DC operating point calculation.</source>
        <translation>[Wíth áñ íñítíál çóñdítíóñ thé íñdúçtór béhávéš líké á çúrréñt šóúrçé óf thíš válúé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~
dúríñg thé DÇ ópérátíñg póíñt çálçúlátíóñ.~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>[Éñáblé~]</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>[Šmóóthíñg~~]</translation>
    </message>
    <message>
        <source>No smoothing (PWL)</source>
        <translation>[Ñó šmóóthíñg (PWL)~~~~~]</translation>
    </message>
    <message>
        <source>Local cubic</source>
        <translation>[Lóçál çúbíç~~]</translation>
    </message>
    <message>
        <source>Cubic spline option 1</source>
        <translation>[Çúbíç šplíñé óptíóñ 1~~~~~~]</translation>
    </message>
    <message>
        <source>Cubic spline option 2</source>
        <translation>[Çúbíç šplíñé óptíóñ 2~~~~~~]</translation>
    </message>
    <message>
        <source>"Cubic spline option 1" usually gives the best results: it fits cubic
polynomials to each segment, with a curve continuous in the second
derivative and a second derivative of zero at the final end point.
For badly formed segments it can fail with an error; then choose
one of the other two.</source>
        <translation>["Çúbíç šplíñé óptíóñ 1" úšúállý gívéš thé béšt réšúltš: ít fítš çúbíç~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~
pólýñómíálš tó éáçh šégméñt, wíth á çúrvé çóñtíñúóúš íñ thé šéçóñd~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~
dérívátívé áñd á šéçóñd dérívátívé óf zéró át thé fíñál éñd póíñt.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~
Fór bádlý fórméd šégméñtš ít çáñ fáíl wíth áñ érrór; théñ çhóóšé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~
óñé óf thé óthér twó.~~~~~~]</translation>
    </message>
    <message>
        <source>Save Options</source>
        <translation>[Šávé Óptíóñš~~~]</translation>
    </message>
    <message>
        <source>Save to schematic symbol</source>
        <translation>[Šávé tó šçhémátíç šýmból~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Save to model library</source>
        <translation>[Šávé tó módél líbrárý~~~~~~]</translation>
    </message>
    <message>
        <source>Device Name:</source>
        <translation>[Dévíçé Ñámé:~~~]</translation>
    </message>
    <message>
        <source>I</source>
        <translation>[Í~]</translation>
    </message>
    <message>
        <source>L</source>
        <translation>[L~]</translation>
    </message>
    <message>
        <source>Load from Image</source>
        <translation>[Lóád fróm Ímágé~~~~]</translation>
    </message>
    <message>
        <source>Digitises a graph from an image file (JPEG, PNG or BMP),
for example one taken from a data sheet.</source>
        <translation>[Dígítíšéš á gráph fróm áñ ímágé fílé (JPÉG, PÑG ór BMP),~~~~~~ ~~~~~~ ~~~~~~ ~~~~
fór éxámplé óñé tákéñ fróm á dátá šhéét.~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Swap I and L</source>
        <translation>[Šwáp Í áñd L~~~]</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>[Pášté~]</translation>
    </message>
    <message>
        <source>Loads ASCII data copied from a spreadsheet.</source>
        <translation>[Lóádš ÁŠÇÍÍ dátá çópíéd fróm á špréádšhéét.~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Data Error</source>
        <translation>[Dátá Érrór~~]</translation>
    </message>
    <message>
        <source>There is a row with an empty cell in the data table. Cannot complete while this cell is empty.</source>
        <translation>[Théré íš á rów wíth áñ émptý çéll íñ thé dátá táblé. Çáññót çómplété whílé thíš çéll íš émptý.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
</context>
<context>
    <name>DialogDesigner</name>
    <message>
        <source>DialogDesigner</source>
        <translation>[DíálógDéšígñér~~~~]</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>[Láýóút~]</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>[Gróúp: %1~]</translation>
    </message>
    <message>
        <source>Radio button: %1</source>
        <translation>[Rádíó búttóñ: %1~~~~]</translation>
    </message>
    <message>
        <source>Tab: %1</source>
        <translation>[Táb: %1~]</translation>
    </message>
    <message>
        <source>Check box: %1</source>
        <translation>[Çhéçk bóx: %1~~]</translation>
    </message>
    <message>
        <source>Spin Box: %1</source>
        <translation>[Špíñ Bóx: %1~~]</translation>
    </message>
    <message>
        <source>Spacer</source>
        <translation>[Špáçér~]</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>[Ádd Gróúp~~]</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>[Gróúp~]</translation>
    </message>
    <message>
        <source>Add Radio Button</source>
        <translation>[Ádd Rádíó Búttóñ~~~~]</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>[Rádíó~]</translation>
    </message>
    <message>
        <source>Add Tab</source>
        <translation>[Ádd Táb~]</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>[Táb~]</translation>
    </message>
    <message>
        <source>Add Spin Box</source>
        <translation>[Ádd Špíñ Bóx~~~]</translation>
    </message>
    <message>
        <source>SpinBox</source>
        <translation>[ŠpíñBóx~]</translation>
    </message>
    <message>
        <source>Add Check Box</source>
        <translation>[Ádd Çhéçk Bóx~~~]</translation>
    </message>
    <message>
        <source>CheckBox</source>
        <translation>[ÇhéçkBóx~]</translation>
    </message>
    <message>
        <source>Add Spacer</source>
        <translation>[Ádd Špáçér~~]</translation>
    </message>
</context>
<context>
    <name>EditBRELVONGateDialog</name>
    <message>
        <source>Edit BRELVON Advanced Digital Gate</source>
        <translation>[Édít BRÉLVÓÑ Ádváñçéd Dígítál Gáté~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>[Títlé~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Gate Type</source>
        <translation>[Gáté Týpé~~]</translation>
    </message>
    <message>
        <source>AND / NAND</source>
        <translation>[ÁÑD / ÑÁÑD~~]</translation>
    </message>
    <message>
        <source>OR / NOR</source>
        <translation>[ÓR / ÑÓR~]</translation>
    </message>
    <message>
        <source>XOR / XNOR</source>
        <translation>[XÓR / XÑÓR~~]</translation>
    </message>
    <message>
        <source>Inverter / Buffer</source>
        <translation>[Íñvértér / Búffér~~~~~]</translation>
    </message>
    <message>
        <source># of Logic Inputs</source>
        <translation>[# óf Lógíç Íñpútš~~~~~]</translation>
    </message>
    <message>
        <source># of Inverted Logic Inputs</source>
        <translation>[# óf Íñvértéd Lógíç Íñpútš~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Ground Ref</source>
        <translation>[Gróúñd Réf~~]</translation>
    </message>
    <message>
        <source>Initial Condition</source>
        <translation>[Íñítíál Çóñdítíóñ~~~~~]</translation>
    </message>
    <message>
        <source>Propagation Delay</source>
        <translation>[Própágátíóñ Déláý~~~~~]</translation>
    </message>
    <message>
        <source>s</source>
        <translation>[š~]</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>[Déšçríptíóñ~~]</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>[Íñtérfáçé~~]</translation>
    </message>
    <message>
        <source>Analog - Digital interface</source>
        <translation>[Áñálóg - Dígítál íñtérfáçé~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Input parameters</source>
        <translation>[Íñpút párámétérš~~~~]</translation>
    </message>
    <message>
        <source>Input Resistance</source>
        <translation>[Íñpút Réšíštáñçé~~~~]</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>[Thréšhóld~~]</translation>
    </message>
    <message>
        <source>V</source>
        <translation>[V~]</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>[Hýštéréšíš~~]</translation>
    </message>
    <message>
        <source>Output parameters</source>
        <translation>[Óútpút párámétérš~~~~~]</translation>
    </message>
    <message>
        <source>Output Resistance</source>
        <translation>[Óútpút Réšíštáñçé~~~~~]</translation>
    </message>
    <message>
        <source>Output High Level</source>
        <translation>[Óútpút Hígh Lévél~~~~~]</translation>
    </message>
    <message>
        <source>Output Low Level</source>
        <translation>[Óútpút Lów Lévél~~~~]</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>[&amp;Hélp~]</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>[&amp;Ók~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>[réjéçt~]</translation>
    </message>
</context>
<context>
    <name>EditBodePlotProbeDialog</name>
    <message>
        <source>Edit Bode Plot Probe</source>
        <translation>[Édít Bódé Plót Próbé~~~~~~]</translation>
    </message>
    <message>
        <source>Curve labels</source>
        <translation>[Çúrvé lábélš~~~]</translation>
    </message>
    <message>
        <source>Gain Label</source>
        <translation>[Gáíñ Lábél~~]</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>[Gáíñ~]</translation>
    </message>
    <message>
        <source>Phase Label</source>
        <translation>[Phášé Lábél~~]</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>[Phášé~]</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>[Própértíéš~~]</translation>
    </message>
    <message>
        <source>Persistence</source>
        <translation>[Péršíštéñçé~~]</translation>
    </message>
    <message>
        <source>Multiplied by -1</source>
        <translation>[Múltíplíéd bý -1~~~~]</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>[Díšáblé~]</translation>
    </message>
    <message>
        <source>Vertical limits</source>
        <translation>[Vértíçál límítš~~~~]</translation>
    </message>
    <message>
        <source>Use db auto limits</source>
        <translation>[Úšé db áútó límítš~~~~~]</translation>
    </message>
    <message>
        <source>Minimum limit - dB</source>
        <translation>[Míñímúm límít - dB~~~~~]</translation>
    </message>
    <message>
        <source>Maximum limit - dB</source>
        <translation>[Máxímúm límít - dB~~~~~]</translation>
    </message>
    <message>
        <source>Use phase auto limits</source>
        <translation>[Úšé phášé áútó límítš~~~~~~]</translation>
    </message>
    <message>
        <source>Minimum limit - phase</source>
        <translation>[Míñímúm límít - phášé~~~~~~]</translation>
    </message>
    <message>
        <source>Maximum limit - phase</source>
        <translation>[Máxímúm límít - phášé~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>[&amp;Ók~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>[réjéçt~]</translation>
    </message>
</context>
<context>
    <name>EditBodePlotProbeDialog2</name>
    <message>
        <source>Edit Bode Plot Probe</source>
        <translation>[Édít Bódé Plót Próbé~~~~~~]</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>[Çúrvéš~]</translation>
    </message>
    <message>
        <source>Use separate graph</source>
        <translation>[Úšé šépáráté gráph~~~~~]</translation>
    </message>
    <message>
        <source>Graph name</source>
        <translation>[Gráph ñámé~~]</translation>
    </message>
    <message>
        <source>default</source>
        <translation>[défáúlt~]</translation>
    </message>
    <message>
        <source>Probe</source>
        <translation>[Próbé~]</translation>
    </message>
    <message>
        <source>Disable gain/phase</source>
        <translation>[Díšáblé gáíñ/phášé~~~~~]</translation>
    </message>
    <message>
        <source>Persistence</source>
        <translation>[Péršíštéñçé~~]</translation>
    </message>
    <message>
        <source>Use default</source>
        <translation>[Úšé défáúlt~~]</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>[Gáíñ~]</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>[Vértíçál šçálé~~~~]</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>[dB~]</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>[Líñéár~]</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>[Çólóúr~]</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>[Édít...~]</translation>
    </message>
    <message>
        <source>Vertical axis ( check to auto calculate )</source>
        <translation>[Vértíçál áxíš ( çhéçk tó áútó çálçúláté )~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Grid spacing</source>
        <translation>[Gríd špáçíñg~~~]</translation>
    </message>
    <message>
        <source>Maximum limit</source>
        <translation>[Máxímúm límít~~~]</translation>
    </message>
    <message>
        <source>Minimum limit</source>
        <translation>[Míñímúm límít~~~]</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>[Lábélš~]</translation>
    </message>
    <message>
        <source>Curve label</source>
        <translation>[Çúrvé lábél~~]</translation>
    </message>
    <message>
        <source>Y axis label</source>
        <translation>[Ý áxíš lábél~~~]</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>[Phášé~]</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>[Çúrvé~]</translation>
    </message>
    <message>
        <source>Phase
- 180 degrees</source>
        <translation>[Phášé~~
- 180 dégrééš~~~]</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Phase -180 degrees&lt;/b&gt; to plot the phase curve with 180 degree offset</source>
        <translation>[Úšé &lt;b&gt;Phášé -180 dégrééš&lt;/b&gt; tó plót thé phášé çúrvé wíth 180 dégréé óffšét~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Display curves on</source>
        <translation>[Díšpláý çúrvéš óñ~~~~~]</translation>
    </message>
    <message>
        <source>Single grid</source>
        <translation>[Šíñglé gríd~~]</translation>
    </message>
    <message>
        <source>Two grids</source>
        <translation>[Twó grídš~~]</translation>
    </message>
    <message>
        <source>Vertical order</source>
        <translation>[Vértíçál órdér~~~~]</translation>
    </message>
    <message>
        <source>Phase above Gain</source>
        <translation>[Phášé ábóvé Gáíñ~~~~]</translation>
    </message>
    <message>
        <source>Gain above Phase</source>
        <translation>[Gáíñ ábóvé Phášé~~~~]</translation>
    </message>
    <message>
        <source>Example curve output</source>
        <translation>[Éxámplé çúrvé óútpút~~~~~~]</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>[Çóñfígúrátíóñ~~~]</translation>
    </message>
    <message>
        <source>Save Configuration</source>
        <translation>[Šávé Çóñfígúrátíóñ~~~~~]</translation>
    </message>
    <message>
        <source>Save current properties as default Bode Plot Probe configuration.&lt;br&gt;New probes will automatically have these saved properties applied when placed.</source>
        <translation>[Šávé çúrréñt própértíéš áš défáúlt Bódé Plót Próbé çóñfígúrátíóñ.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~&lt;br&gt;Ñéw próbéš wíll áútómátíçállý hávé théšé šávéd própértíéš ápplíéd whéñ pláçéd.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Save settings as preferred
Bode Plot Probe configuration</source>
        <translation>[Šávé šéttíñgš áš préférréd~~~~~~ ~~~~
Bódé Plót Próbé çóñfígúrátíóñ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
</context>
<context>
    <name>EditBrelvonFilter</name>
    <message>
        <source>Edit BRELVON Continuous Time / Discrete Time Filter</source>
        <translation>[Édít BRÉLVÓÑ Çóñtíñúóúš Tímé / Díšçrété Tímé Fíltér~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>&lt;p align="center"&gt;&lt;b&gt;Continuous / Discrete Time Filters&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p align="center"&gt;&lt;b&gt;[Çóñtíñúóúš / Díšçrété Tímé Fíltérš~~~~~~ ~~~~~~ ~~]&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>This component can model either a continuous time filter or a discrete time filter.
The transfer function for the filter can be entered in either "s" or "z" domains, 
and the other domain's coefficients can be calculated using the "Calculate" buttons. 
The model used in the simulation is selected using the "Model" buttons.</source>
        <translation>[Thíš çómpóñéñt çáñ módél éíthér á çóñtíñúóúš tímé fíltér ór á díšçrété tímé fíltér.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~
Thé tráñšfér fúñçtíóñ fór thé fíltér çáñ bé éñtéréd íñ éíthér "š" ór "z" dómáíñš,~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~ 
áñd thé óthér dómáíñ'š çóéffíçíéñtš çáñ bé çálçúlátéd úšíñg thé "Çálçúláté" búttóñš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~ 
Thé módél úšéd íñ thé šímúlátíóñ íš šéléçtéd úšíñg thé "Módél" búttóñš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>[Módél~]</translation>
    </message>
    <message>
        <source>Laplace</source>
        <translation>[Lápláçé~]</translation>
    </message>
    <message>
        <source>Discrete filter</source>
        <translation>[Díšçrété fíltér~~~~]</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>[Órdér~]</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>[Gáíñ~]</translation>
    </message>
    <message>
        <source>Initial Condition</source>
        <translation>[Íñítíál Çóñdítíóñ~~~~~]</translation>
    </message>
    <message>
        <source>S-DomainTransfer Function</source>
        <translation>[Š-DómáíñTráñšfér Fúñçtíóñ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>H(s) = Gain ×</source>
        <translation>[H(š) = Gáíñ ×~~~]</translation>
    </message>
    <message>
        <source>+</source>
        <translation>[+~]</translation>
    </message>
    <message>
        <source>s +</source>
        <translation>[š +~]</translation>
    </message>
    <message>
        <source>s&lt;sup&gt;2&lt;/sup&gt;</source>
        <translation>[š&lt;sup&gt;2~]&lt;/sup&gt;</translation>
    </message>
    <message>
        <source>s + s&lt;sup&gt;2&lt;/sup&gt;</source>
        <translation>[š + š&lt;sup&gt;2~]&lt;/sup&gt;</translation>
    </message>
    <message>
        <source>Calculate "s" Coefficients</source>
        <translation>[Çálçúláté "š" Çóéffíçíéñtš~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Transform method</source>
        <translation>[Tráñšfórm méthód~~~~]</translation>
    </message>
    <message>
        <source>Sampling frequency</source>
        <translation>[Šámplíñg fréqúéñçý~~~~~]</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>[Hz~]</translation>
    </message>
    <message>
        <source>Calculate "z" Coefficients</source>
        <translation>[Çálçúláté "z" Çóéffíçíéñtš~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Z-Domain Transfer Function</source>
        <translation>[Z-Dómáíñ Tráñšfér Fúñçtíóñ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>H(z) = Gain ×</source>
        <translation>[H(z) = Gáíñ ×~~~]</translation>
    </message>
    <message>
        <source>z&lt;sup&gt;-1&lt;/sup&gt; +</source>
        <translation>[z&lt;sup&gt;-1&lt;/sup&gt; +~]</translation>
    </message>
    <message>
        <source>z&lt;sup&gt;-2&lt;/sup&gt;</source>
        <translation>[z&lt;sup&gt;-2~]&lt;/sup&gt;</translation>
    </message>
    <message>
        <source>1 +</source>
        <translation>[1 +~]</translation>
    </message>
    <message>
        <source>Acquistion time</source>
        <translation>[Áçqúíštíóñ tímé~~~~]</translation>
    </message>
    <message>
        <source>s</source>
        <translation>[š~]</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>[Ádváñçéd Óptíóñš~~~~]</translation>
    </message>
    <message>
        <source>Model precision</source>
        <translation>[Módél préçíšíóñ~~~~]</translation>
    </message>
    <message>
        <source>The precision of the model parameters is set with this value.&lt;br /&gt;Permissable values are from 3 to 16 significant digits.&lt;br/&gt;The Z-Coefficients are sensitive to this precision value.</source>
        <translation>[Thé préçíšíóñ óf thé módél párámétérš íš šét wíth thíš válúé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~&lt;br /&gt;Pérmíššáblé válúéš áré fróm 3 tó 16 šígñífíçáñt dígítš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~&lt;br/&gt;Thé Z-Çóéffíçíéñtš áré šéñšítívé tó thíš préçíšíóñ válúé.~~~~~~ ~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Display precision</source>
        <translation>[Díšpláý préçíšíóñ~~~~~]</translation>
    </message>
    <message>
        <source>The displayed precision of the various coefficients is set with this parameter.&lt;br /&gt;The values used in calculations usually have higher precision than the display precision.&lt;br /&gt;Display precision has no impact on the model behavior.</source>
        <translation>[Thé díšpláýéd préçíšíóñ óf thé váríóúš çóéffíçíéñtš íš šét wíth thíš párámétér.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~&lt;br /&gt;Thé válúéš úšéd íñ çálçúlátíóñš úšúállý hávé híghér préçíšíóñ tháñ thé díšpláý préçíšíóñ.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~&lt;br /&gt;Díšpláý préçíšíóñ háš ñó ímpáçt óñ thé módél béhávíór.~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Annotation precision</source>
        <translation>[Áññótátíóñ préçíšíóñ~~~~~~]</translation>
    </message>
    <message>
        <source>After closing this dialog, the symbol will be annotated with a expression representing&lt;br/&gt;the numerator and denominator equations.&lt;br/&gt;This control allows the precision of coefficients in these equations to be set to a specified precision.&lt;br /&gt;Annotation precision has no impact on the model behavior.</source>
        <translation>[Áftér çlóšíñg thíš díálóg, thé šýmból wíll bé áññótátéd wíth á éxpréššíóñ répréšéñtíñg~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~&lt;br/&gt;thé ñúmérátór áñd déñómíñátór éqúátíóñš.~~~~~~ ~~~~~~ ~~~~&lt;br/&gt;Thíš çóñtról állówš thé préçíšíóñ óf çóéffíçíéñtš íñ théšé éqúátíóñš tó bé šét tó á špéçífíéd préçíšíóñ.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~&lt;br /&gt;Áññótátíóñ préçíšíóñ háš ñó ímpáçt óñ thé módél béhávíór.~~~~~~ ~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Division by Zero detected!</source>
        <translation>[Dívíšíóñ bý Zéró détéçtéd!~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Using the coefficients provided, calculation of the new coeficiencts will result in a divide by zero.
The calculation has been aborted and the coefficients have not been altered.
Please check your coefficients and try again.</source>
        <translation>[Úšíñg thé çóéffíçíéñtš próvídéd, çálçúlátíóñ óf thé ñéw çóéfíçíéñçtš wíll réšúlt íñ á dívídé bý zéró.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~
Thé çálçúlátíóñ háš bééñ ábórtéd áñd thé çóéffíçíéñtš hávé ñót bééñ áltéréd.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
Pléášé çhéçk ýóúr çóéffíçíéñtš áñd trý ágáíñ.~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Maximum Model Order Exceeded!</source>
        <translation>[Máxímúm Módél Órdér Éxçéédéd!~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>This device allows up to 2nd order models.
To model a higher order filter, you can cascade multiple devices.</source>
        <translation>[Thíš dévíçé állówš úp tó 2ñd órdér módélš.~~~~~~ ~~~~~~ ~~~~~
Tó módél á híghér órdér fíltér, ýóú çáñ çášçádé múltíplé dévíçéš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Minimum Model Order Exceeded!</source>
        <translation>[Míñímúm Módél Órdér Éxçéédéd!~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>This device allows a minimum of a 1st order model.
To model a 0th order device, you can use the Zero Order Sample and Hold.</source>
        <translation>[Thíš dévíçé állówš á míñímúm óf á 1št órdér módél.~~~~~~ ~~~~~~ ~~~~~~ ~~
Tó módél á 0th órdér dévíçé, ýóú çáñ úšé thé Zéró Órdér Šámplé áñd Hóld.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>S Coefficients have changed</source>
        <translation>[Š Çóéffíçíéñtš hávé çháñgéd~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Z Coefficients have changed</source>
        <translation>[Z Çóéffíçíéñtš hávé çháñgéd~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>It appears that you have changed the S domain coefficients,
yet haven't re-calculated the Z domain coefficients.
Press "Calculate Now" to calculate and save, "Cancel" to return to BRELVON without calculating.</source>
        <translation>[Ít áppéárš thát ýóú hávé çháñgéd thé Š dómáíñ çóéffíçíéñtš,~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
ýét hávéñ't ré-çálçúlátéd thé Z dómáíñ çóéffíçíéñtš.~~~~~~ ~~~~~~ ~~~~~~ ~~~
Préšš "Çálçúláté Ñów" tó çálçúláté áñd šávé, "Çáñçél" tó rétúrñ tó BRÉLVÓÑ wíthóút çálçúlátíñg.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>It appears that you have changed the Z domain coefficients,
yet haven't re-calculated the S domain coefficients.
Press "Calculate Now" to calculate and save, "Cancel" to return to BRELVON without calculating.</source>
        <translation>[Ít áppéárš thát ýóú hávé çháñgéd thé Z dómáíñ çóéffíçíéñtš,~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
ýét hávéñ't ré-çálçúlátéd thé Š dómáíñ çóéffíçíéñtš.~~~~~~ ~~~~~~ ~~~~~~ ~~~
Préšš "Çálçúláté Ñów" tó çálçúláté áñd šávé, "Çáñçél" tó rétúrñ tó BRÉLVÓÑ wíthóút çálçúlátíñg.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Calculate Now</source>
        <translation>[Çálçúláté Ñów~~~]</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çáñçél~]</translation>
    </message>
</context>
<context>
    <name>EditBrelvonMosfetDriverDialog</name>
    <message>
        <source>Edit Multi-Level MOSFET Driver</source>
        <translation>[Édít Múltí-Lévél MÓŠFÉT Drívér~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Multi-Level MOSFET Driver (Version 8.0+)</source>
        <translation>[Múltí-Lévél MÓŠFÉT Drívér (Véršíóñ 8.0+)~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Model level</source>
        <translation>[Módél lévél~~]</translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation>[Lévél 0~]</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>[Lévél 1~]</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>[Lévél 2~]</translation>
    </message>
    <message>
        <source>Parameterized value</source>
        <translation>[Párámétérízéd válúé~~~~~~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Input parameters</source>
        <translation>[Íñpút párámétérš~~~~]</translation>
    </message>
    <message>
        <source>Use inverted logic</source>
        <translation>[Úšé íñvértéd lógíç~~~~~]</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>[Thréšhóld~~]</translation>
    </message>
    <message>
        <source>&lt;p&gt;The threshold and the hysteresis set the input voltage thresholds:&lt;br/&gt;TH = T + H/2 and TL = T - H/2.&lt;/p&gt;&lt;img src=":/threshold_hysteresis.png"/&gt;</source>
        <translation>&lt;p&gt;[Thé thréšhóld áñd thé hýštéréšíš šét thé íñpút vóltágé thréšhóldš:~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~&lt;br/&gt;TH = T + H/2 áñd TL = T - H/2.~~~~~~ ~~~~~~]&lt;/p&gt;&lt;img src=":/threshold_hysteresis.png"/&gt;</translation>
    </message>
    <message>
        <source>V</source>
        <translation>[V~]</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>[Hýštéréšíš~~]</translation>
    </message>
    <message>
        <source>Use delay</source>
        <translation>[Úšé déláý~~]</translation>
    </message>
    <message>
        <source>The delays are independent of the logical inversion: the rising-edge delay always applies to the rising edge of the input.</source>
        <translation>[Thé déláýš áré íñdépéñdéñt óf thé lógíçál íñvéršíóñ: thé ríšíñg-édgé déláý álwáýš ápplíéš tó thé ríšíñg édgé óf thé íñpút.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Rising-edge delay</source>
        <translation>[Ríšíñg-édgé déláý~~~~~]</translation>
    </message>
    <message>
        <source>s</source>
        <translation>[š~]</translation>
    </message>
    <message>
        <source>Falling-edge delay</source>
        <translation>[Fállíñg-édgé déláý~~~~~]</translation>
    </message>
    <message>
        <source>Upper switch</source>
        <translation>[Úppér šwítçh~~~]</translation>
    </message>
    <message>
        <source>RON1</source>
        <translation>[RÓÑ1~]</translation>
    </message>
    <message>
        <source>Ohms</source>
        <translation>[Óhmš~]</translation>
    </message>
    <message>
        <source>R3</source>
        <translation>[R3~]</translation>
    </message>
    <message>
        <source>I3 is the peak current, and R3 the output resistance when the driver is sourcing I3.</source>
        <translation>[Í3 íš thé péák çúrréñt, áñd R3 thé óútpút réšíštáñçé whéñ thé drívér íš šóúrçíñg Í3.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>I3</source>
        <translation>[Í3~]</translation>
    </message>
    <message>
        <source>A</source>
        <translation>[Á~]</translation>
    </message>
    <message>
        <source>Upper switch PWL model</source>
        <translation>[Úppér šwítçh PWL módél~~~~~~ ~]</translation>
    </message>
    <message>
        <source>RON2</source>
        <translation>[RÓÑ2~]</translation>
    </message>
    <message>
        <source>V1</source>
        <translation>[V1~]</translation>
    </message>
    <message>
        <source>V1 is the voltage where the driver goes from the RON1 segment to the RON2 segment.</source>
        <translation>[V1 íš thé vóltágé whéré thé drívér góéš fróm thé RÓÑ1 šégméñt tó thé RÓÑ2 šégméñt.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Lower switch</source>
        <translation>[Lówér šwítçh~~~]</translation>
    </message>
    <message>
        <source>Lower switch PWL model</source>
        <translation>[Lówér šwítçh PWL módél~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Additional Parameters</source>
        <translation>[Áddítíóñál Párámétérš~~~~~~]</translation>
    </message>
    <message>
        <source>Initial condition</source>
        <translation>[Íñítíál çóñdítíóñ~~~~~]</translation>
    </message>
    <message>
        <source>Initial condition of upper switch</source>
        <translation>[Íñítíál çóñdítíóñ óf úppér šwítçh~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Switch off resistances</source>
        <translation>[Šwítçh óff réšíštáñçéš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Switch on-state voltages</source>
        <translation>[Šwítçh óñ-štáté vóltágéš~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>The drops across the switches at the peak and at the minimum of the output; kept for compatibility with an older driver.</source>
        <translation>[Thé drópš áçróšš thé šwítçhéš át thé péák áñd át thé míñímúm óf thé óútpút; képt fór çómpátíbílítý wíth áñ óldér drívér.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>[&amp;ÓK~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>&lt;b&gt;Level 0&lt;/b&gt; models the output switches as simple on/off resistances.&lt;br/&gt;&lt;b&gt;Level 1&lt;/b&gt; includes the saturation region where switches are current limited.&lt;br/&gt;&lt;b&gt;Level 2&lt;/b&gt; models the output switches as 3-segment PWL resistors.&lt;br/&gt;Compatible with Version 8.0+. Click on the &lt;b&gt;Help&lt;/b&gt; button for more information.&lt;p&gt;To enter a expression containing parameter names enclosed in {}, right-click and select the Parameterize context menu option.&lt;/p&gt;</source>
        <translation>&lt;b&gt;[Lévél 0&lt;/b&gt; módélš thé óútpút šwítçhéš áš šímplé óñ/óff réšíštáñçéš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~&lt;br/&gt;&lt;b&gt;Lévél 1&lt;/b&gt; íñçlúdéš thé šátúrátíóñ régíóñ whéré šwítçhéš áré çúrréñt límítéd.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~&lt;br/&gt;&lt;b&gt;Lévél 2&lt;/b&gt; módélš thé óútpút šwítçhéš áš 3-šégméñt PWL réšíštórš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~&lt;br/&gt;Çómpátíblé wíth Véršíóñ 8.0+. Çlíçk óñ thé &lt;b&gt;Hélp&lt;/b&gt; búttóñ fór móré íñfórmátíóñ.&lt;p&gt;Tó éñtér á éxpréššíóñ çóñtáíñíñg párámétér ñáméš éñçlóšéd íñ {}, ríght-çlíçk áñd šéléçt thé Párámétérízé çóñtéxt méñú óptíóñ.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>EditJumperDialog</name>
    <message>
        <source>Edit Jumper</source>
        <translation>[Édít Júmpér~~]</translation>
    </message>
    <message>
        <source>Number of Positions</source>
        <translation>[Ñúmbér óf Póšítíóñš~~~~~~]</translation>
    </message>
    <message>
        <source>One Position</source>
        <translation>[Óñé Póšítíóñ~~~]</translation>
    </message>
    <message>
        <source>Two Positions</source>
        <translation>[Twó Póšítíóñš~~~]</translation>
    </message>
    <message>
        <source>Jumper Position</source>
        <translation>[Júmpér Póšítíóñ~~~~]</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>[Ópéñ~]</translation>
    </message>
    <message>
        <source>Position 1</source>
        <translation>[Póšítíóñ 1~~]</translation>
    </message>
    <message>
        <source>Position 2</source>
        <translation>[Póšítíóñ 2~~]</translation>
    </message>
    <message>
        <source>Number of Poles</source>
        <translation>[Ñúmbér óf Póléš~~~~]</translation>
    </message>
    <message>
        <source># of Poles</source>
        <translation>[# óf Póléš~~]</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>[&amp;Hélp~]</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>[&amp;Ók~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>reject</source>
        <translation>[réjéçt~]</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>[Çlóšéd~]</translation>
    </message>
</context>
<context>
    <name>EditMultiLevelInductorCapacitorDialog</name>
    <message>
        <source>Edit Multi-Level Capacitor</source>
        <translation>[Édít Múltí-Lévél Çápáçítór~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Multi-Level Capacitor w/ Levels 0-3 (Version 8.0+)</source>
        <translation>[Múltí-Lévél Çápáçítór w/ Lévélš 0-3 (Véršíóñ 8.0+)~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Model level</source>
        <translation>[Módél lévél~~]</translation>
    </message>
    <message>
        <source>&lt;b&gt;Level 0&lt;/b&gt; is an ideal capacitor with no parasitic elements.&lt;br/&gt;&lt;b&gt;Level 1&lt;/b&gt; is a capacitor with leakage resistance.&lt;br/&gt;&lt;b&gt;Level 2&lt;/b&gt; is a capacitor with ESR and leakage resistance.&lt;br/&gt;&lt;b&gt;Level 3&lt;/b&gt; is a capacitor with ESR, ESL and leakage resistance.&lt;p&gt;To enter an expression containing parameter names enclosed in {}, right-click and select the Parameterize context menu option.&lt;/p&gt;</source>
        <translation>&lt;b&gt;[Lévél 0&lt;/b&gt; íš áñ ídéál çápáçítór wíth ñó párášítíç éléméñtš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~&lt;br/&gt;&lt;b&gt;Lévél 1&lt;/b&gt; íš á çápáçítór wíth léákágé réšíštáñçé.~~~~~~ ~~~~~~ ~~~~~~ ~&lt;br/&gt;&lt;b&gt;Lévél 2&lt;/b&gt; íš á çápáçítór wíth ÉŠR áñd léákágé réšíštáñçé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~&lt;br/&gt;&lt;b&gt;Lévél 3&lt;/b&gt; íš á çápáçítór wíth ÉŠR, ÉŠL áñd léákágé réšíštáñçé.&lt;p&gt;Tó éñtér áñ éxpréššíóñ çóñtáíñíñg párámétér ñáméš éñçlóšéd íñ {}, ríght-çlíçk áñd šéléçt thé Párámétérízé çóñtéxt méñú óptíóñ.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation>[Lévél 0~]</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>[Lévél 1~]</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>[Lévél 2~]</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>[Lévél 3~]</translation>
    </message>
    <message>
        <source>Parameterized value</source>
        <translation>[Párámétérízéd válúé~~~~~~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>[Çápáçítáñçé~~]</translation>
    </message>
    <message>
        <source>F</source>
        <translation>[F~]</translation>
    </message>
    <message>
        <source>Piecewise linear capacitance</source>
        <translation>[Píéçéwíšé líñéár çápáçítáñçé~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Define...</source>
        <translation>[Défíñé...~~]</translation>
    </message>
    <message>
        <source>Leakage resistance</source>
        <translation>[Léákágé réšíštáñçé~~~~~]</translation>
    </message>
    <message>
        <source>Ohms</source>
        <translation>[Óhmš~]</translation>
    </message>
    <message>
        <source>Series resistance (ESR)</source>
        <translation>[Šéríéš réšíštáñçé (ÉŠR)~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Series inductance (ESL)</source>
        <translation>[Šéríéš íñdúçtáñçé (ÉŠL)~~~~~~ ~]</translation>
    </message>
    <message>
        <source>H</source>
        <translation>[H~]</translation>
    </message>
    <message>
        <source>ESL Shunt resistance</source>
        <translation>[ÉŠL Šhúñt réšíštáñçé~~~~~~]</translation>
    </message>
    <message>
        <source>Calc...</source>
        <translation>[Çálç...~]</translation>
    </message>
    <message>
        <source>Use IC?</source>
        <translation>[Úšé ÍÇ?~]</translation>
    </message>
    <message>
        <source>Initial condition</source>
        <translation>[Íñítíál çóñdítíóñ~~~~~]</translation>
    </message>
    <message>
        <source>V</source>
        <translation>[V~]</translation>
    </message>
    <message>
        <source>Use Quantity?</source>
        <translation>[Úšé Qúáñtítý?~~~]</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>[Qúáñtítý~]</translation>
    </message>
    <message>
        <source>Monte Carlo Parameters</source>
        <translation>[Móñté Çárló Párámétérš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>3-Sigma Tolerance</source>
        <translation>[3-Šígmá Tóléráñçé~~~~~]</translation>
    </message>
    <message>
        <source>Probability Distribution Function</source>
        <translation>[Próbábílítý Díštríbútíóñ Fúñçtíóñ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>%</source>
        <translation>[%~]</translation>
    </message>
    <message>
        <source>The shunt resistance only limits the high frequency behaviour, so it has no probability distribution, and its tolerance is 0 in the model.</source>
        <translation>[Thé šhúñt réšíštáñçé óñlý límítš thé hígh fréqúéñçý béhávíóúr, šó ít háš ñó próbábílítý díštríbútíóñ, áñd ítš tóléráñçé íš 0 íñ thé módél.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>None</source>
        <translation>[Ñóñé~]</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>[Íñdúçtáñçé~~]</translation>
    </message>
    <message>
        <source>Piecewise linear inductance</source>
        <translation>[Píéçéwíšé líñéár íñdúçtáñçé~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Shunt resistance</source>
        <translation>[Šhúñt réšíštáñçé~~~~]</translation>
    </message>
    <message>
        <source>A</source>
        <translation>[Á~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>Edit Multi-Level PWL Capacitor</source>
        <translation>[Édít Múltí-Lévél PWL Çápáçítór~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Multi-Level PWL Capacitor w/ Levels 0-3 (Version 8.0+)</source>
        <translation>[Múltí-Lévél PWL Çápáçítór w/ Lévélš 0-3 (Véršíóñ 8.0+)~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Edit Multi-Level Lossy Inductor</source>
        <translation>[Édít Múltí-Lévél Lóššý Íñdúçtór~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Multi-Level Lossy Inductor (Version 8.0+)</source>
        <translation>[Múltí-Lévél Lóššý Íñdúçtór (Véršíóñ 8.0+)~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Edit Multi-Level Lossy PWL Inductor</source>
        <translation>[Édít Múltí-Lévél Lóššý PWL Íñdúçtór~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Multi-Level Lossy PWL Inductor (Version 8.0+)</source>
        <translation>[Múltí-Lévél Lóššý PWL Íñdúçtór (Véršíóñ 8.0+)~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>&lt;b&gt;Level 0&lt;/b&gt; is an inductor with a parallel shunt resistance.&lt;br/&gt;&lt;b&gt;Level 1&lt;/b&gt; is an inductor with a parallel shunt resistance and equivalent series resistance (ESR).&lt;p&gt;To enter an expression containing parameter names enclosed in {}, right-click and select the Parameterize context menu option.&lt;/p&gt;</source>
        <translation>&lt;b&gt;[Lévél 0&lt;/b&gt; íš áñ íñdúçtór wíth á párállél šhúñt réšíštáñçé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~&lt;br/&gt;&lt;b&gt;Lévél 1&lt;/b&gt; íš áñ íñdúçtór wíth á párállél šhúñt réšíštáñçé áñd éqúíváléñt šéríéš réšíštáñçé (ÉŠR).&lt;p&gt;Tó éñtér áñ éxpréššíóñ çóñtáíñíñg párámétér ñáméš éñçlóšéd íñ {}, ríght-çlíçk áñd šéléçt thé Párámétérízé çóñtéxt méñú óptíóñ.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~]&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>EditParameterisedOpampDialog</name>
    <message>
        <source>Edit Parameterised Opamp</source>
        <translation>[Édít Párámétéríšéd Ópámp~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Parameterised Opamp (Version 8.0+)</source>
        <translation>[Párámétéríšéd Ópámp (Véršíóñ 8.0+)~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Model level</source>
        <translation>[Módél lévél~~]</translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation>[Lévél 0~]</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>[Lévél 1~]</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>[Lévél 2~]</translation>
    </message>
    <message>
        <source>Parameterized value</source>
        <translation>[Párámétérízéd válúé~~~~~~]</translation>
    </message>
    <message>
        <source>Level 1 and 2 parameters</source>
        <translation>[Lévél 1 áñd 2 párámétérš~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Offset Voltage</source>
        <translation>[Óffšét Vóltágé~~~~]</translation>
    </message>
    <message>
        <source>V</source>
        <translation>[V~]</translation>
    </message>
    <message>
        <source>Bias Current</source>
        <translation>[Bíáš Çúrréñt~~~]</translation>
    </message>
    <message>
        <source>A</source>
        <translation>[Á~]</translation>
    </message>
    <message>
        <source>Offset Current</source>
        <translation>[Óffšét Çúrréñt~~~~]</translation>
    </message>
    <message>
        <source>Open-loop Gain</source>
        <translation>[Ópéñ-lóóp Gáíñ~~~~]</translation>
    </message>
    <message>
        <source>V/V</source>
        <translation>[V/V~]</translation>
    </message>
    <message>
        <source>CMRR</source>
        <translation>[ÇMRR~]</translation>
    </message>
    <message>
        <source>PSRR</source>
        <translation>[PŠRR~]</translation>
    </message>
    <message>
        <source>Input Resistance</source>
        <translation>[Íñpút Réšíštáñçé~~~~]</translation>
    </message>
    <message>
        <source>units</source>
        <translation>[úñítš~]</translation>
    </message>
    <message>
        <source>Output Resistance</source>
        <translation>[Óútpút Réšíštáñçé~~~~~]</translation>
    </message>
    <message>
        <source>Output AC Resistance</source>
        <translation>[Óútpút ÁÇ Réšíštáñçé~~~~~~]</translation>
    </message>
    <message>
        <source>Power Dissipation</source>
        <translation>[Pówér Díššípátíóñ~~~~~]</translation>
    </message>
    <message>
        <source>W</source>
        <translation>[W~]</translation>
    </message>
    <message>
        <source>Level 2 parameters</source>
        <translation>[Lévél 2 párámétérš~~~~~]</translation>
    </message>
    <message>
        <source>Gain-bandwidth</source>
        <translation>[Gáíñ-báñdwídth~~~~]</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>[Hz~]</translation>
    </message>
    <message>
        <source>Positive Slew Rate</source>
        <translation>[Póšítívé Šléw Ráté~~~~~]</translation>
    </message>
    <message>
        <source>V/s</source>
        <translation>[V/š~]</translation>
    </message>
    <message>
        <source>Negative Slew Rate</source>
        <translation>[Ñégátívé Šléw Ráté~~~~~]</translation>
    </message>
    <message>
        <source>Max. Output Source Current</source>
        <translation>[Máx. Óútpút Šóúrçé Çúrréñt~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Max. Output Sink Current</source>
        <translation>[Máx. Óútpút Šíñk Çúrréñt~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Positive Headroom</source>
        <translation>[Póšítívé Héádróóm~~~~~]</translation>
    </message>
    <message>
        <source>Negative Headroom</source>
        <translation>[Ñégátívé Héádróóm~~~~~]</translation>
    </message>
    <message>
        <source>Use back-annotated information for initial condition if available</source>
        <translation>[Úšé báçk-áññótátéd íñfórmátíóñ fór íñítíál çóñdítíóñ íf áváíláblé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Pos. Slew Rate</source>
        <translation>[Póš. Šléw Ráté~~~~]</translation>
    </message>
    <message>
        <source>Neg. Slew Rate</source>
        <translation>[Ñég. Šléw Ráté~~~~]</translation>
    </message>
    <message>
        <source>V/S</source>
        <translation>[V/Š~]</translation>
    </message>
    <message>
        <source>Output Res.</source>
        <translation>[Óútpút Réš.~~]</translation>
    </message>
    <message>
        <source>Quiescent Curr.</source>
        <translation>[Qúíéšçéñt Çúrr.~~~~]</translation>
    </message>
    <message>
        <source>Headroom Pos.</source>
        <translation>[Héádróóm Póš.~~~]</translation>
    </message>
    <message>
        <source>Headroom Neg.</source>
        <translation>[Héádróóm Ñég.~~~]</translation>
    </message>
    <message>
        <source>Offset V. (Statistical)</source>
        <translation>[Óffšét V. (Štátíštíçál)~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>Edit Multi-Level Parameterized Opamp (Version 8.0+)</source>
        <translation>[Édít Múltí-Lévél Párámétérízéd Ópámp (Véršíóñ 8.0+)~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Maximum Output AC Resistance Hit</source>
        <translation>[Máxímúm Óútpút ÁÇ Réšíštáñçé Hít~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>The maximum value of the &lt;b&gt;Output AC Resistance&lt;/b&gt; must be less than the &lt;b&gt;Output Resistance&lt;/b&gt; value.</source>
        <translation>[Thé máxímúm válúé óf thé &lt;b&gt;Óútpút ÁÇ Réšíštáñçé&lt;/b&gt; múšt bé léšš tháñ thé &lt;b&gt;Óútpút Réšíštáñçé&lt;/b&gt; válúé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
</context>
<context>
    <name>EditStylesDialog</name>
    <message>
        <source>Edit Styles</source>
        <translation>[Édít Štýléš~~]</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>[&amp;Ñéw...~]</translation>
    </message>
    <message>
        <source>Edit name...</source>
        <translation>[Édít ñámé...~~~]</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>[Dúplíçáté~~]</translation>
    </message>
    <message>
        <source>Use Global</source>
        <translation>[Úšé Glóbál~~]</translation>
    </message>
    <message>
        <source>Line Type</source>
        <translation>[Líñé Týpé~~]</translation>
    </message>
    <message>
        <source>Line Size</source>
        <translation>[Líñé Šízé~~]</translation>
    </message>
    <message>
        <source>Line Colour</source>
        <translation>[Líñé Çólóúr~~]</translation>
    </message>
    <message>
        <source>&amp;Select...</source>
        <translation>[&amp;Šéléçt...~~]</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>[Fóñt~]</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>[Bóld~]</translation>
    </message>
    <message>
        <source>Italics</source>
        <translation>[Ítálíçš~]</translation>
    </message>
    <message>
        <source>Overline</source>
        <translation>[Óvérlíñé~]</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>[Úñdérlíñé~~]</translation>
    </message>
    <message>
        <source>Include as Property Font</source>
        <translation>[Íñçlúdé áš Própértý Fóñt~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>[Prévíéw~]</translation>
    </message>
    <message>
        <source>Preview current stlye as:</source>
        <translation>[Prévíéw çúrréñt štlýé áš:~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>[Wíré~]</translation>
    </message>
    <message>
        <source>Instance</source>
        <translation>[Íñštáñçé~]</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>[Téxt~]</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>[&amp;ÓK~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
</context>
<context>
    <name>EfficiencyDialog</name>
    <message>
        <source>Vantrell/BRELVON Efficiency Calculator</source>
        <translation>[Váñtréll/BRÉLVÓÑ Éffíçíéñçý Çálçúlátór~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>&lt;b&gt;Efficiency Calculator&lt;/b&gt;</source>
        <translation>&lt;b&gt;[Éffíçíéñçý Çálçúlátór~~~~~~]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>text</source>
        <translation>[téxt~]</translation>
    </message>
    <message>
        <source>Don't show this message again</source>
        <translation>[Dóñ't šhów thíš méššágé ágáíñ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>All Power Probes</source>
        <translation>[Áll Pówér Próbéš~~~~]</translation>
    </message>
    <message>
        <source>Add to Inputs</source>
        <translation>[Ádd tó Íñpútš~~~]</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>[Rémóvé~]</translation>
    </message>
    <message>
        <source>Add to Outputs</source>
        <translation>[Ádd tó Óútpútš~~~~]</translation>
    </message>
    <message>
        <source>Input Probes</source>
        <translation>[Íñpút Próbéš~~~]</translation>
    </message>
    <message>
        <source>Output Probes</source>
        <translation>[Óútpút Próbéš~~~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>[Ók~]</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>[Çóñtíñúé~]</translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation>[Šímúláté~]</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>[Ýéš~]</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>[Çlóšé~]</translation>
    </message>
    <message>
        <source>No</source>
        <translation>[Ñó~]</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çáñçél~]</translation>
    </message>
</context>
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
    <name>LoopForgeEditClocksDialog</name>
    <message>
        <source>LoopForge Global Clocks</source>
        <translation>[LóópFórgé Glóbál Çlóçkš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>LoopForge - Edit Global Clocks</source>
        <translation>[LóópFórgé - Édít Glóbál Çlóçkš~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Sys CLK</source>
        <translation>[Šýš ÇLK~]</translation>
    </message>
    <message>
        <source>User1</source>
        <translation>[Úšér1~]</translation>
    </message>
    <message>
        <source>User2</source>
        <translation>[Úšér2~]</translation>
    </message>
    <message>
        <source>User3</source>
        <translation>[Úšér3~]</translation>
    </message>
    <message>
        <source>User4</source>
        <translation>[Úšér4~]</translation>
    </message>
    <message>
        <source>User5</source>
        <translation>[Úšér5~]</translation>
    </message>
    <message>
        <source>User6</source>
        <translation>[Úšér6~]</translation>
    </message>
    <message>
        <source>User7</source>
        <translation>[Úšér7~]</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>[Íñdéx~]</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>[Éñáblé~]</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>[Gráph~]</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>[Lábél~]</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>[Fréqúéñçý (Hz)~~~~]</translation>
    </message>
    <message>
        <source>Duty cycle (%)</source>
        <translation>[Dútý çýçlé (%)~~~~]</translation>
    </message>
    <message>
        <source>Delay (s)</source>
        <translation>[Déláý (š)~~]</translation>
    </message>
    <message>
        <source>Move the selected clock up</source>
        <translation>[Móvé thé šéléçtéd çlóçk úp~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Move the selected clock down</source>
        <translation>[Móvé thé šéléçtéd çlóçk dówñ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>CLK Sync Edge</source>
        <translation>[ÇLK Šýñç Édgé~~~]</translation>
    </message>
    <message>
        <source>Rising</source>
        <translation>[Ríšíñg~]</translation>
    </message>
    <message>
        <source>Falling</source>
        <translation>[Fállíñg~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>Close and Graph Clocks</source>
        <translation>[Çlóšé áñd Gráph Çlóçkš~~~~~~ ~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>User %1</source>
        <translation>[Úšér %1~]</translation>
    </message>
</context>
<context>
    <name>LoopForgeEditComponentDialog</name>
    <message>
        <source>Edit Component</source>
        <translation>[Édít Çómpóñéñt~~~~]</translation>
    </message>
    <message>
        <source>Model Type</source>
        <translation>[Módél Týpé~~]</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>[Šýmból~]</translation>
    </message>
    <message>
        <source>a</source>
        <translation>[á~]</translation>
    </message>
    <message>
        <source>b</source>
        <translation>[b~]</translation>
    </message>
    <message>
        <source>c</source>
        <translation>[ç~]</translation>
    </message>
    <message>
        <source>d</source>
        <translation>[d~]</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>[Déšçríptíóñ~~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>[Déláý~]</translation>
    </message>
    <message>
        <source>Use asynchronous delay</source>
        <translation>[Úšé ášýñçhróñóúš déláý~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Use synchronous delay</source>
        <translation>[Úšé šýñçhróñóúš déláý~~~~~~]</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>[Óútpút~]</translation>
    </message>
    <message>
        <source>Use 32 bit signed</source>
        <translation>[Úšé 32 bít šígñéd~~~~~]</translation>
    </message>
    <message>
        <source>Limit output to:</source>
        <translation>[Límít óútpút tó:~~~~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>Implements a combintorial model where the output voltage changes in response
to the input voltage(s) change after a propagation delay.</source>
        <translation>[Ímpléméñtš á çómbíñtóríál módél whéré thé óútpút vóltágé çháñgéš íñ réšpóñšé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~
tó thé íñpút vóltágé(š) çháñgé áftér á própágátíóñ déláý.~~~~~~ ~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>In response to an input voltage change, the output voltage
changes after a designated number of clock cycles.</source>
        <translation>[Íñ réšpóñšé tó áñ íñpút vóltágé çháñgé, thé óútpút vóltágé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~
çháñgéš áftér á déšígñátéd ñúmbér óf çlóçk çýçléš.~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>The full 32 bit signed data is output.</source>
        <translation>[Thé fúll 32 bít šígñéd dátá íš óútpút.~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>The output is limited to a Signed or Unsigned number
with a designated number of bits.</source>
        <translation>[Thé óútpút íš límítéd tó á Šígñéd ór Úñšígñéd ñúmbér~~~~~~ ~~~~~~ ~~~~~~ ~~~
wíth á déšígñátéd ñúmbér óf bítš.~~~~~~ ~~~~~]</translation>
    </message>
</context>
<context>
    <name>LoopForgeEditPWMDialog</name>
    <message>
        <source>Edit Device Parameters</source>
        <translation>[Édít Dévíçé Párámétérš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>title</source>
        <translation>[títlé~]</translation>
    </message>
    <message>
        <source>Symbol description</source>
        <translation>[Šýmból déšçríptíóñ~~~~~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>[Ók~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
</context>
<context>
    <name>LoopForgeEditProbeDialog</name>
    <message>
        <source>Edit LoopForge Bus Probe</source>
        <translation>[Édít LóópFórgé Búš Próbé~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Edit &lt;i&gt;LoopForge&lt;/i&gt; Probe</source>
        <translation>[Édít &lt;i&gt;LóópFórgé&lt;/i&gt; Próbé~~~~~~]</translation>
    </message>
    <message>
        <source>Curve label</source>
        <translation>[Çúrvé lábél~~]</translation>
    </message>
    <message>
        <source>Plot Integer data as</source>
        <translation>[Plót Íñtégér dátá áš~~~~~~]</translation>
    </message>
    <message>
        <source>Digital bus</source>
        <translation>[Dígítál búš~~]</translation>
    </message>
    <message>
        <source>Display format</source>
        <translation>[Díšpláý fórmát~~~~]</translation>
    </message>
    <message>
        <source>Analog waveform</source>
        <translation>[Áñálóg wávéfórm~~~~]</translation>
    </message>
    <message>
        <source>Axis type for analog waveform</source>
        <translation>[Áxíš týpé fór áñálóg wávéfórm~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Auto select</source>
        <translation>[Áútó šéléçt~~]</translation>
    </message>
    <message>
        <source>Use separate Y-axis</source>
        <translation>[Úšé šépáráté Ý-áxíš~~~~~~]</translation>
    </message>
    <message>
        <source>Use separate grid</source>
        <translation>[Úšé šépáráté gríd~~~~~]</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>[Dígítál~]</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>[Gáíñ~]</translation>
    </message>
    <message>
        <source>Axis name</source>
        <translation>[Áxíš ñámé~~]</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>[Gráph~]</translation>
    </message>
    <message>
        <source>Use separate graph</source>
        <translation>[Úšé šépáráté gráph~~~~~]</translation>
    </message>
    <message>
        <source>Graph name</source>
        <translation>[Gráph ñámé~~]</translation>
    </message>
    <message>
        <source>Persistence</source>
        <translation>[Péršíštéñçé~~]</translation>
    </message>
    <message>
        <source>default</source>
        <translation>[défáúlt~]</translation>
    </message>
    <message>
        <source>Display order</source>
        <translation>[Díšpláý órdér~~~]</translation>
    </message>
    <message>
        <source>Arbitrary string to specify order</source>
        <translation>[Árbítrárý štríñg tó špéçífý órdér~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>[Çólóúr~]</translation>
    </message>
    <message>
        <source>Use default</source>
        <translation>[Úšé défáúlt~~]</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>[Édít...~]</translation>
    </message>
    <message>
        <source>Analyses</source>
        <translation>[Áñálýšéš~]</translation>
    </message>
    <message>
        <source>All analyses disabled</source>
        <translation>[Áll áñálýšéš díšábléd~~~~~~]</translation>
    </message>
    <message>
        <source>Integer sampled data type</source>
        <translation>[Íñtégér šámpléd dátá týpé~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Floating point sampled data type</source>
        <translation>[Flóátíñg póíñt šámpléd dátá týpé~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Multiple curves selected</source>
        <translation>[Múltíplé çúrvéš šéléçtéd~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>The Curve label control is disabled when editing multiple probes.
This prevents you from accidentally renaming curves to the same name.
To edit the Curve label, you will need to edit each probe individually.
All other properties may be edited on this dialog.</source>
        <translation>[Thé Çúrvé lábél çóñtról íš díšábléd whéñ édítíñg múltíplé próbéš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~
Thíš prévéñtš ýóú fróm áççídéñtállý réñámíñg çúrvéš tó thé šámé ñámé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~
Tó édít thé Çúrvé lábél, ýóú wíll ñééd tó édít éáçh próbé íñdívídúállý.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~
Áll óthér própértíéš máý bé édítéd óñ thíš díálóg.~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
</context>
<context>
    <name>ManageMeasureDialog</name>
    <message>
        <source>Manage Measurement Definitions</source>
        <translation>[Máñágé Méášúréméñt Défíñítíóñš~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Select measurement</source>
        <translation>[Šéléçt méášúréméñt~~~~~]</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>[Délété~]</translation>
    </message>
    <message>
        <source>Create new measurement</source>
        <translation>[Çréáté ñéw méášúréméñt~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>[Ñámé~]</translation>
    </message>
    <message>
        <source>Copy Selected</source>
        <translation>[Çópý Šéléçtéd~~~]</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>[Çréáté~]</translation>
    </message>
    <message>
        <source>Measurement definition</source>
        <translation>[Méášúréméñt défíñítíóñ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Label as displayed on graph&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;[Lábél áš díšpláýéd óñ gráph~~~~~~ ~~~~~]&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Expression. Enter an expression that&lt;br/&gt;returns the measurement value.&lt;br/&gt;Use 'data' to access the curve's data.&lt;br/&gt;E.g. to get the mean squared use:&lt;br/&gt;&lt;br/&gt;Mean1(data*data).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;[Éxpréššíóñ. Éñtér áñ éxpréššíóñ thát~~~~~~ ~~~~~~ ~~&lt;br/&gt;rétúrñš thé méášúréméñt válúé.~~~~~~ ~~~~~~&lt;br/&gt;Úšé 'dátá' tó áççéšš thé çúrvé'š dátá.~~~~~~ ~~~~~~ ~~~&lt;br/&gt;É.g. tó gét thé méáñ šqúáréd úšé:~~~~~~ ~~~~~~ ~&lt;br/&gt;&lt;br/&gt;Méáñ1(dátá*dátá).~~~~~~ ~]&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Format template. Leave blank&lt;br/&gt;to use default&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;[Fórmát témpláté. Léávé bláñk~~~~~~ ~~~~~&lt;br/&gt;tó úšé défáúlt~~~~~~]&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Full description. \n siginifies new line&lt;br/&gt;(Displayed below list box. Optional)&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;[Fúll déšçríptíóñ. \n šígíñífíéš ñéw líñé~~~~~~ ~~~~~~ ~~~&lt;br/&gt;(Díšpláýéd bélów líšt bóx. Óptíóñál)~~~~~~ ~~~~~~ ~~]&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Requires cursors to be switched on&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;[Réqúíréš çúršórš tó bé šwítçhéd óñ~~~~~~ ~~~~~~ ~~]&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Restore Factory Definition</source>
        <translation>[Réštóré Fáçtórý Défíñítíóñ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Duplicate Entry</source>
        <translation>[Dúplíçáté Éñtrý~~~~]</translation>
    </message>
    <message>
        <source>The name you have entered is already used
Choose another name</source>
        <translation>[Thé ñámé ýóú hávé éñtéréd íš álréádý úšéd~~~~~~ ~~~~~~ ~~~~
Çhóóšé áñóthér ñámé~~~~~~]</translation>
    </message>
</context>
<context>
    <name>MeasureDialog</name>
    <message>
        <source>Define Measurement</source>
        <translation>[Défíñé Méášúréméñt~~~~~]</translation>
    </message>
    <message>
        <source>Pre-defined Measurement</source>
        <translation>[Pré-défíñéd Méášúréméñt~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Pre-process</source>
        <translation>[Pré-próçéšš~~]</translation>
    </message>
    <message>
        <source>Cursor span</source>
        <translation>[Çúršór špáñ~~]</translation>
    </message>
    <message>
        <source>AC coupled</source>
        <translation>[ÁÇ çóúpléd~~]</translation>
    </message>
    <message>
        <source>Integral cycles</source>
        <translation>[Íñtégrál çýçléš~~~~]</translation>
    </message>
    <message>
        <source>Choose measurement</source>
        <translation>[Çhóóšé méášúréméñt~~~~~]</translation>
    </message>
    <message>
        <source>Custom Measurement</source>
        <translation>[Çúštóm Méášúréméñt~~~~~]</translation>
    </message>
    <message>
        <source>Measurement definition</source>
        <translation>[Méášúréméñt défíñítíóñ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Label as displayed on graph</source>
        <translation>[Lábél áš díšpláýéd óñ gráph~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Expression. Enter an expression that
returns the measurement value.
Use 'data' to access the curve's data. 
E.g. to get the mean squared use:

Mean1(data*data).</source>
        <translation>[Éxpréššíóñ. Éñtér áñ éxpréššíóñ thát~~~~~~ ~~~~~~ ~~
rétúrñš thé méášúréméñt válúé.~~~~~~ ~~~~~~
Úšé 'dátá' tó áççéšš thé çúrvé'š dátá.~~~~~~ ~~~~~~ ~~~~ 
É.g. tó gét thé méáñ šqúáréd úšé:~~~~~~ ~~~~~~ ~

Méáñ1(dátá*dátá).~~~~~]</translation>
    </message>
    <message>
        <source>Format template. Leave blank
to use default</source>
        <translation>[Fórmát témpláté. Léávé bláñk~~~~~~ ~~~~~
tó úšé défáúlt~~~~]</translation>
    </message>
    <message>
        <source>Save definition to pre-defined measurements</source>
        <translation>[Šávé défíñítíóñ tó pré-défíñéd méášúréméñtš~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>Save definition</source>
        <translation>[Šávé défíñítíóñ~~~~]</translation>
    </message>
    <message>
        <source>Short description
(Displayed in list box. Optional)</source>
        <translation>[Šhórt déšçríptíóñ~~~~~~ ~
(Díšpláýéd íñ líšt bóx. Óptíóñál)~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Full description
(Displayed below list box. Optional)</source>
        <translation>[Fúll déšçríptíóñ~~~~~~
(Díšpláýéd bélów líšt bóx. Óptíóñál)~~~~~~ ~~~~~~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Some items are disabled as they require cursors to be switched on
</source>
        <translation>[Šómé ítémš áré díšábléd áš théý réqúíré çúršórš tó bé šwítçhéd óñ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]
</translation>
    </message>
</context>
<context>
    <name>ModelExtractionDialog</name>
    <message>
        <source>Model Extraction</source>
        <translation>[Módél Éxtráçtíóñ~~~~]</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>[Déšçríptíóñ~~]</translation>
    </message>
    <message>
        <source>title</source>
        <translation>[títlé~]</translation>
    </message>
    <message>
        <source>Model type</source>
        <translation>[Módél týpé~~]</translation>
    </message>
    <message>
        <source>Extracted</source>
        <translation>[Éxtráçtéd~~]</translation>
    </message>
    <message>
        <source>User-defined</source>
        <translation>[Úšér-défíñéd~~~]</translation>
    </message>
    <message>
        <source>Model extraction test conditions</source>
        <translation>[Módél éxtráçtíóñ téšt çóñdítíóñš~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>SPICE Model</source>
        <translation>[ŠPÍÇÉ Módél~~]</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>[Šéléçt...~~]</translation>
    </message>
    <message>
        <source>Selects a new device from a list of installed SPICE models.</source>
        <translation>[Šéléçtš á ñéw dévíçé fróm á líšt óf íñštálléd ŠPÍÇÉ módélš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>User-defined parameters</source>
        <translation>[Úšér-défíñéd párámétérš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>[Lábél~]</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>[Çóñfígúrátíóñ~~~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>"Extracted" creates a BRELVON model from the SPICE model.
"User-defined" creates a model based on user input.</source>
        <translation>["Éxtráçtéd" çréátéš á BRÉLVÓÑ módél fróm thé ŠPÍÇÉ módél.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~
"Úšér-défíñéd" çréátéš á módél bášéd óñ úšér íñpút.~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>&lt;p&gt;There are three ways to choose the SPICE model:&lt;/p&gt;&lt;p&gt;&lt;img src=":/combo_box_mouse_cursor_transparent.png"&gt; pick a recently used model from the list,&lt;/p&gt;&lt;p&gt;&lt;img src=":/select_button_mouse_cursor_transparent.png"&gt; press "Select..." and choose from all installed models,&lt;/p&gt;&lt;p&gt;or type the name of the model. The name is &lt;b&gt;NOT&lt;/b&gt; cap sensitive.&lt;/p&gt;</source>
        <translation>&lt;p&gt;[Théré áré thréé wáýš tó çhóóšé thé ŠPÍÇÉ módél:~~~~~~ ~~~~~~ ~~~~~~ ~&lt;/p&gt;&lt;p&gt;&lt;img src=":/combo_box_mouse_cursor_transparent.png"&gt; píçk á réçéñtlý úšéd módél fróm thé líšt,~~~~~~ ~~~~~~ ~~~~~&lt;/p&gt;&lt;p&gt;&lt;img src=":/select_button_mouse_cursor_transparent.png"&gt; préšš "Šéléçt..." áñd çhóóšé fróm áll íñštálléd módélš,~~~~~~ ~~~~~~ ~~~~~~ ~~~~&lt;/p&gt;&lt;p&gt;ór týpé thé ñámé óf thé módél. Thé ñámé íš &lt;b&gt;ÑÓT&lt;/b&gt; çáp šéñšítívé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]&lt;/p&gt;</translation>
    </message>
    <message>
        <source>The label may hold only letters, digits and the underscore. It describes the device
and isn't used in simulation.</source>
        <translation>[Thé lábél máý hóld óñlý léttérš, dígítš áñd thé úñdéršçóré. Ít déšçríbéš thé dévíçé~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~
áñd íšñ't úšéd íñ šímúlátíóñ.~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>[Šíñglé~]</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>[Párállél~]</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>[Šéríéš~]</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>[Brídgé~]</translation>
    </message>
    <message>
        <source>Back-to-back zeners</source>
        <translation>[Báçk-tó-báçk zéñérš~~~~~~]</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>[Tráñšlátéd~~]</translation>
    </message>
    <message>
        <source>Model translation test conditions</source>
        <translation>[Módél tráñšlátíóñ téšt çóñdítíóñš~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>"Translated" creates a BRELVON model from the SPICE model.
"User-defined" creates a model based on user input.</source>
        <translation>["Tráñšlátéd" çréátéš á BRÉLVÓÑ módél fróm thé ŠPÍÇÉ módél.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~
"Úšér-défíñéd" çréátéš á módél bášéd óñ úšér íñpút.~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Choose the SPICE model to translate: pick it from the list, press "Select...", or type its name.</source>
        <translation>[Çhóóšé thé ŠPÍÇÉ módél tó tráñšláté: píçk ít fróm thé líšt, préšš "Šéléçt...", ór týpé ítš ñámé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>[Ók~]</translation>
    </message>
    <message>
        <source>Translate</source>
        <translation>[Tráñšláté~~]</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>[Éxtráçt~]</translation>
    </message>
    <message>
        <source>Translate </source>
        <translation>[Tráñšláté~~] </translation>
    </message>
    <message>
        <source>Extract </source>
        <translation>[Éxtráçt~] </translation>
    </message>
    <message>
        <source>Edit </source>
        <translation>[Édít~] </translation>
    </message>
    <message>
        <source>Number of diodes</source>
        <translation>[Ñúmbér óf díódéš~~~~]</translation>
    </message>
    <message>
        <source>Diode mismatch (V)</source>
        <translation>[Díódé míšmátçh (V)~~~~~]</translation>
    </message>
    <message>
        <source>Need User label for this device!</source>
        <translation>[Ñééd Úšér lábél fór thíš dévíçé!~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>All User-defined models must have a label with at least one character.

Valid characters include A-Z, a-z, 0-9, _ and -</source>
        <translation>[Áll Úšér-défíñéd módélš múšt hávé á lábél wíth át léášt óñé çháráçtér.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~

Válíd çháráçtérš íñçlúdé Á-Z, á-z, 0-9, _ áñd -~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>No Model selected</source>
        <translation>[Ñó Módél šéléçtéd~~~~~]</translation>
    </message>
    <message>
        <source>The "SPICE Model" selection box is empty.

Please select a model using the "Select..." button to continue.</source>
        <translation>[Thé "ŠPÍÇÉ Módél" šéléçtíóñ bóx íš émptý.~~~~~~ ~~~~~~ ~~~~

Pléášé šéléçt á módél úšíñg thé "Šéléçt..." búttóñ tó çóñtíñúé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Model %1 not found in libraries</source>
        <translation>[Módél %1 ñót fóúñd íñ líbráríéš~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>The model :

%1

wasn't found in any installed libraries. To extract a BRELVON model,
the SPICE model must first be installed in the library system.

Model files can be installed into the library system by dragging and dropping
the model file into the Vantrell/BRELVON Command Shell.</source>
        <translation>[Thé módél :~~~~

%1

wášñ't fóúñd íñ áñý íñštálléd líbráríéš. Tó éxtráçt á BRÉLVÓÑ módél,~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~
thé ŠPÍÇÉ módél múšt fíršt bé íñštálléd íñ thé líbrárý šýštém.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~

Módél fíléš çáñ bé íñštálléd íñtó thé líbrárý šýštém bý drággíñg áñd dróppíñg~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~
thé módél fílé íñtó thé Váñtréll/BRÉLVÓÑ Çómmáñd Šhéll.~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
</context>
<context>
    <name>ModelExtractionNewDeviceDialog</name>
    <message>
        <source>Select New Device</source>
        <translation>[Šéléçt Ñéw Dévíçé~~~~~]</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>[Šéárçh~]</translation>
    </message>
    <message>
        <source>Installed SPICE models</source>
        <translation>[Íñštálléd ŠPÍÇÉ módélš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>No device selected!</source>
        <translation>[Ñó dévíçé šéléçtéd!~~~~~~]</translation>
    </message>
    <message>
        <source>No device was selected.
Please select a device from the list,
and press Ok to continue.</source>
        <translation>[Ñó dévíçé wáš šéléçtéd.~~~~~~ ~~~
Pléášé šéléçt á dévíçé fróm thé líšt,~~~~~~ ~~~~~~ ~~~
áñd préšš Ók tó çóñtíñúé.~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>The search engine uses a full substring search, and the list is updated as you type.
Wildcard characters (*, ?, etc.) are not used, and are interpreted literally.</source>
        <translation>[Thé šéárçh éñgíñé úšéš á fúll šúbštríñg šéárçh, áñd thé líšt íš úpdátéd áš ýóú týpé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~
Wíldçárd çháráçtérš (*, ?, étç.) áré ñót úšéd, áñd áré íñtérprétéd lítérállý.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>This list contains all installed SPICE models of this device type. Models are added by dragging
and dropping the model file into the command shell. The extraction algorithms extract
parameters from the model selected in this list.</source>
        <translation>[Thíš líšt çóñtáíñš áll íñštálléd ŠPÍÇÉ módélš óf thíš dévíçé týpé. Módélš áré áddéd bý drággíñg~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~
áñd dróppíñg thé módél fílé íñtó thé çómmáñd šhéll. Thé éxtráçtíóñ álgóríthmš éxtráçt~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~
párámétérš fróm thé módél šéléçtéd íñ thíš líšt.~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
</context>
<context>
    <name>PWLDialog</name>
    <message>
        <source>Piecewise Linear Curve</source>
        <translation>[Píéçéwíšé Líñéár Çúrvé~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Point %1: "%2" is neither a number nor an expression in braces.</source>
        <translation>[Póíñt %1: "%2" íš ñéíthér á ñúmbér ñór áñ éxpréššíóñ íñ bráçéš.~~~~~~ ~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Point %1: the x values must increase.</source>
        <translation>[Póíñt %1: thé x válúéš múšt íñçréášé.~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Add Point</source>
        <translation>[Ádd Póíñt~~]</translation>
    </message>
    <message>
        <source>Remove Point</source>
        <translation>[Rémóvé Póíñt~~~]</translation>
    </message>
    <message>
        <source>Invalid Curve</source>
        <translation>[Íñválíd Çúrvé~~~]</translation>
    </message>
</context>
<context>
    <name>ParameterisedLevel</name>
    <message>
        <source>Remove Parameterization</source>
        <translation>[Rémóvé Párámétérízátíóñ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Parameterize Model Level</source>
        <translation>[Párámétérízé Módél Lévél~~~~~~ ~~]</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Open Graph Image</source>
        <translation>[Ópéñ Gráph Ímágé~~~~]</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp);;All files (*)</source>
        <translation>[Ímágéš (*.pñg *.jpg *.jpég *.bmp);;Áll fíléš (*)~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Graph Capture</source>
        <translation>[Gráph Çáptúré~~~]</translation>
    </message>
    <message>
        <source>The file is not an image that can be read.</source>
        <translation>[Thé fílé íš ñót áñ ímágé thát çáñ bé réád.~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
</context>
<context>
    <name>RadioSelectWidgetStackDialog</name>
    <message>
        <source>Edit Device Parameters</source>
        <translation>[Édít Dévíçé Párámétérš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>title</source>
        <translation>[títlé~]</translation>
    </message>
    <message>
        <source>Parameterized value</source>
        <translation>[Párámétérízéd válúé~~~~~~]</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>[Ók~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;nobr&gt;The Parameter value doesn't begin with an opening curly brace "{"&lt;/nobr&gt;</source>
        <translation>&lt;br/&gt;&lt;nobr&gt;[Thé Párámétér válúé dóéšñ't bégíñ wíth áñ ópéñíñg çúrlý bráçé "{"~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~]&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;nobr&gt;The Parameter value doesn't end with a closing curly brace "}"&lt;/nobr&gt;</source>
        <translation>&lt;br/&gt;&lt;nobr&gt;[Thé Párámétér válúé dóéšñ't éñd wíth á çlóšíñg çúrlý bráçé "}"~~~~~~ ~~~~~~ ~~~~~~ ~~~~~]&lt;/nobr&gt;</translation>
    </message>
    <message>
        <source>&lt;br/&gt;The Parameter value contains spaces</source>
        <translation>&lt;br/&gt;[Thé Párámétér válúé çóñtáíñš špáçéš~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Error: Incorrect parameter name</source>
        <translation>[Érrór: Íñçórréçt párámétér ñámé~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Parameter values must meet three requirements:&lt;ol&gt;&lt;li&gt;Begin with the opening curly brace "{",&lt;/li&gt;&lt;li&gt;End with the closing curly brace "}",&lt;/li&gt;&lt;li&gt;And not contain spaces.&lt;/li&gt;&lt;/ol&gt;The errors are:</source>
        <translation>[Párámétér válúéš múšt méét thréé réqúíréméñtš:&lt;ol&gt;&lt;li&gt;Bégíñ wíth thé ópéñíñg çúrlý bráçé "{",&lt;/li&gt;&lt;li&gt;Éñd wíth thé çlóšíñg çúrlý bráçé "}",&lt;/li&gt;&lt;li&gt;Áñd ñót çóñtáíñ špáçéš.&lt;/li&gt;&lt;/ol&gt;Thé érrórš áré:~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Remove Parameterization</source>
        <translation>[Rémóvé Párámétérízátíóñ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Parameterize </source>
        <translation>[Párámétérízé~~~] </translation>
    </message>
</context>
<context>
    <name>SaveSpecialDialog</name>
    <message>
        <source>Save Special</source>
        <translation>[Šávé Špéçíál~~~]</translation>
    </message>
    <message>
        <source>Save schematic to a new file without affecting displayed schematic or original file.
</source>
        <translation>[Šávé šçhémátíç tó á ñéw fílé wíthóút áfféçtíñg díšpláýéd šçhémátíç ór órígíñál fílé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~]
</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>[Óptíóñš~]</translation>
    </message>
    <message>
        <source>Binary format</source>
        <translation>[Bíñárý fórmát~~~]</translation>
    </message>
    <message>
        <source>Binary format is only needed to open the schematic with an old version of the program.</source>
        <translation>[Bíñárý fórmát íš óñlý ñéédéd tó ópéñ thé šçhémátíç wíth áñ óld véršíóñ óf thé prógrám.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Complete component
including symbol</source>
        <translation>[Çómplété çómpóñéñt~~~~~~ ~
íñçlúdíñg šýmból~~~~]</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;body&gt;&lt;p&gt;Saves the schematic as a &lt;b&gt;component&lt;/b&gt; file: the symbol goes into the file with the schematic, so the file can be placed in another design without installing a symbol library.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;body&gt;&lt;p&gt;[Šávéš thé šçhémátíç áš á &lt;b&gt;çómpóñéñt&lt;/b&gt; fílé: thé šýmból góéš íñtó thé fílé wíth thé šçhémátíç, šó thé fílé çáñ bé pláçéd íñ áñóthér déšígñ wíthóút íñštállíñg á šýmból líbrárý.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>File</source>
        <translation>[Fílé~]</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>[Brówšé...~~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Schematics (*.%1 *.%2)</source>
        <translation>[Šçhémátíçš (*.%1 *.%2)~~~~~]</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>[Šávé Áš~]</translation>
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
    <name>ShuntResistanceCalculatorDialog</name>
    <message>
        <source>Calculate New Shunt Resistance Value</source>
        <translation>[Çálçúláté Ñéw Šhúñt Réšíštáñçé Válúé~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>&lt;b&gt;Shunt Resistance Calculator&lt;/b&gt;</source>
        <translation>&lt;b&gt;[Šhúñt Réšíštáñçé Çálçúlátór~~~~~~ ~~~]&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Computes a new shunt resistance from the inductor value and the desired upper frequency limit, at which the impedance of the inductor goes from inductive to resistive. Enter the frequency limit in the Frequency box; the resistance is computed at once. Ok returns the value to the editing dialog, Cancel returns without changing it.</source>
        <translation>[Çómpútéš á ñéw šhúñt réšíštáñçé fróm thé íñdúçtór válúé áñd thé déšíréd úppér fréqúéñçý límít, át whíçh thé ímpédáñçé óf thé íñdúçtór góéš fróm íñdúçtívé tó réšíštívé. Éñtér thé fréqúéñçý límít íñ thé Fréqúéñçý bóx; thé réšíštáñçé íš çómpútéd át óñçé. Ók rétúrñš thé válúé tó thé édítíñg díálóg, Çáñçél rétúrñš wíthóút çháñgíñg ít.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>[Íñdúçtáñçé~~]</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;H&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;[H~]&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>[Fréqúéñçý~~]</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>[Hz~]</translation>
    </message>
    <message>
        <source>Shunt Resistance</source>
        <translation>[Šhúñt Réšíštáñçé~~~~]</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ohms&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;[Óhmš~~]&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
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
    <name>TabValueDialog</name>
    <message>
        <source>Edit Device Parameters</source>
        <translation>[Édít Dévíçé Párámétérš~~~~~~ ~]</translation>
    </message>
    <message>
        <source>title</source>
        <translation>[títlé~]</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>[Párámétérš~~]</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>[Ók~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
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
    <name>TestPlotter</name>
    <message>
        <source>Plotter Test</source>
        <translation>[Plóttér Téšt~~~]</translation>
    </message>
    <message>
        <source>Wheel: zoom about the mouse (Shift: x only, Ctrl: y only). Drag: pan, or move a cursor.
+ and -: zoom. Arrow keys: pan. Home, R or a double click: back to the axes as given.</source>
        <translation>[Whéél: zóóm ábóút thé móúšé (Šhíft: x óñlý, Çtrl: ý óñlý). Drág: páñ, ór móvé á çúršór.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~
+ áñd -: zóóm. Árrów kéýš: páñ. Hómé, R ór á dóúblé çlíçk: báçk tó thé áxéš áš gívéñ.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Bode plot: gain and scaled phase, log frequency axis</source>
        <translation>[Bódé plót: gáíñ áñd šçáléd phášé, lóg fréqúéñçý áxíš~~~~~~ ~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Time domain: 200,000 points of a noisy damped ringing</source>
        <translation>[Tímé dómáíñ: 200,000 póíñtš óf á ñóíšý dámpéd ríñgíñg~~~~~~ ~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Drag the cursors.</source>
        <translation>[Drág thé çúršórš.~~~~~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>t1 = %1 ms, t2 = %2 ms, t2 - t1 = %3 ms</source>
        <translation>[t1 = %1 mš, t2 = %2 mš, t2 - t1 = %3 mš~~~~~~ ~~~~~]</translation>
    </message>
</context>
<context>
    <name>TwoFileSelectionDialog</name>
    <message>
        <source>Two File Selection Dialog</source>
        <translation>[Twó Fílé Šéléçtíóñ Díálóg~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Select the files for this tool.</source>
        <translation>[Šéléçt thé fíléš fór thíš tóól.~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>[Déšçríptíóñ~~]</translation>
    </message>
    <message>
        <source>Description of the tool</source>
        <translation>[Déšçríptíóñ óf thé tóól~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Input file</source>
        <translation>[Íñpút fílé~~]</translation>
    </message>
    <message>
        <source>Choose the file to read.</source>
        <translation>[Çhóóšé thé fílé tó réád.~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>[Šéléçt...~~]</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>[Óútpút fílé~~]</translation>
    </message>
    <message>
        <source>Choose the file to write.</source>
        <translation>[Çhóóšé thé fílé tó wríté.~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Open output file when complete?</source>
        <translation>[Ópéñ óútpút fílé whéñ çómplété?~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>File description (optional)</source>
        <translation>[Fílé déšçríptíóñ (óptíóñál)~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>A short description stored in the output file.</source>
        <translation>[Á šhórt déšçríptíóñ štóréd íñ thé óútpút fílé.~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Characters left: %1</source>
        <translation>[Çháráçtérš léft: %1~~~~~]</translation>
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
    <message>
        <source>Alt+C</source>
        <translation>[Ált+Ç~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>[Áll Fíléš (*.*)~~~~]</translation>
    </message>
    <message>
        <source>%1 Files (%2)</source>
        <translation>%1 [Fíléš (%2)~~]</translation>
    </message>
    <message>
        <source>Select Output File Name</source>
        <translation>[Šéléçt Óútpút Fílé Ñámé~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Select Input File Name</source>
        <translation>[Šéléçt Íñpút Fílé Ñámé~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Warning: Greater than 32 character description</source>
        <translation>[Wárñíñg: Gréátér tháñ 32 çháráçtér déšçríptíóñ~~~~~~ ~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>The description must be less than 32 characters</source>
        <translation>[Thé déšçríptíóñ múšt bé léšš tháñ 32 çháráçtérš~~~~~~ ~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Error: Input file doesn't exist</source>
        <translation>[Érrór: Íñpút fílé dóéšñ't éxíšt~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>The input file doesn't exist on disk. Check the path and/or click on the &lt;b&gt;Select...&lt;/b&gt; button to locate the input file.</source>
        <translation>[Thé íñpút fílé dóéšñ't éxíšt óñ díšk. Çhéçk thé páth áñd/ór çlíçk óñ thé &lt;b&gt;Šéléçt...&lt;/b&gt; búttóñ tó lóçáté thé íñpút fílé.~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
</context>
<context>
    <name>VtDesignerPlugin</name>
    <message>
        <source>Number entry with steps, kept as text</source>
        <translation>[Ñúmbér éñtrý wíth štépš, képt áš téxt~~~~~~ ~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Line of text bound to an element</source>
        <translation>[Líñé óf téxt bóúñd tó áñ éléméñt~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Plain text bound to an element</source>
        <translation>[Pláíñ téxt bóúñd tó áñ éléméñt~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Text taken from the call</source>
        <translation>[Téxt tákéñ fróm thé çáll~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Check box, 1 or 0</source>
        <translation>[Çhéçk bóx, 1 ór 0~~~~~]</translation>
    </message>
    <message>
        <source>Checkable group, 1 or 0</source>
        <translation>[Çhéçkáblé gróúp, 1 ór 0~~~~~~ ~]</translation>
    </message>
    <message>
        <source>Radio buttons; the selected id</source>
        <translation>[Rádíó búttóñš; thé šéléçtéd íd~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>Radio button bound to an element</source>
        <translation>[Rádíó búttóñ bóúñd tó áñ éléméñt~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Choice from items separated by |</source>
        <translation>[Çhóíçé fróm ítémš šépárátéd bý |~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>List with selection</source>
        <translation>[Líšt wíth šéléçtíóñ~~~~~~]</translation>
    </message>
    <message>
        <source>Button with an action text</source>
        <translation>[Búttóñ wíth áñ áçtíóñ téxt~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Accepts the dialog</source>
        <translation>[Áççéptš thé díálóg~~~~~]</translation>
    </message>
    <message>
        <source>Rejects the dialog</source>
        <translation>[Réjéçtš thé díálóg~~~~~]</translation>
    </message>
    <message>
        <source>Curves over linear or logarithmic axes</source>
        <translation>[Çúrvéš óvér líñéár ór lógáríthmíç áxéš~~~~~~ ~~~~~~ ~]</translation>
    </message>
</context>
<context>
    <name>vtkit::GraphCaptureDialog</name>
    <message>
        <source>Capture Graph Points</source>
        <translation>[Çáptúré Gráph Póíñtš~~~~~~]</translation>
    </message>
    <message>
        <source>Next click marks</source>
        <translation>[Ñéxt çlíçk márkš~~~~]</translation>
    </message>
    <message>
        <source>The value of the axis at this mark</source>
        <translation>[Thé válúé óf thé áxíš át thíš márk~~~~~~ ~~~~~~]</translation>
    </message>
    <message>
        <source>Curve point</source>
        <translation>[Çúrvé póíñt~~]</translation>
    </message>
    <message>
        <source>Logarithmic x axis</source>
        <translation>[Lógáríthmíç x áxíš~~~~~]</translation>
    </message>
    <message>
        <source>Logarithmic y axis</source>
        <translation>[Lógáríthmíç ý áxíš~~~~~]</translation>
    </message>
    <message>
        <source>Undo Point</source>
        <translation>[Úñdó Póíñt~~]</translation>
    </message>
    <message>
        <source>Clear Points</source>
        <translation>[Çléár Póíñtš~~~]</translation>
    </message>
    <message numerus="yes">
        <source>Click points along the curve: %n marked.</source>
        <translation>
            <numerusform>[Çlíçk póíñtš álóñg thé çúrvé: %n márkéd.~~~~~~ ~~~~~~ ~]</numerusform></translation>
    </message>
    <message>
        <source>Click the point of %1 on the %2 axis.</source>
        <translation>[Çlíçk thé póíñt óf %1 óñ thé %2 áxíš.~~~~~~ ~~~~~]</translation>
    </message>
    <message>
        <source>Mark X1, X2, Y1 and Y2 on the axes first.</source>
        <translation>[Márk X1, X2, Ý1 áñd Ý2 óñ thé áxéš fíršt.~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>The value of %1 is not a number.</source>
        <translation>[Thé válúé óf %1 íš ñót á ñúmbér.~~~~~~ ~~~~]</translation>
    </message>
    <message>
        <source>A logarithmic axis needs values above zero.</source>
        <translation>[Á lógáríthmíç áxíš ñéédš válúéš ábóvé zéró.~~~~~~ ~~~~~~ ~~~]</translation>
    </message>
    <message>
        <source>The two marks of an axis must differ in place and value.</source>
        <translation>[Thé twó márkš óf áñ áxíš múšt díffér íñ pláçé áñd válúé.~~~~~~ ~~~~~~ ~~~~~~ ~~]</translation>
    </message>
    <message>
        <source>Graph Capture</source>
        <translation>[Gráph Çáptúré~~~]</translation>
    </message>
    <message>
        <source>Click at least one point on the curve.</source>
        <translation>[Çlíçk át léášt óñé póíñt óñ thé çúrvé.~~~~~~ ~~~~~~ ~]</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>[ÓK~]</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>[Šávé~]</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>[Šávé Áll~]</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>[Ópéñ~]</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>[&amp;Ýéš~]</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>[Ýéš tó &amp;Áll~~]</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>[&amp;Ñó~]</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>[Ñ&amp;ó tó Áll~~]</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>[Ábórt~]</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>[Rétrý~]</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>[Ígñóré~]</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>[Çlóšé~]</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çáñçél~]</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>[Díšçárd~]</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>[Hélp~]</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>[Ápplý~]</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>[Réšét~]</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>[Réštóré Défáúltš~~~~]</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>[&amp;ÓK~]</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>[&amp;Šávé~]</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>[&amp;Çáñçél~]</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>[&amp;Çlóšé~]</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>[Çlóšé wíthóút Šávíñg~~~~~~]</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>[Šhów Détáílš...~~~~]</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>[Hídé Détáílš...~~~~]</translation>
    </message>
</context>
</TS>
