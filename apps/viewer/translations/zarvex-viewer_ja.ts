<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>CameraSettingsCommands</name>
    <message>
        <location filename="../camerasettingscommands.cpp" line="+16"/>
        <source>Camera settings (*.json);;All files (*)</source>
        <translation>カメラ設定 (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>No camera is open.</source>
        <translation>カメラが開かれていません。</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Camera Settings</source>
        <translation>カメラ設定</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The file cannot be used; nothing was written to the camera.

%1</source>
        <translation>このファイルは使用できません。カメラには何も書き込まれていません。

%1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Save Camera Settings</source>
        <translation>カメラ設定の保存</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Load Camera Settings</source>
        <translation>カメラ設定の読み込み</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Compare With File</source>
        <translation>ファイルと比較</translation>
    </message>
</context>
<context>
    <name>CameraSettingsCompareDialog</name>
    <message>
        <location filename="../camerasettingscomparedialog.ui" line="+9"/>
        <source>Compare Camera With File</source>
        <translation>カメラとファイルの比較</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selector entry</source>
        <translation>セレクターの項目</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>On the camera</source>
        <translation>カメラ上の値</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>In the file</source>
        <translation>ファイル内の値</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Check &amp;All</source>
        <translation>すべてチェック(&amp;A)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Check &amp;None</source>
        <translation>すべて解除(&amp;N)</translation>
    </message>
    <message>
        <location filename="../camerasettingscomparedialog.cpp" line="+17"/>
        <source>(empty)</source>
        <translation>(空)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Apply Checked</source>
        <translation>チェックした値を適用(&amp;A)</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>(not present)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The camera holds every value of %1.</source>
        <translation>カメラは %1 のすべての値を保持しています。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>One value of %1 differs from the camera. If it is checked, it is written when you apply it.</source>
        <translation>%1 の値が 1 つカメラと異なります。チェックされていれば、適用時に書き込まれます。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 values of %2 differ from the camera. The checked ones are written when you apply them.</source>
        <translation>%2 の %1 個の値がカメラと異なります。チェックした値は適用時に書き込まれます。</translation>
    </message>
</context>
<context>
    <name>CameraSettingsReportDialog</name>
    <message>
        <location filename="../camerasettingsreportdialog.ui" line="+9"/>
        <source>Camera Settings Restored</source>
        <translation>カメラ設定の復元結果</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Show only values not restored</source>
        <translation>復元されなかった値のみ表示</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <location filename="../camerasettingsreportdialog.cpp" line="+30"/>
        <source>The restore stopped: %1</source>
        <translation>復元が中断されました: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Every value of the file is on the camera.</source>
        <translation>ファイルのすべての値がカメラに反映されています。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 of %2 values are on the camera; the others are listed with the reason.</source>
        <translation>%2 個中 %1 個の値がカメラに反映されています。残りは理由とともに一覧表示されます。</translation>
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
        <translation>ブール値</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Float</source>
        <translation>浮動小数点数</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>String</source>
        <translation>文字列</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enumeration</source>
        <translation>列挙</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+18"/>
        <location line="+16"/>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <location line="-26"/>
        <source>Read and write</source>
        <translation>読み書き可能</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Read only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write only</source>
        <translation>書き込み専用</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not available</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not implemented</source>
        <translation>未実装</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Beginner</source>
        <translation>初級</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expert</source>
        <translation>上級</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Guru</source>
        <translation>エキスパート</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invisible</source>
        <translation>非表示</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>Display name:</source>
        <translation>表示名:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description:</source>
        <translation>説明:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Type:</source>
        <translation>型:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value:</source>
        <translation>値:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range:</source>
        <translation>範囲:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Increment:</source>
        <translation>増分:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unit:</source>
        <translation>単位:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Access:</source>
        <translation>アクセス:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Visibility:</source>
        <translation>可視性:</translation>
    </message>
    <message>
        <location line="+49"/>
        <location line="+3"/>
        <source>%1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>none</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>PixelConverter</name>
    <message>
        <location filename="../pixelconverter.cpp" line="+110"/>
        <source>The pixel format %1 cannot be shown.</source>
        <translation>ピクセル形式 %1 は表示できません。</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The frame is incomplete.</source>
        <translation>フレームが不完全です。</translation>
    </message>
</context>
<context>
    <name>ViewerMainWindow</name>
    <message>
        <location filename="../viewermainwindow.ui" line="+6"/>
        <location filename="../viewermainwindow.cpp" line="+712"/>
        <location line="+74"/>
        <source>Zarvex Viewer</source>
        <translation>Zarvex ビューアー</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>&amp;Cameras:</source>
        <translation>カメラ(&amp;C):</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>User &amp;level:</source>
        <translation>ユーザーレベル(&amp;L):</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Beginner</source>
        <translation>初級</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Expert</source>
        <translation>上級</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Guru</source>
        <translation>エキスパート</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Acquisition</source>
        <translation>取り込み(&amp;A)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>&amp;Simulate</source>
        <translation>シミュレーション(&amp;S)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Acquisition</source>
        <translation>取り込み</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>&amp;Search Features</source>
        <translation>機能を検索(&amp;S)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Start Acquisition</source>
        <translation>取り込み開始(&amp;S)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>S&amp;top Acquisition</source>
        <translation>取り込み停止(&amp;T)</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>Start the acquisition (F7)</source>
        <translation>取り込みを開始 (F7)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Stop the acquisition (F8)</source>
        <translation>取り込みを停止 (F8)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Fit to Window</source>
        <translation>ウィンドウに合わせる(&amp;F)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fit the picture to the pane (Ctrl+0)</source>
        <translation>画像をペインに合わせる (Ctrl+0)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Actual Size (100 %)</source>
        <translation>実際のサイズ (100 %)(&amp;A)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>One camera pixel per screen pixel (Ctrl+1)</source>
        <translation>カメラの 1 画素を画面の 1 画素で表示 (Ctrl+1)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Open Device Description...</source>
        <translation>デバイス記述を開く(&amp;O)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Save Camera Settings...</source>
        <translation>カメラ設定を保存(&amp;S)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Load Camera Settings...</source>
        <translation>カメラ設定を読み込む(&amp;L)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Compare &amp;With File...</source>
        <translation>ファイルと比較(&amp;W)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Polling</source>
        <translation>ポーリング(&amp;P)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Show &amp;Unavailable Favorites</source>
        <translation>利用できないお気に入りを表示(&amp;U)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Copy Whole Tree</source>
        <translation>ツリー全体をコピー(&amp;C)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;IP Configuration...</source>
        <translation>IP 設定(&amp;I)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Ask a &amp;Question...</source>
        <translation>質問する(&amp;Q)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Reset All &apos;Don&apos;t Show Again&apos; Answers</source>
        <translation>「今後表示しない」の回答をすべてリセット(&amp;R)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;English</source>
        <translation>英語 (English)(&amp;E)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Japanese (日本語)</source>
        <translation>日本語(&amp;J)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Korean (한국어)</source>
        <translation>韓国語 (한국어)(&amp;K)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Chinese (中文)</source>
        <translation>中国語 (中文)(&amp;C)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Unplug Camera</source>
        <translation>カメラを取り外す(&amp;U)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Replug Camera</source>
        <translation>カメラを再接続(&amp;R)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Fault on Current Feature</source>
        <translation>現在の機能に障害を起こす(&amp;F)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>C&amp;lear Faults</source>
        <translation>障害を解除(&amp;L)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Change Value on Device...</source>
        <translation>デバイス上の値を変更(&amp;C)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <location filename="../viewermainwindow.cpp" line="-609"/>
        <source>Looking for cameras...</source>
        <translation>カメラを探しています...</translation>
    </message>
    <message numerus="yes">
        <location line="+4"/>
        <source>%n camera(s) found</source>
        <translation>
            <numerusform>%n 台のカメラが見つかりました</numerusform>
        </translation>
    </message>
    <message>
        <location line="+29"/>
        <source>No Aravis camera was found.</source>
        <translation>Aravis カメラが見つかりませんでした。</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The Aravis camera %1 was not found.</source>
        <translation>Aravis カメラ %1 が見つかりませんでした。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The Aravis camera %1 cannot be opened.</source>
        <translation>Aravis カメラ %1 を開けません。</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>This viewer was built without Aravis.</source>
        <translation>このビューアーは Aravis なしでビルドされています。</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Opening the camera...</source>
        <translation>カメラを開いています...</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>The camera cannot be opened: %1</source>
        <translation>カメラを開けません: %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+7"/>
        <source>The camera is gone: %1</source>
        <translation>カメラが失われました: %1</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Opened %1</source>
        <translation>%1 を開きました</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>The camera has no %1</source>
        <translation>カメラに %1 がありません</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 could not be run.</source>
        <translation>%1 を実行できませんでした。</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The acquisition cannot start: %1</source>
        <translation>取り込みを開始できません: %1</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>%1 frames, %2 fps, %3 lost</source>
        <translation>%1 フレーム、%2 fps、%3 欠落</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>x %1, y %2: %3</source>
        <translation>x %1、y %2: %3</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>No camera is open.</source>
        <translation>カメラが開かれていません。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>This camera sends no pictures to the viewer.</source>
        <translation>このカメラはビューアーに画像を送りません。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Waiting for the first frame...</source>
        <translation>最初のフレームを待っています...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Press Start Acquisition (F7) to see the picture.</source>
        <translation>画像を見るには「取り込み開始」(F7) を押してください。</translation>
    </message>
    <message>
        <location line="+98"/>
        <location line="+6"/>
        <source>Open Device Description</source>
        <translation>デバイス記述を開く</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Device descriptions (*.json);;All files (*)</source>
        <translation>デバイス記述 (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The device description cannot be used:
%1</source>
        <translation>このデバイス記述は使用できません:
%1</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Copy &amp;Name</source>
        <translation>名前をコピー(&amp;N)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copy &amp;Value</source>
        <translation>値をコピー(&amp;V)</translation>
    </message>
    <message numerus="yes">
        <location line="+16"/>
        <source>%n match(es), %1 hidden by the level</source>
        <translation>
            <numerusform>%n 件一致、うち %1 件はレベルにより非表示</numerusform>
        </translation>
    </message>
    <message>
        <location line="+53"/>
        <source>IP Configuration</source>
        <translation>IP 設定</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The camera does not let %1 be written.</source>
        <translation>カメラは %1 への書き込みを許可していません。</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 could not be written.</source>
        <translation>%1 を書き込めませんでした。</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>IP configuration written to the camera</source>
        <translation>IP 設定をカメラに書き込みました</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Start the acquisition with the present settings?</source>
        <translation>現在の設定で取り込みを開始しますか?</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Answered yes</source>
        <translation>「はい」と回答しました</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Answered no</source>
        <translation>「いいえ」と回答しました</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Every question will be asked again</source>
        <translation>すべての質問が再び表示されます</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The camera is unplugged</source>
        <translation>カメラを取り外しました</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The camera is plugged in again</source>
        <translation>カメラを再接続しました</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+21"/>
        <source>Select a feature first</source>
        <translation>先に機能を選択してください</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Writing %1 now fails</source>
        <translation>%1 への書き込みは失敗するようになりました</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Faults cleared</source>
        <translation>障害を解除しました</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Change Value on Device</source>
        <translation>デバイス上の値を変更</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>New value of %1:</source>
        <translation>%1 の新しい値:</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The camera does not take %1 for %2</source>
        <translation>カメラは %2 に %1 を受け付けません</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>About Zarvex Viewer</source>
        <translation>Zarvex ビューアーについて</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zarvex Viewer shows and edits the features of a camera with the ZarvexViewerComponents library.</source>
        <translation>Zarvex ビューアーは ZarvexViewerComponents ライブラリを使ってカメラの機能を表示・編集します。</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Simulated camera (%1)</source>
        <translation>シミュレーションカメラ (%1)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 (simulated)</source>
        <translation>%1 (シミュレーション)</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../main.cpp" line="+121"/>
        <source>cannot write %1</source>
        <translation>%1 を書き込めません</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>no camera could be opened</source>
        <translation>カメラを開けませんでした</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the camera showed no picture within %1 s; no screenshot was taken</source>
        <translation>カメラは %1 秒以内に画像を表示しませんでした。スクリーンショットは撮影されていません</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>no camera was open within %1 s; no screenshot was taken</source>
        <translation>%1 秒以内にカメラが開かれませんでした。スクリーンショットは撮影されていません</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Shows the features of a simulated or a real camera.</source>
        <translation>シミュレーションカメラまたは実際のカメラの機能を表示します。</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Transport-layer type: GEV, U3V, IIDC, CamEmu, ...</source>
        <translation>トランスポート層の種類: GEV、U3V、IIDC、CamEmu など</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>type</source>
        <translation>種類</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A device description of your own (JSON).</source>
        <translation>独自のデバイス記述 (JSON)。</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+8"/>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Deepest level printed.</source>
        <translation>出力する最も深い階層。</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>levels</source>
        <translation>階層数</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Print the node maps as a tree instead of opening a window.</source>
        <translation>ウィンドウを開かずにノードマップをツリーとして出力します。</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open the camera, save a picture of the window to the PNG file and exit.</source>
        <translation>カメラを開き、ウィンドウの画像を PNG ファイルに保存して終了します。</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Language of the window: en, ja, ko or zh.</source>
        <translation>ウィンドウの言語: en、ja、ko、zh。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show a real camera through Aravis instead of the simulated one: the camera named by [id], else the first one found.</source>
        <translation>シミュレーションカメラの代わりに Aravis 経由で実際のカメラを表示します: [id] で指定したカメラ、なければ最初に見つかったカメラ。</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>With --screenshot: seconds to wait for the camera and its first frame.</source>
        <translation>--screenshot と共に: カメラと最初のフレームを待つ秒数。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aravis id of the camera (with --aravis).</source>
        <translation>カメラの Aravis ID (--aravis と共に)。</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>[id]</source>
        <translation>[id]</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Found %1 (%2, %3)</source>
        <translation>%1 を検出 (%2、%3)</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Aravis camera %1, transport layer %2</source>
        <translation>Aravis カメラ %1、トランスポート層 %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+29"/>
        <source>(%1 features shown)</source>
        <translation>(%1 個の機能を表示)</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>built without Aravis (install libaravis-dev and configure with ZVC_BUILD_ARAVIS=ON)</source>
        <translation>Aravis なしでビルドされています (libaravis-dev をインストールし、ZVC_BUILD_ARAVIS=ON で構成してください)</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Simulated camera, transport layer %1</source>
        <translation>シミュレーションカメラ、トランスポート層 %1</translation>
    </message>
</context>
</TS>
