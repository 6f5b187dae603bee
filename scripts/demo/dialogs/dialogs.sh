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
