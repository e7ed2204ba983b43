pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Stage

// The whole desktop. What lies over what follows from the z of the children of `space`; the program's windows are among
// them at their window levels, the bar at level 24.
FocusScope {
    id: root

    required property SceneState desktop
    readonly property Item space: displays

    width: root.desktop.bounds.width
    height: root.desktop.bounds.height
    clip: true
    focus: true

    Item {
        id: displays
        x: -root.desktop.bounds.x
        y: -root.desktop.bounds.y

        Repeater {
            model: root.desktop.screens

            Backdrop {
                required property rect modelData
                required property int index
                readonly property BarModel bar: root.desktop.bar

                x: modelData.x
                y: modelData.y
                z: -3
                width: modelData.width
                height: modelData.height
                isPrimary: index === 0
                barHeight: bar.isShowing && bar.frame.x === modelData.x && bar.frame.y === modelData.y ? bar.frame.height : 0
                images: root.desktop.dockImages
            }
        }
        MenuBarView {
            z: 24
            bar: root.desktop.bar
        }
        Repeater {
            model: root.desktop.banners

            BannerView {
                required property int index

                z: 100
                rightEdge: root.desktop.bar.frame.right - 12
                topEdge: root.desktop.bar.frame.bottom + 10 + index * 80
            }
        }
        BarTipView {
            z: 110
            tip: root.desktop.barTip
        }
        AccessibilityPage {
            z: 200
            permission: root.desktop.permission
        }
        PermissionPrompt {
            z: 201
            permission: root.desktop.permission
        }
        Repeater {
            model: root.desktop.menu

            MenuView {
                z: 300
            }
        }
        PointerArrow {
            objectName: "pointer"
            z: 400
            x: root.desktop.pointer.x
            y: root.desktop.pointer.y
            visible: root.desktop.isPointerDrawn
        }
    }
}
