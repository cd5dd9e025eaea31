import QtQuick.Dialogs

// Chooses one folder that is there already.
FolderDialog {
    acceptLabel: "Select Prefix"
    // No new folders: a prefix is chosen, not made. qmllint knows no type of this property.
    options: FolderDialog.ReadOnly // qmllint disable
    title: "Select your Homebrew prefix. For Apple Silicon Macs, this is usually /opt/homebrew."
}
