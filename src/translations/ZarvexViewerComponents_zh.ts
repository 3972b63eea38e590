<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
        <location filename="../featuretree/doublecomboslider.cpp" line="+240"/>
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
        <location filename="../featuretree/featuretreeinodeitem.cpp" line="+188"/>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未实现&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&lt;not available&gt;</source>
        <translation>&lt;不可用&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <location filename="../featuretree/featuretreemodel.cpp" line="+106"/>
        <source>Feature</source>
        <translation>功能</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <location line="+33"/>
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
        <location line="+124"/>
        <location line="+3"/>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>无法从节点映射中获取节点 &apos;Root&apos;</translation>
    </message>
    <message>
        <location line="+268"/>
        <location line="+153"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorites</source>
        <translation>收藏夹</translation>
    </message>
    <message>
        <location line="-159"/>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;收藏夹&lt;/h3&gt;&lt;b&gt;此节点包含用户选择的功能列表&lt;/b&gt;&lt;br&gt;&lt;br&gt;要添加功能，请右键单击该功能，然后从上下文菜单中选择“添加到收藏夹”。也可以通过拖放将功能添加到收藏夹。&lt;br&gt;右键单击某一项并从上下文菜单中选择相应选项，即可在列表中上移或下移收藏项，或将其从列表中删除。</translation>
    </message>
    <message>
        <location line="+51"/>
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
        <location filename="../featuretree/featuretreeview.cpp" line="+353"/>
        <source>No search results found.</source>
        <translation>未找到搜索结果。</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <location filename="../featuretree/featuretreewidget.cpp" line="+67"/>
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
        <location line="+354"/>
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
        <location line="+10"/>
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
        <location filename="../messages/messageboxcheckable.cpp" line="+35"/>
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
