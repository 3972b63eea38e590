<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>ComboSlider</name>
    <message>
        <location filename="../featuretree/comboslider.cpp" line="+184"/>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1..%2 (増分: %3)</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <location filename="../featuretree/doublecomboslider.cpp" line="+240"/>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <location filename="../featuretree/doublespinbox.cpp" line="+149"/>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1..%2 (増分: %3)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <location filename="../featuretree/featuretreeinodeitem.cpp" line="+188"/>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未実装&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&lt;not available&gt;</source>
        <translation>&lt;使用不可&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <location filename="../featuretree/featuretreemodel.cpp" line="+106"/>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+5"/>
        <source>Failed to get a feature value</source>
        <translation>機能の値を取得できませんでした</translation>
    </message>
    <message>
        <location line="+21"/>
        <location line="+3"/>
        <source>Failed to set a feature value.</source>
        <translation>機能の値を設定できませんでした。</translation>
    </message>
    <message>
        <location line="+124"/>
        <location line="+3"/>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>ノードマップからノード &apos;Root&apos; を取得できませんでした</translation>
    </message>
    <message>
        <location line="+268"/>
        <location line="+153"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <location line="-159"/>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;お気に入り&lt;/h3&gt;&lt;b&gt;このノードには、ユーザーが選んだ機能の一覧があります&lt;/b&gt;&lt;br&gt;&lt;br&gt;機能を追加するには、機能を右クリックし、コンテキストメニューから「お気に入りに追加」を選びます。ドラッグ＆ドロップでもお気に入りに追加できます。&lt;br&gt;項目を右クリックしてコンテキストメニューから操作を選ぶと、お気に入りを一覧の中で上下に移動したり、一覧から削除したりできます。</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>下の機能を右クリックしてお気に入りに追加します。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>機能を追加するには、機能を右クリックし、コンテキストメニューから「お気に入りに追加」を選びます。ドラッグ＆ドロップでもお気に入りに追加できます。</translation>
    </message>
    <message>
        <location line="+99"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2 (%3 件は現在のカメラでは使用できません)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2 (%3 件は現在のカメラでは使用できません)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <location filename="../featuretree/featuretreeview.cpp" line="+353"/>
        <source>No search results found.</source>
        <translation>検索結果はありません。</translation>
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
        <translation>お気に入りに追加</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Polling</source>
        <translation>ポーリング</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Search (%1)</source>
        <translation>検索 (%1)</translation>
    </message>
    <message>
        <location line="+354"/>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;検索結果 %1 件 (うち %2 件は上位のユーザーレベルで表示)&lt;/B&gt;</translation>
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
        <translation>使用できないお気に入りも表示</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>P&amp;olling</source>
        <translation>ポーリング(&amp;O)</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Refreshes the  feature tree</source>
        <translation>機能ツリーを更新します</translation>
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
        <translation>pNode の動的キャストに失敗しました。</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>最小値が最大値より大きくなっています。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</source>
        <translation>最小値が設定しようとする値より大きいか、最大値が設定しようとする値より小さくなっています。</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1..%2 (増分: %3)</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <location filename="../featuretree/floatslidereditor.cpp" line="+126"/>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>pNode の動的キャストに失敗しました。</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Could not retrieve an alias node on pNode</source>
        <translation>pNode のエイリアスノードを取得できませんでした</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The given range or increment information of the given pNode is not valid</source>
        <translation>pNode の範囲または増分の情報が無効です</translation>
    </message>
    <message>
        <location line="+47"/>
        <location line="+41"/>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>最小値が最大値より大きくなっています。</translation>
    </message>
    <message>
        <location line="-39"/>
        <location line="+41"/>
        <source>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</source>
        <translation>許容最小値が設定しようとする値より大きいか、許容最大値が設定しようとする値より小さくなっています。</translation>
    </message>
    <message>
        <location line="-36"/>
        <location line="+40"/>
        <source>The alias increment cannot be &apos;0&apos;!</source>
        <translation>エイリアスの増分を &apos;0&apos; にすることはできません。</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1..%2 (増分: %3)</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <location filename="../featuretree/inteditor.cpp" line="+28"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Range: 0x%1..0x%2</source>
        <translation>範囲: 0x%1..0x%2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
</context>
<context>
    <name>IpAddressWidgetClass</name>
    <message>
        <location filename="../network/ipaddresswidget.ui" line="+14"/>
        <source>IP Address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Please specify an IP address.</source>
        <translation>IP アドレスを指定してください。</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>&amp;MAC Address:</source>
        <translation>MAC アドレス(&amp;M):</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>IP &amp;Address:</source>
        <translation>IP アドレス(&amp;A):</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>&amp;Subnet Mask:</source>
        <translation>サブネットマスク(&amp;S):</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Default &amp;Gateway:</source>
        <translation>デフォルトゲートウェイ(&amp;G):</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <location filename="../messages/messageboxcheckable.cpp" line="+35"/>
        <location line="+9"/>
        <location line="+33"/>
        <source>&amp;Don&apos;t show this dialog again</source>
        <translation>今後このダイアログを表示しない(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../messages/errorreporting.cpp" line="+50"/>
        <location line="+5"/>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Unexpected exception occurred</source>
        <translation>予期しない例外が発生しました</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <location filename="../featuretree/toolbuttoneditor.cpp" line="+12"/>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
</context>
</TS>
