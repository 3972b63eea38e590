<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>ComboSlider</name>
    <message>
        <location filename="../featuretree/comboslider.cpp" line="+184"/>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Range: %1..%2 (Increment: %3)</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <location filename="../featuretree/doublecomboslider.cpp" line="+240"/>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <location filename="../featuretree/doublespinbox.cpp" line="+149"/>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Range: %1..%2 (Increment: %3)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <location filename="../featuretree/featuretreeinodeitem.cpp" line="+188"/>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;not implemented&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;not readable&gt;</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&lt;not available&gt;</source>
        <translation>&lt;not available&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <location filename="../featuretree/featuretreemodel.cpp" line="+106"/>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+5"/>
        <source>Failed to get a feature value</source>
        <translation>Failed to get a feature value</translation>
    </message>
    <message>
        <location line="+21"/>
        <location line="+3"/>
        <source>Failed to set a feature value.</source>
        <translation>Failed to set a feature value.</translation>
    </message>
    <message>
        <location line="+124"/>
        <location line="+3"/>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>Failed to get the node &apos;Root&apos; from the node map</translation>
    </message>
    <message>
        <location line="+268"/>
        <location line="+153"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorites</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <location line="-159"/>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>Add favorites by right-clicking a feature below.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.</translation>
    </message>
    <message>
        <location line="+99"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorite</source>
        <translation>Favorite</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2 (%3 is unavailable for the current camera)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2 (%3 are unavailable for the current camera)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <location filename="../featuretree/featuretreeview.cpp" line="+353"/>
        <source>No search results found.</source>
        <translation>No search results found.</translation>
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
        <translation>Add to Favorites</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move Up</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move Down</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Polling</source>
        <translation>Polling</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Search (%1)</source>
        <translation>Search (%1)</translation>
    </message>
    <message>
        <location line="+354"/>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</translation>
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
        <translation>Show Unavailable Favorites</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>P&amp;olling</source>
        <translation>P&amp;olling</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Refreshes the  feature tree</source>
        <translation>Refreshes the  feature tree</translation>
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
        <translation>Dynamic cast on pNode has gone wrong!</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>The minimum value is larger than the maximum value!</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</source>
        <translation>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Range: %1..%2 (Increment: %3)</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <location filename="../featuretree/floatslidereditor.cpp" line="+126"/>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>Dynamic cast on pNode has gone wrong!</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Could not retrieve an alias node on pNode</source>
        <translation>Could not retrieve an alias node on pNode</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The given range or increment information of the given pNode is not valid</source>
        <translation>The given range or increment information of the given pNode is not valid</translation>
    </message>
    <message>
        <location line="+47"/>
        <location line="+41"/>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>The minimum value is larger than the maximum value!</translation>
    </message>
    <message>
        <location line="-39"/>
        <location line="+41"/>
        <source>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</source>
        <translation>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</translation>
    </message>
    <message>
        <location line="-36"/>
        <location line="+40"/>
        <source>The alias increment cannot be &apos;0&apos;!</source>
        <translation>The alias increment cannot be &apos;0&apos;!</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Range: %1..%2 (Increment: %3)</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <location filename="../featuretree/inteditor.cpp" line="+28"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;not readable&gt;</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Range: 0x%1..0x%2</source>
        <translation>Range: 0x%1..0x%2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
</context>
<context>
    <name>IpAddressWidgetClass</name>
    <message>
        <location filename="../network/ipaddresswidget.ui" line="+14"/>
        <source>IP Address</source>
        <translation>IP Address</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Please specify an IP address.</source>
        <translation>Please specify an IP address.</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>&amp;MAC Address:</source>
        <translation>&amp;MAC Address:</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>IP &amp;Address:</source>
        <translation>IP &amp;Address:</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>&amp;Subnet Mask:</source>
        <translation>&amp;Subnet Mask:</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Default &amp;Gateway:</source>
        <translation>Default &amp;Gateway:</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <location filename="../messages/messageboxcheckable.cpp" line="+35"/>
        <location line="+9"/>
        <location line="+33"/>
        <source>&amp;Don&apos;t show this dialog again</source>
        <translation>&amp;Don&apos;t show this dialog again</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../messages/errorreporting.cpp" line="+50"/>
        <location line="+5"/>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Unexpected exception occurred</source>
        <translation>Unexpected exception occurred</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <location filename="../featuretree/toolbuttoneditor.cpp" line="+12"/>
        <source>Execute</source>
        <translation>Execute</translation>
    </message>
</context>
</TS>
