// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyleSheetNames.h"

namespace StyleSheets {

QStringList ownObjectNames()
{
    return {u"processingWidget"_qs, u"processLabel"_qs,     u"zoomWidget"_qs,  u"zoomLabel"_qs,
            u"AnimatedLabel"_qs,    u"aboutDlg"_qs,         u"sloganLabel"_qs, u"productNameLabel"_qs,
            u"bottomWidget"_qs,     u"logoVersionLabel"_qs, u"description"_qs};
}

QStringList hostObjectNames()
{
    return {// windows and their main parts
            u"centralWidget"_qs, u"FBSpacer"_qs, u"controlsTab"_qs, u"tabWidget"_qs, u"vignetingGroup"_qs,
            u"sliderUpButton"_qs, u"sliderDownButton"_qs, u"toolButtonAll"_qs, u"toolButtonGreen"_qs,
            u"TimeMachineDescriptionBigDialog"_qs, u"CrashSenderMainWindow"_qs, u"printPreviewWindow"_qs,
            // custom.qss
            u"headingLabel"_qs, u"bottomPathLabel"_qs, u"openFolderButton"_qs, u"snapshotsPanel"_qs, u"snapshotView"_qs,
            u"addSnapshotButton"_qs, u"settingsPanel"_qs, u"addColorButton"_qs, u"correctionSwitch"_qs,
            u"fileBrowser"_qs, u"recentFilesView"_qs, u"downloadProgressWidget"_qs, u"downloadProgressLabel"_qs,
            u"downloadProgressBar"_qs, u"presetInfoPanel"_qs, u"presetInfoTitle"_qs, u"presetInfoText"_qs,
            u"presetInfoCloseButton"_qs, u"presetInfoButton"_qs,
            // win.qss
            u"textureComboBox"_qs, u"defectComboBox"_qs, u"frameComboBox"_qs,
            // toolBar.qss
            u"toolBarSeparator"_qs, u"bottomBar"_qs, u"compareButton"_qs, u"compareSplitButton"_qs, u"cropButton"_qs,
            u"histogramButton"_qs, u"horizonButton"_qs, u"vignettingButton"_qs, u"previewSplitButton"_qs,
            u"zoomButton"_qs, u"undoButton"_qs, u"redoButton"_qs, u"rotateLeftButton"_qs, u"rotateRightButton"_qs,
            u"settingsButton"_qs, u"saveAsPresetButton"_qs, u"saveImageButton"_qs, u"sendToHostButton"_qs,
            // previewArea.qss
            u"previewArea"_qs, u"emptyPreviewLabel"_qs, u"navigatorPanel"_qs, u"histogramPanel"_qs,
            u"histogramGraphR"_qs, u"histogramGraphG"_qs, u"histogramGraphB"_qs, u"histogramGraphRGB"_qs,
            u"fileSaveProgressWidget"_qs, u"fileSaveErrorWidget"_qs, u"fileSaveErrorIcon"_qs, u"closeButton"_qs,
            u"fileBrowserInfoWidget"_qs, u"noRecentFileIcon"_qs,
            // sideBar.qss
            u"presetFilmStrip"_qs, u"filmStripNoImage"_qs, u"filmStripLoading"_qs, u"presetSearch"_qs,
            u"presetSearchClear"_qs, u"filterBubbleLabel"_qs, u"filterAllButton"_qs, u"filterBlackWhiteButton"_qs,
            u"filterColorButton"_qs, u"filterSlideButton"_qs, u"filterInstantButton"_qs, u"filterFavoritesButton"_qs,
            u"favoriteButton"_qs, u"favoriteFilterIcon"_qs, u"valueLabel"_qs, u"panelSeparator"_qs,
            u"resetPanelButton"_qs, u"showPanelButton"_qs, u"randomizeButton"_qs, u"settingsGroup"_qs,
            u"profileLabel"_qs, u"cafGroup"_qs, u"cafCameraIcon"_qs, u"cafLensIcon"_qs, u"cafStateLabel"_qs,
            u"toneCurve"_qs, u"toolButtonRed"_qs, u"toolButtonBlue"_qs, u"toolButtonLuminance"_qs,
            u"pipetteBlackButton"_qs, u"pipetteGrayButton"_qs, u"pipetteWhiteButton"_qs, u"hslGroup"_qs,
            u"channelLabel"_qs, u"redSlider"_qs, u"greenSlider"_qs, u"blueSlider"_qs, u"cyanSlider"_qs,
            u"magentaSlider"_qs, u"pinIcon"_qs, u"blurGroup"_qs, u"radiusIcon"_qs, u"noFrameIcon"_qs,
            u"insidePictureButton"_qs, u"outsidePictureButton"_qs, u"textureList"_qs, u"lightLeakList"_qs,
            u"lightLeakAnyButton"_qs, u"lightLeakBottomButton"_qs, u"lightLeakLeftButton"_qs,
            u"lightLeakRightButton"_qs, u"lightLeakTopButton"_qs, u"toningFrameButton"_qs, u"toningPickerButton"_qs,
            u"toningHideButton"_qs, u"toningShowButton"_qs,
            // slider.qss
            u"sliderBubble"_qs, u"sliderCenterMark"_qs,
            // tools.qss
            u"cropToolPanel"_qs, u"vignettingToolPanel"_qs, u"horizonToolPanel"_qs, u"cropIcon"_qs, u"horizonIcon"_qs,
            u"vignettingIcon"_qs, u"previewButton"_qs,
            // dialogs.qss
            u"okButton"_qs, u"applyButton"_qs, u"saveButton"_qs, u"startButton"_qs, u"updateButton"_qs,
            u"separatorLine"_qs, u"pageList"_qs, u"restartLabel"_qs, u"batchFileList"_qs, u"batchCountLabel"_qs,
            u"progressDetail"_qs, u"sectionLabel"_qs, u"versionLabel"_qs, u"fileNameLabel"_qs,
            // timeMachine.qss
            u"decadeLabel"_qs, u"filmNameLabel"_qs, u"yearLabel"_qs, u"filmImage"_qs, u"filmDescription"_qs,
            u"previousDecadeButton"_qs, u"nextDecadeButton"_qs, u"previousFilmButton"_qs, u"nextFilmButton"_qs,
            u"timeMachineCloseButton"_qs,
            // crash_sender.qss
            u"buttonStrip"_qs, u"heading"_qs, u"explanation"_qs, u"archiveLabel"_qs, u"statusLabel"_qs,
            u"commentField"_qs, u"sendButton"_qs,
            // printing.qss
            u"pageShadow"_qs, u"fitPageButton"_qs, u"fitWidthButton"_qs, u"portraitButton"_qs, u"landscapeButton"_qs,
            u"viewSingleButton"_qs, u"viewFacingButton"_qs, u"viewOverviewButton"_qs, u"printZoomInButton"_qs,
            u"printZoomOutButton"_qs, u"firstPageButton"_qs, u"previousPageButton"_qs, u"nextPageButton"_qs,
            u"lastPageButton"_qs, u"pageSetupButton"_qs};
}

QStringList objectNamesOfNoWidget()
{
    return {u"licensesWidget"_qs}; // the page of the about dialog has another name
}

QStringList hostClasses()
{
    return {u"CMainWindow"_qs,
            u"CStandaloneBatchDlg"_qs,
            u"CPluginBatchDlg"_qs,
            u"CProgressDlg"_qs,
            u"CFileSaveDialog"_qs,
            u"CFileBrowserProgressDialog"_qs,
            u"CCheckForUpdateDialog"_qs,
            u"CPreferenciesDialog"_qs,
            u"RewriteConfirmation"_qs,
            u"CFilmsUniversalFilter"_qs,
            u"CGL5LinkButton"_qs,
            u"CActionableMenu"_qs,
            u"CBalloonMenu"_qs,
            u"CSlider"_qs,
            u"COriginalSlider"_qs,
            u"CGroupBox"_qs,
            u"CComboBox"_qs};
}

} // namespace StyleSheets
