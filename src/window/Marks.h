#pragma once

class CControlSet;

// What a click does to a control's own mark before the dialog hears of it: a check box is toggled; a radio
// button is marked and the others of its group are not. Radio buttons that no control of kind Group stands
// between, in the order of the template, are one group. Other controls have no mark and stay as they are.
void ClickMark(CControlSet& controls, int nId);
