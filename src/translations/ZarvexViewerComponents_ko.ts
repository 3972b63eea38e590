<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>ComboSlider</name>
    <message>
        <location filename="../featuretree/comboslider.cpp" line="+184"/>
        <source>Range: %1..%2</source>
        <translation>범위: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>범위: %1..%2 (증분: %3)</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <location filename="../featuretree/doublecomboslider.cpp" line="+240"/>
        <source>Range: %1..%2</source>
        <translation>범위: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <location filename="../featuretree/doublespinbox.cpp" line="+149"/>
        <source>Range: %1..%2</source>
        <translation>범위: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>범위: %1..%2 (증분: %3)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <location filename="../featuretree/featuretreeinodeitem.cpp" line="+188"/>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;구현되지 않음&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;읽을 수 없음&gt;</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&lt;not available&gt;</source>
        <translation>&lt;사용할 수 없음&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <location filename="../featuretree/featuretreemodel.cpp" line="+106"/>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+5"/>
        <source>Failed to get a feature value</source>
        <translation>기능 값을 가져오지 못했습니다</translation>
    </message>
    <message>
        <location line="+21"/>
        <location line="+3"/>
        <source>Failed to set a feature value.</source>
        <translation>기능 값을 설정하지 못했습니다.</translation>
    </message>
    <message>
        <location line="+124"/>
        <location line="+3"/>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>노드 맵에서 노드 &apos;Root&apos;를 가져오지 못했습니다</translation>
    </message>
    <message>
        <location line="+268"/>
        <location line="+153"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorites</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <location line="-159"/>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;즐겨찾기&lt;/h3&gt;&lt;b&gt;이 노드에는 사용자가 선택한 기능 목록이 있습니다&lt;/b&gt;&lt;br&gt;&lt;br&gt;기능을 추가하려면 기능을 마우스 오른쪽 버튼으로 클릭하고 컨텍스트 메뉴에서 &apos;즐겨찾기에 추가&apos;를 선택하십시오. 끌어서 놓기로도 즐겨찾기에 추가할 수 있습니다.&lt;br&gt;항목을 마우스 오른쪽 버튼으로 클릭하고 컨텍스트 메뉴에서 해당 옵션을 선택하면 즐겨찾기를 목록 안에서 위아래로 옮기거나 목록에서 제거할 수 있습니다.</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>아래 기능을 마우스 오른쪽 버튼으로 클릭하여 즐겨찾기에 추가하십시오.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>기능을 추가하려면 기능을 마우스 오른쪽 버튼으로 클릭하고 컨텍스트 메뉴에서 &apos;즐겨찾기에 추가&apos;를 선택하십시오. 끌어서 놓기로도 즐겨찾기에 추가할 수 있습니다.</translation>
    </message>
    <message>
        <location line="+99"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorite</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2 (%3개는 현재 카메라에서 사용할 수 없음)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2 (%3개는 현재 카메라에서 사용할 수 없음)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <location filename="../featuretree/featuretreeview.cpp" line="+353"/>
        <source>No search results found.</source>
        <translation>검색 결과가 없습니다.</translation>
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
        <translation>즐겨찾기에 추가</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move Up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move Down</source>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Polling</source>
        <translation>폴링</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Search (%1)</source>
        <translation>검색 (%1)</translation>
    </message>
    <message>
        <location line="+354"/>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;검색 결과 %1개 (그중 %2개는 더 높은 사용자 수준에서 표시)&lt;/B&gt;</translation>
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
        <translation>사용할 수 없는 즐겨찾기 표시</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>P&amp;olling</source>
        <translation>폴링(&amp;O)</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Refreshes the  feature tree</source>
        <translation>기능 트리를 새로 고칩니다</translation>
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
        <translation>pNode의 동적 캐스트에 실패했습니다!</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>최솟값이 최댓값보다 큽니다!</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</source>
        <translation>최솟값이 설정하려는 노드 값보다 크거나 최댓값이 설정하려는 노드 값보다 작습니다!</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Range: %1..%2</source>
        <translation>범위: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>범위: %1..%2 (증분: %3)</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <location filename="../featuretree/floatslidereditor.cpp" line="+126"/>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>pNode의 동적 캐스트에 실패했습니다!</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Could not retrieve an alias node on pNode</source>
        <translation>pNode의 별칭 노드를 가져올 수 없습니다</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The given range or increment information of the given pNode is not valid</source>
        <translation>지정한 pNode의 범위 또는 증분 정보가 올바르지 않습니다</translation>
    </message>
    <message>
        <location line="+47"/>
        <location line="+41"/>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>최솟값이 최댓값보다 큽니다!</translation>
    </message>
    <message>
        <location line="-39"/>
        <location line="+41"/>
        <source>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</source>
        <translation>허용 최솟값이 설정하려는 노드 값보다 크거나 허용 최댓값이 설정하려는 노드 값보다 작습니다!</translation>
    </message>
    <message>
        <location line="-36"/>
        <location line="+40"/>
        <source>The alias increment cannot be &apos;0&apos;!</source>
        <translation>별칭 증분은 &apos;0&apos;일 수 없습니다!</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Range: %1..%2</source>
        <translation>범위: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>범위: %1..%2 (증분: %3)</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <location filename="../featuretree/inteditor.cpp" line="+28"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;읽을 수 없음&gt;</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Range: 0x%1..0x%2</source>
        <translation>범위: 0x%1..0x%2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Range: %1..%2</source>
        <translation>범위: %1..%2</translation>
    </message>
</context>
<context>
    <name>IpAddressWidgetClass</name>
    <message>
        <location filename="../network/ipaddresswidget.ui" line="+14"/>
        <source>IP Address</source>
        <translation>IP 주소</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Please specify an IP address.</source>
        <translation>IP 주소를 지정하십시오.</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>&amp;MAC Address:</source>
        <translation>MAC 주소(&amp;M):</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>IP &amp;Address:</source>
        <translation>IP 주소(&amp;A):</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>&amp;Subnet Mask:</source>
        <translation>서브넷 마스크(&amp;S):</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Default &amp;Gateway:</source>
        <translation>기본 게이트웨이(&amp;G):</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <location filename="../messages/messageboxcheckable.cpp" line="+35"/>
        <location line="+9"/>
        <location line="+33"/>
        <source>&amp;Don&apos;t show this dialog again</source>
        <translation>이 대화 상자를 다시 표시 안 함(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../messages/errorreporting.cpp" line="+50"/>
        <location line="+5"/>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Unexpected exception occurred</source>
        <translation>예기치 않은 예외가 발생했습니다</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <location filename="../featuretree/toolbuttoneditor.cpp" line="+12"/>
        <source>Execute</source>
        <translation>실행</translation>
    </message>
</context>
</TS>
