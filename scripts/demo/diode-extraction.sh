# Arguments of a diode model extraction, as a script builds them: sourced by
# the demo. Descriptors 1 to 3 and 16 name no group, which keeps their
# elements for the model type, model name, label, configuration and count.
extract_params='[":Model::0:0::string", ":-:Model name", ":-:Label", ":-:Configuration",
 ":Extracted model:Forward current:1:0:A:real:0|1e6|0:0:Peak forward current of the test",
 ":Extracted model:Reverse voltage:2:0:V:real:0|1e6|0",
 ":Extracted model:Model temperature:3:0:__degrees__C:real",
 ":Extracted model:Number of Segments:4:0::list:2 Segments|3 Segments",
 ":Extracted model:Initial Condition:5:0::list:1 Reverse Biased|2 Forward Biased",
 ":Extracted model:Initial Condition (Diode A):6:0::list:1 Reverse Biased|2 Forward Biased",
 ":Extracted model:Initial Condition (Diode B):7:0::list:1 Reverse Biased|2 Forward Biased",
 ":Extracted model:Initial Condition (Diode C):8:0::list:1 Reverse Biased|2 Forward Biased",
 ":Extracted model:Initial Condition (Diode D):9:0::list:1 Reverse Biased|2 Forward Biased",
 ":User-defined model:Forward voltage:1:0:V:real",
 ":User-defined model:Forward resistance:2:0:__Ohms__:real",
 ":User-defined model:Reverse resistance:3:0:__Ohms__:real",
 ":-:Count",
 ":User-defined model:Capacitance:4:0:F:real"]'
extract_values='["0", "'"'"'1N4007'"'"'", "'"'"'Rectifier'"'"'", "3", "1", "1000", "25", "2 Segments",
 "2 Forward Biased", "1 Reverse Biased", "2 Forward Biased", "2 Forward Biased", "1 Reverse Biased",
 "0.7", "10m", "100Meg", "0.01", "15p"]'
extract_info='["d", "", "Extract a BRELVON diode model from a SPICE model", "Diode",
 "1N4148;1N4007;MUR160", "DiodeModelHistory", "12"]'
extract_models='["1N4148", "1N4007", "1N5819", "MUR160", "BAT54", "1N914"]'
