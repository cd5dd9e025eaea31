import QtQuick
import "../../support/window"

WindowTestCase {
    id: root

    name: "Services"

    function test_servicesButtonTellsWhatItDoes() {
        stage.content.selectIndex(5);
        shows("Services Guidance");
        const preview = button("Preview services list command");
        compare(preview.text, "Preview Services List");
        compare(preview.Accessible.description, "Opens a command preview where Quillmere Direct can run the services list command.");
    }
}
