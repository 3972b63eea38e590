<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>CameraSettingsCommands</name>
    <message>
        <location filename="../camerasettingscommands.cpp" line="+16"/>
        <source>Camera settings (*.json);;All files (*)</source>
        <translation>카메라 설정 (*.json);;모든 파일 (*)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>No camera is open.</source>
        <translation>열린 카메라가 없습니다.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Camera Settings</source>
        <translation>카메라 설정</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The file cannot be used; nothing was written to the camera.

%1</source>
        <translation>이 파일은 사용할 수 없습니다. 카메라에 아무것도 쓰지 않았습니다.

%1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Save Camera Settings</source>
        <translation>카메라 설정 저장</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Load Camera Settings</source>
        <translation>카메라 설정 불러오기</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Compare With File</source>
        <translation>파일과 비교</translation>
    </message>
</context>
<context>
    <name>CameraSettingsCompareDialog</name>
    <message>
        <location filename="../camerasettingscomparedialog.ui" line="+9"/>
        <source>Compare Camera With File</source>
        <translation>카메라와 파일 비교</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selector entry</source>
        <translation>셀렉터 항목</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>On the camera</source>
        <translation>카메라의 값</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>In the file</source>
        <translation>파일의 값</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Check &amp;All</source>
        <translation>모두 선택(&amp;A)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Check &amp;None</source>
        <translation>모두 해제(&amp;N)</translation>
    </message>
    <message>
        <location filename="../camerasettingscomparedialog.cpp" line="+17"/>
        <source>(empty)</source>
        <translation>(비어 있음)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Apply Checked</source>
        <translation>선택한 값 적용(&amp;A)</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>(not present)</source>
        <translation>(없음)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The camera holds every value of %1.</source>
        <translation>카메라에 %1의 모든 값이 있습니다.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>One value of %1 differs from the camera. If it is checked, it is written when you apply it.</source>
        <translation>%1의 값 하나가 카메라와 다릅니다. 선택되어 있으면 적용할 때 기록됩니다.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 values of %2 differ from the camera. The checked ones are written when you apply them.</source>
        <translation>%2의 값 %1개가 카메라와 다릅니다. 선택한 값은 적용할 때 기록됩니다.</translation>
    </message>
</context>
<context>
    <name>CameraSettingsReportDialog</name>
    <message>
        <location filename="../camerasettingsreportdialog.ui" line="+9"/>
        <source>Camera Settings Restored</source>
        <translation>카메라 설정 복원 결과</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Show only values not restored</source>
        <translation>복원되지 않은 값만 표시</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <location filename="../camerasettingsreportdialog.cpp" line="+30"/>
        <source>The restore stopped: %1</source>
        <translation>복원이 중단되었습니다: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Every value of the file is on the camera.</source>
        <translation>파일의 모든 값이 카메라에 반영되었습니다.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 of %2 values are on the camera; the others are listed with the reason.</source>
        <translation>값 %2개 중 %1개가 카메라에 반영되었습니다. 나머지는 이유와 함께 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>FeaturePane</name>
    <message>
        <location filename="../featurepane.cpp" line="+20"/>
        <source>Integer</source>
        <translation>정수</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Boolean</source>
        <translation>불리언</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Float</source>
        <translation>부동소수점</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>String</source>
        <translation>문자열</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enumeration</source>
        <translation>열거형</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Category</source>
        <translation>카테고리</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+18"/>
        <location line="+16"/>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <location line="-26"/>
        <source>Read and write</source>
        <translation>읽기 및 쓰기</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Read only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write only</source>
        <translation>쓰기 전용</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not implemented</source>
        <translation>구현되지 않음</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Beginner</source>
        <translation>초급</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expert</source>
        <translation>전문가</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Guru</source>
        <translation>구루</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invisible</source>
        <translation>숨김</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>Display name:</source>
        <translation>표시 이름:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Name:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description:</source>
        <translation>설명:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Type:</source>
        <translation>유형:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value:</source>
        <translation>값:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Range:</source>
        <translation>범위:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Increment:</source>
        <translation>증분:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unit:</source>
        <translation>단위:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Access:</source>
        <translation>접근:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Visibility:</source>
        <translation>표시 수준:</translation>
    </message>
    <message>
        <location line="+49"/>
        <location line="+3"/>
        <source>%1 to %2</source>
        <translation>%1 ~ %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>none</source>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>PixelConverter</name>
    <message>
        <location filename="../pixelconverter.cpp" line="+110"/>
        <source>The pixel format %1 cannot be shown.</source>
        <translation>픽셀 형식 %1은(는) 표시할 수 없습니다.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The frame is incomplete.</source>
        <translation>프레임이 불완전합니다.</translation>
    </message>
</context>
<context>
    <name>ViewerMainWindow</name>
    <message>
        <location filename="../viewermainwindow.ui" line="+6"/>
        <location filename="../viewermainwindow.cpp" line="+712"/>
        <location line="+74"/>
        <source>Zarvex Viewer</source>
        <translation>Zarvex 뷰어</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>&amp;Cameras:</source>
        <translation>카메라(&amp;C):</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>User &amp;level:</source>
        <translation>사용자 수준(&amp;L):</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Beginner</source>
        <translation>초급</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Expert</source>
        <translation>전문가</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Guru</source>
        <translation>구루</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Acquisition</source>
        <translation>수집(&amp;A)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Tools</source>
        <translation>도구(&amp;T)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>&amp;Simulate</source>
        <translation>시뮬레이션(&amp;S)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Acquisition</source>
        <translation>수집</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>&amp;Search Features</source>
        <translation>기능 검색(&amp;S)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Start Acquisition</source>
        <translation>수집 시작(&amp;S)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>S&amp;top Acquisition</source>
        <translation>수집 중지(&amp;T)</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>Start the acquisition (F7)</source>
        <translation>수집 시작 (F7)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Stop the acquisition (F8)</source>
        <translation>수집 중지 (F8)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Fit to Window</source>
        <translation>창에 맞추기(&amp;F)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fit the picture to the pane (Ctrl+0)</source>
        <translation>그림을 창에 맞춤 (Ctrl+0)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Actual Size (100 %)</source>
        <translation>실제 크기 (100 %)(&amp;A)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>One camera pixel per screen pixel (Ctrl+1)</source>
        <translation>카메라 픽셀 하나를 화면 픽셀 하나로 (Ctrl+1)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Zoom &amp;In</source>
        <translation>확대(&amp;I)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Zoom &amp;Out</source>
        <translation>축소(&amp;O)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Open Device Description...</source>
        <translation>장치 설명 열기(&amp;O)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Save Camera Settings...</source>
        <translation>카메라 설정 저장(&amp;S)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Load Camera Settings...</source>
        <translation>카메라 설정 불러오기(&amp;L)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Compare &amp;With File...</source>
        <translation>파일과 비교(&amp;W)...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Quit</source>
        <translation>끝내기(&amp;Q)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Polling</source>
        <translation>폴링(&amp;P)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Show &amp;Unavailable Favorites</source>
        <translation>사용할 수 없는 즐겨찾기 표시(&amp;U)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Copy Whole Tree</source>
        <translation>전체 트리 복사(&amp;C)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;IP Configuration...</source>
        <translation>IP 구성(&amp;I)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Ask a &amp;Question...</source>
        <translation>질문하기(&amp;Q)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Reset All &apos;Don&apos;t Show Again&apos; Answers</source>
        <translation>&apos;다시 표시 안 함&apos; 응답 모두 초기화(&amp;R)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;English</source>
        <translation>영어 (English)(&amp;E)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Japanese (日本語)</source>
        <translation>일본어 (日本語)(&amp;J)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Korean (한국어)</source>
        <translation>한국어(&amp;K)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Chinese (中文)</source>
        <translation>중국어 (中文)(&amp;C)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Unplug Camera</source>
        <translation>카메라 분리(&amp;U)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Replug Camera</source>
        <translation>카메라 다시 연결(&amp;R)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Fault on Current Feature</source>
        <translation>현재 기능에 오류 발생(&amp;F)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>C&amp;lear Faults</source>
        <translation>오류 해제(&amp;L)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Change Value on Device...</source>
        <translation>장치에서 값 변경(&amp;C)...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;About</source>
        <translation>정보(&amp;A)</translation>
    </message>
    <message>
        <location filename="../viewermainwindow.cpp" line="-609"/>
        <source>Looking for cameras...</source>
        <translation>카메라를 찾는 중...</translation>
    </message>
    <message numerus="yes">
        <location line="+4"/>
        <source>%n camera(s) found</source>
        <translation>
            <numerusform>카메라 %n대를 찾았습니다</numerusform>
        </translation>
    </message>
    <message>
        <location line="+29"/>
        <source>No Aravis camera was found.</source>
        <translation>Aravis 카메라를 찾지 못했습니다.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The Aravis camera %1 was not found.</source>
        <translation>Aravis 카메라 %1을(를) 찾지 못했습니다.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The Aravis camera %1 cannot be opened.</source>
        <translation>Aravis 카메라 %1을(를) 열 수 없습니다.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>This viewer was built without Aravis.</source>
        <translation>이 뷰어는 Aravis 없이 빌드되었습니다.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Opening the camera...</source>
        <translation>카메라를 여는 중...</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>The camera cannot be opened: %1</source>
        <translation>카메라를 열 수 없습니다: %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+7"/>
        <source>The camera is gone: %1</source>
        <translation>카메라 연결이 끊어졌습니다: %1</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Opened %1</source>
        <translation>%1을(를) 열었습니다</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>The camera has no %1</source>
        <translation>카메라에 %1이(가) 없습니다</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 could not be run.</source>
        <translation>%1을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The acquisition cannot start: %1</source>
        <translation>수집을 시작할 수 없습니다: %1</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>%1 frames, %2 fps, %3 lost</source>
        <translation>%1 프레임, %2 fps, %3 손실</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>x %1, y %2: %3</source>
        <translation>X %1, Y %2 위치의 값: %3</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>No camera is open.</source>
        <translation>열린 카메라가 없습니다.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>This camera sends no pictures to the viewer.</source>
        <translation>이 카메라는 뷰어에 그림을 보내지 않습니다.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Waiting for the first frame...</source>
        <translation>첫 프레임을 기다리는 중...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Press Start Acquisition (F7) to see the picture.</source>
        <translation>그림을 보려면 수집 시작(F7)을 누르십시오.</translation>
    </message>
    <message>
        <location line="+98"/>
        <location line="+6"/>
        <source>Open Device Description</source>
        <translation>장치 설명 열기</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Device descriptions (*.json);;All files (*)</source>
        <translation>장치 설명 (*.json);;모든 파일 (*)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The device description cannot be used:
%1</source>
        <translation>장치 설명을 사용할 수 없습니다:
%1</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Copy &amp;Name</source>
        <translation>이름 복사(&amp;N)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copy &amp;Value</source>
        <translation>값 복사(&amp;V)</translation>
    </message>
    <message numerus="yes">
        <location line="+16"/>
        <source>%n match(es), %1 hidden by the level</source>
        <translation>
            <numerusform>%n개 일치, 그중 %1개는 수준에 의해 숨겨짐</numerusform>
        </translation>
    </message>
    <message>
        <location line="+53"/>
        <source>IP Configuration</source>
        <translation>IP 구성</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The camera does not let %1 be written.</source>
        <translation>카메라가 %1 쓰기를 허용하지 않습니다.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 could not be written.</source>
        <translation>%1을(를) 쓸 수 없습니다.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>IP configuration written to the camera</source>
        <translation>IP 구성을 카메라에 기록했습니다</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Start the acquisition with the present settings?</source>
        <translation>현재 설정으로 수집을 시작하시겠습니까?</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Answered yes</source>
        <translation>&quot;예&quot;라고 응답했습니다</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Answered no</source>
        <translation>&quot;아니요&quot;라고 응답했습니다</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Every question will be asked again</source>
        <translation>모든 질문을 다시 묻습니다</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The camera is unplugged</source>
        <translation>카메라가 분리되었습니다</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The camera is plugged in again</source>
        <translation>카메라가 다시 연결되었습니다</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+21"/>
        <source>Select a feature first</source>
        <translation>먼저 기능을 선택하십시오</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Writing %1 now fails</source>
        <translation>이제 %1 쓰기가 실패합니다</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Faults cleared</source>
        <translation>오류가 해제되었습니다</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Change Value on Device</source>
        <translation>장치에서 값 변경</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>New value of %1:</source>
        <translation>%1의 새 값:</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The camera does not take %1 for %2</source>
        <translation>카메라가 %2에 %1을(를) 받아들이지 않습니다</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>About Zarvex Viewer</source>
        <translation>Zarvex 뷰어 정보</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zarvex Viewer shows and edits the features of a camera with the ZarvexViewerComponents library.</source>
        <translation>Zarvex 뷰어는 ZarvexViewerComponents 라이브러리로 카메라의 기능을 표시하고 편집합니다.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Simulated camera (%1)</source>
        <translation>시뮬레이션 카메라 (%1)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 (simulated)</source>
        <translation>%1 (시뮬레이션)</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../main.cpp" line="+121"/>
        <source>cannot write %1</source>
        <translation>%1을(를) 쓸 수 없습니다</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>no camera could be opened</source>
        <translation>카메라를 열 수 없습니다</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the camera showed no picture within %1 s; no screenshot was taken</source>
        <translation>카메라가 %1초 안에 그림을 표시하지 않았습니다. 스크린샷을 찍지 않았습니다</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>no camera was open within %1 s; no screenshot was taken</source>
        <translation>%1초 안에 카메라가 열리지 않았습니다. 스크린샷을 찍지 않았습니다</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Shows the features of a simulated or a real camera.</source>
        <translation>시뮬레이션 카메라 또는 실제 카메라의 기능을 표시합니다.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Transport-layer type: GEV, U3V, IIDC, CamEmu, ...</source>
        <translation>전송 계층 유형: GEV, U3V, IIDC, CamEmu, ...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>type</source>
        <translation>유형</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A device description of your own (JSON).</source>
        <translation>직접 만든 장치 설명 (JSON).</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+8"/>
        <source>file</source>
        <translation>파일</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Deepest level printed.</source>
        <translation>출력할 가장 깊은 수준.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>levels</source>
        <translation>수준 수</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Print the node maps as a tree instead of opening a window.</source>
        <translation>창을 여는 대신 노드 맵을 트리로 출력합니다.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open the camera, save a picture of the window to the PNG file and exit.</source>
        <translation>카메라를 열고 창의 그림을 PNG 파일로 저장한 후 종료합니다.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Language of the window: en, ja, ko or zh.</source>
        <translation>창의 언어: en, ja, ko 또는 zh.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>code</source>
        <translation>코드</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show a real camera through Aravis instead of the simulated one: the camera named by [id], else the first one found.</source>
        <translation>시뮬레이션 카메라 대신 Aravis를 통해 실제 카메라를 표시합니다: [id]로 지정한 카메라, 없으면 처음 찾은 카메라.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>With --screenshot: seconds to wait for the camera and its first frame.</source>
        <translation>--screenshot과 함께: 카메라와 첫 프레임을 기다릴 초.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>seconds</source>
        <translation>초</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aravis id of the camera (with --aravis).</source>
        <translation>카메라의 Aravis ID (--aravis와 함께).</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>[id]</source>
        <translation>[id]</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Found %1 (%2, %3)</source>
        <translation>%1 발견 (%2, %3)</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Aravis camera %1, transport layer %2</source>
        <translation>Aravis 카메라 %1, 전송 계층 %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+29"/>
        <source>(%1 features shown)</source>
        <translation>(기능 %1개 표시)</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>built without Aravis (install libaravis-dev and configure with ZVC_BUILD_ARAVIS=ON)</source>
        <translation>Aravis 없이 빌드되었습니다 (libaravis-dev를 설치하고 ZVC_BUILD_ARAVIS=ON으로 구성하십시오)</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Simulated camera, transport layer %1</source>
        <translation>시뮬레이션 카메라, 전송 계층 %1</translation>
    </message>
</context>
</TS>
