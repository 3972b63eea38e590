<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>CameraDevice</name>
    <message>
        <source>AcquisitionAbort_Tooltip</source>
        <translation>촬영을 즉시 중단합니다. 찍고 있던 이미지는 잃습니다.</translation>
    </message>
    <message>
        <source>AcquisitionFrameCount_Tooltip</source>
        <translation>멀티 프레임 모드에서 찍는 이미지 수입니다.</translation>
    </message>
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
        <source>ActionDeviceKey_Tooltip</source>
        <translation>카메라가 액션 명령을 받아들이기 위한 키입니다.</translation>
    </message>
    <message>
        <source>AutoTargetBrightness_Tooltip</source>
        <translation>자동 노출과 자동 게인이 맞추려는 평균 밝기입니다.</translation>
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
        <source>ChunkEnable_Tooltip</source>
        <translation>선택한 청크를 각 이미지에 넣습니다.</translation>
    </message>
    <message>
        <source>ChunkModeActive_Tooltip</source>
        <translation>활성화한 청크 데이터를 모든 이미지에 붙입니다.</translation>
    </message>
    <message>
        <source>ChunkSelector_Tooltip</source>
        <translation>켜거나 끌 청크를 선택합니다.</translation>
    </message>
    <message>
        <source>ChunkTimestamp_Tooltip</source>
        <translation>마지막 이미지의 타임스탬프(청크에서)입니다.</translation>
    </message>
    <message>
        <source>CounterEventSource_Tooltip</source>
        <translation>선택한 카운터가 세는 신호입니다.</translation>
    </message>
    <message>
        <source>CounterReset_Tooltip</source>
        <translation>선택한 카운터를 0으로 되돌립니다.</translation>
    </message>
    <message>
        <source>CounterSelector_Tooltip</source>
        <translation>설정할 카운터를 선택합니다.</translation>
    </message>
    <message>
        <source>CounterValue_Tooltip</source>
        <translation>선택한 카운터의 현재 값입니다.</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>카메라가 속한 제품군입니다.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>카메라 펌웨어의 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>카메라 제조사의 추가 정보입니다.</translation>
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
        <source>DeviceScanType_Tooltip</source>
        <translation>센서가 영역 단위로 찍는지 라인 단위로 찍는지입니다.</translation>
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
        <source>DeviceVersion_Tooltip</source>
        <translation>카메라의 하드웨어 버전입니다.</translation>
    </message>
    <message>
        <source>EncoderDivider_Tooltip</source>
        <translation>엔코더 스텝을 n번마다 한 번만 셉니다.</translation>
    </message>
    <message>
        <source>EncoderMode_Tooltip</source>
        <translation>엔코더 신호의 에지를 세는 방식입니다.</translation>
    </message>
    <message>
        <source>EncoderOutputMode_Tooltip</source>
        <translation>엔코더가 어떤 움직임일 때 출력 펄스를 내는지입니다.</translation>
    </message>
    <message>
        <source>EncoderReset_Tooltip</source>
        <translation>엔코더 위치를 0으로 되돌립니다.</translation>
    </message>
    <message>
        <source>EncoderSelector_Tooltip</source>
        <translation>설정할 엔코더를 선택합니다.</translation>
    </message>
    <message>
        <source>EncoderSourceA_Tooltip</source>
        <translation>엔코더 A상 신호의 입력 라인입니다.</translation>
    </message>
    <message>
        <source>EncoderSourceB_Tooltip</source>
        <translation>엔코더 B상 신호의 입력 라인입니다.</translation>
    </message>
    <message>
        <source>EncoderStatus_Tooltip</source>
        <translation>엔코더가 도는 방향입니다.</translation>
    </message>
    <message>
        <source>EncoderValue_Tooltip</source>
        <translation>엔코더의 현재 위치입니다.</translation>
    </message>
    <message>
        <source>EventAcquisitionEnd_Tooltip</source>
        <translation>"Acquisition End" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventAcquisitionEndData_Tooltip</source>
        <translation>"Acquisition End" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventAcquisitionEndTimestamp_Tooltip</source>
        <translation>마지막 "Acquisition End" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventAcquisitionStart_Tooltip</source>
        <translation>"Acquisition Start" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventAcquisitionStartData_Tooltip</source>
        <translation>"Acquisition Start" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventAcquisitionStartTimestamp_Tooltip</source>
        <translation>마지막 "Acquisition Start" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventCounter0End_Tooltip</source>
        <translation>"Counter 0 End" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventCounter0EndData_Tooltip</source>
        <translation>"Counter 0 End" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventCounter0EndTimestamp_Tooltip</source>
        <translation>마지막 "Counter 0 End" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventCriticalTemperature_Tooltip</source>
        <translation>"Critical Temperature" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventCriticalTemperatureData_Tooltip</source>
        <translation>"Critical Temperature" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventCriticalTemperatureTimestamp_Tooltip</source>
        <translation>마지막 "Critical Temperature" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventEventOverrun_Tooltip</source>
        <translation>"Event Overrun" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventEventOverrunData_Tooltip</source>
        <translation>"Event Overrun" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventEventOverrunTimestamp_Tooltip</source>
        <translation>마지막 "Event Overrun" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventExposureEnd_Tooltip</source>
        <translation>"Exposure End" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventExposureEndData_Tooltip</source>
        <translation>"Exposure End" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventExposureEndFrameID_Tooltip</source>
        <translation>마지막 "Exposure End" 이벤트가 속한 이미지입니다.</translation>
    </message>
    <message>
        <source>EventExposureEndTimestamp_Tooltip</source>
        <translation>마지막 "Exposure End" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventExposureStart_Tooltip</source>
        <translation>"Exposure Start" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventExposureStartData_Tooltip</source>
        <translation>"Exposure Start" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventExposureStartFrameID_Tooltip</source>
        <translation>마지막 "Exposure Start" 이벤트가 속한 이미지입니다.</translation>
    </message>
    <message>
        <source>EventExposureStartTimestamp_Tooltip</source>
        <translation>마지막 "Exposure Start" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventFrameBurstStart_Tooltip</source>
        <translation>"Frame Burst Start" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventFrameBurstStartData_Tooltip</source>
        <translation>"Frame Burst Start" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventFrameBurstStartFrameID_Tooltip</source>
        <translation>마지막 "Frame Burst Start" 이벤트가 속한 이미지입니다.</translation>
    </message>
    <message>
        <source>EventFrameBurstStartTimestamp_Tooltip</source>
        <translation>마지막 "Frame Burst Start" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventFrameEnd_Tooltip</source>
        <translation>"Frame End" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventFrameEndData_Tooltip</source>
        <translation>"Frame End" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventFrameEndFrameID_Tooltip</source>
        <translation>마지막 "Frame End" 이벤트가 속한 이미지입니다.</translation>
    </message>
    <message>
        <source>EventFrameEndTimestamp_Tooltip</source>
        <translation>마지막 "Frame End" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventFrameStart_Tooltip</source>
        <translation>"Frame Start" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventFrameStartData_Tooltip</source>
        <translation>"Frame Start" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventFrameStartFrameID_Tooltip</source>
        <translation>마지막 "Frame Start" 이벤트가 속한 이미지입니다.</translation>
    </message>
    <message>
        <source>EventFrameStartTimestamp_Tooltip</source>
        <translation>마지막 "Frame Start" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissed_Tooltip</source>
        <translation>"Frame Trigger Missed" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedData_Tooltip</source>
        <translation>"Frame Trigger Missed" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedFrameID_Tooltip</source>
        <translation>마지막 "Frame Trigger Missed" 이벤트가 속한 이미지입니다.</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedTimestamp_Tooltip</source>
        <translation>마지막 "Frame Trigger Missed" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventLine0RisingEdge_Tooltip</source>
        <translation>"Line 0 Rising Edge" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeData_Tooltip</source>
        <translation>"Line 0 Rising Edge" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeTimestamp_Tooltip</source>
        <translation>마지막 "Line 0 Rising Edge" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventLine2RisingEdge_Tooltip</source>
        <translation>"Line 2 Rising Edge" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventLine2RisingEdgeData_Tooltip</source>
        <translation>"Line 2 Rising Edge" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventLine2RisingEdgeTimestamp_Tooltip</source>
        <translation>마지막 "Line 2 Rising Edge" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventNotification_Tooltip</source>
        <translation>선택한 이벤트를 카메라가 애플리케이션에 알릴지 여부입니다.</translation>
    </message>
    <message>
        <source>EventOverTemperature_Tooltip</source>
        <translation>"Over Temperature" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventOverTemperatureData_Tooltip</source>
        <translation>"Over Temperature" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventOverTemperatureTimestamp_Tooltip</source>
        <translation>마지막 "Over Temperature" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventSelector_Tooltip</source>
        <translation>알림을 설정할 이벤트를 선택합니다.</translation>
    </message>
    <message>
        <source>EventTest_Tooltip</source>
        <translation>"Test" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventTestData_Tooltip</source>
        <translation>"Test" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventTestTimestamp_Tooltip</source>
        <translation>마지막 "Test" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventTimer0End_Tooltip</source>
        <translation>"Timer 0 End" 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>EventTimer0EndData_Tooltip</source>
        <translation>"Timer 0 End" 이벤트와 함께 카메라가 알리는 내용입니다.</translation>
    </message>
    <message>
        <source>EventTimer0EndTimestamp_Tooltip</source>
        <translation>마지막 "Timer 0 End" 이벤트의 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>EventsGeneration_Tooltip</source>
        <translation>"Generation" 이벤트의 식별자입니다.</translation>
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
        <source>LUTEnable_Tooltip</source>
        <translation>선택한 룩업 테이블을 픽셀 값에 적용합니다.</translation>
    </message>
    <message>
        <source>LUTIndex_Tooltip</source>
        <translation>LUTValue가 읽고 쓰는 룩업 테이블 항목입니다.</translation>
    </message>
    <message>
        <source>LUTSelector_Tooltip</source>
        <translation>설정할 룩업 테이블을 선택합니다.</translation>
    </message>
    <message>
        <source>LUTValue_Tooltip</source>
        <translation>LUTIndex로 고른 룩업 테이블 항목의 값입니다.</translation>
    </message>
    <message>
        <source>LineInverter_Tooltip</source>
        <translation>선택한 라인의 신호를 반전합니다.</translation>
    </message>
    <message>
        <source>LineMode_Tooltip</source>
        <translation>선택한 라인이 입력인지 출력인지입니다.</translation>
    </message>
    <message>
        <source>LineSelector_Tooltip</source>
        <translation>설정할 I/O 라인을 선택합니다.</translation>
    </message>
    <message>
        <source>LineSource_Tooltip</source>
        <translation>선택한 출력 라인으로 내보내는 카메라 내부 신호입니다.</translation>
    </message>
    <message>
        <source>LineStatus_Tooltip</source>
        <translation>선택한 라인의 현재 레벨입니다.</translation>
    </message>
    <message>
        <source>LineStatusAll_Tooltip</source>
        <translation>모든 라인의 레벨을 라인당 1비트로 나타냅니다.</translation>
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
        <source>PtpEnable_Tooltip</source>
        <translation>PTP로 카메라 시계를 네트워크에 동기화합니다.</translation>
    </message>
    <message>
        <source>PtpStatus_Tooltip</source>
        <translation>PTP 시계 동기화 상태입니다.</translation>
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
        <source>SoftwareSignalPulse_Tooltip</source>
        <translation>선택한 소프트웨어 신호에 펄스를 보냅니다.</translation>
    </message>
    <message>
        <source>SoftwareSignalSelector_Tooltip</source>
        <translation>펄스를 낼 소프트웨어 신호를 선택합니다.</translation>
    </message>
    <message>
        <source>TimerDelay_Tooltip</source>
        <translation>시작 신호부터 선택한 타이머의 펄스까지의 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>TimerDuration_Tooltip</source>
        <translation>선택한 타이머의 펄스 길이(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>TimerSelector_Tooltip</source>
        <translation>설정할 타이머를 선택합니다.</translation>
    </message>
    <message>
        <source>TimerTriggerSource_Tooltip</source>
        <translation>선택한 타이머를 시작시키는 신호입니다.</translation>
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
        <source>UserOutputSelector_Tooltip</source>
        <translation>설정할 사용자 출력을 선택합니다.</translation>
    </message>
    <message>
        <source>UserOutputValue_Tooltip</source>
        <translation>선택한 사용자 출력의 레벨입니다.</translation>
    </message>
    <message>
        <source>UserSetDefault_Tooltip</source>
        <translation>전원을 켤 때 카메라가 불러오는 사용자 세트입니다.</translation>
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
