import QtQuick
import Orvel.Projects
import Orvel.Session
import Orvel.Testing

/// The real screens, worked with real mouse and key events; what counts in the end is what stands in the file.
Item {
    id: root

    property Item view

    width: 1000
    height: 640

    Component {
        id: grid

        ProjectsView {
            anchors.fill: parent
            focus: true
        }
    }

    Component {
        id: detail

        ProjectDetailView {
            anchors.fill: parent
            focus: true
        }
    }

    ScreenTestCase {
        id: test

        name: "ProjectsView"
        scene: root.Window.contentItem

        function init() {
            Workspace.reset()
            Workspace.stopMotion()
        }

        function openGrid() {
            root.view = createTemporaryObject(grid, root)
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function openDetail(project) {
            Orvel.ui.selectProject(project)
            root.view = createTemporaryObject(detail, root, { projectID: Orvel.ui.selection.id })
            root.view.forceActiveFocus()
            waitForRendering(root.view)
        }

        function tabTo(name) {
            for (let i = 0; i < 40; ++i) {
                keyClick(Qt.Key_Tab)
                if (focused().Accessible.name === name)
                    return focused()
            }
            fail("Tab does not lead to " + name)
        }

        function names() {
            return saved().projects.map(project => project.name).join()
        }

        function test_createsByKeys() {
            openGrid()
            verify(find("No projects yet"))
            compare(focused().Accessible.name, "New project")
            keyClick(Qt.Key_Return)
            tryVerify(() => focused().Accessible.name.startsWith("Product launch"))
            verify(focused().visualFocus)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(names(), "Study plan")
            compare(Orvel.ui.selection.text, "project/" + saved().projects[0].id)
            tryVerify(() => !find("Templates"))

            mouseMove(find("New project"))
            click("New project")
            tryVerify(() => focused().Accessible.name.startsWith("Product launch"))
            verify(!focused().visualFocus)
            const field = tabTo("Name of a blank project")
            verify(!find("Create blank").enabled)
            type("Garden shed")
            keyClick(Qt.Key_Return)
            compare(names(), "Study plan,Garden shed")
        }

        function test_cardsByKeys() {
            const first = Workspace.addProject("First")
            Workspace.addProject("Second")
            Workspace.addProject("Third")
            openGrid()
            tabTo("First, Not started, 0/0 tasks, 0% complete")
            keyClick(Qt.Key_Return)
            compare(Orvel.ui.selection.text.toLowerCase(), "project/" + first)
            keyClick(Qt.Key_Right)
            keyClick("s")
            tryVerify(() => find("On hold"))
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(saved().projects[1].status, "planning")
            tryVerify(() => focused().Accessible.name === "Second, Planning, 0/0 tasks, 0% complete")
            keyClick(Qt.Key_Delete)
            compare(names(), "First,Third")
            tryVerify(() => focused().Accessible.name.startsWith("Third"))
            Orvel.undo.undo()
            compare(names(), "First,Second,Third")
            tryVerify(() => focused().Accessible.name.startsWith("Second"))
            keyClick("t")
            tryVerify(() => find("Use template: Second"))
            compare(saved().projects[1].isTemplate, true)
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_Down)
            compare(focused().Accessible.name, "Use template: Second")
            keyClick(Qt.Key_Return)
            compare(names(), "First,Second,Third,Second copy")
        }

        function test_cardsByMouse() {
            Workspace.addProject("Only")
            openGrid()
            const card = find("Only, Not started, 0/0 tasks, 0% complete")
            mouseMove(card, 40, 40)
            click("Template: Only")
            compare(saved().projects[0].isTemplate, true)
            compare(Orvel.ui.selection.text, "dashboard")
            mouseMove(root, 1, 1)
            tryVerify(() => find("Use template: Only"))
            tryVerify(() => find("No projects yet"))
            mouseMove(find("Use template: Only"), 40, 40)
            click("Delete: Only")
            compare(names(), "")
        }

        function test_theDetailByKeys() {
            openDetail(Workspace.addProject("Garden"))
            compare(tabTo("Project name").text, "Garden")
            keyClick(Qt.Key_End)
            type(" shed")
            compare(names(), "Garden shed")
            keyClick(Qt.Key_Return)
            type("Dry")
            compare(saved().projects[0].details, "Dry")
            tabTo("Add a milestone")
            type("Dug")
            keyClick(Qt.Key_Return)
            type("Sown")
            keyClick(Qt.Key_Return)
            compare(saved().projects[0].milestones.map(step => step.title).join(), "Dug,Sown")
            tabTo("Add a task")
            for (const title of ["b", "a", "c"]) {
                type(title)
                keyClick(Qt.Key_Return)
            }
            compare(saved().tasks.map(task => task.title).join(), "b,a,c")
            tryVerify(() => find("3 open"))
            waitForRendering(root.view)
            keyClick(Qt.Key_Tab)
            compare(focused().Accessible.name, "a")
            keyClick(Qt.Key_Space)
            compare(saved().tasks[1].status, "done")
            tryVerify(() => find("Completed, 1"))
            tabTo("Delete project")
            keyClick(Qt.Key_Return)
            compare(Orvel.ui.selection.text, "projects")
            compare(names(), "")
            compare(saved().tasks.length, 3)
            compare(saved().activities.length, 0)
        }

        function test_theDetailByMouse() {
            const project = Workspace.addProject("Garden")
            openDetail(project)
            click("Status: Not started")
            click("In progress")
            compare(saved().projects[0].status, "inProgress")
            click("Due date")
            compare(saved().projects[0].dueDate, "2026-03-27T09:30:00Z")
            tryVerify(() => find("Due: Mar 27, 2026"))
            click("Due date")
            compare(saved().projects[0].dueDate, undefined)
            click("Add a milestone")
            type("Dug")
            keyClick(Qt.Key_Return)
            click("Dug")
            compare(saved().projects[0].milestones[0].done, true)
            tryVerify(() => find("Added milestone “Dug”, Today"))
            mouseMove(find("Dug"))
            click("Delete: Dug")
            compare(saved().projects[0].milestones.length, 0)
            click("All projects")
            compare(Orvel.ui.selection.text, "projects")
        }

        function test_undoGoesToTheField() {
            openDetail(Workspace.addProject("Garden"))
            tabTo("Add a task")
            type("x")
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Tab)
            Orvel.undo.undo()
            compare(saved().tasks.length, 0)
            find("Project name").forceActiveFocus()
            keyClick(Qt.Key_End)
            type("s")
            find("Add a task").forceActiveFocus()
            Orvel.undo.undo()
            compare(names(), "Garden")
            tryVerify(() => focused().Accessible.name === "Project name")
        }
    }
}
