pragma Singleton

import QtQuick
import Quillmere.Components

// Every colour, distance and size of the program. Light or dark follows the desktop's palette,
// also while the program runs.
QtObject {
    id: root

    readonly property SystemPalette desktop: SystemPalette {
        colorGroup: SystemPalette.Active
    }
    readonly property bool dark: desktop.window.hslLightness < 0.5

    // Surfaces, from the back to the front.
    readonly property color sidebar: dark ? "#1c1d21" : "#f0f1f4"
    readonly property color window: dark ? "#222327" : "#f9f9fb"
    readonly property color card: dark ? "#2a2b30" : "#ffffff"
    readonly property color well: dark ? "#1b1c20" : "#f3f4f7"
    readonly property color scrim: dark ? "#78000000" : "#590f1119"
    readonly property color hairline: dark ? "#3a3c43" : "#e1e3e9"
    readonly property color controlBorder: dark ? "#4d5059" : "#cfd2db"

    readonly property color text: dark ? "#ececf0" : "#1c1d22"
    readonly property color secondaryText: dark ? "#a9acb8" : "#5b5f6c"
    readonly property color accent: dark ? "#8098f9" : "#3a56c8"
    readonly property color accentText: dark ? "#12141c" : "#ffffff"
    readonly property color dangerText: dark ? "#230d0c" : "#ffffff"

    // Laid over a surface while the pointer is on it or presses it.
    readonly property color hover: dark ? "#12ffffff" : "#0b10163a"
    readonly property color pressed: dark ? "#20ffffff" : "#1810163a"
    readonly property color selection: dark ? "#33457e" : "#dbe2fb"
    readonly property color selectionText: dark ? "#ffffff" : "#1f2f73"

    readonly property color blue: dark ? "#8ab8f8" : "#1d5bb8"
    readonly property color green: dark ? "#7fd3a0" : "#18693c"
    readonly property color orange: dark ? "#f0b86a" : "#8a4f00"
    readonly property color red: dark ? "#f59c95" : "#b3261e"
    readonly property color blueFill: dark ? "#1e2f48" : "#e4eefb"
    readonly property color greenFill: dark ? "#1b3428" : "#e0f3e8"
    readonly property color orangeFill: dark ? "#3d2f19" : "#fcefd9"
    readonly property color redFill: dark ? "#452424" : "#fce8e6"
    readonly property color neutralFill: dark ? "#34363d" : "#ebecf1"

    readonly property int tiny: 4
    readonly property int small: 8
    readonly property int medium: 12
    readonly property int normal: 16
    readonly property int large: 24
    readonly property int huge: 32

    readonly property int smallRadius: 6
    readonly property int largeRadius: 10
    readonly property int borderWidth: 1
    readonly property int focusWidth: 2

    readonly property int captionSize: bodySize - 1
    readonly property int bodySize: Typeface.bodyPixelSize
    readonly property int titleSize: Math.round(bodySize * 1.2)
    readonly property int displaySize: Math.round(bodySize * 1.7)
    readonly property string family: Typeface.family
    readonly property string monospacedFamily: Typeface.monospacedFamily

    readonly property int symbolSize: Math.round(bodySize * 1.4)
    readonly property int controlHeight: bodySize * 2 + small
    readonly property int rowHeight: 48
    readonly property int twoLineRowHeight: bodySize * 2 + captionSize + large
    readonly property int sidebarWidth: 220
    readonly property int textWidth: 980
    readonly property int tagWidth: 120
    readonly property int labelWidth: 140
    readonly property int barWidth: 200
    readonly property int versionWidth: 110
    readonly property int sheetWidth: 640
    readonly property int wideSheetWidth: 760
    readonly property int sessionHeight: 440
    readonly property int outputHeight: 800
    readonly property int alertWidth: 400

    readonly property int animationDuration: 120
    // How long a word such as "Copied" stands.
    readonly property int noticeDuration: 2500
    // After so long without a letter, somebody who types has typed.
    readonly property int typingPause: 600
    // How long a wait may last before it is worth a word.
    readonly property int progressDelay: 150
    // One turn of a symbol that shows that something goes on.
    readonly property int turnDuration: 2400
    readonly property real disabledOpacity: 0.45

    // The colour of a status, a risk or a kind; the neutral one for a name that is no tint.
    function tint(name: string): color {
        return name === "blue" ? blue : name === "green" ? green : name === "orange" ? orange
             : name === "red" ? red : secondaryText;
    }

    function tintFill(name: string): color {
        return name === "blue" ? blueFill : name === "green" ? greenFill
             : name === "orange" ? orangeFill : name === "red" ? redFill : neutralFill;
    }

    function riskTint(riskLevel: string): string {
        return riskLevel === "destructive" ? "red" : riskLevel === "medium" ? "orange"
             : riskLevel === "low" ? "green" : "blue";
    }
}
