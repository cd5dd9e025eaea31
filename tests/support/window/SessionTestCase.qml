import QtQuick

// A test of a run and of what it printed.
WindowTestCase {
    id: root

    function start() {
        stage.selectPrefix();
        stage.previewUpgrade();
        press("Run Command");
        press("Confirm brew upgrade");
        shows("Cancel");
    }

    function run() {
        stage.selectPrefix();
        stage.content.services.previewServicesList();
        press("Run Command");
        shows("Completed with exit code 0");
        press("Show command-line output");
        shows("Command-line output");
        tryVerify(() => list().count > 5 && list().height > 200);
    }

    function list() {
        return named("Command-line output");
    }

    // The middle of a row of the output, where the list has it.
    function at(row) {
        list().positionViewAtIndex(row, ListView.Contain);
        const item = list().itemAtIndex(row);
        return item.mapToItem(list(), item.width / 2, item.height / 2);
    }

    function texts(first, last) {
        const all = [];
        for (let row = first; row <= last; ++row)
            all.push(list().itemAtIndex(row).text);
        return all.join("\n");
    }
}
