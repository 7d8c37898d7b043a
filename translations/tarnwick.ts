<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
<context>
    <name>QFileDialog</name>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Setup</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QScrollArea</name>
    <message>
        <source>Move the boxes sideways</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the boxes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>core</name>
    <message>
        <source>%1 Percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cm  (Average)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cm²  (Average)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in  (Average)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in²  (Average)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mm  (Average)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1st Gullet Radius:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1st Line:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1st Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2nd Gullet Radius:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2nd Line:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2nd Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3rd Gullet Radius:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3rd Line:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3rd Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4th Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5th Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6th Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7th Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A design was open when the program ended unexpectedly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Additional Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.bsw)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Area Below Tip:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Area:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band Saw Files (*.bsw)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band Saw Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band Saw Teeth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band Saw Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band Saw Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BandSaw Join Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BandSaw Tip Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BandSaw Tooth Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bandaw file has changed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bandsaw Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bandsaw Power Files (*.bsp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bandsaw file has changed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bandsaw has been changed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bandsaw must have teeth before adjusting pitch!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bite (Feed Per Tooth):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bite:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carbide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center to Center:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center to Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check if you want variable depth gullets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check to select bandsaw length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check to turn off quick click display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check to turn on quick click display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clearance Angle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clearance Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to accept the general information values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to accept the power requirement values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to accept the tooth shape values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to accept the variable pitch values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to accept value in text box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to accept value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate bandSaw length input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate clearance angle input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate gullet radius input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate hook angle input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate number of teeth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the back radius input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the bandsaw width input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the bottom angle input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the fifth gullet depth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the fifth tooth pitch input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the first gullet depth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the first gullet radius input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the first tooth pitch  input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the fourth gullet depth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the fourth tooth pitch input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the gullet depth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the gullet width input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the plate thickness input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the seat height input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the seat input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the seat width input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the second gullet depth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the second gullet radius input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the second tooth pitch input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the seventh gullet depth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the seventh tooth pitch input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the sixth gullet depth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the sixth tooth pitch input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the third gullet depth input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the third gullet radius input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the third tooth pitch input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the tip clearance input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the tip kerf input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the tooth back angle input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the tooth pitch input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate the type of tip input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to activate tooth style input box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to cancel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to change to imperial measurements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to change to metric measurements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to discard any general information changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to discard any power requirement changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to discard any tooth shape changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to discard any variable pitch changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to display the general information window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to display the main information window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to display the power requirements window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to display the tooth shape editor window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to display the variable pitch editor window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to fit bandsaw to the display window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to open an existing bandsaw file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to open bandsaw length calculator window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to print one section of variable pitch teeth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to print the bandsaw infomation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to quit bandsaw calculator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to reset all variable pitch values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to save the current bandsaw file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select Yes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select calculated values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select center to center between wheels!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select no preset tooth pitch pattern.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select plate thickness!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select the preset left to right tooth pitch pattern.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select the preset mixed tooth pitch pattern.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select the preset right to left tooth pitch pattern.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select wheel diameter!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select wheel rim width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to start a new bandsaw step by step.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to start a new blank bandsaw.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to view bandsaw at one to one scale.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact www.tarnwick.example for an update.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Power Requirements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut Width (Kerf):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DXF Files (*.dxf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth of Cut (MAX):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth of Cut (Max):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth of Cut:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Designed By:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displays the average gullet depth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displays the average tooth pitch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save this file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to keep the existing changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to recover it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does Band Saw Have a Seat?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Wheel Center to Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Wheel Diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Wheel Rim Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Average Tooth Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Band Saw Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Band Saw Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Clearance Angle!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select First Gullet Radius!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Frost Notch Angle!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Frost Notch Height!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Frost Notch Radius!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Frost Notch Width!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Gullet Back Angle!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Gullet Back Radius!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Gullet Bottom Angle!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Gullet Depth!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Gullet Radius!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Gullet Width!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Height of Seat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Number of Teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Second Gullet Radius!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Third Gullet Radius!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Tooth Spacing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select Width of Seat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select the Feed Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select the Hook Angle of Band Saw!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select the Maximum Depth of Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select the Plate Thickness.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select the Tip Clearance. Value to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select the Tip Kerf.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select the Type of Wood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter or Select the Wheel RPMs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter value here. Press enter to calculate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Number = %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Number: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error in function CalculateVariableSaw  Error Number%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Face Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feed Rate (FPM):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feed Rate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feed Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File already open!  Save file before opening?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File is incomplete. What could be read is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File is two large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File open!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File was saved in a newer version of this program!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Gullet Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flat Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For additional comments!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Notch Angle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Notch Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Notch Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Notch Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Notch Radius:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Notch Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Notch Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Notch Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frost Tooth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Information:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Area:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Back Angle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Back Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Back Radius:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Back Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Bottom Angle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Bottom Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Capacity (Actual):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Capacity (Required):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Capacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Depth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Feed Index:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Radius:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardwoods:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hint: Add one degree to hook if BandSaw has a seat.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hole Centered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hook Angle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hook Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horse Power:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horsepower:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increase dxf memory!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inside Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Bandsaw Ends:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kerf (Tooth Width):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left to Right:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of Segment:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine Information:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made by the Tarnwick makers, www.tarnwick.example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum 40 characters per line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum Depth of Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum Feed Rate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Narrow Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Printers!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No power information available to print!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No windows printers available!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a valid Band Saw File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a valid Power File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a valid equation!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note: Changes have an asterisk * displayed beside the value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number Of Saws:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number Of Teeth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Teeth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of lines, arcs and circles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of teeth must be divisible by 3, 4, or 5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outside Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlap Join</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlaped Join</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pdf Files (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plate Thickness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plate Thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plate thickness is required to calculate power requirements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Calculations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Estimate # %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Requirements:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power estimates based on increasing feedrate by %1 percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Canceled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing Canceled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Required:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right Angle Join</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right to Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rim Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rim Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save File.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saw Velocity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saw file has changed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seat Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seat Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seat Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seat Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seat:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second Gullet Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select BandSaw Tooth Style.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select BandSaw Type of Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Style to Join Bandsaw Ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Yes or No!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the number of teeth in segment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select to choose the inside bandsaw length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select to choose the middle of the bandsaw length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select to choose the outside of the bandsaw length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select to choose your own bandsaw length value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shaft Speed (RPM&apos;s):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sharpness Angle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side Clearance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Softwoods:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some information may not be available to the version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Square Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stellite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swagged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick can not print to the selected paper size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick for Windows Version: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth are required to calculate power requirements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth in Segment:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth on Both Edges:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth on Both Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Files (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The area or average area of gullet below tip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The area or average area of the tooth gullet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The length of one segment of variable pitch teeth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third Gullet Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a variable pitch bandsaw.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This print job has been canceled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip Clearance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip Clearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip Kerf:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip Kerf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip and Plate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To change this value you must use the bandsaw length calculator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To change this value you must use the general information editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To change this value you must use the power requirements editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To change this value you must use the tooth shape editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To change this value you must use the variable pitch editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To print out one complete segment of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth Pitch:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth Spacing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth Speed (FPM):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth Speed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth Style:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth width (Kerf) is required to calculate power requirements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Gullet Area:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triple Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn Quick Click Display Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn Quick Click Display On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of Tip:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of Wood:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of Wood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the name of the bandsaws designer here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the name of the company the bandsaw is for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the number of bandsaws required.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to save config file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Pitch:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable pitch not available with the Narrow style tooth shape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable pitch not available with the O shape tooth shape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable pitch not available with this tooth shape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel Diameter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel Diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel RPM&apos;s:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel RPMs:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel RPMs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel Rim Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel diameter is required to calculate power requirements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheels Center to Center:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must first select a percent from the above list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove from width of BandSaw for tips.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>variable pitch teeth requires %1 pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>you are currently using!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::BandPicture</name>
    <message>
        <source>Picture of a band saw blade</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ColourSwatch</name>
    <message>
        <source>Red %1, green %2, blue %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::FieldPanel</name>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::HelpFindBar</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not on this page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words to find on this page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::HelpSearchPane</name>
    <message>
        <source>No page has these words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words to search for</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::HelpWindow</name>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents of the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index of the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The manual cannot be opened.

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usual size (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usual size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Word to look up</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::HintLine</name>
    <message>
        <source>Hint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::PanelFrame</name>
    <message>
        <source>Move the boxes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::PrinterForm</name>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as default printer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::QuestionWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture of the measure</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ToolBar</name>
    <message>
        <source>Tool bar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::fraDisplay</name>
    <message>
        <source>Arrow keys and page keys move the drawing. A rectangle pulled with the mouse is enlarged, the wheel zooms, the middle button drags.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing of the band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move across the band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move along the band</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::fraGeneral</name>
    <message>
        <source>General information</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::fraMain</name>
    <message>
        <source>Information on the band saw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values of the band saw</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::fraToothShape</name>
    <message>
        <source>Tooth shape</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::fraVariable</name>
    <message>
        <source>%1 Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1st Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2nd Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3rd Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4th Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5th Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6th Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7th Tooth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of Segment:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number Of Teeth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Segments on Band:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth in Segment:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth in Segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable pitch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmAbout</name>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmAnime</name>
    <message>
        <source>A band saw is running</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmBDialog</name>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmBandCalc</name>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export to Dxf...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band Length Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture of the machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmCDialog</name>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values to choose from</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmCfg</name>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Printer and Dxf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 = thin, 20 = thick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accuracy:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Color of View Windows:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bandsaw Information Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center Line Color in View Windows:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change to Alter Scaling Factor of Graphics to be Displayed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>City:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;lors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color to save Dxf files with :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decimal Places:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dxf File Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups of options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include Power Requirements on Printout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large Files    (Slower)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 sideways</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 up and down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Decimal Places Used For Calculations:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Decimal Places Used For Displaying Values:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postal/Zip Code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Requirements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer Line Thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prov/State:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right Mouse Button Zoom Window Color:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample of the line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saw Outline Color in View Windows:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scaling Factors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of Dxf files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small Files   (Faster)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Color in View Windows:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use scroll bar to adjust line thickness.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Information:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmColor</name>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dxf Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmGauge</name>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gauges and their thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plate Gauge</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmMain</name>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Imperial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Information Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Metric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search For Help On...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Toothshape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Variable Pitch Segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Band Length Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction of Teeth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing to a Dxf File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information to a Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left to Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;w Step by Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obtain Technical Help...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rint Outs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plate Gauge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Requirements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Outs to a Pdf File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right to Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Splash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ta&amp;bles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time and date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tooth Shape Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Full Scale 1/1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Variable Segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmPower</name>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estimated Feed Rates:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Capacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet feed index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increase Feed Rate </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increase Feed Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percent to increase the feed rate by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Requirements:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Requirements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values based on the selected percent of the total gullet area.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Results</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmPowerCalc</name>
    <message>
        <source>%1 of the first calculation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the second calculation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the first calculation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the second calculation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Power Calculation:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gullet Feed Index:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage of usable gullet:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second Power Calculation:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmPowerEst</name>
    <message>
        <source>%1, changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the estimates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Estimates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power estimates</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmPrintMsg</name>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmPrinter</name>
    <message>
        <source>&amp;Setup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Printer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmPrinterPage</name>
    <message>
        <source>Both Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Printer and Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Quality (High)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saw Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saw Information</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::frmSplash</name>
    <message>
        <source>A click or any key closes this picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click or press a key to close.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
