<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh">
<context>
    <name>CameraSettingsCommands</name>
    <message>
        <location filename="../camerasettingscommands.cpp" line="+16"/>
        <source>Camera settings (*.json);;All files (*)</source>
        <translation>相机设置 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>No camera is open.</source>
        <translation>没有打开的相机。</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Camera Settings</source>
        <translation>相机设置</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The file cannot be used; nothing was written to the camera.

%1</source>
        <translation>无法使用此文件；未向相机写入任何内容。

%1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Save Camera Settings</source>
        <translation>保存相机设置</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Load Camera Settings</source>
        <translation>加载相机设置</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Compare With File</source>
        <translation>与文件比较</translation>
    </message>
</context>
<context>
    <name>CameraSettingsCompareDialog</name>
    <message>
        <location filename="../camerasettingscomparedialog.ui" line="+9"/>
        <source>Compare Camera With File</source>
        <translation>比较相机与文件</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Feature</source>
        <translation>功能</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selector entry</source>
        <translation>选择器条目</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>On the camera</source>
        <translation>相机上的值</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>In the file</source>
        <translation>文件中的值</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Check &amp;All</source>
        <translation>全部勾选(&amp;A)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Check &amp;None</source>
        <translation>全部取消(&amp;N)</translation>
    </message>
    <message>
        <location filename="../camerasettingscomparedialog.cpp" line="+17"/>
        <source>(empty)</source>
        <translation>(空)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Apply Checked</source>
        <translation>应用勾选的值(&amp;A)</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>(not present)</source>
        <translation>(不存在)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The camera holds every value of %1.</source>
        <translation>相机包含 %1 中的所有值。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>One value of %1 differs from the camera. If it is checked, it is written when you apply it.</source>
        <translation>%1 中有一个值与相机不同。如已勾选，应用时将写入该值。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 values of %2 differ from the camera. The checked ones are written when you apply them.</source>
        <translation>%2 中有 %1 个值与相机不同。勾选的值将在应用时写入。</translation>
    </message>
</context>
<context>
    <name>CameraSettingsReportDialog</name>
    <message>
        <location filename="../camerasettingsreportdialog.ui" line="+9"/>
        <source>Camera Settings Restored</source>
        <translation>相机设置恢复结果</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Show only values not restored</source>
        <translation>仅显示未恢复的值</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <location filename="../camerasettingsreportdialog.cpp" line="+30"/>
        <source>The restore stopped: %1</source>
        <translation>恢复已中止：%1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Every value of the file is on the camera.</source>
        <translation>文件中的所有值均已写入相机。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 of %2 values are on the camera; the others are listed with the reason.</source>
        <translation>%2 个值中有 %1 个已写入相机；其余的值及原因列在下方。</translation>
    </message>
</context>
<context>
    <name>FeaturePane</name>
    <message>
        <location filename="../featurepane.cpp" line="+20"/>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Boolean</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Float</source>
        <translation>浮点数</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enumeration</source>
        <translation>枚举</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+18"/>
        <location line="+16"/>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <location line="-26"/>
        <source>Read and write</source>
        <translation>可读写</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write only</source>
        <translation>只写</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not implemented</source>
        <translation>未实现</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Beginner</source>
        <translation>初级</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invisible</source>
        <translation>不可见</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>Display name:</source>
        <translation>显示名称:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Name:</source>
        <translation>名称:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description:</source>
        <translation>说明:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Type:</source>
        <translation>类型:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value:</source>
        <translation>值:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range:</source>
        <translation>范围:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Increment:</source>
        <translation>增量:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unit:</source>
        <translation>单位:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Access:</source>
        <translation>访问:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Visibility:</source>
        <translation>可见性:</translation>
    </message>
    <message>
        <location line="+49"/>
        <location line="+3"/>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>PixelConverter</name>
    <message>
        <location filename="../pixelconverter.cpp" line="+110"/>
        <source>The pixel format %1 cannot be shown.</source>
        <translation>无法显示像素格式 %1。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The frame is incomplete.</source>
        <translation>帧不完整。</translation>
    </message>
</context>
<context>
    <name>ViewerMainWindow</name>
    <message>
        <location filename="../viewermainwindow.ui" line="+6"/>
        <location filename="../viewermainwindow.cpp" line="+712"/>
        <location line="+74"/>
        <source>Zarvex Viewer</source>
        <translation>Zarvex 查看器</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>&amp;Cameras:</source>
        <translation>相机(&amp;C):</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>User &amp;level:</source>
        <translation>用户级别(&amp;L):</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Beginner</source>
        <translation>初级</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Acquisition</source>
        <translation>采集(&amp;A)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>&amp;Simulate</source>
        <translation>模拟(&amp;S)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Acquisition</source>
        <translation>采集</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>&amp;Search Features</source>
        <translation>搜索功能(&amp;S)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Start Acquisition</source>
        <translation>开始采集(&amp;S)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>S&amp;top Acquisition</source>
        <translation>停止采集(&amp;T)</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>Start the acquisition (F7)</source>
        <translation>开始采集 (F7)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Stop the acquisition (F8)</source>
        <translation>停止采集 (F8)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Fit to Window</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fit the picture to the pane (Ctrl+0)</source>
        <translation>使图像适合窗格 (Ctrl+0)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Actual Size (100 %)</source>
        <translation>实际大小 (100 %)(&amp;A)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>One camera pixel per screen pixel (Ctrl+1)</source>
        <translation>相机的一个像素对应屏幕的一个像素 (Ctrl+1)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Open Device Description...</source>
        <translation>打开设备描述(&amp;O)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Save Camera Settings...</source>
        <translation>保存相机设置(&amp;S)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Load Camera Settings...</source>
        <translation>加载相机设置(&amp;L)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Compare &amp;With File...</source>
        <translation>与文件比较(&amp;W)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Polling</source>
        <translation>轮询(&amp;P)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Show &amp;Unavailable Favorites</source>
        <translation>显示不可用的收藏(&amp;U)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Copy Whole Tree</source>
        <translation>复制整棵树(&amp;C)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;IP Configuration...</source>
        <translation>IP 配置(&amp;I)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Ask a &amp;Question...</source>
        <translation>提问(&amp;Q)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Reset All &apos;Don&apos;t Show Again&apos; Answers</source>
        <translation>重置所有“不再显示”的回答(&amp;R)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;English</source>
        <translation>英语 (English)(&amp;E)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Japanese (日本語)</source>
        <translation>日语 (日本語)(&amp;J)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Korean (한국어)</source>
        <translation>韩语 (한국어)(&amp;K)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Chinese (中文)</source>
        <translation>中文(&amp;C)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Unplug Camera</source>
        <translation>拔出相机(&amp;U)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Replug Camera</source>
        <translation>重新插入相机(&amp;R)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Fault on Current Feature</source>
        <translation>使当前功能出错(&amp;F)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>C&amp;lear Faults</source>
        <translation>清除故障(&amp;L)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Change Value on Device...</source>
        <translation>在设备上更改值(&amp;C)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <location filename="../viewermainwindow.cpp" line="-609"/>
        <source>Looking for cameras...</source>
        <translation>正在查找相机...</translation>
    </message>
    <message numerus="yes">
        <location line="+4"/>
        <source>%n camera(s) found</source>
        <translation>
            <numerusform>找到 %n 台相机</numerusform>
        </translation>
    </message>
    <message>
        <location line="+29"/>
        <source>No Aravis camera was found.</source>
        <translation>未找到 Aravis 相机。</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The Aravis camera %1 was not found.</source>
        <translation>未找到 Aravis 相机 %1。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The Aravis camera %1 cannot be opened.</source>
        <translation>无法打开 Aravis 相机 %1。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>This viewer was built without Aravis.</source>
        <translation>此查看器构建时未包含 Aravis。</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Opening the camera...</source>
        <translation>正在打开相机...</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>The camera cannot be opened: %1</source>
        <translation>无法打开相机: %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+7"/>
        <source>The camera is gone: %1</source>
        <translation>相机已断开: %1</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Opened %1</source>
        <translation>已打开 %1</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>The camera has no %1</source>
        <translation>相机没有 %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 could not be run.</source>
        <translation>无法执行 %1。</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The acquisition cannot start: %1</source>
        <translation>无法开始采集: %1</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>%1 frames, %2 fps, %3 lost</source>
        <translation>%1 帧，%2 fps，丢失 %3</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>x %1, y %2: %3</source>
        <translation>x %1，y %2: %3</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>No camera is open.</source>
        <translation>没有打开的相机。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>This camera sends no pictures to the viewer.</source>
        <translation>此相机不向查看器发送图像。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Waiting for the first frame...</source>
        <translation>正在等待第一帧...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Press Start Acquisition (F7) to see the picture.</source>
        <translation>按“开始采集”(F7) 查看图像。</translation>
    </message>
    <message>
        <location line="+98"/>
        <location line="+6"/>
        <source>Open Device Description</source>
        <translation>打开设备描述</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Device descriptions (*.json);;All files (*)</source>
        <translation>设备描述 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The device description cannot be used:
%1</source>
        <translation>无法使用该设备描述:
%1</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Copy &amp;Name</source>
        <translation>复制名称(&amp;N)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copy &amp;Value</source>
        <translation>复制值(&amp;V)</translation>
    </message>
    <message numerus="yes">
        <location line="+16"/>
        <source>%n match(es), %1 hidden by the level</source>
        <translation>
            <numerusform>%n 个匹配，其中 %1 个因级别而隐藏</numerusform>
        </translation>
    </message>
    <message>
        <location line="+53"/>
        <source>IP Configuration</source>
        <translation>IP 配置</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The camera does not let %1 be written.</source>
        <translation>相机不允许写入 %1。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 could not be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>IP configuration written to the camera</source>
        <translation>IP 配置已写入相机</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Start the acquisition with the present settings?</source>
        <translation>以当前设置开始采集吗?</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Answered yes</source>
        <translation>已回答“是”</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Answered no</source>
        <translation>已回答“否”</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Every question will be asked again</source>
        <translation>所有问题将再次询问</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The camera is unplugged</source>
        <translation>相机已拔出</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The camera is plugged in again</source>
        <translation>相机已重新插入</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+21"/>
        <source>Select a feature first</source>
        <translation>请先选择一个功能</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Writing %1 now fails</source>
        <translation>现在写入 %1 将失败</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Faults cleared</source>
        <translation>故障已清除</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Change Value on Device</source>
        <translation>在设备上更改值</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>New value of %1:</source>
        <translation>%1 的新值:</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The camera does not take %1 for %2</source>
        <translation>相机不接受将 %1 作为 %2 的值</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>About Zarvex Viewer</source>
        <translation>关于 Zarvex 查看器</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zarvex Viewer shows and edits the features of a camera with the ZarvexViewerComponents library.</source>
        <translation>Zarvex 查看器使用 ZarvexViewerComponents 库显示和编辑相机的功能。</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Simulated camera (%1)</source>
        <translation>模拟相机 (%1)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 (simulated)</source>
        <translation>%1 (模拟)</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../main.cpp" line="+121"/>
        <source>cannot write %1</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>no camera could be opened</source>
        <translation>无法打开任何相机</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the camera showed no picture within %1 s; no screenshot was taken</source>
        <translation>相机在 %1 秒内未显示图像；未截图</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>no camera was open within %1 s; no screenshot was taken</source>
        <translation>%1 秒内未打开相机；未截图</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Shows the features of a simulated or a real camera.</source>
        <translation>显示模拟相机或真实相机的功能。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Transport-layer type: GEV, U3V, IIDC, CamEmu, ...</source>
        <translation>传输层类型: GEV、U3V、IIDC、CamEmu 等</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A device description of your own (JSON).</source>
        <translation>自定义的设备描述 (JSON)。</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+8"/>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Deepest level printed.</source>
        <translation>输出的最深层级。</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>levels</source>
        <translation>层数</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Print the node maps as a tree instead of opening a window.</source>
        <translation>不打开窗口，而是将节点映射以树的形式输出。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open the camera, save a picture of the window to the PNG file and exit.</source>
        <translation>打开相机，将窗口截图保存为 PNG 文件后退出。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Language of the window: en, ja, ko or zh.</source>
        <translation>窗口语言: en、ja、ko 或 zh。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>code</source>
        <translation>代码</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show a real camera through Aravis instead of the simulated one: the camera named by [id], else the first one found.</source>
        <translation>通过 Aravis 显示真实相机而非模拟相机: 由 [id] 指定的相机，否则为找到的第一台相机。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>With --screenshot: seconds to wait for the camera and its first frame.</source>
        <translation>与 --screenshot 一起使用: 等待相机及其第一帧的秒数。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aravis id of the camera (with --aravis).</source>
        <translation>相机的 Aravis ID (与 --aravis 一起使用)。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>[id]</source>
        <translation>[id]</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Found %1 (%2, %3)</source>
        <translation>找到 %1 (%2, %3)</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Aravis camera %1, transport layer %2</source>
        <translation>Aravis 相机 %1，传输层 %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+29"/>
        <source>(%1 features shown)</source>
        <translation>(显示了 %1 个功能)</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>built without Aravis (install libaravis-dev and configure with ZVC_BUILD_ARAVIS=ON)</source>
        <translation>构建时未包含 Aravis (请安装 libaravis-dev 并以 ZVC_BUILD_ARAVIS=ON 配置)</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Simulated camera, transport layer %1</source>
        <translation>模拟相机，传输层 %1</translation>
    </message>
</context>
</TS>
