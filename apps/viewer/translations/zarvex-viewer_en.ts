<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CameraSettingsCommands</name>
    <message>
        <location filename="../camerasettingscommands.cpp" line="+16"/>
        <source>Camera settings (*.json);;All files (*)</source>
        <translation>Camera settings (*.json);;All files (*)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>No camera is open.</source>
        <translation>No camera is open.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Camera Settings</source>
        <translation>Camera Settings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The file cannot be used; nothing was written to the camera.

%1</source>
        <translation>The file cannot be used; nothing was written to the camera.

%1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Save Camera Settings</source>
        <translation>Save Camera Settings</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Load Camera Settings</source>
        <translation>Load Camera Settings</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Compare With File</source>
        <translation>Compare With File</translation>
    </message>
</context>
<context>
    <name>CameraSettingsCompareDialog</name>
    <message>
        <location filename="../camerasettingscomparedialog.ui" line="+9"/>
        <source>Compare Camera With File</source>
        <translation>Compare Camera With File</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selector entry</source>
        <translation>Selector entry</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>On the camera</source>
        <translation>On the camera</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>In the file</source>
        <translation>In the file</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Check &amp;All</source>
        <translation>Check &amp;All</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Check &amp;None</source>
        <translation>Check &amp;None</translation>
    </message>
    <message>
        <location filename="../camerasettingscomparedialog.cpp" line="+17"/>
        <source>(empty)</source>
        <translation>(empty)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Apply Checked</source>
        <translation>&amp;Apply Checked</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>(not present)</source>
        <translation>(not present)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The camera holds every value of %1.</source>
        <translation>The camera holds every value of %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>One value of %1 differs from the camera. If it is checked, it is written when you apply it.</source>
        <translation>One value of %1 differs from the camera. If it is checked, it is written when you apply it.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 values of %2 differ from the camera. The checked ones are written when you apply them.</source>
        <translation>%1 values of %2 differ from the camera. The checked ones are written when you apply them.</translation>
    </message>
</context>
<context>
    <name>CameraSettingsReportDialog</name>
    <message>
        <location filename="../camerasettingsreportdialog.ui" line="+9"/>
        <source>Camera Settings Restored</source>
        <translation>Camera Settings Restored</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Show only values not restored</source>
        <translation>Show only values not restored</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <location filename="../camerasettingsreportdialog.cpp" line="+30"/>
        <source>The restore stopped: %1</source>
        <translation>The restore stopped: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Every value of the file is on the camera.</source>
        <translation>Every value of the file is on the camera.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 of %2 values are on the camera; the others are listed with the reason.</source>
        <translation>%1 of %2 values are on the camera; the others are listed with the reason.</translation>
    </message>
</context>
<context>
    <name>FeaturePane</name>
    <message>
        <location filename="../featurepane.cpp" line="+20"/>
        <source>Integer</source>
        <translation>Integer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Boolean</source>
        <translation>Boolean</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Float</source>
        <translation>Float</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>String</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enumeration</source>
        <translation>Enumeration</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+18"/>
        <location line="+16"/>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <location line="-26"/>
        <source>Read and write</source>
        <translation>Read and write</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Read only</source>
        <translation>Read only</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write only</source>
        <translation>Write only</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not available</source>
        <translation>Not available</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not implemented</source>
        <translation>Not implemented</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Beginner</source>
        <translation>Beginner</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Guru</source>
        <translation>Guru</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>Display name:</source>
        <translation>Display name:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description:</source>
        <translation>Description:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Type:</source>
        <translation>Type:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value:</source>
        <translation>Value:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range:</source>
        <translation>Range:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Increment:</source>
        <translation>Increment:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unit:</source>
        <translation>Unit:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Access:</source>
        <translation>Access:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Visibility:</source>
        <translation>Visibility:</translation>
    </message>
    <message>
        <location line="+49"/>
        <location line="+3"/>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>none</source>
        <translation>none</translation>
    </message>
</context>
<context>
    <name>PixelConverter</name>
    <message>
        <location filename="../pixelconverter.cpp" line="+110"/>
        <source>The pixel format %1 cannot be shown.</source>
        <translation>The pixel format %1 cannot be shown.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The frame is incomplete.</source>
        <translation>The frame is incomplete.</translation>
    </message>
</context>
<context>
    <name>ViewerMainWindow</name>
    <message>
        <location filename="../viewermainwindow.ui" line="+6"/>
        <location filename="../viewermainwindow.cpp" line="+712"/>
        <location line="+74"/>
        <source>Zarvex Viewer</source>
        <translation>Zarvex Viewer</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>&amp;Cameras:</source>
        <translation>&amp;Cameras:</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>User &amp;level:</source>
        <translation>User &amp;level:</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Beginner</source>
        <translation>Beginner</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Guru</source>
        <translation>Guru</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Acquisition</source>
        <translation>&amp;Acquisition</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Tools</source>
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>&amp;Simulate</source>
        <translation>&amp;Simulate</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Acquisition</source>
        <translation>Acquisition</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>&amp;Search Features</source>
        <translation>&amp;Search Features</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Start Acquisition</source>
        <translation>&amp;Start Acquisition</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>S&amp;top Acquisition</source>
        <translation>S&amp;top Acquisition</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>Start the acquisition (F7)</source>
        <translation>Start the acquisition (F7)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Stop the acquisition (F8)</source>
        <translation>Stop the acquisition (F8)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Fit to Window</source>
        <translation>&amp;Fit to Window</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fit the picture to the pane (Ctrl+0)</source>
        <translation>Fit the picture to the pane (Ctrl+0)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Actual Size (100 %)</source>
        <translation>&amp;Actual Size (100 %)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>One camera pixel per screen pixel (Ctrl+1)</source>
        <translation>One camera pixel per screen pixel (Ctrl+1)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;In</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Zoom &amp;Out</source>
        <translation>Zoom &amp;Out</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Open Device Description...</source>
        <translation>&amp;Open Device Description...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Save Camera Settings...</source>
        <translation>&amp;Save Camera Settings...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Load Camera Settings...</source>
        <translation>&amp;Load Camera Settings...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Compare &amp;With File...</source>
        <translation>Compare &amp;With File...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Polling</source>
        <translation>&amp;Polling</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Show &amp;Unavailable Favorites</source>
        <translation>Show &amp;Unavailable Favorites</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Copy Whole Tree</source>
        <translation>&amp;Copy Whole Tree</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;IP Configuration...</source>
        <translation>&amp;IP Configuration...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Ask a &amp;Question...</source>
        <translation>Ask a &amp;Question...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Reset All &apos;Don&apos;t Show Again&apos; Answers</source>
        <translation>&amp;Reset All &apos;Don&apos;t Show Again&apos; Answers</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;English</source>
        <translation>&amp;English</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Japanese (日本語)</source>
        <translation>&amp;Japanese (日本語)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Korean (한국어)</source>
        <translation>&amp;Korean (한국어)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Chinese (中文)</source>
        <translation>&amp;Chinese (中文)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Unplug Camera</source>
        <translation>&amp;Unplug Camera</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Replug Camera</source>
        <translation>&amp;Replug Camera</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Fault on Current Feature</source>
        <translation>&amp;Fault on Current Feature</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>C&amp;lear Faults</source>
        <translation>C&amp;lear Faults</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Change Value on Device...</source>
        <translation>&amp;Change Value on Device...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;About</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <location filename="../viewermainwindow.cpp" line="-609"/>
        <source>Looking for cameras...</source>
        <translation>Looking for cameras...</translation>
    </message>
    <message numerus="yes">
        <location line="+4"/>
        <source>%n camera(s) found</source>
        <translation>
            <numerusform>%n camera found</numerusform>
            <numerusform>%n cameras found</numerusform>
        </translation>
    </message>
    <message>
        <location line="+29"/>
        <source>No Aravis camera was found.</source>
        <translation>No Aravis camera was found.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The Aravis camera %1 was not found.</source>
        <translation>The Aravis camera %1 was not found.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The Aravis camera %1 cannot be opened.</source>
        <translation>The Aravis camera %1 cannot be opened.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>This viewer was built without Aravis.</source>
        <translation>This viewer was built without Aravis.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Opening the camera...</source>
        <translation>Opening the camera...</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>The camera cannot be opened: %1</source>
        <translation>The camera cannot be opened: %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+7"/>
        <source>The camera is gone: %1</source>
        <translation>The camera is gone: %1</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Opened %1</source>
        <translation>Opened %1</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>The camera has no %1</source>
        <translation>The camera has no %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 could not be run.</source>
        <translation>%1 could not be run.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The acquisition cannot start: %1</source>
        <translation>The acquisition cannot start: %1</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>%1 frames, %2 fps, %3 lost</source>
        <translation>%1 frames, %2 fps, %3 lost</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>x %1, y %2: %3</source>
        <translation>x %1, y %2: %3</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>No camera is open.</source>
        <translation>No camera is open.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>This camera sends no pictures to the viewer.</source>
        <translation>This camera sends no pictures to the viewer.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Waiting for the first frame...</source>
        <translation>Waiting for the first frame...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Press Start Acquisition (F7) to see the picture.</source>
        <translation>Press Start Acquisition (F7) to see the picture.</translation>
    </message>
    <message>
        <location line="+98"/>
        <location line="+6"/>
        <source>Open Device Description</source>
        <translation>Open Device Description</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Device descriptions (*.json);;All files (*)</source>
        <translation>Device descriptions (*.json);;All files (*)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The device description cannot be used:
%1</source>
        <translation>The device description cannot be used:
%1</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Copy &amp;Name</source>
        <translation>Copy &amp;Name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copy &amp;Value</source>
        <translation>Copy &amp;Value</translation>
    </message>
    <message numerus="yes">
        <location line="+16"/>
        <source>%n match(es), %1 hidden by the level</source>
        <translation>
            <numerusform>%n match, %1 hidden by the level</numerusform>
            <numerusform>%n matches, %1 hidden by the level</numerusform>
        </translation>
    </message>
    <message>
        <location line="+53"/>
        <source>IP Configuration</source>
        <translation>IP Configuration</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The camera does not let %1 be written.</source>
        <translation>The camera does not let %1 be written.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 could not be written.</source>
        <translation>%1 could not be written.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>IP configuration written to the camera</source>
        <translation>IP configuration written to the camera</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Start the acquisition with the present settings?</source>
        <translation>Start the acquisition with the present settings?</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Answered yes</source>
        <translation>Answered yes</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Answered no</source>
        <translation>Answered no</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Every question will be asked again</source>
        <translation>Every question will be asked again</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The camera is unplugged</source>
        <translation>The camera is unplugged</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The camera is plugged in again</source>
        <translation>The camera is plugged in again</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+21"/>
        <source>Select a feature first</source>
        <translation>Select a feature first</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Writing %1 now fails</source>
        <translation>Writing %1 now fails</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Faults cleared</source>
        <translation>Faults cleared</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Change Value on Device</source>
        <translation>Change Value on Device</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>New value of %1:</source>
        <translation>New value of %1:</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The camera does not take %1 for %2</source>
        <translation>The camera does not take %1 for %2</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>About Zarvex Viewer</source>
        <translation>About Zarvex Viewer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zarvex Viewer shows and edits the features of a camera with the ZarvexViewerComponents library.</source>
        <translation>Zarvex Viewer shows and edits the features of a camera with the ZarvexViewerComponents library.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Simulated camera (%1)</source>
        <translation>Simulated camera (%1)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 (simulated)</source>
        <translation>%1 (simulated)</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../main.cpp" line="+121"/>
        <source>cannot write %1</source>
        <translation>cannot write %1</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>no camera could be opened</source>
        <translation>no camera could be opened</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the camera showed no picture within %1 s; no screenshot was taken</source>
        <translation>the camera showed no picture within %1 s; no screenshot was taken</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>no camera was open within %1 s; no screenshot was taken</source>
        <translation>no camera was open within %1 s; no screenshot was taken</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Shows the features of a simulated or a real camera.</source>
        <translation>Shows the features of a simulated or a real camera.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Transport-layer type: GEV, U3V, IIDC, CamEmu, ...</source>
        <translation>Transport-layer type: GEV, U3V, IIDC, CamEmu, ...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>type</source>
        <translation>type</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A device description of your own (JSON).</source>
        <translation>A device description of your own (JSON).</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+8"/>
        <source>file</source>
        <translation>file</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Deepest level printed.</source>
        <translation>Deepest level printed.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>levels</source>
        <translation>levels</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Print the node maps as a tree instead of opening a window.</source>
        <translation>Print the node maps as a tree instead of opening a window.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open the camera, save a picture of the window to the PNG file and exit.</source>
        <translation>Open the camera, save a picture of the window to the PNG file and exit.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Language of the window: en, ja, ko or zh.</source>
        <translation>Language of the window: en, ja, ko or zh.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>code</source>
        <translation>code</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show a real camera through Aravis instead of the simulated one: the camera named by [id], else the first one found.</source>
        <translation>Show a real camera through Aravis instead of the simulated one: the camera named by [id], else the first one found.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>With --screenshot: seconds to wait for the camera and its first frame.</source>
        <translation>With --screenshot: seconds to wait for the camera and its first frame.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>seconds</source>
        <translation>seconds</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aravis id of the camera (with --aravis).</source>
        <translation>Aravis id of the camera (with --aravis).</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>[id]</source>
        <translation>[id]</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Found %1 (%2, %3)</source>
        <translation>Found %1 (%2, %3)</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Aravis camera %1, transport layer %2</source>
        <translation>Aravis camera %1, transport layer %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+29"/>
        <source>(%1 features shown)</source>
        <translation>(%1 features shown)</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>built without Aravis (install libaravis-dev and configure with ZVC_BUILD_ARAVIS=ON)</source>
        <translation>built without Aravis (install libaravis-dev and configure with ZVC_BUILD_ARAVIS=ON)</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Simulated camera, transport layer %1</source>
        <translation>Simulated camera, transport layer %1</translation>
    </message>
</context>
</TS>
