<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CameraSettings</name>
    <message>
        <location filename="../camerasettings/camerasettings.cpp" line="+50"/>
        <source>unspecified exception</source>
        <translation>未指定的异常</translation>
    </message>
    <message numerus="yes">
        <location line="+309"/>
        <source>%1 values: %2 written, %3 already equal, %4 refused, %5 not present, %6 locked, %7 not reached; %n pass(es).</source>
        <translation>
            <numerusform>%1 个值：已写入 %2，已相同 %3，被拒绝 %4，不存在 %5，已锁定 %6，未处理 %7；共 %n 轮。</numerusform>
        </translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The file was saved from a %1; this camera is a %2.</source>
        <translation>文件保存自 %1；此相机是 %2。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The restore stopped: %1</source>
        <translation>恢复已中止：%1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>written</source>
        <translation>已写入</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>already equal</source>
        <translation>已相同</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not present</source>
        <translation>不存在</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not reached</source>
        <translation>未处理</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <location line="+152"/>
        <source>There is no node map to save.</source>
        <translation>没有可保存的节点映射。</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No node map answered.</source>
        <translation>没有节点映射响应。</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>this camera has no node map %1</source>
        <translation>此相机没有节点映射 %1</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>this camera has no feature %1</source>
        <translation>此相机没有功能 %1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>this camera has no selector %1</source>
        <translation>此相机没有选择器 %1</translation>
    </message>
    <message>
        <location line="+55"/>
        <location line="+34"/>
        <location line="+34"/>
        <source>the camera stopped answering</source>
        <translation>相机停止响应</translation>
    </message>
    <message>
        <location line="-67"/>
        <location line="+34"/>
        <source>the camera stopped answering while %1 was being restored</source>
        <translation>恢复 %1 时相机停止响应</translation>
    </message>
    <message>
        <location line="-30"/>
        <source>the selector %1 cannot be read</source>
        <translation>无法读取选择器 %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the selector %1 has no entry %2</source>
        <translation>选择器 %1 没有条目 %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 cannot be set to %2: %3</source>
        <translation>无法将 %1 设置为 %2：%3</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>the feature cannot be read</source>
        <translation>无法读取该功能</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>not implemented on this camera</source>
        <translation>此相机未实现</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>not a value on this camera</source>
        <translation>不是此相机上的有效值</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>not writable now</source>
        <translation>当前不可写</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>the camera holds %1</source>
        <translation>相机上的值为 %1</translation>
    </message>
    <message>
        <location line="+142"/>
        <source>The file is larger than a settings file may be (%1 bytes at most).</source>
        <translation>文件超过了设置文件允许的大小（最多 %1 字节）。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is not valid JSON: %1 at byte %2; it may be truncated or damaged.</source>
        <translation>文件不是有效的 JSON：第 %2 字节处 %1；文件可能被截断或已损坏。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is not a camera settings file: its top level is not an object.</source>
        <translation>文件不是相机设置文件：其顶层不是对象。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file is not a camera settings file: &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>文件不是相机设置文件：&quot;format&quot; 不是 &quot;%1&quot;。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;version&quot; must be a whole number from 1.</source>
        <translation>&quot;version&quot; 必须是不小于 1 的整数。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file has format version %1; this library reads versions up to %2.</source>
        <translation>文件格式版本为 %1；本库只能读取不高于 %2 的版本。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&quot;camera&quot; must be an object.</source>
        <translation>&quot;camera&quot; 必须是对象。</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>&quot;camera.%1&quot; must be a text of at most %2 characters.</source>
        <translation>&quot;camera.%1&quot; 必须是不超过 %2 个字符的文本。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&quot;saved&quot; must be a date and time in ISO 8601 form.</source>
        <translation>&quot;saved&quot; 必须是 ISO 8601 格式的日期和时间。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;nodeMaps&quot; must be an array.</source>
        <translation>&quot;nodeMaps&quot; 必须是数组。</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+15"/>
        <source>%1 must be an object.</source>
        <translation>%1 必须是对象。</translation>
    </message>
    <message>
        <location line="-11"/>
        <source>%1: &quot;name&quot; must be a node map name such as &quot;@CameraDevice&quot;.</source>
        <translation>%1：&quot;name&quot; 必须是节点映射名称，例如 &quot;@CameraDevice&quot;。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: the node map %2 is given twice.</source>
        <translation>%1：节点映射 %2 出现了两次。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 (%2): &quot;features&quot; must be an array.</source>
        <translation>%1 (%2)：&quot;features&quot; 必须是数组。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1: &quot;name&quot; must be a feature name of letters, digits and _ (at most %2).</source>
        <translation>%1：&quot;name&quot; 必须是由字母、数字和 _ 组成的功能名称（最多 %2 个字符）。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: &quot;%2&quot; must be a text.</source>
        <translation>%1：&quot;%2&quot; 必须是文本。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: &quot;%2&quot; must be at most %3 characters, without NUL.</source>
        <translation>%1：&quot;%2&quot; 必须不超过 %3 个字符且不含 NUL。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1: a feature has either &quot;value&quot; or &quot;selector&quot; with &quot;values&quot;.</source>
        <translation>%1：功能必须有 &quot;value&quot;，或者有 &quot;selector&quot; 和 &quot;values&quot;，二者取一。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1: the feature is given twice.</source>
        <translation>%1：该功能出现了两次。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: &quot;selector&quot; must be the name of another feature.</source>
        <translation>%1：&quot;selector&quot; 必须是另一个功能的名称。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1: &quot;values&quot; must be an array.</source>
        <translation>%1：&quot;values&quot; 必须是数组。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: values[%2] must be an object.</source>
        <translation>%1：values[%2] 必须是对象。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1: values[%2] has an empty &quot;entry&quot;.</source>
        <translation>%1：values[%2] 的 &quot;entry&quot; 为空。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: the entry %2 is given twice.</source>
        <translation>%1：条目 %2 出现了两次。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The file holds more than %1 values.</source>
        <translation>文件包含的值超过 %1 个。</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+6"/>
        <source>Cannot read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
</context>
<context>
    <name>ComboSlider</name>
    <message>
        <location filename="../featuretree/comboslider.cpp" line="+184"/>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1..%2（增量：%3）</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <location filename="../featuretree/doublecomboslider.cpp" line="+241"/>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <location filename="../featuretree/doublespinbox.cpp" line="+149"/>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1..%2（增量：%3）</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <location filename="../featuretree/featuretreeinodeitem.cpp" line="+341"/>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未实现&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&lt;not available&gt;</source>
        <translation>&lt;不可用&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <location filename="../featuretree/featuretreemodel.cpp" line="+162"/>
        <source>Feature</source>
        <translation>功能</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <location line="+34"/>
        <location line="+5"/>
        <source>Failed to get a feature value</source>
        <translation>无法获取功能值</translation>
    </message>
    <message>
        <location line="+21"/>
        <location line="+3"/>
        <source>Failed to set a feature value.</source>
        <translation>无法设置功能值。</translation>
    </message>
    <message>
        <location line="+131"/>
        <location line="+3"/>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>无法从节点映射中获取节点 &apos;Root&apos;</translation>
    </message>
    <message>
        <location line="+280"/>
        <location line="+153"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorites</source>
        <translation>收藏夹</translation>
    </message>
    <message>
        <location line="-160"/>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;收藏夹&lt;/h3&gt;&lt;b&gt;此节点包含用户选择的功能列表&lt;/b&gt;&lt;br&gt;&lt;br&gt;要添加功能，请右键单击该功能，然后从上下文菜单中选择“添加到收藏夹”。也可以通过拖放将功能添加到收藏夹。&lt;br&gt;右键单击某一项并从上下文菜单中选择相应选项，即可在列表中上移或下移收藏项，或将其从列表中删除。</translation>
    </message>
    <message>
        <location line="+52"/>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>右键单击下方的功能即可添加到收藏夹。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>要添加功能，请右键单击该功能，然后从上下文菜单中选择“添加到收藏夹”。也可以通过拖放将功能添加到收藏夹。</translation>
    </message>
    <message>
        <location line="+99"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2（%3 项对当前相机不可用）</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2（%3 项对当前相机不可用）</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <location filename="../featuretree/featuretreeview.cpp" line="+595"/>
        <source>No search results found.</source>
        <translation>未找到搜索结果。</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <location filename="../featuretree/featuretreewidget.cpp" line="+68"/>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add to Favorites</source>
        <translation>添加到收藏夹</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Polling</source>
        <translation>轮询</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Search (%1)</source>
        <translation>搜索（%1）</translation>
    </message>
    <message>
        <location line="+388"/>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;%1 个搜索结果（其中 %2 个在更高用户级别下可见）&lt;/B&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <location filename="../featuretree/featuretreewidget.ui" line="+14"/>
        <source>FeatureTreeWidget</source>
        <translation>FeatureTreeWidget</translation>
    </message>
    <message>
        <location line="+92"/>
        <source>Show Unavailable Favorites</source>
        <translation>显示不可用的收藏项</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>P&amp;olling</source>
        <translation>轮询(&amp;O)</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Refreshes the  feature tree</source>
        <translation>刷新功能树</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>F5</source>
        <translation>F5</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <location filename="../featuretree/floateditor.cpp" line="+91"/>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>pNode 的动态类型转换失败！</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>最小值大于最大值！</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</source>
        <translation>最小值大于要设置的节点值，或最大值小于要设置的节点值！</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1..%2（增量：%3）</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <location filename="../featuretree/floatslidereditor.cpp" line="+126"/>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>pNode 的动态类型转换失败！</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Could not retrieve an alias node on pNode</source>
        <translation>无法获取 pNode 的别名节点</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The given range or increment information of the given pNode is not valid</source>
        <translation>给定 pNode 的范围或增量信息无效</translation>
    </message>
    <message>
        <location line="+47"/>
        <location line="+41"/>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>最小值大于最大值！</translation>
    </message>
    <message>
        <location line="-39"/>
        <location line="+41"/>
        <source>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</source>
        <translation>允许的最小值大于要设置的节点值，或允许的最大值小于要设置的节点值！</translation>
    </message>
    <message>
        <location line="-36"/>
        <location line="+40"/>
        <source>The alias increment cannot be &apos;0&apos;!</source>
        <translation>别名增量不能为 &apos;0&apos;！</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1..%2（增量：%3）</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <location filename="../featuretree/inteditor.cpp" line="+28"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Range: 0x%1..0x%2</source>
        <translation>范围：0x%1..0x%2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
</context>
<context>
    <name>IpAddressWidgetClass</name>
    <message>
        <location filename="../network/ipaddresswidget.ui" line="+14"/>
        <source>IP Address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Please specify an IP address.</source>
        <translation>请指定 IP 地址。</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>&amp;MAC Address:</source>
        <translation>MAC 地址(&amp;M)：</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>IP &amp;Address:</source>
        <translation>IP 地址(&amp;A)：</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>&amp;Subnet Mask:</source>
        <translation>子网掩码(&amp;S)：</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Default &amp;Gateway:</source>
        <translation>默认网关(&amp;G)：</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <location filename="../messages/messageboxcheckable.cpp" line="+57"/>
        <location line="+9"/>
        <location line="+33"/>
        <source>&amp;Don&apos;t show this dialog again</source>
        <translation>不再显示此对话框(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../messages/errorreporting.cpp" line="+50"/>
        <location line="+5"/>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Unexpected exception occurred</source>
        <translation>发生意外异常</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <location filename="../featuretree/toolbuttoneditor.cpp" line="+12"/>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
</context>
</TS>
