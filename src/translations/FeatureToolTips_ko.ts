<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>CameraDevice</name>
    <message>
        <source>AcquisitionFrameRate_Tooltip</source>
        <translation>카메라의 촬영 속도(초당 프레임)입니다.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateEnable_Tooltip</source>
        <translation>프레임 속도를 AcquisitionFrameRate 값으로 제한합니다.</translation>
    </message>
    <message>
        <source>AcquisitionMode_Tooltip</source>
        <translation>한 장, 정해진 장 수, 또는 멈출 때까지 계속 촬영할지 정합니다.</translation>
    </message>
    <message>
        <source>AcquisitionStart_Tooltip</source>
        <translation>촬영을 시작합니다.</translation>
    </message>
    <message>
        <source>AcquisitionStop_Tooltip</source>
        <translation>현재 이미지 다음에 촬영을 멈춥니다.</translation>
    </message>
    <message>
        <source>BalanceRatio_Tooltip</source>
        <translation>화이트 밸런스용으로, 선택한 색 채널의 상대 게인입니다.</translation>
    </message>
    <message>
        <source>BalanceRatioSelector_Tooltip</source>
        <translation>BalanceRatio가 설정할 색 채널을 선택합니다.</translation>
    </message>
    <message>
        <source>BalanceWhiteAuto_Tooltip</source>
        <translation>카메라가 화이트 밸런스를 스스로 맞춥니다: 끄기, 한 번, 연속.</translation>
    </message>
    <message>
        <source>BinningHorizontal_Tooltip</source>
        <translation>한 픽셀로 합치는 인접 열의 수입니다.</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>한 픽셀로 합치는 인접 행의 수입니다.</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>모든 픽셀 값에 더하는 오프셋으로, 가장 어두운 부분을 올리거나 내립니다.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>카메라 펌웨어의 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>카메라의 모델 이름입니다.</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>카메라를 다시 시작합니다. 돌아올 때까지 연결이 끊깁니다.</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>카메라의 일련번호입니다.</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>카메라 안 선택한 위치의 온도(섭씨)입니다.</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>카메라에 저장되는, 사용자가 붙이는 카메라 이름입니다.</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>카메라 제조사 이름입니다.</translation>
    </message>
    <message>
        <source>ExposureAuto_Tooltip</source>
        <translation>카메라가 노출 시간을 스스로 맞춥니다: 끄기, 한 번, 연속.</translation>
    </message>
    <message>
        <source>ExposureMode_Tooltip</source>
        <translation>노출 제어 방식: 노출 시간 또는 트리거 신호 폭.</translation>
    </message>
    <message>
        <source>ExposureTime_Tooltip</source>
        <translation>이미지 한 장마다 센서가 빛을 모으는 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>Gain_Tooltip</source>
        <translation>센서 신호의 증폭량입니다. 높이면 이미지가 밝아지지만 노이즈도 늘어납니다.</translation>
    </message>
    <message>
        <source>GainAuto_Tooltip</source>
        <translation>카메라가 게인을 스스로 맞춥니다: 끄기, 한 번, 연속.</translation>
    </message>
    <message>
        <source>GainSelector_Tooltip</source>
        <translation>Gain 기능이 설정할 게인을 선택합니다.</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>픽셀 값의 감마 보정입니다.</translation>
    </message>
    <message>
        <source>GevCurrentDefaultGateway_Tooltip</source>
        <translation>카메라가 지금 쓰는 기본 게이트웨이입니다.</translation>
    </message>
    <message>
        <source>GevCurrentIPAddress_Tooltip</source>
        <translation>카메라가 지금 쓰는 IP 주소입니다.</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>카메라가 지금 쓰는 서브넷 마스크입니다.</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>카메라가 보내는 이미지의 높이(픽셀)입니다.</translation>
    </message>
    <message>
        <source>OffsetX_Tooltip</source>
        <translation>센서에서 이미지 영역의 가로 위치(왼쪽부터 픽셀 수)입니다.</translation>
    </message>
    <message>
        <source>OffsetY_Tooltip</source>
        <translation>센서에서 이미지 영역의 세로 위치(위쪽부터 픽셀 수)입니다.</translation>
    </message>
    <message>
        <source>PixelFormat_Tooltip</source>
        <translation>카메라가 보내는 이미지의 픽셀 형식입니다.</translation>
    </message>
    <message>
        <source>ReverseX_Tooltip</source>
        <translation>이미지를 좌우로 뒤집습니다.</translation>
    </message>
    <message>
        <source>ReverseY_Tooltip</source>
        <translation>이미지를 상하로 뒤집습니다.</translation>
    </message>
    <message>
        <source>TriggerActivation_Tooltip</source>
        <translation>트리거를 일으키는 신호의 에지 또는 레벨입니다.</translation>
    </message>
    <message>
        <source>TriggerDelay_Tooltip</source>
        <translation>트리거부터 노출 시작까지의 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>트리거가 들어올 때만 촬영할지 여부입니다.</translation>
    </message>
    <message>
        <source>TriggerSelector_Tooltip</source>
        <translation>다른 트리거 기능이 설정할 트리거를 선택합니다.</translation>
    </message>
    <message>
        <source>TriggerSoftware_Tooltip</source>
        <translation>애플리케이션에서 트리거를 보냅니다.</translation>
    </message>
    <message>
        <source>TriggerSource_Tooltip</source>
        <translation>트리거가 오는 곳: 라인, 소프트웨어, 카운터 또는 타이머.</translation>
    </message>
    <message>
        <source>UserSetLoad_Tooltip</source>
        <translation>선택한 사용자 세트를 카메라에 불러옵니다.</translation>
    </message>
    <message>
        <source>UserSetSave_Tooltip</source>
        <translation>현재 설정을 선택한 사용자 세트에 저장합니다.</translation>
    </message>
    <message>
        <source>UserSetSelector_Tooltip</source>
        <translation>불러오거나 저장할 사용자 세트를 선택합니다.</translation>
    </message>
    <message>
        <source>Width_Tooltip</source>
        <translation>카메라가 보내는 이미지의 너비(픽셀)입니다.</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>전송 계층에서의 카메라 식별자입니다.</translation>
    </message>
    <message>
        <source>GevDeviceIPAddress_Tooltip</source>
        <translation>호스트에서 본 카메라의 IP 주소입니다.</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>하트비트 없이 이 시간(밀리초)이 지나면 카메라가 연결을 끊습니다.</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>그래버가 할당하는 이미지 버퍼 수입니다.</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>빠진 패킷을 다시 요청하기 전에 기다리는 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>Statistic_Total_Buffer_Count_Tooltip</source>
        <translation>통계를 마지막으로 초기화한 뒤 받은 버퍼 수입니다.</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>NumBuffer_Tooltip</source>
        <translation>들어오는 이벤트용으로 두는 버퍼 수입니다.</translation>
    </message>
    <message>
        <source>RetryCount_Tooltip</source>
        <translation>이벤트를 포기하기 전에 다시 요청하는 횟수입니다.</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>이벤트 응답을 기다리는 시간(밀리초)입니다.</translation>
    </message>
</context>
<context>
    <name>ImageFormatConverter</name>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>변환할 때 적용하는 감마 보정입니다.</translation>
    </message>
    <message>
        <source>MaxNumThreads_Tooltip</source>
        <translation>변환기가 쓸 수 있는 최대 스레드 수입니다.</translation>
    </message>
    <message>
        <source>OutputPixelFormat_Tooltip</source>
        <translation>변환된 이미지의 픽셀 형식입니다.</translation>
    </message>
</context>
</TS>
