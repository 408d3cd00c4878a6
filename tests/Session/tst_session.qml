import QtQuick
import QtTest
import Orvel.Session
import Orvel.Testing

TestCase {
    name: "Session"

    function init() {
        Workspace.reset();
    }

    function test_screensFindTheWorkspace() {
        verify(Orvel.store !== null);
        Orvel.ui.select("tasks");
        compare(Orvel.ui.selection.text, "tasks");
        Workspace.addTask("Write", "done", "high", 2);
        const task = JSON.parse(Workspace.saved()).tasks[0];
        compare(task.title, "Write");
        compare(task.status, "done");
        compare(task.dueDate, "2026-03-13T11:30:00Z");
    }
}
