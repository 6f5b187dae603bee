<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>BrelvonOptionsDialog</name>
    <message>
        <source>BRELVON Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Extraction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOSFET</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial place preference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extracted model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User-defined model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically copy extracted 

parameters to User-defined parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default model extraction test conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drain current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drain to source voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gate drive voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of body diode segments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit maximum off resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum off resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ω</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset form to default values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extraction draws a straight line between two points on the
drain current vs. gate drive voltage curves, set here as ratios of the peak drain current.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peak curve fit point expressed as the ratio of peak drain current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum curve fit point expressed as the ratio of peak drain current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum instantaneous power dissipation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output parameter debug statements to the deck file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of diode segments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IGBT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collector current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collector to emitter voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of anti-parallel diode segments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extraction draws a straight line between two points on the
collector current vs. gate drive voltage curves, set here as ratios of the peak collector current.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peak curve fit point expressed as the ratio of peak collector current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum curve fit point expressed as the ratio of peak collector current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JFET</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off-state gate drive voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zener</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of segments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 Segment Zener</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 Segment Zener</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BJT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translated model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically copy translated

parameters to User-defined parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default translation parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ASCII Model/Symbol Creation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol creation options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save symbol to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local symbol library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If selected, the symbol is output to a symbol library in the schematic directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Global symbol library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If selected, the symbol is output to the specified global symbol library.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Global symbol file name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol category with a seimcolon delimiter to define sub categories.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model creation options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not check .INCLUDE files for .VAR statements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dangerous: with this checked, .INLCUDE files are not searched for .VAR statements, and a model that relies on them may be wrong. Only check this option if you REALLY know what you are doing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment out all .GRAPH statements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment out all .PRINT statements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Advanced Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Advanced Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol Libraries (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConvergenceDialog</name>
    <message>
        <source>Convergence Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use these options when a run stops with &quot;No convergence in transient analysis&quot;
or &quot;Cannot find DC operating point&quot;. Try advanced iteration first: it has no
disadvantages other than a slight loss of speed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced iteration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced iteration nearly always improves convergence and accuracy. It may
slow a simulation down by 5 to 10%, but it can also speed it up. Not all types
of device support it yet; you will be warned if your circuit holds one that
does not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Absolute current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The absolute current tolerance defaults to 1pA, which is sometimes too low. A
value of up to 1nA often solves convergence problems.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A minimum time step of 1f or less can sometimes help transient analysis to
converge, and does not significantly affect the simulation time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slew rate for discontinuous sources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slew rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applies to arbitrary sources with expressions of the form IF(expression,
constant, constant), common in power controller models, and removes their
discontinuity. Do not set it lower than 1E9.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shunt capacitance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply shunt capacitance globally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For transient analysis only: a small capacitance to ground from all top level
nodes, that is nodes not in a subcircuit or hierarchical block. As little as
1fF can improve convergence. Applying it globally puts it on all nodes; use
that with care, as it can affect subcircuit models.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreateDiodeDialog</name>
    <message>
        <source>Create Diode Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse recovery specification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IF - Forward current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IRM - Peak reverse current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dIf/dt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tr - Recovery time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters define a soft recovery characteristic.
Tr is the time to recover to 37% of the peak
reverse current from the zero crossing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DC Forward bias spec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vd1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>@ Id1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vd2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>@ Id2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cj0 - Capacitance 

at zero bias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to schematic symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to model library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device name:</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreateNewTitleBlock</name>
    <message>
        <source>Create Title Block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Author</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Style (limited)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set company name as default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set logo file path as default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set author as default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreateNewTitleBlockDialog</name>
    <message>
        <source>Open Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreatePowerInductorModelDialog</name>
    <message>
        <source>Create Power Inductor Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Series
resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shunt
resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Infinity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial
condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With an initial condition the inductor behaves like a current source of this value
during the DC operating point calculation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No smoothing (PWL)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local cubic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cubic spline option 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cubic spline option 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Cubic spline option 1&quot; usually gives the best results: it fits cubic
polynomials to each segment, with a curve continuous in the second
derivative and a second derivative of zero at the final end point.
For badly formed segments it can fail with an error; then choose
one of the other two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to schematic symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to model library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load from Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digitises a graph from an image file (JPEG, PNG or BMP),
for example one taken from a data sheet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap I and L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loads ASCII data copied from a spreadsheet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a row with an empty cell in the data table. Cannot complete while this cell is empty.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogDesigner</name>
    <message>
        <source>DialogDesigner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radio button: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check box: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spin Box: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spacer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Radio Button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Spin Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SpinBox</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Check Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CheckBox</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Spacer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditBRELVONGateDialog</name>
    <message>
        <source>Edit BRELVON Advanced Digital Gate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gate Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AND / NAND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OR / NOR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XOR / XNOR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverter / Buffer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># of Logic Inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># of Inverted Logic Inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ground Ref</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Propagation Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog - Digital interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input Resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output High Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Low Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
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
    <message>
        <source>reject</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditBodePlotProbeDialog</name>
    <message>
        <source>Edit Bode Plot Probe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phase Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Persistence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiplied by -1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use db auto limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum limit - dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum limit - dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use phase auto limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum limit - phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum limit - phase</source>
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
    <message>
        <source>reject</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditBodePlotProbeDialog2</name>
    <message>
        <source>Edit Bode Plot Probe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use separate graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable gain/phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Persistence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical axis ( check to auto calculate )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phase
- 180 degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Phase -180 degrees&lt;/b&gt; to plot the phase curve with 180 degree offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display curves on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two grids</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phase above Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain above Phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example curve output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save current properties as default Bode Plot Probe configuration.&lt;br&gt;New probes will automatically have these saved properties applied when placed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save settings as preferred
Bode Plot Probe configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditBrelvonFilter</name>
    <message>
        <source>Edit BRELVON Continuous Time / Discrete Time Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p align=&quot;center&quot;&gt;&lt;b&gt;Continuous / Discrete Time Filters&lt;/b&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This component can model either a continuous time filter or a discrete time filter.
The transfer function for the filter can be entered in either &quot;s&quot; or &quot;z&quot; domains, 
and the other domain&apos;s coefficients can be calculated using the &quot;Calculate&quot; buttons. 
The model used in the simulation is selected using the &quot;Model&quot; buttons.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Laplace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discrete filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S-DomainTransfer Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H(s) = Gain ×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s +</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s&lt;sup&gt;2&lt;/sup&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s + s&lt;sup&gt;2&lt;/sup&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculate &quot;s&quot; Coefficients</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transform method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sampling frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculate &quot;z&quot; Coefficients</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z-Domain Transfer Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H(z) = Gain ×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z&lt;sup&gt;-1&lt;/sup&gt; +</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z&lt;sup&gt;-2&lt;/sup&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 +</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acquistion time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The precision of the model parameters is set with this value.&lt;br /&gt;Permissable values are from 3 to 16 significant digits.&lt;br/&gt;The Z-Coefficients are sensitive to this precision value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The displayed precision of the various coefficients is set with this parameter.&lt;br /&gt;The values used in calculations usually have higher precision than the display precision.&lt;br /&gt;Display precision has no impact on the model behavior.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Annotation precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After closing this dialog, the symbol will be annotated with a expression representing&lt;br/&gt;the numerator and denominator equations.&lt;br/&gt;This control allows the precision of coefficients in these equations to be set to a specified precision.&lt;br /&gt;Annotation precision has no impact on the model behavior.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Division by Zero detected!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Using the coefficients provided, calculation of the new coeficiencts will result in a divide by zero.
The calculation has been aborted and the coefficients have not been altered.
Please check your coefficients and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum Model Order Exceeded!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device allows up to 2nd order models.
To model a higher order filter, you can cascade multiple devices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum Model Order Exceeded!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device allows a minimum of a 1st order model.
To model a 0th order device, you can use the Zero Order Sample and Hold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S Coefficients have changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z Coefficients have changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It appears that you have changed the S domain coefficients,
yet haven&apos;t re-calculated the Z domain coefficients.
Press &quot;Calculate Now&quot; to calculate and save, &quot;Cancel&quot; to return to BRELVON without calculating.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It appears that you have changed the Z domain coefficients,
yet haven&apos;t re-calculated the S domain coefficients.
Press &quot;Calculate Now&quot; to calculate and save, &quot;Cancel&quot; to return to BRELVON without calculating.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculate Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditBrelvonMosfetDriverDialog</name>
    <message>
        <source>Edit Multi-Level MOSFET Driver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-Level MOSFET Driver (Version 8.0+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameterized value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use inverted logic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The threshold and the hysteresis set the input voltage thresholds:&lt;br/&gt;TH = T + H/2 and TL = T - H/2.&lt;/p&gt;&lt;img src=&quot;:/threshold_hysteresis.png&quot;/&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The delays are independent of the logical inversion: the rising-edge delay always applies to the rising edge of the input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rising-edge delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Falling-edge delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RON1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ohms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I3 is the peak current, and R3 the output resistance when the driver is sourcing I3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper switch PWL model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RON2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V1 is the voltage where the driver goes from the RON1 segment to the RON2 segment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower switch PWL model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Additional Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial condition of upper switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch off resistances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch on-state voltages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drops across the switches at the peak and at the minimum of the output; kept for compatibility with an older driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Level 0&lt;/b&gt; models the output switches as simple on/off resistances.&lt;br/&gt;&lt;b&gt;Level 1&lt;/b&gt; includes the saturation region where switches are current limited.&lt;br/&gt;&lt;b&gt;Level 2&lt;/b&gt; models the output switches as 3-segment PWL resistors.&lt;br/&gt;Compatible with Version 8.0+. Click on the &lt;b&gt;Help&lt;/b&gt; button for more information.&lt;p&gt;To enter a expression containing parameter names enclosed in {}, right-click and select the Parameterize context menu option.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditJumperDialog</name>
    <message>
        <source>Edit Jumper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Positions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two Positions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jumper Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Poles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># of Poles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
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
    <message>
        <source>reject</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditMultiLevelInductorCapacitorDialog</name>
    <message>
        <source>Edit Multi-Level Capacitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-Level Capacitor w/ Levels 0-3 (Version 8.0+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Level 0&lt;/b&gt; is an ideal capacitor with no parasitic elements.&lt;br/&gt;&lt;b&gt;Level 1&lt;/b&gt; is a capacitor with leakage resistance.&lt;br/&gt;&lt;b&gt;Level 2&lt;/b&gt; is a capacitor with ESR and leakage resistance.&lt;br/&gt;&lt;b&gt;Level 3&lt;/b&gt; is a capacitor with ESR, ESL and leakage resistance.&lt;p&gt;To enter an expression containing parameter names enclosed in {}, right-click and select the Parameterize context menu option.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameterized value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piecewise linear capacitance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Define...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leakage resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ohms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Series resistance (ESR)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Series inductance (ESL)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ESL Shunt resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calc...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use IC?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Quantity?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monte Carlo Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3-Sigma Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probability Distribution Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shunt resistance only limits the high frequency behaviour, so it has no probability distribution, and its tolerance is 0 in the model.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piecewise linear inductance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shunt resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Multi-Level PWL Capacitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-Level PWL Capacitor w/ Levels 0-3 (Version 8.0+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Multi-Level Lossy Inductor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-Level Lossy Inductor (Version 8.0+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Multi-Level Lossy PWL Inductor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-Level Lossy PWL Inductor (Version 8.0+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Level 0&lt;/b&gt; is an inductor with a parallel shunt resistance.&lt;br/&gt;&lt;b&gt;Level 1&lt;/b&gt; is an inductor with a parallel shunt resistance and equivalent series resistance (ESR).&lt;p&gt;To enter an expression containing parameter names enclosed in {}, right-click and select the Parameterize context menu option.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditParameterisedOpampDialog</name>
    <message>
        <source>Edit Parameterised Opamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameterised Opamp (Version 8.0+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameterized value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 1 and 2 parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bias Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open-loop Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V/V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CMRR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PSRR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input Resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output AC Resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Dissipation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level 2 parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain-bandwidth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive Slew Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative Slew Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max. Output Source Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max. Output Sink Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive Headroom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative Headroom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use back-annotated information for initial condition if available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pos. Slew Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neg. Slew Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V/S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Res.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiescent Curr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Headroom Pos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Headroom Neg.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset V. (Statistical)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Multi-Level Parameterized Opamp (Version 8.0+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum Output AC Resistance Hit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The maximum value of the &lt;b&gt;Output AC Resistance&lt;/b&gt; must be less than the &lt;b&gt;Output Resistance&lt;/b&gt; value.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditStylesDialog</name>
    <message>
        <source>Edit Styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit name...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Global</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include as Property Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview current stlye as:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EfficiencyDialog</name>
    <message>
        <source>Vantrell/BRELVON Efficiency Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Efficiency Calculator&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Power Probes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to Inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to Outputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input Probes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Probes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
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
    <name>LoopForgeEditClocksDialog</name>
    <message>
        <source>LoopForge Global Clocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LoopForge - Edit Global Clocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sys CLK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duty cycle (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay (s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected clock up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected clock down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLK Sync Edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rising</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Falling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close and Graph Clocks</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoopForgeEditComponentDialog</name>
    <message>
        <source>Edit Component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>b</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>c</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use asynchronous delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use synchronous delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use 32 bit signed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit output to:</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Implements a combintorial model where the output voltage changes in response
to the input voltage(s) change after a propagation delay.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In response to an input voltage change, the output voltage
changes after a designated number of clock cycles.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The full 32 bit signed data is output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is limited to a Signed or Unsigned number
with a designated number of bits.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoopForgeEditPWMDialog</name>
    <message>
        <source>Edit Device Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoopForgeEditProbeDialog</name>
    <message>
        <source>Edit LoopForge Bus Probe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit &lt;i&gt;LoopForge&lt;/i&gt; Probe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot Integer data as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digital bus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog waveform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis type for analog waveform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use separate Y-axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use separate grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digital</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use separate graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Persistence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arbitrary string to specify order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analyses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All analyses disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Integer sampled data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Floating point sampled data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiple curves selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Curve label control is disabled when editing multiple probes.
This prevents you from accidentally renaming curves to the same name.
To edit the Curve label, you will need to edit each probe individually.
All other properties may be edited on this dialog.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ManageMeasureDialog</name>
    <message>
        <source>Manage Measurement Definitions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create new measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurement definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Label as displayed on graph&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Expression. Enter an expression that&lt;br/&gt;returns the measurement value.&lt;br/&gt;Use &apos;data&apos; to access the curve&apos;s data.&lt;br/&gt;E.g. to get the mean squared use:&lt;br/&gt;&lt;br/&gt;Mean1(data*data).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Format template. Leave blank&lt;br/&gt;to use default&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Full description. \n siginifies new line&lt;br/&gt;(Displayed below list box. Optional)&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Requires cursors to be switched on&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Factory Definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate Entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name you have entered is already used
Choose another name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasureDialog</name>
    <message>
        <source>Define Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre-defined Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre-process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor span</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC coupled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Integral cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurement definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label as displayed on graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expression. Enter an expression that
returns the measurement value.
Use &apos;data&apos; to access the curve&apos;s data. 
E.g. to get the mean squared use:

Mean1(data*data).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format template. Leave blank
to use default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save definition to pre-defined measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short description
(Displayed in list box. Optional)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full description
(Displayed below list box. Optional)</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some items are disabled as they require cursors to be switched on
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModelExtractionDialog</name>
    <message>
        <source>Model Extraction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extracted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User-defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model extraction test conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SPICE Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects a new device from a list of installed SPICE models.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User-defined parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Extracted&quot; creates a BRELVON model from the SPICE model.
&quot;User-defined&quot; creates a model based on user input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;There are three ways to choose the SPICE model:&lt;/p&gt;&lt;p&gt;&lt;img src=&quot;:/combo_box_mouse_cursor_transparent.png&quot;&gt; pick a recently used model from the list,&lt;/p&gt;&lt;p&gt;&lt;img src=&quot;:/select_button_mouse_cursor_transparent.png&quot;&gt; press &quot;Select...&quot; and choose from all installed models,&lt;/p&gt;&lt;p&gt;or type the name of the model. The name is &lt;b&gt;NOT&lt;/b&gt; cap sensitive.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label may hold only letters, digits and the underscore. It describes the device
and isn&apos;t used in simulation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Series</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back-to-back zeners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model translation test conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Translated&quot; creates a BRELVON model from the SPICE model.
&quot;User-defined&quot; creates a model based on user input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the SPICE model to translate: pick it from the list, press &quot;Select...&quot;, or type its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extract</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translate </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extract </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of diodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diode mismatch (V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Need User label for this device!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All User-defined models must have a label with at least one character.

Valid characters include A-Z, a-z, 0-9, _ and -</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Model selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The &quot;SPICE Model&quot; selection box is empty.

Please select a model using the &quot;Select...&quot; button to continue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model %1 not found in libraries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The model :

%1

wasn&apos;t found in any installed libraries. To extract a BRELVON model,
the SPICE model must first be installed in the library system.

Model files can be installed into the library system by dragging and dropping
the model file into the Vantrell/BRELVON Command Shell.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModelExtractionNewDeviceDialog</name>
    <message>
        <source>Select New Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed SPICE models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device selected!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device was selected.
Please select a device from the list,
and press Ok to continue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search engine uses a full substring search, and the list is updated as you type.
Wildcard characters (*, ?, etc.) are not used, and are interpreted literally.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This list contains all installed SPICE models of this device type. Models are added by dragging
and dropping the model file into the command shell. The extraction algorithms extract
parameters from the model selected in this list.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PWLDialog</name>
    <message>
        <source>Piecewise Linear Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point %1: &quot;%2&quot; is neither a number nor an expression in braces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point %1: the x values must increase.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Curve</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterisedLevel</name>
    <message>
        <source>Remove Parameterization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameterize Model Level</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Open Graph Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not an image that can be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RadioSelectWidgetStackDialog</name>
    <message>
        <source>Edit Device Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameterized value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;nobr&gt;The Parameter value doesn&apos;t begin with an opening curly brace &quot;{&quot;&lt;/nobr&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;nobr&gt;The Parameter value doesn&apos;t end with a closing curly brace &quot;}&quot;&lt;/nobr&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br/&gt;The Parameter value contains spaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Incorrect parameter name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter values must meet three requirements:&lt;ol&gt;&lt;li&gt;Begin with the opening curly brace &quot;{&quot;,&lt;/li&gt;&lt;li&gt;End with the closing curly brace &quot;}&quot;,&lt;/li&gt;&lt;li&gt;And not contain spaces.&lt;/li&gt;&lt;/ol&gt;The errors are:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Parameterization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameterize </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveSpecialDialog</name>
    <message>
        <source>Save Special</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save schematic to a new file without affecting displayed schematic or original file.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Binary format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Binary format is only needed to open the schematic with an old version of the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete component
including symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;body&gt;&lt;p&gt;Saves the schematic as a &lt;b&gt;component&lt;/b&gt; file: the symbol goes into the file with the schematic, so the file can be placed in another design without installing a symbol library.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schematics (*.%1 *.%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
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
    <name>ShuntResistanceCalculatorDialog</name>
    <message>
        <source>Calculate New Shunt Resistance Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Shunt Resistance Calculator&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computes a new shunt resistance from the inductor value and the desired upper frequency limit, at which the impedance of the inductor goes from inductive to resistive. Enter the frequency limit in the Frequency box; the resistance is computed at once. Ok returns the value to the editing dialog, Cancel returns without changing it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;H&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shunt Resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ohms&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
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
    <message>
        <source>Alt+C</source>
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
    <name>TabValueDialog</name>
    <message>
        <source>Edit Device Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
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
    <name>TestPlotter</name>
    <message>
        <source>Plotter Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel: zoom about the mouse (Shift: x only, Ctrl: y only). Drag: pan, or move a cursor.
+ and -: zoom. Arrow keys: pan. Home, R or a double click: back to the axes as given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bode plot: gain and scaled phase, log frequency axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time domain: 200,000 points of a noisy damped ringing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the cursors.</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>t1 = %1 ms, t2 = %2 ms, t2 - t1 = %3 ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TwoFileSelectionDialog</name>
    <message>
        <source>Two File Selection Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the files for this tool.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description of the tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the file to read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the file to write.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open output file when complete?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File description (optional)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short description stored in the output file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Characters left: %1</source>
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
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Files (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Output File Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Input File Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: Greater than 32 character description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The description must be less than 32 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Input file doesn&apos;t exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input file doesn&apos;t exist on disk. Check the path and/or click on the &lt;b&gt;Select...&lt;/b&gt; button to locate the input file.</source>
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
    <message>
        <source>Curves over linear or logarithmic axes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vtkit::GraphCaptureDialog</name>
    <message>
        <source>Capture Graph Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next click marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value of the axis at this mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logarithmic x axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logarithmic y axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Click points along the curve: %n marked.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Click the point of %1 on the %2 axis.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark X1, X2, Y1 and Y2 on the axes first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value of %1 is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A logarithmic axis needs values above zero.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two marks of an axis must differ in place and value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph Capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click at least one point on the curve.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
