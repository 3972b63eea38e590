<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CameraSettings</name>
    <message>
        <location filename="../camerasettings/camerasettings.cpp" line="+50"/>
        <source>unspecified exception</source>
        <translation>unspecified exception</translation>
    </message>
    <message numerus="yes">
        <location line="+309"/>
        <source>%1 values: %2 written, %3 already equal, %4 refused, %5 not present, %6 locked, %7 not reached; %n pass(es).</source>
        <translation>
            <numerusform>%1 values: %2 written, %3 already equal, %4 refused, %5 not present, %6 locked, %7 not reached; %n pass.</numerusform>
            <numerusform>%1 values: %2 written, %3 already equal, %4 refused, %5 not present, %6 locked, %7 not reached; %n passes.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The file was saved from a %1; this camera is a %2.</source>
        <translation>The file was saved from a %1; this camera is a %2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The restore stopped: %1</source>
        <translation>The restore stopped: %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>written</source>
        <translation>written</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>already equal</source>
        <translation>already equal</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>refused</source>
        <translation>refused</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not present</source>
        <translation>not present</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>locked</source>
        <translation>locked</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not reached</source>
        <translation>not reached</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <location line="+152"/>
        <source>There is no node map to save.</source>
        <translation>There is no node map to save.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No node map answered.</source>
        <translation>No node map answered.</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>this camera has no node map %1</source>
        <translation>this camera has no node map %1</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>this camera has no feature %1</source>
        <translation>this camera has no feature %1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>this camera has no selector %1</source>
        <translation>this camera has no selector %1</translation>
    </message>
    <message>
        <location line="+55"/>
        <location line="+34"/>
        <location line="+34"/>
        <source>the camera stopped answering</source>
        <translation>the camera stopped answering</translation>
    </message>
    <message>
        <location line="-67"/>
        <location line="+34"/>
        <source>the camera stopped answering while %1 was being restored</source>
        <translation>the camera stopped answering while %1 was being restored</translation>
    </message>
    <message>
        <location line="-30"/>
        <source>the selector %1 cannot be read</source>
        <translation>the selector %1 cannot be read</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the selector %1 has no entry %2</source>
        <translation>the selector %1 has no entry %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 cannot be set to %2: %3</source>
        <translation>%1 cannot be set to %2: %3</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>the feature cannot be read</source>
        <translation>the feature cannot be read</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>not implemented on this camera</source>
        <translation>not implemented on this camera</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>not a value on this camera</source>
        <translation>not a value on this camera</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>not writable now</source>
        <translation>not writable now</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>the camera holds %1</source>
        <translation>the camera holds %1</translation>
    </message>
    <message>
        <location line="+142"/>
        <source>The file is larger than a settings file may be (%1 bytes at most).</source>
        <translation>The file is larger than a settings file may be (%1 bytes at most).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is not valid JSON: %1 at byte %2; it may be truncated or damaged.</source>
        <translation>The file is not valid JSON: %1 at byte %2; it may be truncated or damaged.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is not a camera settings file: its top level is not an object.</source>
        <translation>The file is not a camera settings file: its top level is not an object.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file is not a camera settings file: &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>The file is not a camera settings file: &quot;format&quot; is not &quot;%1&quot;.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;version&quot; must be a whole number from 1.</source>
        <translation>&quot;version&quot; must be a whole number from 1.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file has format version %1; this library reads versions up to %2.</source>
        <translation>The file has format version %1; this library reads versions up to %2.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&quot;camera&quot; must be an object.</source>
        <translation>&quot;camera&quot; must be an object.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>&quot;camera.%1&quot; must be a text of at most %2 characters.</source>
        <translation>&quot;camera.%1&quot; must be a text of at most %2 characters.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&quot;saved&quot; must be a date and time in ISO 8601 form.</source>
        <translation>&quot;saved&quot; must be a date and time in ISO 8601 form.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;nodeMaps&quot; must be an array.</source>
        <translation>&quot;nodeMaps&quot; must be an array.</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+15"/>
        <source>%1 must be an object.</source>
        <translation>%1 must be an object.</translation>
    </message>
    <message>
        <location line="-11"/>
        <source>%1: &quot;name&quot; must be a node map name such as &quot;@CameraDevice&quot;.</source>
        <translation>%1: &quot;name&quot; must be a node map name such as &quot;@CameraDevice&quot;.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: the node map %2 is given twice.</source>
        <translation>%1: the node map %2 is given twice.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 (%2): &quot;features&quot; must be an array.</source>
        <translation>%1 (%2): &quot;features&quot; must be an array.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1: &quot;name&quot; must be a feature name of letters, digits and _ (at most %2).</source>
        <translation>%1: &quot;name&quot; must be a feature name of letters, digits and _ (at most %2).</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: &quot;%2&quot; must be a text.</source>
        <translation>%1: &quot;%2&quot; must be a text.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: &quot;%2&quot; must be at most %3 characters, without NUL.</source>
        <translation>%1: &quot;%2&quot; must be at most %3 characters, without NUL.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1: a feature has either &quot;value&quot; or &quot;selector&quot; with &quot;values&quot;.</source>
        <translation>%1: a feature has either &quot;value&quot; or &quot;selector&quot; with &quot;values&quot;.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1: the feature is given twice.</source>
        <translation>%1: the feature is given twice.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: &quot;selector&quot; must be the name of another feature.</source>
        <translation>%1: &quot;selector&quot; must be the name of another feature.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1: &quot;values&quot; must be an array.</source>
        <translation>%1: &quot;values&quot; must be an array.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: values[%2] must be an object.</source>
        <translation>%1: values[%2] must be an object.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1: values[%2] has an empty &quot;entry&quot;.</source>
        <translation>%1: values[%2] has an empty &quot;entry&quot;.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: the entry %2 is given twice.</source>
        <translation>%1: the entry %2 is given twice.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The file holds more than %1 values.</source>
        <translation>The file holds more than %1 values.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Cannot write %1: %2</source>
        <translation>Cannot write %1: %2</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+6"/>
        <source>Cannot read %1: %2</source>
        <translation>Cannot read %1: %2</translation>
    </message>
</context>
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
        <location filename="../featuretree/doublecomboslider.cpp" line="+241"/>
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
        <location filename="../featuretree/featuretreeinodeitem.cpp" line="+341"/>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;not implemented&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;not readable&gt;</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&lt;not available&gt;</source>
        <translation>&lt;not available&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <location filename="../featuretree/featuretreemodel.cpp" line="+162"/>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <location line="+34"/>
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
        <location line="+131"/>
        <location line="+3"/>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>Failed to get the node &apos;Root&apos; from the node map</translation>
    </message>
    <message>
        <location line="+280"/>
        <location line="+153"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorites</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <location line="-160"/>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</translation>
    </message>
    <message>
        <location line="+52"/>
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
        <location filename="../featuretree/featuretreeview.cpp" line="+595"/>
        <source>No search results found.</source>
        <translation>No search results found.</translation>
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
        <location line="+388"/>
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
        <location line="+12"/>
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
        <location filename="../messages/messageboxcheckable.cpp" line="+57"/>
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
