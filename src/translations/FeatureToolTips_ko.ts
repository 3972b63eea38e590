<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>CameraDevice</name>
    <message>
        <source>ADCBitDepth_Tooltip</source>
        <translation>A/D 변환기의 분해능(비트)입니다.</translation>
    </message>
    <message>
        <source>AcquisitionAbort_Tooltip</source>
        <translation>촬영을 즉시 중단합니다. 찍고 있던 이미지는 잃습니다.</translation>
    </message>
    <message>
        <source>AcquisitionBurstFrameCount_Tooltip</source>
        <translation>버스트 트리거 한 번마다 찍는 이미지 수입니다.</translation>
    </message>
    <message>
        <source>AcquisitionControl_Tooltip</source>
        <translation>촬영, 트리거, 노출입니다.</translation>
    </message>
    <message>
        <source>AcquisitionFrameCount_Tooltip</source>
        <translation>멀티 프레임 모드에서 찍는 이미지 수입니다.</translation>
    </message>
    <message>
        <source>AcquisitionFrameCounter_Tooltip</source>
        <translation>카메라를 켠 뒤 찍은 이미지 수입니다.</translation>
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
        <source>AcquisitionStatus_Tooltip</source>
        <translation>카메라가 촬영 중이면 참입니다.</translation>
    </message>
    <message>
        <source>TLParamsLocked_Tooltip</source>
        <translation>수집 중에는 1이며, 그동안 이미지의 크기와 형식을 바꿀 수 없습니다.</translation>
    </message>
    <message>
        <source>AcquisitionStop_Tooltip</source>
        <translation>현재 이미지 다음에 촬영을 멈춥니다.</translation>
    </message>
    <message>
        <source>ActionControl_Tooltip</source>
        <translation>네트워크로 보내는 액션 명령입니다.</translation>
    </message>
    <message>
        <source>ActionDeviceKey_Tooltip</source>
        <translation>카메라가 액션 명령을 받아들이기 위한 키입니다.</translation>
    </message>
    <message>
        <source>ActionGroupKey_Tooltip</source>
        <translation>선택한 액션의 그룹 키입니다.</translation>
    </message>
    <message>
        <source>ActionGroupMask_Tooltip</source>
        <translation>선택한 액션의 그룹 마스크입니다.</translation>
    </message>
    <message>
        <source>ActionQueueSize_Tooltip</source>
        <translation>카메라가 보관할 수 있는 예약된 액션 명령 수입니다.</translation>
    </message>
    <message>
        <source>ActionSelector_Tooltip</source>
        <translation>설정할 액션을 선택합니다.</translation>
    </message>
    <message>
        <source>ActionUnconditionalMode_Tooltip</source>
        <translation>어떤 애플리케이션도 제어하지 않을 때도 액션 명령을 받습니다.</translation>
    </message>
    <message>
        <source>AnalogControl_Tooltip</source>
        <translation>게인, 블랙 레벨, 감마, 색입니다.</translation>
    </message>
    <message>
        <source>AutoExposureTimeLowerLimit_Tooltip</source>
        <translation>자동 노출이 고를 수 있는 가장 짧은 노출 시간입니다.</translation>
    </message>
    <message>
        <source>AutoExposureTimeUpperLimit_Tooltip</source>
        <translation>자동 노출이 고를 수 있는 가장 긴 노출 시간입니다.</translation>
    </message>
    <message>
        <source>AutoFunctionControl_Tooltip</source>
        <translation>자동 기능의 목표, 한계, 영역입니다.</translation>
    </message>
    <message>
        <source>AutoFunctionProfile_Tooltip</source>
        <translation>자동 제어가 게인과 노출 시간 중 무엇을 낮게 유지할지입니다.</translation>
    </message>
    <message>
        <source>AutoFunctionROIHeight_Tooltip</source>
        <translation>선택한 자동 기능 영역의 높이(픽셀)입니다.</translation>
    </message>
    <message>
        <source>AutoFunctionROIOffsetX_Tooltip</source>
        <translation>선택한 자동 기능 영역의 가로 위치입니다.</translation>
    </message>
    <message>
        <source>AutoFunctionROIOffsetY_Tooltip</source>
        <translation>선택한 자동 기능 영역의 세로 위치입니다.</translation>
    </message>
    <message>
        <source>AutoFunctionROISelector_Tooltip</source>
        <translation>자동 기능이 살펴볼 이미지 영역을 선택합니다.</translation>
    </message>
    <message>
        <source>AutoFunctionROIUseBrightness_Tooltip</source>
        <translation>자동 노출과 자동 게인이 선택한 영역을 살펴봅니다.</translation>
    </message>
    <message>
        <source>AutoFunctionROIUseWhiteBalance_Tooltip</source>
        <translation>자동 화이트 밸런스가 선택한 영역을 살펴봅니다.</translation>
    </message>
    <message>
        <source>AutoFunctionROIWidth_Tooltip</source>
        <translation>선택한 자동 기능 영역의 너비(픽셀)입니다.</translation>
    </message>
    <message>
        <source>AutoGainLowerLimit_Tooltip</source>
        <translation>자동 게인이 고를 수 있는 가장 낮은 게인입니다.</translation>
    </message>
    <message>
        <source>AutoGainUpperLimit_Tooltip</source>
        <translation>자동 게인이 고를 수 있는 가장 높은 게인입니다.</translation>
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
        <source>BandwidthAllocation_Tooltip</source>
        <translation>버스에서 카메라용으로 확보한 등시성 대역폭입니다.</translation>
    </message>
    <message>
        <source>BinningHorizontal_Tooltip</source>
        <translation>한 픽셀로 합치는 인접 열의 수입니다.</translation>
    </message>
    <message>
        <source>BinningHorizontalMode_Tooltip</source>
        <translation>비닝한 열을 합치는 방식: 합산 또는 평균.</translation>
    </message>
    <message>
        <source>BinningSelector_Tooltip</source>
        <translation>비닝을 수행하는 곳(센서 또는 카메라 로직)을 선택합니다.</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>한 픽셀로 합치는 인접 행의 수입니다.</translation>
    </message>
    <message>
        <source>BinningVerticalMode_Tooltip</source>
        <translation>비닝한 행을 합치는 방식: 합산 또는 평균.</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>모든 픽셀 값에 더하는 오프셋으로, 가장 어두운 부분을 올리거나 내립니다.</translation>
    </message>
    <message>
        <source>BlackLevelAuto_Tooltip</source>
        <translation>카메라가 블랙 레벨을 스스로 맞춥니다.</translation>
    </message>
    <message>
        <source>BlackLevelSelector_Tooltip</source>
        <translation>BlackLevel이 설정할 블랙 레벨을 선택합니다.</translation>
    </message>
    <message>
        <source>CameraEmulation_Tooltip</source>
        <translation>에뮬레이트 카메라가 이미지를 가져오는 곳입니다.</translation>
    </message>
    <message>
        <source>CenterX_Tooltip</source>
        <translation>이미지 영역을 가로 가운데에 둡니다. 그러면 OffsetX는 자동으로 정해집니다.</translation>
    </message>
    <message>
        <source>CenterY_Tooltip</source>
        <translation>이미지 영역을 세로 가운데에 둡니다. 그러면 OffsetY는 자동으로 정해집니다.</translation>
    </message>
    <message>
        <source>ChunkCounterSelector_Tooltip</source>
        <translation>ChunkCounterValue가 보여 줄 카운터를 선택합니다.</translation>
    </message>
    <message>
        <source>ChunkCounterValue_Tooltip</source>
        <translation>마지막 이미지를 노출할 때 선택한 카운터의 값입니다.</translation>
    </message>
    <message>
        <source>ChunkData_Tooltip</source>
        <translation>마지막 이미지의 청크에서 읽은 값입니다.</translation>
    </message>
    <message>
        <source>ChunkDataControl_Tooltip</source>
        <translation>모든 이미지에 붙이는 데이터입니다.</translation>
    </message>
    <message>
        <source>ChunkDataStreams_Tooltip</source>
        <translation>마지막 이미지의 청크에서 읽은 스트림 값입니다.</translation>
    </message>
    <message>
        <source>ChunkEnable_Tooltip</source>
        <translation>선택한 청크를 각 이미지에 넣습니다.</translation>
    </message>
    <message>
        <source>ChunkExposureTime_Tooltip</source>
        <translation>마지막 이미지의 노출 시간(청크에서)입니다.</translation>
    </message>
    <message>
        <source>ChunkFrameID_Tooltip</source>
        <translation>마지막 이미지의 번호입니다.</translation>
    </message>
    <message>
        <source>ChunkGain_Tooltip</source>
        <translation>마지막 이미지의 게인(청크에서)입니다.</translation>
    </message>
    <message>
        <source>ChunkGainSelector_Tooltip</source>
        <translation>ChunkGain이 보여 줄 게인을 선택합니다.</translation>
    </message>
    <message>
        <source>ChunkHeight_Tooltip</source>
        <translation>마지막 이미지의 높이(청크에서)입니다.</translation>
    </message>
    <message>
        <source>ChunkLineStatusAll_Tooltip</source>
        <translation>마지막 이미지를 노출할 때 모든 라인의 레벨입니다.</translation>
    </message>
    <message>
        <source>ChunkModeActive_Tooltip</source>
        <translation>활성화한 청크 데이터를 모든 이미지에 붙입니다.</translation>
    </message>
    <message>
        <source>ChunkOffsetX_Tooltip</source>
        <translation>마지막 이미지의 가로 위치(청크에서)입니다.</translation>
    </message>
    <message>
        <source>ChunkOffsetY_Tooltip</source>
        <translation>마지막 이미지의 세로 위치(청크에서)입니다.</translation>
    </message>
    <message>
        <source>ChunkPayloadCRC16_Tooltip</source>
        <translation>마지막 이미지 데이터의 체크섬입니다.</translation>
    </message>
    <message>
        <source>ChunkPixelFormat_Tooltip</source>
        <translation>마지막 이미지의 픽셀 형식(청크에서)입니다.</translation>
    </message>
    <message>
        <source>ChunkSelector_Tooltip</source>
        <translation>켜거나 끌 청크를 선택합니다.</translation>
    </message>
    <message>
        <source>ChunkStride_Tooltip</source>
        <translation>마지막 이미지에서 한 라인의 시작부터 다음 라인까지의 바이트 수입니다.</translation>
    </message>
    <message>
        <source>ChunkTimestamp_Tooltip</source>
        <translation>마지막 이미지의 타임스탬프(청크에서)입니다.</translation>
    </message>
    <message>
        <source>ChunkWidth_Tooltip</source>
        <translation>마지막 이미지의 너비(청크에서)입니다.</translation>
    </message>
    <message>
        <source>ColorControls_Tooltip</source>
        <translation>화이트 밸런스와 색 처리입니다.</translation>
    </message>
    <message>
        <source>ColorTransformationControl_Tooltip</source>
        <translation>색 변환 행렬입니다.</translation>
    </message>
    <message>
        <source>ColorTransformationEnable_Tooltip</source>
        <translation>색 변환 행렬을 적용합니다.</translation>
    </message>
    <message>
        <source>ColorTransformationSelector_Tooltip</source>
        <translation>아래 기능이 설정할 색 변환을 선택합니다.</translation>
    </message>
    <message>
        <source>ColorTransformationValue_Tooltip</source>
        <translation>선택한 행렬 계수의 값입니다.</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector_Tooltip</source>
        <translation>행렬의 계수를 선택합니다.</translation>
    </message>
    <message>
        <source>CounterAndTimerControl_Tooltip</source>
        <translation>카운터와 타이머입니다.</translation>
    </message>
    <message>
        <source>CounterControls_Tooltip</source>
        <translation>이벤트 카운터입니다.</translation>
    </message>
    <message>
        <source>CounterDuration_Tooltip</source>
        <translation>선택한 카운터가 멈추는 값입니다.</translation>
    </message>
    <message>
        <source>CounterEventActivation_Tooltip</source>
        <translation>세는 신호의 어느 에지에서 1을 더할지입니다.</translation>
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
        <source>CounterResetActivation_Tooltip</source>
        <translation>리셋 신호의 어느 에지에서 카운터를 되돌릴지입니다.</translation>
    </message>
    <message>
        <source>CounterResetSource_Tooltip</source>
        <translation>선택한 카운터를 0으로 되돌리는 신호입니다.</translation>
    </message>
    <message>
        <source>CounterSelector_Tooltip</source>
        <translation>설정할 카운터를 선택합니다.</translation>
    </message>
    <message>
        <source>CounterStatus_Tooltip</source>
        <translation>선택한 카운터의 상태입니다.</translation>
    </message>
    <message>
        <source>CounterValue_Tooltip</source>
        <translation>선택한 카운터의 현재 값입니다.</translation>
    </message>
    <message>
        <source>CounterValueAtReset_Tooltip</source>
        <translation>마지막으로 리셋했을 때 선택한 카운터의 값입니다.</translation>
    </message>
    <message>
        <source>DecimationHorizontal_Tooltip</source>
        <translation>n열마다 한 열만 읽어 냅니다.</translation>
    </message>
    <message>
        <source>DecimationVertical_Tooltip</source>
        <translation>n행마다 한 행만 읽어 냅니다.</translation>
    </message>
    <message>
        <source>DefectPixelCorrectionMode_Tooltip</source>
        <translation>알려진 불량 픽셀의 값을 바꿉니다.</translation>
    </message>
    <message>
        <source>DemosaicingMode_Tooltip</source>
        <translation>카메라 안에서 베이어 패턴으로 풀 컬러를 구하는 방식입니다.</translation>
    </message>
    <message>
        <source>DeviceCharacterSet_Tooltip</source>
        <translation>카메라에 저장된 문자열의 문자 집합입니다.</translation>
    </message>
    <message>
        <source>DeviceClockFrequency_Tooltip</source>
        <translation>선택한 클록의 주파수입니다.</translation>
    </message>
    <message>
        <source>DeviceClockSelector_Tooltip</source>
        <translation>주파수를 표시할 클록을 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceControl_Tooltip</source>
        <translation>카메라의 식별 정보와 일반 설정입니다.</translation>
    </message>
    <message>
        <source>DeviceEventChannelCount_Tooltip</source>
        <translation>카메라의 이벤트 채널 수입니다.</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>카메라가 속한 제품군입니다.</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceEnd_Tooltip</source>
        <translation>기능 값을 카메라에 저장하는 것을 마칩니다.</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceStart_Tooltip</source>
        <translation>현재 기능 값을 카메라에 저장하기 시작합니다.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>카메라 펌웨어의 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceGenCPVersionMajor_Tooltip</source>
        <translation>카메라 제어 프로토콜의 주 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceGenCPVersionMinor_Tooltip</source>
        <translation>카메라 제어 프로토콜의 부 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>카메라의 예전 식별자입니다. 대신 DeviceSerialNumber를 쓰십시오.</translation>
    </message>
    <message>
        <source>DeviceIndicatorMode_Tooltip</source>
        <translation>카메라 상태 표시등이 보여 주는 내용입니다.</translation>
    </message>
    <message>
        <source>DeviceLinkCommandTimeout_Tooltip</source>
        <translation>카메라가 명령에 응답하는 데 걸리는 최대 시간입니다.</translation>
    </message>
    <message>
        <source>DeviceLinkCurrentThroughput_Tooltip</source>
        <translation>카메라가 지금 링크로 보내는 데이터 속도(초당 바이트)입니다.</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatTimeout_Tooltip</source>
        <translation>하트비트 없이 이 시간이 지나면 카메라가 연결을 끊습니다.</translation>
    </message>
    <message>
        <source>DeviceLinkSelector_Tooltip</source>
        <translation>설정할 카메라 링크를 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceLinkSpeed_Tooltip</source>
        <translation>링크에서 협상된 속도(초당 바이트)입니다.</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimit_Tooltip</source>
        <translation>카메라가 링크로 보내는 최대 데이터 속도(초당 바이트)입니다.</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimitMode_Tooltip</source>
        <translation>데이터 속도 제한을 켜거나 끕니다. 켜면 프레임 속도가 떨어질 수 있습니다.</translation>
    </message>
    <message>
        <source>DeviceManifestEntrySelector_Tooltip</source>
        <translation>읽을 기술 파일 목록 항목을 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceManifestXMLMajorVersion_Tooltip</source>
        <translation>선택한 항목의 기술 파일 주 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceManifestXMLMinorVersion_Tooltip</source>
        <translation>선택한 항목의 기술 파일 부 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>카메라 제조사의 추가 정보입니다.</translation>
    </message>
    <message>
        <source>DeviceMaxThroughput_Tooltip</source>
        <translation>카메라가 유지할 수 있는 최대 데이터 속도(초당 바이트)입니다.</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>카메라의 모델 이름입니다.</translation>
    </message>
    <message>
        <source>DeviceRegistersCheck_Tooltip</source>
        <translation>레지스터 설정이 서로 맞는지 확인합니다.</translation>
    </message>
    <message>
        <source>DeviceRegistersEndianness_Tooltip</source>
        <translation>카메라 레지스터의 바이트 순서입니다.</translation>
    </message>
    <message>
        <source>DeviceRegistersStreamingEnd_Tooltip</source>
        <translation>연속 레지스터 쓰기를 마칩니다. 그러면 카메라가 값을 확인합니다.</translation>
    </message>
    <message>
        <source>DeviceRegistersStreamingStart_Tooltip</source>
        <translation>연속 레지스터 쓰기를 위해 카메라를 준비합니다.</translation>
    </message>
    <message>
        <source>DeviceRegistersValid_Tooltip</source>
        <translation>레지스터 설정이 서로 맞으면 1입니다.</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>카메라를 다시 시작합니다. 돌아올 때까지 연결이 끊깁니다.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMajor_Tooltip</source>
        <translation>카메라가 따르는 기능 명명 표준의 주 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMinor_Tooltip</source>
        <translation>카메라가 따르는 기능 명명 표준의 부 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionSubMinor_Tooltip</source>
        <translation>카메라가 따르는 기능 명명 표준의 하위 부 버전입니다.</translation>
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
        <source>DeviceStreamChannelCount_Tooltip</source>
        <translation>카메라의 이미지 스트림 채널 수입니다.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelEndianness_Tooltip</source>
        <translation>스트림에서 1바이트보다 넓은 픽셀 데이터의 바이트 순서입니다.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelPacketSize_Tooltip</source>
        <translation>선택한 스트림 채널의 패킷 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelSelector_Tooltip</source>
        <translation>설정할 스트림 채널을 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelType_Tooltip</source>
        <translation>선택한 스트림 채널이 송신인지 수신인지입니다.</translation>
    </message>
    <message>
        <source>DeviceTLType_Tooltip</source>
        <translation>카메라가 연결된 인터페이스 종류입니다.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor_Tooltip</source>
        <translation>카메라 전송 프로토콜의 주 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor_Tooltip</source>
        <translation>카메라 전송 프로토콜의 부 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>카메라 안 선택한 위치의 온도(섭씨)입니다.</translation>
    </message>
    <message>
        <source>DeviceTemperatureSelector_Tooltip</source>
        <translation>온도를 표시할 카메라 안의 위치를 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceTemperatureStatus_Tooltip</source>
        <translation>카메라 온도가 정상인지, 높은지, 위험한지입니다.</translation>
    </message>
    <message>
        <source>DeviceType_Tooltip</source>
        <translation>링크에서 카메라의 역할(송신기 등)입니다.</translation>
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
        <source>DigitalIO_Tooltip</source>
        <translation>I/O 커넥터의 라인과 사용자 출력입니다.</translation>
    </message>
    <message>
        <source>DigitalShift_Tooltip</source>
        <translation>픽셀 값을 이 비트 수만큼 왼쪽으로 밀어 이미지를 밝게 합니다.</translation>
    </message>
    <message>
        <source>EncoderControl_Tooltip</source>
        <translation>2상 로터리 엔코더 입력입니다.</translation>
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
        <source>EncoderResetSource_Tooltip</source>
        <translation>엔코더 위치를 0으로 되돌리는 신호입니다.</translation>
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
        <source>EncoderTimeout_Tooltip</source>
        <translation>스텝 없이 이 시간이 지나면 엔코더가 멈춘 것으로 봅니다.</translation>
    </message>
    <message>
        <source>EncoderValue_Tooltip</source>
        <translation>엔코더의 현재 위치입니다.</translation>
    </message>
    <message>
        <source>EncoderValueAtReset_Tooltip</source>
        <translation>마지막으로 리셋했을 때 엔코더의 위치입니다.</translation>
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
        <source>ExposureTimeAbs_Tooltip</source>
        <translation>노출 시간(마이크로초)의 예전 이름입니다.</translation>
    </message>
    <message>
        <source>ExposureTimeBaseAbs_Tooltip</source>
        <translation>예전 노출 설정 방식에서 ExposureTimeRaw의 시간 단위입니다.</translation>
    </message>
    <message>
        <source>ExposureTimeBaseAbsEnable_Tooltip</source>
        <translation>예전 노출 설정 방식: ExposureTimeRaw × ExposureTimeBaseAbs.</translation>
    </message>
    <message>
        <source>ExposureTimeMode_Tooltip</source>
        <translation>설정할 수 있는 노출 시간 범위: 표준 또는 초단시간.</translation>
    </message>
    <message>
        <source>ExposureTimeRaw_Tooltip</source>
        <translation>예전 방식의 노출 시간(ExposureTimeBaseAbs 단위)입니다.</translation>
    </message>
    <message>
        <source>FileAccess_Tooltip</source>
        <translation>카메라에 저장된 파일입니다.</translation>
    </message>
    <message>
        <source>FileAccessBuffer_Tooltip</source>
        <translation>파일에서 읽었거나 파일에 쓸 데이터입니다.</translation>
    </message>
    <message>
        <source>FileAccessControl_Tooltip</source>
        <translation>카메라 안 파일의 읽기와 쓰기입니다.</translation>
    </message>
    <message>
        <source>FileAccessLength_Tooltip</source>
        <translation>읽거나 쓸 바이트 수입니다.</translation>
    </message>
    <message>
        <source>FileAccessOffset_Tooltip</source>
        <translation>다음 읽기 또는 쓰기를 시작할 파일 안의 위치입니다.</translation>
    </message>
    <message>
        <source>FileOpenMode_Tooltip</source>
        <translation>파일을 읽기, 쓰기 또는 둘 다로 열지입니다.</translation>
    </message>
    <message>
        <source>FileOperationExecute_Tooltip</source>
        <translation>선택한 파일에 선택한 작업을 실행합니다.</translation>
    </message>
    <message>
        <source>FileOperationResult_Tooltip</source>
        <translation>마지막 읽기 또는 쓰기로 옮긴 바이트 수입니다.</translation>
    </message>
    <message>
        <source>FileOperationSelector_Tooltip</source>
        <translation>FileOperationExecute가 할 작업(열기, 읽기, 쓰기, 닫기, 삭제)을 선택합니다.</translation>
    </message>
    <message>
        <source>FileOperationStatus_Tooltip</source>
        <translation>마지막 파일 작업이 성공했는지입니다.</translation>
    </message>
    <message>
        <source>FileSelector_Tooltip</source>
        <translation>작업할 파일을 선택합니다.</translation>
    </message>
    <message>
        <source>FileSize_Tooltip</source>
        <translation>선택한 파일의 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>FileStatus_Tooltip</source>
        <translation>선택한 파일이 열려 있는지입니다.</translation>
    </message>
    <message>
        <source>ForceFailedBuffer_Tooltip</source>
        <translation>오류 처리를 시험하려고 다음 버퍼를 실패로 표시합니다.</translation>
    </message>
    <message>
        <source>ForceFailedBufferCount_Tooltip</source>
        <translation>ForceFailedBuffer가 실패로 표시하는 버퍼 수입니다.</translation>
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
        <source>GammaEnable_Tooltip</source>
        <translation>감마 보정을 적용합니다.</translation>
    </message>
    <message>
        <source>GammaSelector_Tooltip</source>
        <translation>사용자 감마 값과 sRGB 곡선 중에서 선택합니다.</translation>
    </message>
    <message>
        <source>GevCCP_Tooltip</source>
        <translation>제어 채널에서 이 애플리케이션의 접근 권한입니다.</translation>
    </message>
    <message>
        <source>GevControlChannel_Tooltip</source>
        <translation>제어 채널과 메시지 채널입니다.</translation>
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
        <source>GevCurrentIPConfiguration_Tooltip</source>
        <translation>주소 설정을 비트로 나타냅니다: 고정 주소, DHCP, 링크 로컬.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationDHCP_Tooltip</source>
        <translation>카메라가 DHCP 서버에서 주소를 받습니다.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationLLA_Tooltip</source>
        <translation>링크 로컬 주소 지정입니다. 항상 켜져 있습니다.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationPersistentIP_Tooltip</source>
        <translation>카메라가 아래에 설정한 고정 주소를 씁니다.</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>카메라가 지금 쓰는 서브넷 마스크입니다.</translation>
    </message>
    <message>
        <source>GevDeviceModeCharacterSet_Tooltip</source>
        <translation>카메라 부트스트랩 레지스터에 있는 문자열의 문자 집합입니다.</translation>
    </message>
    <message>
        <source>GevDeviceModeIsBigEndian_Tooltip</source>
        <translation>카메라 레지스터가 빅 엔디언이면 1입니다.</translation>
    </message>
    <message>
        <source>GevFirstURL_Tooltip</source>
        <translation>카메라 기술 파일이 있는 첫 번째 위치입니다.</translation>
    </message>
    <message>
        <source>GevGVCPHeartbeatDisable_Tooltip</source>
        <translation>디버깅을 위해 하트비트를 끕니다.</translation>
    </message>
    <message>
        <source>GevGVCPPendingAck_Tooltip</source>
        <translation>느린 명령을 처리하는 동안 카메라가 애플리케이션에 기다리라고 알립니다.</translation>
    </message>
    <message>
        <source>GevGVSPExtendedIDMode_Tooltip</source>
        <translation>이미지 스트림에서 확장된 블록 번호와 패킷 번호를 씁니다.</translation>
    </message>
    <message>
        <source>GevHeartbeatTimeout_Tooltip</source>
        <translation>하트비트 없이 이 시간(밀리초)이 지나면 카메라가 연결을 끊습니다.</translation>
    </message>
    <message>
        <source>GevIEEE1588_Tooltip</source>
        <translation>타임스탬프를 PTP 마스터 시계에 동기화합니다.</translation>
    </message>
    <message>
        <source>GevIEEE1588Status_Tooltip</source>
        <translation>PTP 동기화 상태입니다.</translation>
    </message>
    <message>
        <source>GevInterfaceControl_Tooltip</source>
        <translation>네트워크 포트 설정입니다.</translation>
    </message>
    <message>
        <source>GevInterfaceSelector_Tooltip</source>
        <translation>설정할 네트워크 포트를 선택합니다.</translation>
    </message>
    <message>
        <source>GevLinkSpeed_Tooltip</source>
        <translation>선택한 네트워크 포트의 속도(Mbps)입니다.</translation>
    </message>
    <message>
        <source>GevMACAddress_Tooltip</source>
        <translation>선택한 네트워크 포트의 MAC 주소입니다.</translation>
    </message>
    <message>
        <source>GevMCDA_Tooltip</source>
        <translation>카메라가 이벤트 메시지를 보내는 주소입니다.</translation>
    </message>
    <message>
        <source>GevMCPHostPort_Tooltip</source>
        <translation>이벤트 메시지를 받는 이 컴퓨터의 포트입니다.</translation>
    </message>
    <message>
        <source>GevMCRC_Tooltip</source>
        <translation>응답 없는 이벤트 메시지를 카메라가 다시 보내는 횟수입니다.</translation>
    </message>
    <message>
        <source>GevMCTT_Tooltip</source>
        <translation>카메라가 이벤트 메시지 응답을 기다리는 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>GevMessageChannelCount_Tooltip</source>
        <translation>카메라의 메시지 채널 수입니다.</translation>
    </message>
    <message>
        <source>GevNumberOfInterfaces_Tooltip</source>
        <translation>카메라의 네트워크 포트 수입니다.</translation>
    </message>
    <message>
        <source>GevPersistentDefaultGateway_Tooltip</source>
        <translation>카메라가 켜진 뒤 쓰는 고정 기본 게이트웨이입니다.</translation>
    </message>
    <message>
        <source>GevPersistentIPAddress_Tooltip</source>
        <translation>카메라가 켜진 뒤 쓰는 고정 IP 주소입니다.</translation>
    </message>
    <message>
        <source>GevPersistentSubnetMask_Tooltip</source>
        <translation>카메라가 켜진 뒤 쓰는 고정 서브넷 마스크입니다.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationIPAddress_Tooltip</source>
        <translation>카메라를 제어하는 애플리케이션의 IP 주소입니다.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSocket_Tooltip</source>
        <translation>카메라를 제어하는 애플리케이션의 UDP 포트입니다.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSwitchoverKey_Tooltip</source>
        <translation>다른 애플리케이션이 제어를 넘겨받게 하는 키입니다.</translation>
    </message>
    <message>
        <source>GevSCBWR_Tooltip</source>
        <translation>재전송 패킷을 위해 비워 두는 대역폭 비율(%)입니다.</translation>
    </message>
    <message>
        <source>GevSCBWRA_Tooltip</source>
        <translation>재전송이 몰릴 때 한 번에 쓸 수 있는 예비 대역폭 배수입니다.</translation>
    </message>
    <message>
        <source>GevSCDA_Tooltip</source>
        <translation>카메라가 이미지를 보내는 주소입니다.</translation>
    </message>
    <message>
        <source>GevSCFTD_Tooltip</source>
        <translation>카메라가 이미지를 보내기 전의 지연(타임스탬프 틱)입니다.</translation>
    </message>
    <message>
        <source>GevSCPD_Tooltip</source>
        <translation>이미지 패킷 사이의 간격(타임스탬프 틱)으로, 네트워크 부하를 나눕니다.</translation>
    </message>
    <message>
        <source>GevSCPHostPort_Tooltip</source>
        <translation>이미지를 받는 이 컴퓨터의 UDP 포트입니다.</translation>
    </message>
    <message>
        <source>GevSCPInterfaceIndex_Tooltip</source>
        <translation>선택한 스트림 채널이 쓰는 네트워크 포트입니다.</translation>
    </message>
    <message>
        <source>GevSCPSBigEndian_Tooltip</source>
        <translation>1바이트보다 넓은 픽셀 데이터를 빅 엔디언으로 보냅니다.</translation>
    </message>
    <message>
        <source>GevSCPSDoNotFragment_Tooltip</source>
        <translation>네트워크가 이미지 패킷을 나누지 못하게 합니다.</translation>
    </message>
    <message>
        <source>GevSCPSFireTestPacket_Tooltip</source>
        <translation>설정한 크기의 테스트 패킷을 카메라가 하나 보내게 합니다.</translation>
    </message>
    <message>
        <source>GevSCPSPacketSize_Tooltip</source>
        <translation>헤더를 포함한 이미지 패킷 크기입니다. 점보 프레임은 이를 지원하는 네트워크가 필요합니다.</translation>
    </message>
    <message>
        <source>GevSCSP_Tooltip</source>
        <translation>카메라가 이미지를 보내는 UDP 포트입니다.</translation>
    </message>
    <message>
        <source>GevSecondURL_Tooltip</source>
        <translation>카메라 기술 파일이 있는 두 번째 위치입니다.</translation>
    </message>
    <message>
        <source>GevStreamChannelControl_Tooltip</source>
        <translation>이미지 스트림 채널 설정입니다.</translation>
    </message>
    <message>
        <source>GevStreamChannelCount_Tooltip</source>
        <translation>카메라의 이미지 스트림 채널 수입니다.</translation>
    </message>
    <message>
        <source>GevStreamChannelSelector_Tooltip</source>
        <translation>설정할 스트림 채널을 선택합니다.</translation>
    </message>
    <message>
        <source>GevSupportedOption_Tooltip</source>
        <translation>카메라가 선택한 옵션을 지원하는지입니다.</translation>
    </message>
    <message>
        <source>GevSupportedOptionSelector_Tooltip</source>
        <translation>GevSupportedOption이 알려 줄 옵션을 선택합니다.</translation>
    </message>
    <message>
        <source>GevTimestamp_Tooltip</source>
        <translation>타임스탬프와 시계 동기화입니다.</translation>
    </message>
    <message>
        <source>GevTimestampControlLatch_Tooltip</source>
        <translation>타임스탬프를 GevTimestampValue에 복사하는 예전 방식입니다.</translation>
    </message>
    <message>
        <source>GevTimestampControlReset_Tooltip</source>
        <translation>타임스탬프 카운터를 0으로 되돌리는 예전 방식입니다.</translation>
    </message>
    <message>
        <source>GevTimestampTickFrequency_Tooltip</source>
        <translation>초당 타임스탬프 틱 수입니다.</translation>
    </message>
    <message>
        <source>GevTimestampValue_Tooltip</source>
        <translation>GevTimestampControlLatch로 복사한 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>GevVersionMajor_Tooltip</source>
        <translation>카메라가 지원하는 GigE Vision 주 버전입니다.</translation>
    </message>
    <message>
        <source>GevVersionMinor_Tooltip</source>
        <translation>카메라가 지원하는 GigE Vision 부 버전입니다.</translation>
    </message>
    <message>
        <source>GigEVision_Tooltip</source>
        <translation>GigE Vision 연결 설정입니다.</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>카메라가 보내는 이미지의 높이(픽셀)입니다.</translation>
    </message>
    <message>
        <source>HeightMax_Tooltip</source>
        <translation>현재 비닝과 데시메이션에서의 최대 이미지 높이입니다.</translation>
    </message>
    <message>
        <source>Hue_Tooltip</source>
        <translation>색조를 회전시킵니다.</translation>
    </message>
    <message>
        <source>IIDC_Tooltip</source>
        <translation>IEEE 1394 연결 설정입니다.</translation>
    </message>
    <message>
        <source>IIDCVersion_Tooltip</source>
        <translation>카메라가 따르는 IIDC 표준의 버전입니다.</translation>
    </message>
    <message>
        <source>ImageFileMode_Tooltip</source>
        <translation>내장 테스트 이미지 대신 ImageFilename의 이미지를 보냅니다.</translation>
    </message>
    <message>
        <source>ImageFilename_Tooltip</source>
        <translation>에뮬레이트 카메라가 보내는 이미지 파일 또는 이미지 폴더입니다.</translation>
    </message>
    <message>
        <source>ImageFormatControl_Tooltip</source>
        <translation>이미지의 크기, 위치, 형식입니다.</translation>
    </message>
    <message>
        <source>ImageQualityControl_Tooltip</source>
        <translation>카메라 안에서 하는 보정입니다.</translation>
    </message>
    <message>
        <source>IsoSpeed_Tooltip</source>
        <translation>버스의 등시성 전송 속도입니다.</translation>
    </message>
    <message>
        <source>LUTControls_Tooltip</source>
        <translation>픽셀 값을 바꾸는 룩업 테이블입니다.</translation>
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
        <source>LUTValueAll_Tooltip</source>
        <translation>선택한 룩업 테이블의 모든 항목(16진 텍스트)입니다.</translation>
    </message>
    <message>
        <source>LightSourcePreset_Tooltip</source>
        <translation>조명 종류에 맞춘 색 보정입니다.</translation>
    </message>
    <message>
        <source>LineDebouncerTime_Tooltip</source>
        <translation>선택한 입력 라인에서 신호로 받아들이는 가장 짧은 펄스입니다.</translation>
    </message>
    <message>
        <source>LineFormat_Tooltip</source>
        <translation>선택한 라인의 전기적 방식입니다.</translation>
    </message>
    <message>
        <source>LineInverter_Tooltip</source>
        <translation>선택한 라인의 신호를 반전합니다.</translation>
    </message>
    <message>
        <source>LineMinimumOutputPulseWidth_Tooltip</source>
        <translation>선택한 출력 라인에 내보내는 가장 짧은 펄스입니다.</translation>
    </message>
    <message>
        <source>LineMode_Tooltip</source>
        <translation>선택한 라인이 입력인지 출력인지입니다.</translation>
    </message>
    <message>
        <source>LinePitch_Tooltip</source>
        <translation>이미지 한 라인의 시작부터 다음 라인까지의 바이트 수입니다.</translation>
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
        <source>NoiseReduction_Tooltip</source>
        <translation>고화질 디모자이크 때 적용하는 노이즈 감소입니다.</translation>
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
        <source>PacketSize_Tooltip</source>
        <translation>등시성 패킷의 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>PayloadFinalTransfer1Size_Tooltip</source>
        <translation>남은 이미지 데이터의 첫 번째 전송 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>PayloadFinalTransfer2Size_Tooltip</source>
        <translation>남은 이미지 데이터의 두 번째 전송 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>PayloadSize_Tooltip</source>
        <translation>카메라가 이미지 한 장마다 보내는 바이트 수(청크 데이터 포함)입니다.</translation>
    </message>
    <message>
        <source>PayloadTransferCount_Tooltip</source>
        <translation>이미지 한 장당 전체 크기 전송 횟수입니다.</translation>
    </message>
    <message>
        <source>PayloadTransferSize_Tooltip</source>
        <translation>이미지 데이터 USB 전송 한 번의 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>PixelColorFilter_Tooltip</source>
        <translation>센서의 컬러 필터 배열입니다.</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMax_Tooltip</source>
        <translation>현재 픽셀 형식에서 픽셀이 가질 수 있는 최댓값입니다.</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMin_Tooltip</source>
        <translation>현재 픽셀 형식에서 픽셀이 가질 수 있는 최솟값입니다.</translation>
    </message>
    <message>
        <source>PixelFormat_Tooltip</source>
        <translation>카메라가 보내는 이미지의 픽셀 형식입니다.</translation>
    </message>
    <message>
        <source>PixelFormatLegacy_Tooltip</source>
        <translation>PixelFormat에 예전 패킹 픽셀 형식을 보여 줍니다.</translation>
    </message>
    <message>
        <source>PixelSize_Tooltip</source>
        <translation>이미지 픽셀 하나의 비트 수입니다.</translation>
    </message>
    <message>
        <source>PtpClockAccuracy_Tooltip</source>
        <translation>카메라 시계가 밝히는 정확도입니다.</translation>
    </message>
    <message>
        <source>PtpControl_Tooltip</source>
        <translation>네트워크를 통한 시계 동기화(PTP)입니다.</translation>
    </message>
    <message>
        <source>PtpDataSetLatch_Tooltip</source>
        <translation>현재 동기화 값을 읽을 수 있게 복사합니다.</translation>
    </message>
    <message>
        <source>PtpEnable_Tooltip</source>
        <translation>PTP로 카메라 시계를 네트워크에 동기화합니다.</translation>
    </message>
    <message>
        <source>PtpGrandmasterClockID_Tooltip</source>
        <translation>마지막으로 복사했을 때 그랜드마스터 시계의 ID입니다.</translation>
    </message>
    <message>
        <source>PtpOffsetFromMaster_Tooltip</source>
        <translation>마지막으로 복사했을 때 마스터 시계와 카메라 시계의 차이입니다.</translation>
    </message>
    <message>
        <source>PtpParentClockID_Tooltip</source>
        <translation>마지막으로 복사했을 때 상위 시계의 ID입니다.</translation>
    </message>
    <message>
        <source>PtpServoStatus_Tooltip</source>
        <translation>카메라 시계가 마스터 시계를 따르는지입니다.</translation>
    </message>
    <message>
        <source>PtpStatus_Tooltip</source>
        <translation>PTP 시계 동기화 상태입니다.</translation>
    </message>
    <message>
        <source>ResultingFrameRate_Tooltip</source>
        <translation>현재 노출, 읽기, 제한으로 카메라가 내는 프레임 속도입니다.</translation>
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
        <source>Root_Tooltip</source>
        <translation>카메라의 모든 기능입니다.</translation>
    </message>
    <message>
        <source>Saturation_Tooltip</source>
        <translation>색의 선명도입니다.</translation>
    </message>
    <message>
        <source>SensorDigitizationTaps_Tooltip</source>
        <translation>센서의 디지털 출력 수입니다.</translation>
    </message>
    <message>
        <source>SensorHeight_Tooltip</source>
        <translation>센서 유효 영역의 높이(픽셀)입니다.</translation>
    </message>
    <message>
        <source>SensorName_Tooltip</source>
        <translation>이미지 센서의 이름입니다.</translation>
    </message>
    <message>
        <source>SensorPixelHeight_Tooltip</source>
        <translation>픽셀 하나의 물리적 높이(마이크로미터)입니다.</translation>
    </message>
    <message>
        <source>SensorPixelWidth_Tooltip</source>
        <translation>픽셀 하나의 물리적 너비(마이크로미터)입니다.</translation>
    </message>
    <message>
        <source>SensorReadoutMode_Tooltip</source>
        <translation>빠른 읽기는 읽기 시간을 줄이지만 노이즈가 늘어납니다.</translation>
    </message>
    <message>
        <source>SensorReadoutTime_Tooltip</source>
        <translation>현재 설정에서 센서가 이미지 한 장을 읽어 내는 데 걸리는 시간입니다.</translation>
    </message>
    <message>
        <source>SensorShutterMode_Tooltip</source>
        <translation>센서의 셔터 방식: 글로벌 또는 롤링.</translation>
    </message>
    <message>
        <source>SensorTaps_Tooltip</source>
        <translation>센서를 읽어 내는 탭 수입니다.</translation>
    </message>
    <message>
        <source>SensorWidth_Tooltip</source>
        <translation>센서 유효 영역의 너비(픽셀)입니다.</translation>
    </message>
    <message>
        <source>SequenceEnable_Tooltip</source>
        <translation>시퀀서의 예전 스위치입니다.</translation>
    </message>
    <message>
        <source>SequencerControl_Tooltip</source>
        <translation>자동으로 바뀌는 설정 시퀀스입니다. 이 모델에는 없습니다.</translation>
    </message>
    <message>
        <source>ShadingCorrectionMode_Tooltip</source>
        <translation>고르지 않은 조명과 센서 셰이딩을 보정합니다.</translation>
    </message>
    <message>
        <source>SharpnessEnhancement_Tooltip</source>
        <translation>고화질 디모자이크 때 적용하는 선명도 향상입니다.</translation>
    </message>
    <message>
        <source>SoftwareSignalControl_Tooltip</source>
        <translation>소프트웨어가 내는 신호입니다.</translation>
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
        <source>TestControl_Tooltip</source>
        <translation>호스트 소프트웨어를 시험하기 위한 기능입니다.</translation>
    </message>
    <message>
        <source>TestEventGenerate_Tooltip</source>
        <translation>카메라가 테스트 이벤트를 보내게 합니다.</translation>
    </message>
    <message>
        <source>TestExposureFromZero_Tooltip</source>
        <translation>슬라이더가 0에서 시작하는 로그 노출 값입니다.</translation>
    </message>
    <message>
        <source>TestFloatNoIncrement_Tooltip</source>
        <translation>증분이 없는 실수 값입니다. 입력은 되지만 단계 조정은 안 됩니다.</translation>
    </message>
    <message>
        <source>TestHexWide_Tooltip</source>
        <translation>32비트보다 넓은 16진 정수입니다.</translation>
    </message>
    <message>
        <source>TestIPAddress_Tooltip</source>
        <translation>바꿀 수 있는 IPv4 주소입니다.</translation>
    </message>
    <message>
        <source>TestImageSelector_Tooltip</source>
        <translation>TestPattern의 예전 이름입니다.</translation>
    </message>
    <message>
        <source>TestInteger64_Tooltip</source>
        <translation>범위가 32비트를 넘는 정수입니다.</translation>
    </message>
    <message>
        <source>TestInteger64Wide_Tooltip</source>
        <translation>64비트 전체 범위의 정수입니다.</translation>
    </message>
    <message>
        <source>TestLegacyMode_Tooltip</source>
        <translation>현재 값이 더 이상 목록에 없는 선택 항목입니다.</translation>
    </message>
    <message>
        <source>TestLinearFloat_Tooltip</source>
        <translation>선형 슬라이더가 있는 실수 값입니다.</translation>
    </message>
    <message>
        <source>TestLogarithmicFloat_Tooltip</source>
        <translation>로그 슬라이더가 있는 실수 값입니다.</translation>
    </message>
    <message>
        <source>TestMACAddress_Tooltip</source>
        <translation>바꿀 수 있는 MAC 주소입니다.</translation>
    </message>
    <message>
        <source>TestPattern_Tooltip</source>
        <translation>센서 이미지를 테스트 패턴으로 바꿉니다.</translation>
    </message>
    <message>
        <source>TestPatternGeneratorSelector_Tooltip</source>
        <translation>설정할 테스트 패턴 생성기를 선택합니다.</translation>
    </message>
    <message>
        <source>TestPendingAck_Tooltip</source>
        <translation>이 기능에 쓰면 응답이 늦게 옵니다. 보류 응답을 시험하기 위한 것입니다.</translation>
    </message>
    <message>
        <source>TestSlowCommand_Tooltip</source>
        <translation>끝나는 데 3초가 걸리는 명령입니다.</translation>
    </message>
    <message>
        <source>TimerControls_Tooltip</source>
        <translation>내부 신호에 펄스를 내는 타이머입니다.</translation>
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
        <source>TimerReset_Tooltip</source>
        <translation>선택한 타이머를 리셋합니다.</translation>
    </message>
    <message>
        <source>TimerSelector_Tooltip</source>
        <translation>설정할 타이머를 선택합니다.</translation>
    </message>
    <message>
        <source>TimerStatus_Tooltip</source>
        <translation>선택한 타이머의 상태입니다.</translation>
    </message>
    <message>
        <source>TimerTriggerActivation_Tooltip</source>
        <translation>시작 신호의 어느 에지 또는 레벨에서 타이머를 시작할지입니다.</translation>
    </message>
    <message>
        <source>TimerTriggerSource_Tooltip</source>
        <translation>선택한 타이머를 시작시키는 신호입니다.</translation>
    </message>
    <message>
        <source>TimerValue_Tooltip</source>
        <translation>선택한 타이머의 현재 값입니다.</translation>
    </message>
    <message>
        <source>Timestamp_Tooltip</source>
        <translation>카메라 타임스탬프 카운터의 현재 값(전원을 켠 뒤 나노초)입니다.</translation>
    </message>
    <message>
        <source>TimestampLatch_Tooltip</source>
        <translation>현재 타임스탬프를 TimestampLatchValue에 복사합니다.</translation>
    </message>
    <message>
        <source>TimestampLatchValue_Tooltip</source>
        <translation>마지막 TimestampLatch로 복사한 타임스탬프입니다.</translation>
    </message>
    <message>
        <source>TimestampReset_Tooltip</source>
        <translation>타임스탬프 카운터를 0으로 되돌립니다.</translation>
    </message>
    <message>
        <source>TransportLayer_Tooltip</source>
        <translation>카메라와 이 컴퓨터의 연결입니다.</translation>
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
        <source>TriggerDivider_Tooltip</source>
        <translation>n번마다 한 번의 트리거 신호만 씁니다.</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>트리거가 들어올 때만 촬영할지 여부입니다.</translation>
    </message>
    <message>
        <source>TriggerOverlap_Tooltip</source>
        <translation>이전 이미지를 읽어 내는 중에도 트리거를 받을지 여부입니다.</translation>
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
        <source>U3VCurrentSpeed_Tooltip</source>
        <translation>카메라가 연결된 USB 속도입니다.</translation>
    </message>
    <message>
        <source>U3VMaxAcknowledgeTransferLength_Tooltip</source>
        <translation>카메라가 보내는 응답 전송의 최대 길이(바이트)입니다.</translation>
    </message>
    <message>
        <source>U3VMaxCommandTransferLength_Tooltip</source>
        <translation>카메라가 받는 명령 전송의 최대 길이(바이트)입니다.</translation>
    </message>
    <message>
        <source>USB3Vision_Tooltip</source>
        <translation>USB3 Vision 연결 설정입니다.</translation>
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
        <source>UserOutputValueAll_Tooltip</source>
        <translation>모든 사용자 출력의 레벨(출력당 1비트)입니다.</translation>
    </message>
    <message>
        <source>UserOutputValueAllMask_Tooltip</source>
        <translation>UserOutputValueAll에서 쓸 비트입니다.</translation>
    </message>
    <message>
        <source>UserSetDefault_Tooltip</source>
        <translation>전원을 켤 때 카메라가 불러오는 사용자 세트입니다.</translation>
    </message>
    <message>
        <source>UserSetDefaultSelector_Tooltip</source>
        <translation>UserSetDefault의 예전 이름입니다.</translation>
    </message>
    <message>
        <source>UserSetFactoryDefaultLoaded_Tooltip</source>
        <translation>공장 설정이 활성인 동안 참입니다.</translation>
    </message>
    <message>
        <source>UserSetFeatureEnable_Tooltip</source>
        <translation>선택한 기능을 사용자 세트에 저장할지 여부입니다.</translation>
    </message>
    <message>
        <source>UserSetFeatureSelector_Tooltip</source>
        <translation>사용자 세트에 넣거나 뺄 기능을 선택합니다.</translation>
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
        <source>UserSets_Tooltip</source>
        <translation>카메라 설정의 저장과 복원입니다.</translation>
    </message>
    <message>
        <source>Width_Tooltip</source>
        <translation>카메라가 보내는 이미지의 너비(픽셀)입니다.</translation>
    </message>
    <message>
        <source>WidthMax_Tooltip</source>
        <translation>현재 비닝과 데시메이션에서의 최대 이미지 너비입니다.</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>CommandDuplicationEnable_Tooltip</source>
        <translation>패킷이 자주 손실되는 네트워크를 위해 모든 명령을 두 번 보냅니다.</translation>
    </message>
    <message>
        <source>Communication_Tooltip</source>
        <translation>제어 연결의 타임아웃과 재시도입니다.</translation>
    </message>
    <message>
        <source>DeviceAccessStatus_Tooltip</source>
        <translation>이 애플리케이션이 카메라를 어떻게 열었는지입니다.</translation>
    </message>
    <message>
        <source>DeviceBcdUSB_Tooltip</source>
        <translation>카메라의 USB 버전(BCD)입니다.</translation>
    </message>
    <message>
        <source>DeviceDisplayName_Tooltip</source>
        <translation>카메라가 목록에 표시되는 이름입니다.</translation>
    </message>
    <message>
        <source>DeviceDriverVersion_Tooltip</source>
        <translation>사용 중인 USB 드라이버의 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceEndianessMechanism_Tooltip</source>
        <translation>카메라 레지스터의 바이트 순서를 처리하는 방식입니다.</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>카메라의 제품군입니다.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>카메라 펌웨어의 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>전송 계층에서의 카메라 식별자입니다.</translation>
    </message>
    <message>
        <source>DeviceInformation_Tooltip</source>
        <translation>카메라를 식별하는 정보입니다.</translation>
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
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>카메라의 일련번호입니다.</translation>
    </message>
    <message>
        <source>DeviceSpeed_Tooltip</source>
        <translation>카메라가 연결된 USB 속도입니다.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor_Tooltip</source>
        <translation>사용 중인 전송 계층 프로토콜의 주 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor_Tooltip</source>
        <translation>사용 중인 전송 계층 프로토콜의 부 버전입니다.</translation>
    </message>
    <message>
        <source>DeviceType_Tooltip</source>
        <translation>GigE Vision, USB3 Vision 같은 카메라 인터페이스 방식입니다.</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>사용자가 카메라에 붙인 이름입니다.</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>카메라 제조사 이름입니다.</translation>
    </message>
    <message>
        <source>DeviceVersion_Tooltip</source>
        <translation>카메라의 버전입니다.</translation>
    </message>
    <message>
        <source>GevCCP_Tooltip</source>
        <translation>이 애플리케이션이 카메라에 대해 가진 접근 권한: 독점, 제어, 모니터.</translation>
    </message>
    <message>
        <source>GevDeviceDefaultGateway_Tooltip</source>
        <translation>카메라의 기본 게이트웨이입니다.</translation>
    </message>
    <message>
        <source>GevDeviceForceGateway_Tooltip</source>
        <translation>GevDeviceForceIP가 카메라에 주는 게이트웨이입니다.</translation>
    </message>
    <message>
        <source>GevDeviceForceIP_Tooltip</source>
        <translation>이 컴퓨터의 서브넷 밖에 있는 카메라에 임시 주소를 줍니다.</translation>
    </message>
    <message>
        <source>GevDeviceForceIPAddress_Tooltip</source>
        <translation>GevDeviceForceIP가 카메라에 주는 주소입니다.</translation>
    </message>
    <message>
        <source>GevDeviceForceSubnetMask_Tooltip</source>
        <translation>GevDeviceForceIP가 카메라에 주는 서브넷 마스크입니다.</translation>
    </message>
    <message>
        <source>GevDeviceIPAddress_Tooltip</source>
        <translation>호스트에서 본 카메라의 IP 주소입니다.</translation>
    </message>
    <message>
        <source>GevDeviceMACAddress_Tooltip</source>
        <translation>카메라의 MAC 주소입니다.</translation>
    </message>
    <message>
        <source>GevDevicePort_Tooltip</source>
        <translation>카메라 제어 연결의 UDP 포트입니다.</translation>
    </message>
    <message>
        <source>GevDeviceSubnetMask_Tooltip</source>
        <translation>카메라의 서브넷 마스크입니다.</translation>
    </message>
    <message>
        <source>GevInterfaceIPAddress_Tooltip</source>
        <translation>카메라와 연결된 이 컴퓨터 네트워크 어댑터의 주소입니다.</translation>
    </message>
    <message>
        <source>GevVersionMajor_Tooltip</source>
        <translation>카메라의 GigE Vision 주 버전입니다.</translation>
    </message>
    <message>
        <source>GevVersionMinor_Tooltip</source>
        <translation>카메라의 GigE Vision 부 버전입니다.</translation>
    </message>
    <message>
        <source>GigEVisionDevice_Tooltip</source>
        <translation>카메라의 네트워크 식별 정보입니다.</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>하트비트 없이 이 시간(밀리초)이 지나면 카메라가 연결을 끊습니다.</translation>
    </message>
    <message>
        <source>MaxRetryCountRead_Tooltip</source>
        <translation>응답 없는 읽기 요청을 다시 보내는 횟수입니다.</translation>
    </message>
    <message>
        <source>MaxRetryCountWrite_Tooltip</source>
        <translation>응답 없는 쓰기 요청을 다시 보내는 횟수입니다.</translation>
    </message>
    <message>
        <source>MaxTransferSize_Tooltip</source>
        <translation>제어 전송의 최대 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>MaximumNumberOfRetries_Tooltip</source>
        <translation>실패한 USB 전송을 반복하는 횟수입니다.</translation>
    </message>
    <message>
        <source>MigrationModeEnable_Tooltip</source>
        <translation>기존 애플리케이션을 위해 카메라가 이전 모델군처럼 동작하게 합니다.</translation>
    </message>
    <message>
        <source>ReadTimeout_Tooltip</source>
        <translation>읽기 요청의 응답을 기다리는 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>전송 계층에서 본 카메라입니다.</translation>
    </message>
    <message>
        <source>USB3VisionDevice_Tooltip</source>
        <translation>카메라의 USB 식별 정보입니다.</translation>
    </message>
    <message>
        <source>WriteTimeout_Tooltip</source>
        <translation>쓰기 요청의 응답을 기다리는 시간(밀리초)입니다.</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>AccessMode_Tooltip</source>
        <translation>이미지 스트림을 여는 방식입니다.</translation>
    </message>
    <message>
        <source>DestinationAddr_Tooltip</source>
        <translation>이미지를 보내는 멀티캐스트 주소입니다.</translation>
    </message>
    <message>
        <source>DestinationPort_Tooltip</source>
        <translation>이미지를 받는 포트입니다. 0이면 빈 포트를 고릅니다.</translation>
    </message>
    <message>
        <source>EnableResend_Tooltip</source>
        <translation>손실된 패킷을 카메라에 다시 요청합니다.</translation>
    </message>
    <message>
        <source>FrameRetention_Tooltip</source>
        <translation>불완전한 이미지를 포기하기까지의 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>GigEStream_Tooltip</source>
        <translation>네트워크 이미지 스트림 설정입니다.</translation>
    </message>
    <message>
        <source>IIDCStream_Tooltip</source>
        <translation>등시성 스트림 설정입니다.</translation>
    </message>
    <message>
        <source>MaxBufferSize_Tooltip</source>
        <translation>스트림이 채우는 가장 큰 버퍼의 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>그래버가 할당하는 이미지 버퍼 수입니다.</translation>
    </message>
    <message>
        <source>MaxNumQueuedBuffer_Tooltip</source>
        <translation>한 번에 채워지기를 기다릴 수 있는 버퍼의 최대 수입니다.</translation>
    </message>
    <message>
        <source>MaxTransferSize_Tooltip</source>
        <translation>USB 전송 한 번의 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>MaximumNumberResendRequests_Tooltip</source>
        <translation>이미지 한 장에 대한 재전송 요청의 최대 수입니다.</translation>
    </message>
    <message>
        <source>NumIsoPackets_Tooltip</source>
        <translation>요청 한 번에 모으는 등시성 패킷 수입니다.</translation>
    </message>
    <message>
        <source>NumMaxQueuedUrbs_Tooltip</source>
        <translation>드라이버에 대기시켜 두는 USB 요청 수입니다.</translation>
    </message>
    <message>
        <source>PacketResend_Tooltip</source>
        <translation>손실된 네트워크 패킷의 복구입니다.</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>빠진 패킷을 다시 요청하기 전에 기다리는 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>ReceiveThreadPriority_Tooltip</source>
        <translation>이미지를 받는 스레드의 우선순위입니다.</translation>
    </message>
    <message>
        <source>ReceiveThreadPriorityOverride_Tooltip</source>
        <translation>수신 스레드에 ReceiveThreadPriority의 우선순위를 씁니다.</translation>
    </message>
    <message>
        <source>ResendRequestBatching_Tooltip</source>
        <translation>재전송 요청을 모으는 이미지 범위(%)입니다.</translation>
    </message>
    <message>
        <source>ResendRequestResponseTimeout_Tooltip</source>
        <translation>다시 보낸 패킷을 기다리는 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>ResendRequestThreshold_Tooltip</source>
        <translation>빈틈을 보고하기 전에 받는 이미지의 비율(%)입니다.</translation>
    </message>
    <message>
        <source>ResendTimeout_Tooltip</source>
        <translation>손실된 패킷을 요청하기 전에 기다리는 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>카메라의 이미지를 받습니다.</translation>
    </message>
    <message>
        <source>SocketBufferSize_Tooltip</source>
        <translation>네트워크 소켓 수신 버퍼의 크기(KB)입니다.</translation>
    </message>
    <message>
        <source>Statistic_Tooltip</source>
        <translation>이미지 스트림의 카운터입니다.</translation>
    </message>
    <message>
        <source>StatisticReset_Tooltip</source>
        <translation>스트림 카운터를 0으로 되돌립니다.</translation>
    </message>
    <message>
        <source>Statistic_Buffer_Fill_Level_Tooltip</source>
        <translation>대기 중인 버퍼 가운데 이미지가 들어 있는 비율(%)입니다.</translation>
    </message>
    <message>
        <source>Statistic_Buffer_Underrun_Count_Tooltip</source>
        <translation>대기 중인 버퍼가 없어 잃은 이미지 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Buffer_Count_Tooltip</source>
        <translation>오류와 함께 돌아온 버퍼 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Packet_Count_Tooltip</source>
        <translation>오류와 함께 받은 패킷 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Last_Block_Id_Tooltip</source>
        <translation>마지막으로 받은 이미지 블록의 번호입니다.</translation>
    </message>
    <message>
        <source>Statistic_Last_Failed_Buffer_Status_Tooltip</source>
        <translation>마지막으로 실패한 버퍼의 상태 코드입니다.</translation>
    </message>
    <message>
        <source>Statistic_Last_Failed_Buffer_Status_Text_Tooltip</source>
        <translation>마지막으로 실패한 버퍼에서 무엇이 잘못되었는지입니다.</translation>
    </message>
    <message>
        <source>Statistic_Missed_Frame_Count_Tooltip</source>
        <translation>카메라가 보냈지만 도착하지 않은 이미지 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Resend_Packet_Count_Tooltip</source>
        <translation>다시 요청한 패킷 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Resend_Request_Count_Tooltip</source>
        <translation>카메라에 보낸 재전송 요청 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Resynchronization_Count_Tooltip</source>
        <translation>스트림을 다시 동기화해야 했던 횟수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Total_Buffer_Count_Tooltip</source>
        <translation>통계를 마지막으로 초기화한 뒤 받은 버퍼 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Total_Packet_Count_Tooltip</source>
        <translation>받은 패킷 수입니다.</translation>
    </message>
    <message>
        <source>Status_Tooltip</source>
        <translation>이미지 스트림의 상태입니다.</translation>
    </message>
    <message>
        <source>TransferLoopThreadPriority_Tooltip</source>
        <translation>USB 요청을 대기열에 넣는 스레드의 우선순위입니다.</translation>
    </message>
    <message>
        <source>TransmissionType_Tooltip</source>
        <translation>이미지 스트림의 대상: 이 컴퓨터만 또는 멀티캐스트 그룹.</translation>
    </message>
    <message>
        <source>Type_Tooltip</source>
        <translation>이미지를 받는 드라이버입니다.</translation>
    </message>
    <message>
        <source>Usb3Stream_Tooltip</source>
        <translation>USB 전송 설정입니다.</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>BufferSize_Tooltip</source>
        <translation>이벤트 버퍼 하나의 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>DestinationPort_Tooltip</source>
        <translation>이벤트를 받는 포트입니다. 0이면 빈 포트를 고릅니다.</translation>
    </message>
    <message>
        <source>EventDeliveryMode_Tooltip</source>
        <translation>받은 이벤트가 애플리케이션에 전달되는 방식입니다.</translation>
    </message>
    <message>
        <source>EventStatistic_Tooltip</source>
        <translation>이벤트 채널의 카운터입니다.</translation>
    </message>
    <message>
        <source>EventStatisticReset_Tooltip</source>
        <translation>이벤트 카운터를 0으로 되돌립니다.</translation>
    </message>
    <message>
        <source>MaxEventSize_Tooltip</source>
        <translation>카메라가 보내는 이벤트 메시지의 최대 크기(데이터 포함, 바이트)입니다.</translation>
    </message>
    <message>
        <source>MaxNumQueuedEvents_Tooltip</source>
        <translation>애플리케이션이 가져가지 않는 동안 보관하는 이벤트 수입니다.</translation>
    </message>
    <message>
        <source>NumBuffer_Tooltip</source>
        <translation>들어오는 이벤트용으로 두는 버퍼 수입니다.</translation>
    </message>
    <message>
        <source>NumMaxQueuedUrbs_Tooltip</source>
        <translation>이벤트를 위해 대기시켜 두는 USB 요청 수입니다.</translation>
    </message>
    <message>
        <source>ReceiveThreadPriority_Tooltip</source>
        <translation>이벤트를 받는 스레드의 우선순위입니다.</translation>
    </message>
    <message>
        <source>ReceiveThreadPriorityOverride_Tooltip</source>
        <translation>이벤트 스레드에 ReceiveThreadPriority의 우선순위를 씁니다.</translation>
    </message>
    <message>
        <source>RetryCount_Tooltip</source>
        <translation>이벤트를 포기하기 전에 다시 요청하는 횟수입니다.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>카메라의 이벤트 메시지를 받습니다.</translation>
    </message>
    <message>
        <source>SocketBufferSize_Tooltip</source>
        <translation>네트워크 소켓 수신 버퍼의 크기(KB)입니다.</translation>
    </message>
    <message>
        <source>Statistic_Event_Overrun_Count_Tooltip</source>
        <translation>빈 버퍼가 없어 잃은 이벤트 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Event_Count_Tooltip</source>
        <translation>오류와 함께 받은 이벤트 수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Last_Event_ID_Tooltip</source>
        <translation>마지막으로 받은 이벤트의 식별자입니다.</translation>
    </message>
    <message>
        <source>Statistic_Total_Event_Count_Tooltip</source>
        <translation>받은 이벤트 수입니다.</translation>
    </message>
    <message>
        <source>Status_Tooltip</source>
        <translation>이벤트 채널의 상태입니다.</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>이벤트 응답을 기다리는 시간(밀리초)입니다.</translation>
    </message>
</context>
<context>
    <name>ImageFormatConverter</name>
    <message>
        <source>AdditionalLeftShift_Tooltip</source>
        <translation>하위 비트를 버리기 전에 데이터를 왼쪽으로 미는 비트 수입니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentControl_Tooltip</source>
        <translation>색상별 색조와 채도입니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentEnable_Tooltip</source>
        <translation>색조와 채도 설정을 적용합니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentHue_Tooltip</source>
        <translation>선택한 색의 색조 이동입니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSaturation_Tooltip</source>
        <translation>선택한 색의 채도입니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSelector_Tooltip</source>
        <translation>조정할 색을 선택합니다.</translation>
    </message>
    <message>
        <source>ColorConversion_Tooltip</source>
        <translation>컬러 이미지의 변환입니다.</translation>
    </message>
    <message>
        <source>ColorTransformationControl_Tooltip</source>
        <translation>색 변환 행렬입니다.</translation>
    </message>
    <message>
        <source>ColorTransformationMatrixFactor_Tooltip</source>
        <translation>색 변환을 적용하는 세기입니다.</translation>
    </message>
    <message>
        <source>ColorTransformationSelector_Tooltip</source>
        <translation>색 변환을 선택합니다.</translation>
    </message>
    <message>
        <source>ColorTransformationValue_Tooltip</source>
        <translation>선택한 행렬 계수의 값입니다.</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector_Tooltip</source>
        <translation>행렬의 계수를 선택합니다.</translation>
    </message>
    <message>
        <source>DemosaicingMethod_Tooltip</source>
        <translation>베이어 패턴에서 풀 컬러를 구하는 방식입니다.</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>변환할 때 적용하는 감마 보정입니다.</translation>
    </message>
    <message>
        <source>InconvertibleEdgeHandling_Tooltip</source>
        <translation>디모자이크할 수 없는 가장자리 픽셀의 처리 방식입니다.</translation>
    </message>
    <message>
        <source>LightSourcePreset_Tooltip</source>
        <translation>조명 종류에 맞춘 색 보정입니다.</translation>
    </message>
    <message>
        <source>MaxNumThreads_Tooltip</source>
        <translation>변환기가 쓸 수 있는 최대 스레드 수입니다.</translation>
    </message>
    <message>
        <source>MonoConversion_Tooltip</source>
        <translation>흑백 데이터의 비트 심도 축소입니다.</translation>
    </message>
    <message>
        <source>MonoConversionMethod_Tooltip</source>
        <translation>8비트보다 넓은 픽셀 데이터를 8비트로 줄이는 방식입니다.</translation>
    </message>
    <message>
        <source>NoiseReduction_Tooltip</source>
        <translation>고화질 디모자이크 때 적용하는 노이즈 감소입니다.</translation>
    </message>
    <message>
        <source>OutputBitAlignment_Tooltip</source>
        <translation>컨테이너보다 좁은 픽셀 데이터를 상위 비트와 하위 비트 중 어디에 맞출지입니다.</translation>
    </message>
    <message>
        <source>OutputFormat_Tooltip</source>
        <translation>변환된 이미지의 형식입니다.</translation>
    </message>
    <message>
        <source>OutputOrientation_Tooltip</source>
        <translation>변환된 이미지의 라인 순서: 위에서 아래 또는 아래에서 위.</translation>
    </message>
    <message>
        <source>OutputPaddingX_Tooltip</source>
        <translation>변환된 이미지의 각 라인 끝에 붙이는 바이트 수입니다.</translation>
    </message>
    <message>
        <source>OutputPixelFormat_Tooltip</source>
        <translation>변환된 이미지의 픽셀 형식입니다.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>받은 이미지를 표시와 처리에 맞게 변환합니다.</translation>
    </message>
    <message>
        <source>SharpnessEnhancement_Tooltip</source>
        <translation>고화질 디모자이크 때 적용하는 선명도 향상입니다.</translation>
    </message>
</context>
</TS>
