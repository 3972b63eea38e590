<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>CameraSettings</name>
    <message>
        <location filename="../camerasettings/camerasettings.cpp" line="+50"/>
        <source>unspecified exception</source>
        <translation>不明な例外</translation>
    </message>
    <message numerus="yes">
        <location line="+309"/>
        <source>%1 values: %2 written, %3 already equal, %4 refused, %5 not present, %6 locked, %7 not reached; %n pass(es).</source>
        <translation>
            <numerusform>値 %1 個: 書き込み %2、既に同じ値 %3、拒否 %4、存在しない %5、ロック中 %6、未処理 %7。パス数 %n。</numerusform>
        </translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The file was saved from a %1; this camera is a %2.</source>
        <translation>ファイルは %1 から保存されたものです。このカメラは %2 です。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The restore stopped: %1</source>
        <translation>復元が中断されました: %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>written</source>
        <translation>書き込み済み</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>already equal</source>
        <translation>既に同じ値</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not present</source>
        <translation>存在しない</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>locked</source>
        <translation>ロック中</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not reached</source>
        <translation>未処理</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <location line="+152"/>
        <source>There is no node map to save.</source>
        <translation>保存するノードマップがありません。</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No node map answered.</source>
        <translation>応答したノードマップがありません。</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>this camera has no node map %1</source>
        <translation>このカメラにはノードマップ %1 がありません</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>this camera has no feature %1</source>
        <translation>このカメラには機能 %1 がありません</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>this camera has no selector %1</source>
        <translation>このカメラにはセレクター %1 がありません</translation>
    </message>
    <message>
        <location line="+55"/>
        <location line="+34"/>
        <location line="+34"/>
        <source>the camera stopped answering</source>
        <translation>カメラが応答しなくなりました</translation>
    </message>
    <message>
        <location line="-67"/>
        <location line="+34"/>
        <source>the camera stopped answering while %1 was being restored</source>
        <translation>%1 の復元中にカメラが応答しなくなりました</translation>
    </message>
    <message>
        <location line="-30"/>
        <source>the selector %1 cannot be read</source>
        <translation>セレクター %1 を読み取れません</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the selector %1 has no entry %2</source>
        <translation>セレクター %1 に項目 %2 がありません</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 cannot be set to %2: %3</source>
        <translation>%1 を %2 に設定できません: %3</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>the feature cannot be read</source>
        <translation>機能を読み取れません</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>not implemented on this camera</source>
        <translation>このカメラには実装されていません</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>not a value on this camera</source>
        <translation>このカメラでは有効な値ではありません</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>not writable now</source>
        <translation>現在は書き込みできません</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>the camera holds %1</source>
        <translation>カメラの値は %1 です</translation>
    </message>
    <message>
        <location line="+142"/>
        <source>The file is larger than a settings file may be (%1 bytes at most).</source>
        <translation>ファイルが設定ファイルの上限を超えています (最大 %1 バイト)。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is not valid JSON: %1 at byte %2; it may be truncated or damaged.</source>
        <translation>ファイルは有効な JSON ではありません: %2 バイト目で %1。途中で切れているか破損している可能性があります。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is not a camera settings file: its top level is not an object.</source>
        <translation>ファイルはカメラ設定ファイルではありません: 最上位がオブジェクトではありません。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file is not a camera settings file: &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>ファイルはカメラ設定ファイルではありません: &quot;format&quot; が &quot;%1&quot; ではありません。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;version&quot; must be a whole number from 1.</source>
        <translation>&quot;version&quot; は 1 以上の整数でなければなりません。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file has format version %1; this library reads versions up to %2.</source>
        <translation>ファイルの形式バージョンは %1 です。このライブラリが読めるのはバージョン %2 までです。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&quot;camera&quot; must be an object.</source>
        <translation>&quot;camera&quot; はオブジェクトでなければなりません。</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>&quot;camera.%1&quot; must be a text of at most %2 characters.</source>
        <translation>&quot;camera.%1&quot; は %2 文字以内のテキストでなければなりません。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&quot;saved&quot; must be a date and time in ISO 8601 form.</source>
        <translation>&quot;saved&quot; は ISO 8601 形式の日時でなければなりません。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;nodeMaps&quot; must be an array.</source>
        <translation>&quot;nodeMaps&quot; は配列でなければなりません。</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+15"/>
        <source>%1 must be an object.</source>
        <translation>%1 はオブジェクトでなければなりません。</translation>
    </message>
    <message>
        <location line="-11"/>
        <source>%1: &quot;name&quot; must be a node map name such as &quot;@CameraDevice&quot;.</source>
        <translation>%1: &quot;name&quot; は &quot;@CameraDevice&quot; のようなノードマップ名でなければなりません。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1: the node map %2 is given twice.</source>
        <translation>%1: ノードマップ %2 が 2 回指定されています。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 (%2): &quot;features&quot; must be an array.</source>
        <translation>%1 (%2): &quot;features&quot; は配列でなければなりません。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1: &quot;name&quot; must be a feature name of letters, digits and _ (at most %2).</source>
        <translation>%1: &quot;name&quot; は英字、数字、_ からなる機能名でなければなりません (最大 %2 文字)。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: &quot;%2&quot; must be a text.</source>
        <translation>%1: &quot;%2&quot; はテキストでなければなりません。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: &quot;%2&quot; must be at most %3 characters, without NUL.</source>
        <translation>%1: &quot;%2&quot; は NUL を含まない %3 文字以内でなければなりません。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1: a feature has either &quot;value&quot; or &quot;selector&quot; with &quot;values&quot;.</source>
        <translation>%1: 機能には &quot;value&quot; か、&quot;selector&quot; と &quot;values&quot; のどちらか一方が必要です。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1: the feature is given twice.</source>
        <translation>%1: 機能が 2 回指定されています。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: &quot;selector&quot; must be the name of another feature.</source>
        <translation>%1: &quot;selector&quot; は別の機能の名前でなければなりません。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1: &quot;values&quot; must be an array.</source>
        <translation>%1: &quot;values&quot; は配列でなければなりません。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: values[%2] must be an object.</source>
        <translation>%1: values[%2] はオブジェクトでなければなりません。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1: values[%2] has an empty &quot;entry&quot;.</source>
        <translation>%1: values[%2] の &quot;entry&quot; が空です。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: the entry %2 is given twice.</source>
        <translation>%1: 項目 %2 が 2 回指定されています。</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The file holds more than %1 values.</source>
        <translation>ファイルの値が %1 個を超えています。</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Cannot write %1: %2</source>
        <translation>%1 を書き込めません: %2</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+6"/>
        <source>Cannot read %1: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
</context>
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
        <location filename="../featuretree/doublecomboslider.cpp" line="+241"/>
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
        <location filename="../featuretree/featuretreeinodeitem.cpp" line="+341"/>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未実装&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&lt;not available&gt;</source>
        <translation>&lt;使用不可&gt;</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <location filename="../featuretree/featuretreemodel.cpp" line="+162"/>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <location line="+34"/>
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
        <location line="+131"/>
        <location line="+3"/>
        <source>Failed to get the node &apos;Root&apos; from the node map</source>
        <translation>ノードマップからノード &apos;Root&apos; を取得できませんでした</translation>
    </message>
    <message>
        <location line="+280"/>
        <location line="+153"/>
        <location line="+4"/>
        <location line="+4"/>
        <source>Favorites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <location line="-160"/>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose &apos;Add to Favorites&apos; from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;お気に入り&lt;/h3&gt;&lt;b&gt;このノードには、ユーザーが選んだ機能の一覧があります&lt;/b&gt;&lt;br&gt;&lt;br&gt;機能を追加するには、機能を右クリックし、コンテキストメニューから「お気に入りに追加」を選びます。ドラッグ＆ドロップでもお気に入りに追加できます。&lt;br&gt;項目を右クリックしてコンテキストメニューから操作を選ぶと、お気に入りを一覧の中で上下に移動したり、一覧から削除したりできます。</translation>
    </message>
    <message>
        <location line="+52"/>
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
        <location filename="../featuretree/featuretreeview.cpp" line="+595"/>
        <source>No search results found.</source>
        <translation>検索結果はありません。</translation>
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
        <location line="+388"/>
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
        <location line="+12"/>
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
        <location filename="../messages/messageboxcheckable.cpp" line="+57"/>
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
