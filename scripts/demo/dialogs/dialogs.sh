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
