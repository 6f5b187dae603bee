# Sourced by scripts/demo.sh: the dialogs, answered by scripts as a person
# would click, each leaving a screenshot in demo-out/.
d=scripts/demo/dialogs
show call Select2Dialog '["R1", "1k", "Pick a resistor and a value", "Resistor", "Value"]' \
  '["R1|R2|R3", "1k|4.7k|10k"]' --answer $d/select2.json
show call ListSubsetDialog '["V(in)", "V(out)", "I(R1)", "I(C1)"]' '["V(supply)"]' \
  '["Signals"]' '["Plotted"]' --answer $d/listsubset.json
show call TableDialog '[4, 2]' '["0;0;", "1m;1;", "2m;0;"]' --answer $d/tabledialog.json
show call TableEditor '["input|output|bidirectional", "digital|analog"]' \
  '["input|output", "digital|analog"]' '["Direction|Type", "A|B|C", "Add Pin|Remove Pin"]' \
  '["Pin Types", "Choose a direction and a type for each pin."]' --answer $d/tableeditor.json
show call EditBRELVONGateDialog '["0", "1Meg", "10", "2.5", "100m", "0", "5", "10n"]' '["0", "3", "1", "0"]' \
  '["0|1|X", "0|VSS|VEE", "9", "1", "0", "1", "", "101|102|103|104",
    "The inputs are voltage comparators with hysteresis; each output is a voltage source with a series resistance."]' \
  '["AND / NAND gate", "OR / NOR gate", "XOR / XNOR gate", "Inverter / Buffer"]' \
  '["The output is high when all inputs are high (AND) or low (NAND).",
    "The output is high when any input is high (OR) or none is (NOR).",
    "The output is high when the two inputs differ (XOR) or agree (XNOR).",
    "The output follows (Buffer) or inverts (Inverter) its input."]' \
  --answer $d/editbrelvongatedialog.json
show call EditJumperDialog '["1", "2", "2"]' '["Edit Jumper J1", "12"]' --answer $d/editjumperdialog.json
show call EditBrelvonFilter '["BRELVON_DIGI1_D_DF_2POLE_Y", "2", "1", "0", "0", "0", "0", "0", "0", "0",
  "39478417.6", "8885.7659", "39478417.6", "Trapezoidal", "10k", "0", "0", "", "", "", "12", "6", "4"]' \
  --answer $d/editbrelvonfilter.json
show call ConvergenceDialog '["1", "1e-12", "1", "1e+012", "1", "0", "1", "0", "0", "1"]' '["0"]' \
  --answer $d/convergencedialog.json
show call MeasureDialog '["Mean;Average value over the curve;0;1", "RMS;Root mean square of the curve;0;1",
  "Frequency;Frequency from the cursor span;1;1", "Rise time;Rise time 10%-90% between the cursors;1;1",
  "Overshoot;Peak overshoot after a step, user definition;0;0", "Custom;Write your own measurement;0;1"]' \
  '["Mean"]' --answer $d/measure.json
show call ManageMeasureDialog '["Mean;Mean1(data);%g;Mean;Average value over the curve;;1",
  "Freq;Frequency(data);%.4g Hz;Freq;Frequency from the cursor span;1;1",
  "RMS;RMS1(data);%g;RMS;Root mean square of the curve;;1",
  "Overshoot;(Maximum(data)-data[-1])/data[-1];%.1f%%;OS;Peak overshoot after a step;"]' \
  --answer $d/managemeasure.json
styletail='fontItalics:0 fontColour:0 propertyStyle:0 fontOverline:0 fontUnderline:0'
show call EditStylesDialog '["Wire", "Instance", "Bus", "Annotation"]' \
  "[\"Wire|lineColour:32768 lineType:0 lineThickness:2 fontFamily:\\\"DejaVu Sans\\\" fontBold:0 fontSize:9 $styletail \",
    \"Instance|lineColour:8388608 lineType:0 lineThickness:0 fontFamily:\\\"DejaVu Sans\\\" fontBold:0 fontSize:9 $styletail \",
    \"Bus|lineColour:8421376 lineType:1 lineThickness:3 fontFamily:\\\"DejaVu Sans\\\" fontBold:1 fontSize:9 $styletail \",
    \"Annotation|lineColour:0 lineType:0 lineThickness:0 fontFamily:\\\"DejaVu Serif\\\" fontBold:0 fontSize:12 $styletail \"]" \
  '["Solid", "Dash", "Dot", "DashDot", "DashDotDot"]' \
  "[\"DefaultBackground|lineColour:16777215 lineType:0 lineThickness:0 fontFamily:\\\"arial\\\" fontBold:0 fontSize:9 $styletail \",
    \"DefaultGrid|lineColour:10526880 lineType:0 lineThickness:0 fontFamily:\\\"arial\\\" fontBold:0 fontSize:9 $styletail \",
    \"DefaultWire|lineColour:32768 lineType:0 lineThickness:0 fontFamily:\\\"arial\\\" fontBold:0 fontSize:9 $styletail \",
    \"DefaultInstance|lineColour:8388608 lineType:0 lineThickness:0 fontFamily:\\\"DejaVu Sans\\\" fontBold:0 fontSize:12 $styletail \"]" \
  '["noduplicate"]' '["Wire|lineColour:255 lineType:0 lineThickness:0 fontFamily:\"arial\" fontBold:0 fontSize:9 '"$styletail"' "]' \
  --answer $d/editstyles.json
show call CreateNewTitleBlockDialog @$d/titleblock-block.json --answer $d/titleblock.json
show call EditMultiLevelInductorCapacitorDialog \
  '["0", "0", "0.5", "23.5u", "2", "90u", "4", "152u", "6.3", "196u"]' '["PWL Capacitance", "V", "C"]' \
  '["", "10", "Gaussian", "100Meg", "5", "Uniform", "10m", "5", "Gaussian", "1n", "5", "Gaussian", "1k", "0", "0", "0", "1", "2"]' \
  '["pwlc", "None|Gaussian|Uniform", "", "1200"]' --answer $d/multilevel_pwlc.json
show call EditMultiLevelInductorCapacitorDialog '[]' '[]' \
  '["4.7u", "10", "Gaussian", "20m", "5", "Uniform", "2k", "0", "0", "1", "3", "0"]' \
  '["l", "None|Gaussian|Uniform", "", "1201"]' --answer $d/multilevel_inductor.json
show call EditMultiLevelInductorCapacitorDialog '[]' '[]' \
  '["100u", "20", "Gaussian", "100Meg", "5", "Uniform", "22m", "5", "Gaussian", "10n", "5", "Gaussian", "1k", "0", "0", "0", "1", "3"]' \
  '["c", "None|Gaussian|Uniform"]' --answer $d/shuntcalculator.json
show call EditMultiLevelInductorCapacitorDialog '[]' '[]' \
  '["1u", "10", "Gaussian", "100Meg", "5", "Uniform", "10m", "5", "Gaussian", "1n", "5", "Gaussian", "1k", "0", "0", "0", "1", "1"]' \
  '["c", "None|Gaussian|Uniform"]' --answer $d/multilevel_parameterised.json
show call EditBrelvonMosfetDriverDialog \
  '["2", "0", "1", "2.5", "1", "15n", "10n", "1", "10Meg", "2", "1", "10Meg", "3", "OFF", "10Meg", "10Meg", "0", "0", "10", "500m", "10Meg", "500m", "2", "10", "500m", "10Meg", "100m", "3"]' \
  '["Edit Gate Driver", "\"OFF\"|\"ON\"", "233"]' --answer $d/mosfetdriver.json
show call EditParameterisedOpampDialog \
  '["{OpLevel}", "1m", "100n", "10n", "100k", "1Meg", "1Meg", "1Meg", "100k", "100k", "10Meg", "20m", "20m", "100", "50", "10m", "1", "1", "1"]' \
  '["BRELVON"]' --answer $d/opamp_brelvon.json
show call EditParameterisedOpampDialog \
  '["1m", "100n", "10n", "100k", "1Meg", "1Meg", "1Meg", "100k", "100k", "10Meg", "100", "10m", "1", "1", "1m"]' \
  --answer $d/opamp_vantrell.json
show call TabValueDialog '["Model", "Parasitics", "Noise"]' \
  '["Model::Geometry:0:0", "Model::Thresholds:0:1", "Parasitics::Capacitances:0:0:0:1::1:8",
    "Parasitics::Resistances:1:0:1:1", "Noise:check:Flicker noise:0:0:::20"]' \
  '["Model:Geometry:W:0:0:__micro__m:real:0|1k:1:Channel width",
    "Model:Geometry:L:1:0:__micro__m:real:0|100:1:Channel length",
    "Model:Geometry:Fingers:2:0::integer:1|64|1", "Model:Thresholds:Level:0:0::list:Level 1|Level 2|Level 3|BSIM3",
    "Model:Thresholds:Vto:1:0:V", "Model:Thresholds:Model name:2:0::string",
    "Model:Thresholds:Temperature model:3:0::bool", "Parasitics:Capacitances:Gate:0:0::label",
    "Parasitics:Capacitances:Cgs:1:0:pF", "Parasitics:Capacitances:Cgd:2:0:pF",
    "Parasitics:Capacitances:Junction:0:1::label", "Parasitics:Capacitances:Cbd:1:1:pF",
    "Parasitics:Capacitances:Cbs:2:1:pF", "Parasitics:Resistances:Rg:0:0:__Ohms__",
    "Parasitics:Resistances:Rd:0:1:m__Ohms__", "Noise:Flicker noise:KF:0:0",
    "Noise:Flicker noise:AF:1:0", "Noise:Flicker noise:Thermal noise:2:0::check",
    "Noise:Thermal noise:Noise model:0:0::list:Classic|Improved",
    "Noise:Flicker noise:Options:3:0::group", "Noise:Options:Tnom:0:0:__degrees__C",
    ":*#!Buttons:Save as default:0:1::bool"]' \
  '["10", "0.5", "4", "BSIM3", "0.7", "NMOS_3V3", "true", "1.2", "0.3", "0.5", "0.1", "2", "15",
    "1e-25", "1", "1", "Improved", "27", "0", "", "1"]' \
  '["NMOS Transistor M1", "<b>M1</b>: NMOS, 3.3 V", "120"]' --answer $d/tabvalue.json
show call RadioSelectWidgetStackDialog '["Sine", "Pulse", "DC\\slevel"]' \
  '["Sine::Sine wave:0:0", "Pulse::Pulse train:0:0", "DC\\slevel::Level:0:0"]' \
  '["::Waveform:::::::Right-click to parameterize the waveform",
    "Sine:Sine wave:Amplitude:0:0:V", "Sine:Sine wave:Frequency:1:0:Hz",
    "Sine:Sine wave:Phase:2:0:__degrees__", "Pulse:Pulse train:Low:0:0:V",
    "Pulse:Pulse train:High:1:0:V", "Pulse:Pulse train:Period:2:0:s",
    "Pulse:Pulse train:Duty cycle:3:0:%:real:0|100", "DC\\slevel:Level:Voltage:0:0:V"]' \
  '["Pulse", "1", "1k", "0", "0", "5", "10u", "50", "3.3"]' \
  '["Voltage Source V1", "<b>V1</b>: choose a waveform", "130"]' --answer $d/radiostack.json
show call LoopForgeEditComponentDialog \
  '["::Delay type", "::Output type", ":Delay:Propagation delay:1:0:s",
    ":Delay:Clock cycles:3:0::integer:1|1000", ":Delay:Clock:4:0::string",
    ":Delay:Active edge:5:0::list:'"'"'0_TO_1'"'"'|'"'"'1_TO_0'"'"'", ":Output:Bits:2:0::integer:1|32",
    ":Output:Format:3:0::list:SIGNED|UNSIGNED", ":Params:Saturate on overflow:0:0::bool"]' \
  '["'"'"'ASYNC'"'"'", "0", "10n", "1", "CLK", "'"'"'0_TO_1'"'"'", "16", "SIGNED", "1", "0"]' \
  '["32 Bit Adder", "Adds its two 32 bit signed inputs. The sum follows after a propagation delay, or a number of clock cycles in synchronous mode.", "Edit Adder U3", "BRELVON_LF_ADDER_32x32", "140"]' \
  --answer $d/loopforgecomponent.json
show call LoopForgeEditPWMDialog '["Carrier", "Outputs"]' \
  '["Carrier::Counter:0:0", "Carrier::Timing:1:0", "Outputs::Channels:0:0::::1"]' \
  '["Carrier:Counter:Mode:0:0::list:Up|Down|Up-down", "Carrier:Counter:Period:1:0:counts:integer:1|65535",
    "Carrier:Timing:Clock:0:0:Hz", "Carrier:Timing:Dead time:1:0:s",
    "Outputs:Channels:Output A:0:0::label", "Outputs:Channels:Active high:1:0::bool",
    "Outputs:Channels:Output B:0:1::label", "Outputs:Channels:Active high:1:1::bool"]' \
  '["Up-down", "1000", "100Meg", "50n", "1", "0", "", "", "ePWM1"]' \
  '["ePWM U5", "<b>ePWM</b> generator", "Symbol description", "150"]' --answer $d/loopforgepwm.json
show call CreateDiodeDialog '["10", "1", "100M", "50n", "0.7", "1", "0.9", "10", "100p", "1", "D1N4148"]' \
  --answer $d/creatediode.json
diode='["1", "0", "1", "100", "25", "1", "3", "1", "1k", "0"]'
mos='["1", "0", "10", "100", "10", "1", "25", "1", "1Meg", "2", "0", "0.9", "0.1", "100"]'
jfet='["0", "0", "1", "100", "-10", "1", "25", "1", "1Meg", "0", "0.9", "0.1", "100"]'
zener='["1", "0", "5m", "25", "3", "1", "1Meg", "0"]'
bjt='["1", "0", "1", "1", "0"]'
show call BrelvonOptionsDialog "$diode" "$diode" "$mos" "$mos" "$mos" "$mos" "$jfet" "$jfet" \
  "$zener" "$zener" "$bjt" "$bjt" '["101", "102", "103", "104", "105", "106"]' \
  '["Vendor;PSU Controllers|Vendor;Diodes"]' --answer $d/brelvonoptions.json
show call CreatePowerInductorModel '["SeriesR", "12m", "ShuntR", "0", "Smoothing", "2", "DataTable", "6",
  "0", "10u", "2", "9.8u", "4", "9.1u", "6", "7.5u", "8", "5u", "10", "3.2u"]' --answer $d/powerinductor.json
show call CreatePowerInductorModel --answer $d/graphcapture.json
. scripts/demo/diode-extraction.sh
show call ModelExtractionDialog "$extract_params" "$extract_values" "$extract_info" "$extract_models" \
  --answer $d/modelextraction.json
show call SaveSpecialDialog '["designs/amp_copy.sxsch", "0", "1"]' --answer $d/savespecial.json
# The first run of the tool fills the histories; the second finds them and
# proposes the output name from the chosen input.
twofile_texts='["Flatten Netlist", "Expands the subcircuits of a netlist into one level.", "About",
  "The input netlist is left as it is.", "Netlist to flatten", "", "Flat netlist", "",
  "Open the flat netlist when done", "Title line", "Written as the first comment line.", "0", "1200"]'
twofile_keys='["FlattenIn", "FlattenOut", "FlattenTitle", "FlattenOpen", "Netlist", "Netlist", "file", "_flat"]'
show call TwoFileSelectionDialog '["scripts/demo/dialogs/amp.net", "build/amp_flat.net", "first pass"]' \
  "$twofile_texts" "$twofile_keys" --answer accept
show call TwoFileSelectionDialog '["", "", ""]' "$twofile_texts" "$twofile_keys" \
  --answer $d/twofileselection.json
show call DialogDesigner '["<Dialog><Tab title=\"General\"/><Group title=\"Supply\"/><Tab title=\"Advanced\"/></Dialog>"]' \
  --answer $d/dialogdesigner.json
show call EditBodePlotProbeDialog '["Gain", "Phase", "0", "0", "1", "-60", "20", "1", "-180", "180", "0"]' \
  --answer $d/bodeprobe.json
show call EditBodePlotProbeDialog2 '["loop gain", "-1", "1", "Loop gain", "default", "0", "1", "1", "40",
  "-40", "20", "-1", "1", "Loop phase", "default", "0", "1", "1", "180", "-180", "45", "255", "0", "1"]' \
  '["Edit Bode Plot Probe", "4201"]' --answer $d/bodeprobe2.json
show call EfficiencyDialog '["yesno", "warn"]' '[]' '["Simulation results are out of date",
  "The schematic changed since the last run.<br>Run the simulation again before computing the efficiency?"]' \
  '["4300", "Efficiency Calculator"]' --answer $d/efficiency-yesno.json
# The probe selection stops being modal while it runs, so that the user can
# look at the schematic; the answer driver follows it all the same.
show call EfficiencyDialog '["select"]' '["P(V1)|P(Q1)|P(Q2)|P(R_load)|P(D1)", "", "", "P(V1)"]' \
  '["Choose the power probes", "Move the <b>source</b> probes to the inputs and the <b>load</b> probes to the outputs."]' \
  '["4300"]' --answer $d/efficiency-select.json
show call LoopForgeEditClocksDialog "[\"0;1;1;'sysclk';10Meg;50;0\", \"1;1;1;'adc';100k;50;0\",
  \"2;1;0;'pwm';20k;50;1u\", \"3;0;0;'user3';1k;50;0\", \"4;0;0;'user4';1k;50;0\", \"5;0;0;'user5';1k;50;0\",
  \"6;0;0;'user6';1k;50;0\", \"7;0;0;'user7';1k;50;0\", \"1\"]" \
  '["LoopForge - Edit Global Clocks", "The system clock drives every block; user clocks can be enabled and graphed.", "Global Clocks", "4400"]' \
  --answer $d/clocks.json
show call LoopForgeEditProbeDialog '["DATA_OUT", "digital", "hex", "1", "auto", "", "10", "-1", "", "0", "1", "0", "16711680"]' \
  '["Edit <i>LoopForge</i> probe on bus DATA_OUT[15:0]", "Edit LoopForge Bus Probe", "signed decimal|decimal|hexadecimal|binary",
  "sdec|dec|hex|bin", "0", "4410"]' '["Name of the curve in the graph"]' --answer $d/busprobe.json
show call TestPlotter --answer $d/testplotter.json
