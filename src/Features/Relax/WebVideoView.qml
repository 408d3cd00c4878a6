import QtQuick
import QtWebEngine
import Orvel.DesignSystem
import Orvel.Relax

/// A page of the web that plays on the stage. Nothing of it stays on the machine, it is given no permission, and it
/// stays on its host.
Item {
    id: root

    property url url
    property bool isPlaying: true
    /// Whether the mouse reaches the page.
    property bool isInteractive: true
    property bool hasStopped: false

    function follow() {
        view.runJavaScript(isPlaying ? "document.querySelectorAll('video, audio').forEach(media => media.play())"
                                     : "document.querySelectorAll('video, audio').forEach(media => media.pause())")
    }

    function load() {
        hasStopped = false
        view.url = url
    }

    Component.onCompleted: load()
    onIsPlayingChanged: follow()
    onUrlChanged: load()

    WebEngineProfile {
        id: guest
        httpCacheType: WebEngineProfile.MemoryHttpCache
        offTheRecord: true
        persistentCookiesPolicy: WebEngineProfile.NoPersistentCookies
        spellCheckEnabled: false
        onDownloadRequested: download => download.cancel()
        onPresentNotification: notification => notification.close()
    }

    WebEngineView {
        id: view
        objectName: "webView"
        activeFocusOnPress: false
        anchors.fill: parent
        backgroundColor: Qt.rgba(0, 0, 0, 1)
        enabled: root.isInteractive
        profile: guest
        visible: !root.hasStopped

        settings {
            allowGeolocationOnInsecureOrigins: false
            allowRunningInsecureContent: false
            autoLoadIconsForPage: false
            dnsPrefetchEnabled: false
            focusOnNavigationEnabled: false
            fullScreenSupportEnabled: false
            hyperlinkAuditingEnabled: false
            javascriptCanAccessClipboard: false
            javascriptCanOpenWindows: false
            javascriptCanPaste: false
            localContentCanAccessFileUrls: false
            localContentCanAccessRemoteUrls: false
            localStorageEnabled: true
            pdfViewerEnabled: false
            playbackRequiresUserGesture: false
            pluginsEnabled: false
            screenCaptureEnabled: false
            unknownUrlSchemePolicy: WebEngineSettings.DisallowUnknownUrlSchemes
            webRTCPublicInterfacesOnly: true
        }

        onAuthenticationDialogRequested: request => {
            request.accepted = true
            request.dialogReject()
        }
        onColorDialogRequested: request => {
            request.accepted = true
            request.dialogReject()
        }
        onContextMenuRequested: request => request.accepted = true
        onFeaturePermissionRequested: (origin, feature) => grantFeaturePermission(origin, feature, false)
        onFileDialogRequested: request => {
            request.accepted = true
            request.dialogReject()
        }
        onFullScreenRequested: request => request.reject()
        // What a page has to say to itself is no concern of the log.
        onJavaScriptConsoleMessage: {}
        onJavaScriptDialogRequested: request => {
            request.accepted = true
            request.dialogReject()
        }
        onLoadingChanged: info => {
            if (info.status === WebEngineView.LoadSucceededStatus && !root.isPlaying)
                root.follow()
        }
        onNavigationRequested: request => {
            if (WebPlayer.mayGoTo(request.url, root.url, request.isMainFrame))
                request.accept()
            else
                request.reject()
        }
        // A new window that nobody adopts is not opened.
        onNewWindowRequested: {}
        onQuotaRequested: request => request.reject()
        onRegisterProtocolHandlerRequested: request => request.reject()
        onRenderProcessTerminated: root.hasStopped = true
        onSelectClientCertificate: selection => selection.selectNone()
    }

    Column {
        anchors.centerIn: parent
        spacing: Theme.space12
        visible: root.hasStopped

        OVText {
            color: Qt.rgba(1, 1, 1, 0.92)
            text: qsTr("The page has stopped.")
        }

        OVSecondaryButton {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: "arrow.clockwise"
            text: qsTr("Reload")
            onClicked: {
                root.hasStopped = false
                view.reload()
            }
        }
    }
}
