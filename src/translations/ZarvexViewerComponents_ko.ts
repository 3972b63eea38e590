<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>CameraSettings</name>
    <message>
        <location filename="../camerasettings/camerasettings.cpp" line="+50"/>
        <source>unspecified exception</source>
        <translation>알 수 없는 예외</translation>
    </message>
    <message numerus="yes">
        <location line="+309"/>
        <source>%1 values: %2 written, %3 already equal, %4 refused, %5 not present, %6 locked, %7 not reached; %n pass(es).</source>
        <translation>
            <numerusform>값 %1개: 기록 %2, 이미 같은 값 %3, 거부 %4, 없음 %5, 잠김 %6, 처리되지 않음 %7. 패스 %n회.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The file was saved from a %1; this camera is a %2.</source>
        <translation>파일은 %1에서 저장되었습니다. 이 카메라는 %2입니다.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The restore stopped: %1</source>
        <translation>복원이 중단되었습니다: %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>written</source>
        <translation>기록됨</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>already equal</source>
        <translation>이미 같은 값</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>refused</source>
        <translation>거부됨</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not present</source>
        <translation>없음</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>locked</source>
        <translation>잠김</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not reached</source>
        <translation>처리되지 않음</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <location line="+152"/>
        <source>There is no node map to save.</source>
        <translation>저장할 노드 맵이 없습니다.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No node map answered.</source>
        <translation>응답한 노드 맵이 없습니다.</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>this camera has no node map %1</source>
        <translation>이 카메라에는 노드 맵 %1이(가) 없습니다</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>this camera has no feature %1</source>
        <translation>이 카메라에는 기능 %1이(가) 없습니다</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>this camera has no selector %1</source>
        <translation>이 카메라에는 셀렉터 %1이(가) 없습니다</translation>
    </message>
    <message>
        <location line="+55"/>
        <location line="+34"/>
        <location line="+34"/>
        <source>the camera stopped answering</source>
        <translation>카메라가 응답을 멈췄습니다</translation>
    </message>
    <message>
        <location line="-67"/>
        <location line="+34"/>
        <source>the camera stopped answering while %1 was being restored</source>
        <translation>%1을(를) 복원하는 중에 카메라가 응답을 멈췄습니다</translation>
    </message>
    <message>
        <location line="-30"/>
        <source>the selector %1 cannot be read</source>
        <translation>셀렉터 %1을(를) 읽을 수 없습니다</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the selector %1 has no entry %2</source>
        <translation>셀렉터 %1에 항목 %2이(가) 없습니다</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 cannot be set to %2: %3</source>
        <translation>%1을(를) %2(으)로 설정할 수 없습니다: %3</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>the feature cannot be read</source>
        <translation>기능을 읽을 수 없습니다</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>not implemented on this camera</source>
        <translation>이 카메라에는 구현되어 있지 않습니다</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>not a value on this camera</source>
        <translation>이 카메라에서는 유효한 값이 아닙니다</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>not writable now</source>
        <translation>지금은 쓸 수 없습니다</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>the camera holds %1</source>
        <translation>카메라의 값은 %1입니다</translation>
    </message>
    <message>
        <location line="+142"/>
        <source>The file is larger than a settings file may be (%1 bytes at most).</source>
        <translation>파일이 설정 파일의 최대 크기를 넘습니다 (최대 %1바이트).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file is empty.</source>
        <translation>파일이 비어 있습니다.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is not valid JSON: %1 at byte %2; it may be truncated or damaged.</source>
        <translation>파일이 유효한 JSON이 아닙니다: %2번째 바이트에서 %1. 잘렸거나 손상되었을 수 있습니다.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is not a camera settings file: its top level is not an object.</source>
        <translation>파일이 카메라 설정 파일이 아닙니다: 최상위가 객체가 아닙니다.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file is not a camera settings file: &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>파일이 카메라 설정 파일이 아닙니다: &quot;format&quot;이 &quot;%1&quot;이(가) 아닙니다.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;version&quot; must be a whole number from 1.</source>
        <translation>&quot;version&quot;은 1 이상의 정수여야 합니다.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file has format version %1; this library reads versions up to %2.</source>
        <translation>파일 형식 버전은 %1입니다. 이 라이브러리는 버전 %2까지만 읽을 수 있습니다.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&quot;camera&quot; must be an object.</source>
        <translation>&quot;camera&quot;는 객체여야 합니다.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>&quot;camera.%1&quot; must be a text of at most %2 characters.</source>
        <translation>&quot;camera.%1&quot;은(는) %2자 이하의 텍스트여야 합니다.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&quot;saved&quot; must be a date and time in ISO 8601 form.</source>
        <translation>&quot;saved&quot;는 ISO 8601 형식의 날짜와 시간이어야 합니다.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;nodeMaps&quot; must be an array.</source>
        <translation>&quot;nodeMaps&quot;는 배열이어야 합니다.</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+15"/>
        <source>%1 must be an object.</source>
        <translation>%1은(는) 객체여야 합니다.</translation>
    </message>
    <message>
        <location line="-11"/>
        <source>%1: &quot;name&quot; must be a node map name such as &quot;@CameraDevice&quot;.</source>
        <translation>%1: &quot;name&quot;은 &quot;@CameraDevice&quot;와 같은 노드 맵 이름이어야 합니다.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: the node map %2 is given twice.</source>
        <translation>%1: 노드 맵 %2이(가) 두 번 지정되었습니다.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 (%2): &quot;features&quot; must be an array.</source>
        <translation>%1 (%2): &quot;features&quot;는 배열이어야 합니다.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1: &quot;name&quot; must be a feature name of letters, digits and _ (at most %2).</source>
        <translation>%1: &quot;name&quot;은 영문자, 숫자, _로 된 기능 이름이어야 합니다 (최대 %2자).</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: &quot;%2&quot; must be a text.</source>
        <translation>%1: &quot;%2&quot;은(는) 텍스트여야 합니다.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: &quot;%2&quot; must be at most %3 characters, without NUL.</source>
        <translation>%1: &quot;%2&quot;은(는) NUL 없이 %3자 이하여야 합니다.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1: a feature has either &quot;value&quot; or &quot;selector&quot; with &quot;values&quot;.</source>
        <translation>%1: 기능에는 &quot;value&quot; 또는 &quot;selector&quot;와 &quot;values&quot; 중 하나만 있어야 합니다.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1: the feature is given twice.</source>
        <translation>%1: 기능이 두 번 지정되었습니다.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: &quot;selector&quot; must be the name of another feature.</source>
        <translation>%1: &quot;selector&quot;는 다른 기능의 이름이어야 합니다.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1: &quot;values&quot; must be an array.</source>
        <translation>%1: &quot;values&quot;는 배열이어야 합니다.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: values[%2] must be an object.</source>
        <translation>%1: values[%2]는 객체여야 합니다.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1: values[%2] has an empty &quot;entry&quot;.</source>
        <translation>%1: values[%2]의 &quot;entry&quot;가 비어 있습니다.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: the entry %2 is given twice.</source>
        <translation>%1: 항목 %2이(가) 두 번 지정되었습니다.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The file holds more than %1 values.</source>
        <translation>파일에 값이 %1개보다 많습니다.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Cannot write %1: %2</source>
        <translation>%1을(를) 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+6"/>
        <source>Cannot read %1: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
</context>
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
        <location filename="../featuretree/doublecomboslider.cpp" line="+241"/>
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
        <location filename="../featuretree/featuretreeinodeitem.cpp" line="+341"/>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;구현되지 않음&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;읽을 수 없음&gt;</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&lt;not available&gt;</source>
        <translation>&lt;사용할 수 없음&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <location filename="../featuretree/featuretreemodel.cpp" line="+162"/>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <location line="+34"/>
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
        <location line="+131"/>
        <location line="+3"/>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>노드 맵에서 노드 &apos;Root&apos;를 가져오지 못했습니다</translation>
    </message>
    <message>
        <location line="+280"/>
        <location line="+153"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorites</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <location line="-160"/>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;즐겨찾기&lt;/h3&gt;&lt;b&gt;이 노드에는 사용자가 선택한 기능 목록이 있습니다&lt;/b&gt;&lt;br&gt;&lt;br&gt;기능을 추가하려면 기능을 마우스 오른쪽 버튼으로 클릭하고 컨텍스트 메뉴에서 &apos;즐겨찾기에 추가&apos;를 선택하십시오. 끌어서 놓기로도 즐겨찾기에 추가할 수 있습니다.&lt;br&gt;항목을 마우스 오른쪽 버튼으로 클릭하고 컨텍스트 메뉴에서 해당 옵션을 선택하면 즐겨찾기를 목록 안에서 위아래로 옮기거나 목록에서 제거할 수 있습니다.</translation>
    </message>
    <message>
        <location line="+52"/>
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
        <location filename="../featuretree/featuretreeview.cpp" line="+595"/>
        <source>No search results found.</source>
        <translation>검색 결과가 없습니다.</translation>
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
        <location line="+388"/>
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
        <location line="+12"/>
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
        <location filename="../messages/messageboxcheckable.cpp" line="+57"/>
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
