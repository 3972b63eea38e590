<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CameraDevice</name>
    <message>
        <source>ADCBitDepth_Tooltip</source>
        <translation>Resolution of the analogue-to-digital converter, in bits.</translation>
    </message>
    <message>
        <source>AcquisitionAbort_Tooltip</source>
        <translation>Stops taking images at once; the image being taken is lost.</translation>
    </message>
    <message>
        <source>AcquisitionBurstFrameCount_Tooltip</source>
        <translation>Number of images taken for each burst trigger.</translation>
    </message>
    <message>
        <source>AcquisitionControl_Tooltip</source>
        <translation>Image taking, triggers and exposure.</translation>
    </message>
    <message>
        <source>AcquisitionFrameCount_Tooltip</source>
        <translation>Number of images taken in multi-frame mode.</translation>
    </message>
    <message>
        <source>AcquisitionFrameCounter_Tooltip</source>
        <translation>Number of images taken since the camera was switched on.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRate_Tooltip</source>
        <translation>Rate at which the camera takes images, in frames per second.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateEnable_Tooltip</source>
        <translation>Limits the frame rate to the value of AcquisitionFrameRate.</translation>
    </message>
    <message>
        <source>AcquisitionMode_Tooltip</source>
        <translation>Whether the camera takes one image, a set number of images, or images until stopped.</translation>
    </message>
    <message>
        <source>AcquisitionStart_Tooltip</source>
        <translation>Starts taking images.</translation>
    </message>
    <message>
        <source>AcquisitionStatus_Tooltip</source>
        <translation>True while the camera is taking images.</translation>
    </message>
    <message>
        <source>TLParamsLocked_Tooltip</source>
        <translation>1 while the camera acquires; the size and format of the image cannot be changed then.</translation>
    </message>
    <message>
        <source>AcquisitionStop_Tooltip</source>
        <translation>Stops taking images after the current image.</translation>
    </message>
    <message>
        <source>ActionControl_Tooltip</source>
        <translation>Action commands sent over the network.</translation>
    </message>
    <message>
        <source>ActionDeviceKey_Tooltip</source>
        <translation>Key an action command must carry for the camera to act on it.</translation>
    </message>
    <message>
        <source>ActionGroupKey_Tooltip</source>
        <translation>Group key of the selected action.</translation>
    </message>
    <message>
        <source>ActionGroupMask_Tooltip</source>
        <translation>Group mask of the selected action.</translation>
    </message>
    <message>
        <source>ActionQueueSize_Tooltip</source>
        <translation>Number of scheduled action commands the camera can hold.</translation>
    </message>
    <message>
        <source>ActionSelector_Tooltip</source>
        <translation>Chooses the action to set up.</translation>
    </message>
    <message>
        <source>ActionUnconditionalMode_Tooltip</source>
        <translation>Takes action commands even when no application controls the camera.</translation>
    </message>
    <message>
        <source>AnalogControl_Tooltip</source>
        <translation>Gain, black level, gamma and colour.</translation>
    </message>
    <message>
        <source>AutoExposureTimeLowerLimit_Tooltip</source>
        <translation>Shortest exposure time the automatic exposure may choose.</translation>
    </message>
    <message>
        <source>AutoExposureTimeUpperLimit_Tooltip</source>
        <translation>Longest exposure time the automatic exposure may choose.</translation>
    </message>
    <message>
        <source>AutoFunctionControl_Tooltip</source>
        <translation>Targets, limits and regions of the automatic functions.</translation>
    </message>
    <message>
        <source>AutoFunctionProfile_Tooltip</source>
        <translation>Whether the automatic control keeps the gain or the exposure time low.</translation>
    </message>
    <message>
        <source>AutoFunctionROIHeight_Tooltip</source>
        <translation>Height of the selected auto function region, in pixels.</translation>
    </message>
    <message>
        <source>AutoFunctionROIOffsetX_Tooltip</source>
        <translation>Horizontal position of the selected auto function region.</translation>
    </message>
    <message>
        <source>AutoFunctionROIOffsetY_Tooltip</source>
        <translation>Vertical position of the selected auto function region.</translation>
    </message>
    <message>
        <source>AutoFunctionROISelector_Tooltip</source>
        <translation>Chooses the image region the automatic functions look at.</translation>
    </message>
    <message>
        <source>AutoFunctionROIUseBrightness_Tooltip</source>
        <translation>Automatic exposure and gain look at the selected region.</translation>
    </message>
    <message>
        <source>AutoFunctionROIUseWhiteBalance_Tooltip</source>
        <translation>Automatic white balance looks at the selected region.</translation>
    </message>
    <message>
        <source>AutoFunctionROIWidth_Tooltip</source>
        <translation>Width of the selected auto function region, in pixels.</translation>
    </message>
    <message>
        <source>AutoGainLowerLimit_Tooltip</source>
        <translation>Lowest gain the automatic gain may choose.</translation>
    </message>
    <message>
        <source>AutoGainUpperLimit_Tooltip</source>
        <translation>Highest gain the automatic gain may choose.</translation>
    </message>
    <message>
        <source>AutoTargetBrightness_Tooltip</source>
        <translation>Mean brightness the automatic exposure and gain try to reach.</translation>
    </message>
    <message>
        <source>BalanceRatio_Tooltip</source>
        <translation>Gain of the selected colour channel relative to the others, for white balance.</translation>
    </message>
    <message>
        <source>BalanceRatioSelector_Tooltip</source>
        <translation>Chooses the colour channel that BalanceRatio sets.</translation>
    </message>
    <message>
        <source>BalanceWhiteAuto_Tooltip</source>
        <translation>Lets the camera balance the colours by itself: off, once or continuously.</translation>
    </message>
    <message>
        <source>BandwidthAllocation_Tooltip</source>
        <translation>Isochronous bandwidth kept for the camera on the bus.</translation>
    </message>
    <message>
        <source>BinningHorizontal_Tooltip</source>
        <translation>Number of neighbouring columns combined into one pixel.</translation>
    </message>
    <message>
        <source>BinningHorizontalMode_Tooltip</source>
        <translation>How binned columns are combined: summed or averaged.</translation>
    </message>
    <message>
        <source>BinningSelector_Tooltip</source>
        <translation>Chooses where the binning is done: in the sensor or in the camera logic.</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>Number of neighbouring rows combined into one pixel.</translation>
    </message>
    <message>
        <source>BinningVerticalMode_Tooltip</source>
        <translation>How binned rows are combined: summed or averaged.</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>Offset added to every pixel value; raises or lowers the darkest tones.</translation>
    </message>
    <message>
        <source>BlackLevelAuto_Tooltip</source>
        <translation>Lets the camera set the black level by itself.</translation>
    </message>
    <message>
        <source>BlackLevelSelector_Tooltip</source>
        <translation>Chooses which black level BlackLevel sets.</translation>
    </message>
    <message>
        <source>CameraEmulation_Tooltip</source>
        <translation>Where the emulated camera takes its images from.</translation>
    </message>
    <message>
        <source>CenterX_Tooltip</source>
        <translation>Keeps the image area centred horizontally; OffsetX then follows by itself.</translation>
    </message>
    <message>
        <source>CenterY_Tooltip</source>
        <translation>Keeps the image area centred vertically; OffsetY then follows by itself.</translation>
    </message>
    <message>
        <source>ChunkCounterSelector_Tooltip</source>
        <translation>Chooses which counter ChunkCounterValue shows.</translation>
    </message>
    <message>
        <source>ChunkCounterValue_Tooltip</source>
        <translation>Count of the selected counter when the last image was exposed.</translation>
    </message>
    <message>
        <source>ChunkData_Tooltip</source>
        <translation>Values read from the chunks of the last image.</translation>
    </message>
    <message>
        <source>ChunkDataControl_Tooltip</source>
        <translation>Data added to every image.</translation>
    </message>
    <message>
        <source>ChunkDataStreams_Tooltip</source>
        <translation>Stream values read from the chunks of the last image.</translation>
    </message>
    <message>
        <source>ChunkEnable_Tooltip</source>
        <translation>Puts the selected chunk into each image.</translation>
    </message>
    <message>
        <source>ChunkExposureTime_Tooltip</source>
        <translation>Exposure time of the last image, from its chunk.</translation>
    </message>
    <message>
        <source>ChunkFrameID_Tooltip</source>
        <translation>Number of the last image.</translation>
    </message>
    <message>
        <source>ChunkGain_Tooltip</source>
        <translation>Gain of the last image, from its chunk.</translation>
    </message>
    <message>
        <source>ChunkGainSelector_Tooltip</source>
        <translation>Chooses which gain ChunkGain shows.</translation>
    </message>
    <message>
        <source>ChunkHeight_Tooltip</source>
        <translation>Height of the last image, from its chunk.</translation>
    </message>
    <message>
        <source>ChunkLineStatusAll_Tooltip</source>
        <translation>Levels of all lines when the last image was exposed.</translation>
    </message>
    <message>
        <source>ChunkModeActive_Tooltip</source>
        <translation>Adds the enabled chunks of data to every image.</translation>
    </message>
    <message>
        <source>ChunkOffsetX_Tooltip</source>
        <translation>Horizontal position of the last image, from its chunk.</translation>
    </message>
    <message>
        <source>ChunkOffsetY_Tooltip</source>
        <translation>Vertical position of the last image, from its chunk.</translation>
    </message>
    <message>
        <source>ChunkPayloadCRC16_Tooltip</source>
        <translation>Checksum of the data of the last image.</translation>
    </message>
    <message>
        <source>ChunkPixelFormat_Tooltip</source>
        <translation>Pixel format of the last image, from its chunk.</translation>
    </message>
    <message>
        <source>ChunkSelector_Tooltip</source>
        <translation>Chooses the chunk to turn on or off.</translation>
    </message>
    <message>
        <source>ChunkStride_Tooltip</source>
        <translation>Bytes from the start of one line of the last image to the next.</translation>
    </message>
    <message>
        <source>ChunkTimestamp_Tooltip</source>
        <translation>Time stamp of the last image, from its chunk.</translation>
    </message>
    <message>
        <source>ChunkWidth_Tooltip</source>
        <translation>Width of the last image, from its chunk.</translation>
    </message>
    <message>
        <source>ColorControls_Tooltip</source>
        <translation>White balance and colour processing.</translation>
    </message>
    <message>
        <source>ColorTransformationControl_Tooltip</source>
        <translation>Colour transformation matrix.</translation>
    </message>
    <message>
        <source>ColorTransformationEnable_Tooltip</source>
        <translation>Applies the colour transformation matrix.</translation>
    </message>
    <message>
        <source>ColorTransformationSelector_Tooltip</source>
        <translation>Chooses the colour transformation the features below set.</translation>
    </message>
    <message>
        <source>ColorTransformationValue_Tooltip</source>
        <translation>Value of the selected matrix coefficient.</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector_Tooltip</source>
        <translation>Chooses a coefficient of the matrix.</translation>
    </message>
    <message>
        <source>CounterAndTimerControl_Tooltip</source>
        <translation>Counters and timers.</translation>
    </message>
    <message>
        <source>CounterControls_Tooltip</source>
        <translation>Counters of events.</translation>
    </message>
    <message>
        <source>CounterDuration_Tooltip</source>
        <translation>Count at which the selected counter stops.</translation>
    </message>
    <message>
        <source>CounterEventActivation_Tooltip</source>
        <translation>Which edge of the counted signal adds one.</translation>
    </message>
    <message>
        <source>CounterEventSource_Tooltip</source>
        <translation>Signal whose events the selected counter counts.</translation>
    </message>
    <message>
        <source>CounterReset_Tooltip</source>
        <translation>Sets the selected counter back to zero.</translation>
    </message>
    <message>
        <source>CounterResetActivation_Tooltip</source>
        <translation>Which edge of the reset signal sets the counter back.</translation>
    </message>
    <message>
        <source>CounterResetSource_Tooltip</source>
        <translation>Signal that sets the selected counter back to zero.</translation>
    </message>
    <message>
        <source>CounterSelector_Tooltip</source>
        <translation>Chooses the counter to set up.</translation>
    </message>
    <message>
        <source>CounterStatus_Tooltip</source>
        <translation>State of the selected counter.</translation>
    </message>
    <message>
        <source>CounterValue_Tooltip</source>
        <translation>Present count of the selected counter.</translation>
    </message>
    <message>
        <source>CounterValueAtReset_Tooltip</source>
        <translation>Count of the selected counter when it was last reset.</translation>
    </message>
    <message>
        <source>DecimationHorizontal_Tooltip</source>
        <translation>Reads out only every n-th column.</translation>
    </message>
    <message>
        <source>DecimationVertical_Tooltip</source>
        <translation>Reads out only every n-th row.</translation>
    </message>
    <message>
        <source>DefectPixelCorrectionMode_Tooltip</source>
        <translation>Replaces the values of known defective pixels.</translation>
    </message>
    <message>
        <source>DemosaicingMode_Tooltip</source>
        <translation>How full colour is worked out from the Bayer pattern in the camera.</translation>
    </message>
    <message>
        <source>DeviceCharacterSet_Tooltip</source>
        <translation>Character set of the texts the camera holds.</translation>
    </message>
    <message>
        <source>DeviceClockFrequency_Tooltip</source>
        <translation>Frequency of the selected clock.</translation>
    </message>
    <message>
        <source>DeviceClockSelector_Tooltip</source>
        <translation>Chooses the clock whose frequency is shown.</translation>
    </message>
    <message>
        <source>DeviceControl_Tooltip</source>
        <translation>Identity of the camera and its general settings.</translation>
    </message>
    <message>
        <source>DeviceEventChannelCount_Tooltip</source>
        <translation>Number of event channels of the camera.</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>Product family the camera belongs to.</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceEnd_Tooltip</source>
        <translation>Ends keeping the feature values in the camera.</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceStart_Tooltip</source>
        <translation>Starts keeping the present feature values in the camera.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>Version of the firmware in the camera.</translation>
    </message>
    <message>
        <source>DeviceGenCPVersionMajor_Tooltip</source>
        <translation>Major version of the control protocol of the camera.</translation>
    </message>
    <message>
        <source>DeviceGenCPVersionMinor_Tooltip</source>
        <translation>Minor version of the control protocol of the camera.</translation>
    </message>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>Old identifier of the camera; use DeviceSerialNumber instead.</translation>
    </message>
    <message>
        <source>DeviceIndicatorMode_Tooltip</source>
        <translation>What the status light of the camera shows.</translation>
    </message>
    <message>
        <source>DeviceLinkCommandTimeout_Tooltip</source>
        <translation>Longest time the camera takes to answer a command.</translation>
    </message>
    <message>
        <source>DeviceLinkCurrentThroughput_Tooltip</source>
        <translation>Data rate the camera sends on the link now, in bytes per second.</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatTimeout_Tooltip</source>
        <translation>Time without a heartbeat after which the camera drops the connection.</translation>
    </message>
    <message>
        <source>DeviceLinkSelector_Tooltip</source>
        <translation>Chooses the link of the camera to set up.</translation>
    </message>
    <message>
        <source>DeviceLinkSpeed_Tooltip</source>
        <translation>Speed agreed on the link, in bytes per second.</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimit_Tooltip</source>
        <translation>Highest data rate the camera sends on the link, in bytes per second.</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimitMode_Tooltip</source>
        <translation>Turns the limit on the data rate on or off; when on, the frame rate may drop.</translation>
    </message>
    <message>
        <source>DeviceManifestEntrySelector_Tooltip</source>
        <translation>Chooses the entry of the description file list to read.</translation>
    </message>
    <message>
        <source>DeviceManifestXMLMajorVersion_Tooltip</source>
        <translation>Major version of the description file of the selected entry.</translation>
    </message>
    <message>
        <source>DeviceManifestXMLMinorVersion_Tooltip</source>
        <translation>Minor version of the description file of the selected entry.</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>Further information from the camera maker.</translation>
    </message>
    <message>
        <source>DeviceMaxThroughput_Tooltip</source>
        <translation>Highest data rate the camera can keep up, in bytes per second.</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>Model name of the camera.</translation>
    </message>
    <message>
        <source>DeviceRegistersCheck_Tooltip</source>
        <translation>Checks that the register settings fit together.</translation>
    </message>
    <message>
        <source>DeviceRegistersEndianness_Tooltip</source>
        <translation>Byte order of the camera registers.</translation>
    </message>
    <message>
        <source>DeviceRegistersStreamingEnd_Tooltip</source>
        <translation>Ends a series of register writes; the camera then checks them.</translation>
    </message>
    <message>
        <source>DeviceRegistersStreamingStart_Tooltip</source>
        <translation>Prepares the camera for a series of register writes.</translation>
    </message>
    <message>
        <source>DeviceRegistersValid_Tooltip</source>
        <translation>1 when the register settings fit together.</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>Restarts the camera. The connection is lost until it is back.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMajor_Tooltip</source>
        <translation>Major version of the feature naming standard the camera follows.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMinor_Tooltip</source>
        <translation>Minor version of the feature naming standard the camera follows.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionSubMinor_Tooltip</source>
        <translation>Sub-minor version of the feature naming standard the camera follows.</translation>
    </message>
    <message>
        <source>DeviceScanType_Tooltip</source>
        <translation>Whether the sensor takes whole areas or single lines.</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>Serial number of the camera.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelCount_Tooltip</source>
        <translation>Number of image stream channels of the camera.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelEndianness_Tooltip</source>
        <translation>Byte order of pixel data wider than one byte in the stream.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelPacketSize_Tooltip</source>
        <translation>Size of the packets of the selected stream channel, in bytes.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelSelector_Tooltip</source>
        <translation>Chooses the stream channel to set up.</translation>
    </message>
    <message>
        <source>DeviceStreamChannelType_Tooltip</source>
        <translation>Whether the selected stream channel sends or receives.</translation>
    </message>
    <message>
        <source>DeviceTLType_Tooltip</source>
        <translation>Kind of interface the camera is connected by.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor_Tooltip</source>
        <translation>Major version of the transport protocol of the camera.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor_Tooltip</source>
        <translation>Minor version of the transport protocol of the camera.</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>Temperature at the selected place in the camera, in degrees Celsius.</translation>
    </message>
    <message>
        <source>DeviceTemperatureSelector_Tooltip</source>
        <translation>Chooses the place in the camera whose temperature is shown.</translation>
    </message>
    <message>
        <source>DeviceTemperatureStatus_Tooltip</source>
        <translation>Whether the camera temperature is normal, high or critical.</translation>
    </message>
    <message>
        <source>DeviceType_Tooltip</source>
        <translation>Role of the camera on its link, such as transmitter.</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>A name of your own for the camera, kept in the camera.</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>Name of the camera maker.</translation>
    </message>
    <message>
        <source>DeviceVersion_Tooltip</source>
        <translation>Hardware version of the camera.</translation>
    </message>
    <message>
        <source>DigitalIO_Tooltip</source>
        <translation>Lines of the I/O connector and user outputs.</translation>
    </message>
    <message>
        <source>DigitalShift_Tooltip</source>
        <translation>Shifts the pixel values left by this many bits, making the image brighter.</translation>
    </message>
    <message>
        <source>EncoderControl_Tooltip</source>
        <translation>Input of a quadrature shaft encoder.</translation>
    </message>
    <message>
        <source>EncoderDivider_Tooltip</source>
        <translation>Counts only every n-th encoder step.</translation>
    </message>
    <message>
        <source>EncoderMode_Tooltip</source>
        <translation>How the edges of the encoder signals are counted.</translation>
    </message>
    <message>
        <source>EncoderOutputMode_Tooltip</source>
        <translation>Which movements of the encoder give an output pulse.</translation>
    </message>
    <message>
        <source>EncoderReset_Tooltip</source>
        <translation>Sets the encoder position back to zero.</translation>
    </message>
    <message>
        <source>EncoderResetSource_Tooltip</source>
        <translation>Signal that sets the encoder position back to zero.</translation>
    </message>
    <message>
        <source>EncoderSelector_Tooltip</source>
        <translation>Chooses the shaft encoder to set up.</translation>
    </message>
    <message>
        <source>EncoderSourceA_Tooltip</source>
        <translation>Input line of the encoder signal A.</translation>
    </message>
    <message>
        <source>EncoderSourceB_Tooltip</source>
        <translation>Input line of the encoder signal B.</translation>
    </message>
    <message>
        <source>EncoderStatus_Tooltip</source>
        <translation>Direction in which the encoder turns.</translation>
    </message>
    <message>
        <source>EncoderTimeout_Tooltip</source>
        <translation>Time without steps after which the encoder counts as standing still.</translation>
    </message>
    <message>
        <source>EncoderValue_Tooltip</source>
        <translation>Present position of the encoder.</translation>
    </message>
    <message>
        <source>EncoderValueAtReset_Tooltip</source>
        <translation>Encoder position when it was last reset.</translation>
    </message>
    <message>
        <source>EventAcquisitionEnd_Tooltip</source>
        <translation>Identifier of the "Acquisition End" event.</translation>
    </message>
    <message>
        <source>EventAcquisitionEndData_Tooltip</source>
        <translation>What the camera reports with the "Acquisition End" event.</translation>
    </message>
    <message>
        <source>EventAcquisitionEndTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Acquisition End" event.</translation>
    </message>
    <message>
        <source>EventAcquisitionStart_Tooltip</source>
        <translation>Identifier of the "Acquisition Start" event.</translation>
    </message>
    <message>
        <source>EventAcquisitionStartData_Tooltip</source>
        <translation>What the camera reports with the "Acquisition Start" event.</translation>
    </message>
    <message>
        <source>EventAcquisitionStartTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Acquisition Start" event.</translation>
    </message>
    <message>
        <source>EventCounter0End_Tooltip</source>
        <translation>Identifier of the "Counter 0 End" event.</translation>
    </message>
    <message>
        <source>EventCounter0EndData_Tooltip</source>
        <translation>What the camera reports with the "Counter 0 End" event.</translation>
    </message>
    <message>
        <source>EventCounter0EndTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Counter 0 End" event.</translation>
    </message>
    <message>
        <source>EventCriticalTemperature_Tooltip</source>
        <translation>Identifier of the "Critical Temperature" event.</translation>
    </message>
    <message>
        <source>EventCriticalTemperatureData_Tooltip</source>
        <translation>What the camera reports with the "Critical Temperature" event.</translation>
    </message>
    <message>
        <source>EventCriticalTemperatureTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Critical Temperature" event.</translation>
    </message>
    <message>
        <source>EventEventOverrun_Tooltip</source>
        <translation>Identifier of the "Event Overrun" event.</translation>
    </message>
    <message>
        <source>EventEventOverrunData_Tooltip</source>
        <translation>What the camera reports with the "Event Overrun" event.</translation>
    </message>
    <message>
        <source>EventEventOverrunTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Event Overrun" event.</translation>
    </message>
    <message>
        <source>EventExposureEnd_Tooltip</source>
        <translation>Identifier of the "Exposure End" event.</translation>
    </message>
    <message>
        <source>EventExposureEndData_Tooltip</source>
        <translation>What the camera reports with the "Exposure End" event.</translation>
    </message>
    <message>
        <source>EventExposureEndFrameID_Tooltip</source>
        <translation>Image that the last "Exposure End" event belongs to.</translation>
    </message>
    <message>
        <source>EventExposureEndTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Exposure End" event.</translation>
    </message>
    <message>
        <source>EventExposureStart_Tooltip</source>
        <translation>Identifier of the "Exposure Start" event.</translation>
    </message>
    <message>
        <source>EventExposureStartData_Tooltip</source>
        <translation>What the camera reports with the "Exposure Start" event.</translation>
    </message>
    <message>
        <source>EventExposureStartFrameID_Tooltip</source>
        <translation>Image that the last "Exposure Start" event belongs to.</translation>
    </message>
    <message>
        <source>EventExposureStartTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Exposure Start" event.</translation>
    </message>
    <message>
        <source>EventFrameBurstStart_Tooltip</source>
        <translation>Identifier of the "Frame Burst Start" event.</translation>
    </message>
    <message>
        <source>EventFrameBurstStartData_Tooltip</source>
        <translation>What the camera reports with the "Frame Burst Start" event.</translation>
    </message>
    <message>
        <source>EventFrameBurstStartFrameID_Tooltip</source>
        <translation>Image that the last "Frame Burst Start" event belongs to.</translation>
    </message>
    <message>
        <source>EventFrameBurstStartTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Frame Burst Start" event.</translation>
    </message>
    <message>
        <source>EventFrameEnd_Tooltip</source>
        <translation>Identifier of the "Frame End" event.</translation>
    </message>
    <message>
        <source>EventFrameEndData_Tooltip</source>
        <translation>What the camera reports with the "Frame End" event.</translation>
    </message>
    <message>
        <source>EventFrameEndFrameID_Tooltip</source>
        <translation>Image that the last "Frame End" event belongs to.</translation>
    </message>
    <message>
        <source>EventFrameEndTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Frame End" event.</translation>
    </message>
    <message>
        <source>EventFrameStart_Tooltip</source>
        <translation>Identifier of the "Frame Start" event.</translation>
    </message>
    <message>
        <source>EventFrameStartData_Tooltip</source>
        <translation>What the camera reports with the "Frame Start" event.</translation>
    </message>
    <message>
        <source>EventFrameStartFrameID_Tooltip</source>
        <translation>Image that the last "Frame Start" event belongs to.</translation>
    </message>
    <message>
        <source>EventFrameStartTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Frame Start" event.</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissed_Tooltip</source>
        <translation>Identifier of the "Frame Trigger Missed" event.</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedData_Tooltip</source>
        <translation>What the camera reports with the "Frame Trigger Missed" event.</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedFrameID_Tooltip</source>
        <translation>Image that the last "Frame Trigger Missed" event belongs to.</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Frame Trigger Missed" event.</translation>
    </message>
    <message>
        <source>EventLine0RisingEdge_Tooltip</source>
        <translation>Identifier of the "Line 0 Rising Edge" event.</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeData_Tooltip</source>
        <translation>What the camera reports with the "Line 0 Rising Edge" event.</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Line 0 Rising Edge" event.</translation>
    </message>
    <message>
        <source>EventLine2RisingEdge_Tooltip</source>
        <translation>Identifier of the "Line 2 Rising Edge" event.</translation>
    </message>
    <message>
        <source>EventLine2RisingEdgeData_Tooltip</source>
        <translation>What the camera reports with the "Line 2 Rising Edge" event.</translation>
    </message>
    <message>
        <source>EventLine2RisingEdgeTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Line 2 Rising Edge" event.</translation>
    </message>
    <message>
        <source>EventNotification_Tooltip</source>
        <translation>Whether the camera reports the selected event to the application.</translation>
    </message>
    <message>
        <source>EventOverTemperature_Tooltip</source>
        <translation>Identifier of the "Over Temperature" event.</translation>
    </message>
    <message>
        <source>EventOverTemperatureData_Tooltip</source>
        <translation>What the camera reports with the "Over Temperature" event.</translation>
    </message>
    <message>
        <source>EventOverTemperatureTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Over Temperature" event.</translation>
    </message>
    <message>
        <source>EventSelector_Tooltip</source>
        <translation>Chooses the event whose notification is set.</translation>
    </message>
    <message>
        <source>EventTest_Tooltip</source>
        <translation>Identifier of the "Test" event.</translation>
    </message>
    <message>
        <source>EventTestData_Tooltip</source>
        <translation>What the camera reports with the "Test" event.</translation>
    </message>
    <message>
        <source>EventTestTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Test" event.</translation>
    </message>
    <message>
        <source>EventTimer0End_Tooltip</source>
        <translation>Identifier of the "Timer 0 End" event.</translation>
    </message>
    <message>
        <source>EventTimer0EndData_Tooltip</source>
        <translation>What the camera reports with the "Timer 0 End" event.</translation>
    </message>
    <message>
        <source>EventTimer0EndTimestamp_Tooltip</source>
        <translation>Time stamp of the last "Timer 0 End" event.</translation>
    </message>
    <message>
        <source>EventsGeneration_Tooltip</source>
        <translation>Identifier of the "Generation" event.</translation>
    </message>
    <message>
        <source>ExposureAuto_Tooltip</source>
        <translation>Lets the camera set the exposure time by itself: off, once or continuously.</translation>
    </message>
    <message>
        <source>ExposureMode_Tooltip</source>
        <translation>How the exposure is controlled: by the exposure time or by the trigger signal width.</translation>
    </message>
    <message>
        <source>ExposureTime_Tooltip</source>
        <translation>How long the sensor gathers light for each image, in microseconds.</translation>
    </message>
    <message>
        <source>ExposureTimeAbs_Tooltip</source>
        <translation>Exposure time in microseconds, under its older name.</translation>
    </message>
    <message>
        <source>ExposureTimeBaseAbs_Tooltip</source>
        <translation>Time unit of ExposureTimeRaw, in the older way of setting the exposure.</translation>
    </message>
    <message>
        <source>ExposureTimeBaseAbsEnable_Tooltip</source>
        <translation>Older way of setting the exposure: ExposureTimeRaw times ExposureTimeBaseAbs.</translation>
    </message>
    <message>
        <source>ExposureTimeMode_Tooltip</source>
        <translation>Range of exposure times on offer: standard or ultra short.</translation>
    </message>
    <message>
        <source>ExposureTimeRaw_Tooltip</source>
        <translation>Exposure time in units of ExposureTimeBaseAbs, the older way.</translation>
    </message>
    <message>
        <source>FileAccess_Tooltip</source>
        <translation>Files kept in the camera.</translation>
    </message>
    <message>
        <source>FileAccessBuffer_Tooltip</source>
        <translation>Data read from or to be written to the file.</translation>
    </message>
    <message>
        <source>FileAccessControl_Tooltip</source>
        <translation>Reading and writing files in the camera.</translation>
    </message>
    <message>
        <source>FileAccessLength_Tooltip</source>
        <translation>Number of bytes to read or write.</translation>
    </message>
    <message>
        <source>FileAccessOffset_Tooltip</source>
        <translation>Position in the file where the next read or write starts.</translation>
    </message>
    <message>
        <source>FileOpenMode_Tooltip</source>
        <translation>Whether the file is opened for reading, writing or both.</translation>
    </message>
    <message>
        <source>FileOperationExecute_Tooltip</source>
        <translation>Carries out the selected operation on the selected file.</translation>
    </message>
    <message>
        <source>FileOperationResult_Tooltip</source>
        <translation>Number of bytes moved by the last read or write.</translation>
    </message>
    <message>
        <source>FileOperationSelector_Tooltip</source>
        <translation>Chooses what FileOperationExecute does: open, read, write, close or delete.</translation>
    </message>
    <message>
        <source>FileOperationStatus_Tooltip</source>
        <translation>Whether the last file operation succeeded.</translation>
    </message>
    <message>
        <source>FileSelector_Tooltip</source>
        <translation>Chooses the file to work on.</translation>
    </message>
    <message>
        <source>FileSize_Tooltip</source>
        <translation>Size of the selected file, in bytes.</translation>
    </message>
    <message>
        <source>FileStatus_Tooltip</source>
        <translation>Whether the selected file is open.</translation>
    </message>
    <message>
        <source>ForceFailedBuffer_Tooltip</source>
        <translation>Marks the next buffers as failed, to try out error handling.</translation>
    </message>
    <message>
        <source>ForceFailedBufferCount_Tooltip</source>
        <translation>Number of buffers ForceFailedBuffer marks as failed.</translation>
    </message>
    <message>
        <source>Gain_Tooltip</source>
        <translation>Amplification of the sensor signal. More gain gives a brighter but noisier image.</translation>
    </message>
    <message>
        <source>GainAuto_Tooltip</source>
        <translation>Lets the camera set the gain by itself: off, once or continuously.</translation>
    </message>
    <message>
        <source>GainSelector_Tooltip</source>
        <translation>Chooses which gain the Gain feature sets.</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>Gamma correction of the pixel values.</translation>
    </message>
    <message>
        <source>GammaEnable_Tooltip</source>
        <translation>Applies the gamma correction.</translation>
    </message>
    <message>
        <source>GammaSelector_Tooltip</source>
        <translation>Chooses a gamma value of your own or the sRGB curve.</translation>
    </message>
    <message>
        <source>GevCCP_Tooltip</source>
        <translation>Access right of this application on the control channel.</translation>
    </message>
    <message>
        <source>GevControlChannel_Tooltip</source>
        <translation>Control and message channels.</translation>
    </message>
    <message>
        <source>GevCurrentDefaultGateway_Tooltip</source>
        <translation>Default gateway the camera uses now.</translation>
    </message>
    <message>
        <source>GevCurrentIPAddress_Tooltip</source>
        <translation>IP address the camera uses now.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfiguration_Tooltip</source>
        <translation>Address configuration as bits: fixed address, DHCP, link-local.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationDHCP_Tooltip</source>
        <translation>The camera gets its address from a DHCP server.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationLLA_Tooltip</source>
        <translation>Link-local addressing; always on.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationPersistentIP_Tooltip</source>
        <translation>The camera uses the fixed address set below.</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>Subnet mask the camera uses now.</translation>
    </message>
    <message>
        <source>GevDeviceModeCharacterSet_Tooltip</source>
        <translation>Character set of the texts in the camera bootstrap registers.</translation>
    </message>
    <message>
        <source>GevDeviceModeIsBigEndian_Tooltip</source>
        <translation>1 when the camera registers are big-endian.</translation>
    </message>
    <message>
        <source>GevFirstURL_Tooltip</source>
        <translation>First place where the camera description file is found.</translation>
    </message>
    <message>
        <source>GevGVCPHeartbeatDisable_Tooltip</source>
        <translation>Turns the heartbeat off, for debugging.</translation>
    </message>
    <message>
        <source>GevGVCPPendingAck_Tooltip</source>
        <translation>The camera tells the application to wait for slow commands.</translation>
    </message>
    <message>
        <source>GevGVSPExtendedIDMode_Tooltip</source>
        <translation>Uses wider block and packet numbers in the image stream.</translation>
    </message>
    <message>
        <source>GevHeartbeatTimeout_Tooltip</source>
        <translation>Time without a heartbeat after which the camera drops the connection, in milliseconds.</translation>
    </message>
    <message>
        <source>GevIEEE1588_Tooltip</source>
        <translation>Synchronises the time stamp with a PTP master clock.</translation>
    </message>
    <message>
        <source>GevIEEE1588Status_Tooltip</source>
        <translation>State of the PTP synchronisation.</translation>
    </message>
    <message>
        <source>GevInterfaceControl_Tooltip</source>
        <translation>Settings of the network port.</translation>
    </message>
    <message>
        <source>GevInterfaceSelector_Tooltip</source>
        <translation>Chooses the network port to set up.</translation>
    </message>
    <message>
        <source>GevLinkSpeed_Tooltip</source>
        <translation>Speed of the selected network port, in megabits per second.</translation>
    </message>
    <message>
        <source>GevMACAddress_Tooltip</source>
        <translation>MAC address of the selected network port.</translation>
    </message>
    <message>
        <source>GevMCDA_Tooltip</source>
        <translation>Address the camera sends event messages to.</translation>
    </message>
    <message>
        <source>GevMCPHostPort_Tooltip</source>
        <translation>Port on this computer that receives the event messages.</translation>
    </message>
    <message>
        <source>GevMCRC_Tooltip</source>
        <translation>How often the camera sends an unanswered event message again.</translation>
    </message>
    <message>
        <source>GevMCTT_Tooltip</source>
        <translation>How long the camera waits for an event message to be acknowledged, in milliseconds.</translation>
    </message>
    <message>
        <source>GevMessageChannelCount_Tooltip</source>
        <translation>Number of message channels of the camera.</translation>
    </message>
    <message>
        <source>GevNumberOfInterfaces_Tooltip</source>
        <translation>Number of network ports of the camera.</translation>
    </message>
    <message>
        <source>GevPersistentDefaultGateway_Tooltip</source>
        <translation>Fixed default gateway the camera uses after switching on.</translation>
    </message>
    <message>
        <source>GevPersistentIPAddress_Tooltip</source>
        <translation>Fixed IP address the camera uses after switching on.</translation>
    </message>
    <message>
        <source>GevPersistentSubnetMask_Tooltip</source>
        <translation>Fixed subnet mask the camera uses after switching on.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationIPAddress_Tooltip</source>
        <translation>IP address of the application that controls the camera.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSocket_Tooltip</source>
        <translation>UDP port of the application that controls the camera.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSwitchoverKey_Tooltip</source>
        <translation>Key that lets another application take over control.</translation>
    </message>
    <message>
        <source>GevSCBWR_Tooltip</source>
        <translation>Share of the bandwidth kept free for packets sent again, in percent.</translation>
    </message>
    <message>
        <source>GevSCBWRA_Tooltip</source>
        <translation>How much of the reserve a burst of resends may use at once.</translation>
    </message>
    <message>
        <source>GevSCDA_Tooltip</source>
        <translation>Address the camera sends the images to.</translation>
    </message>
    <message>
        <source>GevSCFTD_Tooltip</source>
        <translation>Delay before the camera sends an image, in time stamp ticks.</translation>
    </message>
    <message>
        <source>GevSCPD_Tooltip</source>
        <translation>Pause between image packets, in time stamp ticks; spreads the load on the network.</translation>
    </message>
    <message>
        <source>GevSCPHostPort_Tooltip</source>
        <translation>UDP port on this computer that receives the images.</translation>
    </message>
    <message>
        <source>GevSCPInterfaceIndex_Tooltip</source>
        <translation>Network port the selected stream channel uses.</translation>
    </message>
    <message>
        <source>GevSCPSBigEndian_Tooltip</source>
        <translation>Sends pixel data wider than one byte in big-endian order.</translation>
    </message>
    <message>
        <source>GevSCPSDoNotFragment_Tooltip</source>
        <translation>Forbids the network to split the image packets.</translation>
    </message>
    <message>
        <source>GevSCPSFireTestPacket_Tooltip</source>
        <translation>Makes the camera send one test packet of the set size.</translation>
    </message>
    <message>
        <source>GevSCPSPacketSize_Tooltip</source>
        <translation>Size of the image packets with headers; jumbo frames need a network that carries them.</translation>
    </message>
    <message>
        <source>GevSCSP_Tooltip</source>
        <translation>UDP port the camera sends the images from.</translation>
    </message>
    <message>
        <source>GevSecondURL_Tooltip</source>
        <translation>Second place where the camera description file is found.</translation>
    </message>
    <message>
        <source>GevStreamChannelControl_Tooltip</source>
        <translation>Settings of the image stream channels.</translation>
    </message>
    <message>
        <source>GevStreamChannelCount_Tooltip</source>
        <translation>Number of image stream channels of the camera.</translation>
    </message>
    <message>
        <source>GevStreamChannelSelector_Tooltip</source>
        <translation>Chooses the stream channel to set up.</translation>
    </message>
    <message>
        <source>GevSupportedOption_Tooltip</source>
        <translation>Whether the camera supports the selected option.</translation>
    </message>
    <message>
        <source>GevSupportedOptionSelector_Tooltip</source>
        <translation>Chooses the option GevSupportedOption reports on.</translation>
    </message>
    <message>
        <source>GevTimestamp_Tooltip</source>
        <translation>Time stamp and clock synchronisation.</translation>
    </message>
    <message>
        <source>GevTimestampControlLatch_Tooltip</source>
        <translation>Older way to copy the time stamp into GevTimestampValue.</translation>
    </message>
    <message>
        <source>GevTimestampControlReset_Tooltip</source>
        <translation>Older way to set the time stamp counter back to zero.</translation>
    </message>
    <message>
        <source>GevTimestampTickFrequency_Tooltip</source>
        <translation>Number of time stamp ticks per second.</translation>
    </message>
    <message>
        <source>GevTimestampValue_Tooltip</source>
        <translation>Time stamp copied by GevTimestampControlLatch.</translation>
    </message>
    <message>
        <source>GevVersionMajor_Tooltip</source>
        <translation>Major GigE Vision version the camera supports.</translation>
    </message>
    <message>
        <source>GevVersionMinor_Tooltip</source>
        <translation>Minor GigE Vision version the camera supports.</translation>
    </message>
    <message>
        <source>GigEVision_Tooltip</source>
        <translation>GigE Vision connection settings.</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>Height of the image the camera sends, in pixels.</translation>
    </message>
    <message>
        <source>HeightMax_Tooltip</source>
        <translation>Largest image height with the present binning and decimation.</translation>
    </message>
    <message>
        <source>Hue_Tooltip</source>
        <translation>Turns the colour hue.</translation>
    </message>
    <message>
        <source>IIDC_Tooltip</source>
        <translation>IEEE 1394 connection settings.</translation>
    </message>
    <message>
        <source>IIDCVersion_Tooltip</source>
        <translation>Version of the IIDC standard the camera follows.</translation>
    </message>
    <message>
        <source>ImageFileMode_Tooltip</source>
        <translation>Sends the images of ImageFilename instead of the built-in test images.</translation>
    </message>
    <message>
        <source>ImageFilename_Tooltip</source>
        <translation>Image file, or folder of image files, the emulated camera sends.</translation>
    </message>
    <message>
        <source>ImageFormatControl_Tooltip</source>
        <translation>Size, position and format of the image.</translation>
    </message>
    <message>
        <source>ImageQualityControl_Tooltip</source>
        <translation>Corrections done in the camera.</translation>
    </message>
    <message>
        <source>IsoSpeed_Tooltip</source>
        <translation>Speed of the isochronous transfer on the bus.</translation>
    </message>
    <message>
        <source>LUTControls_Tooltip</source>
        <translation>Lookup table that maps the pixel values.</translation>
    </message>
    <message>
        <source>LUTEnable_Tooltip</source>
        <translation>Applies the selected lookup table to the pixel values.</translation>
    </message>
    <message>
        <source>LUTIndex_Tooltip</source>
        <translation>Entry of the lookup table that LUTValue reads and writes.</translation>
    </message>
    <message>
        <source>LUTSelector_Tooltip</source>
        <translation>Chooses the lookup table to set up.</translation>
    </message>
    <message>
        <source>LUTValue_Tooltip</source>
        <translation>Value of the lookup table entry chosen by LUTIndex.</translation>
    </message>
    <message>
        <source>LUTValueAll_Tooltip</source>
        <translation>All entries of the selected lookup table at once, as hexadecimal text.</translation>
    </message>
    <message>
        <source>LightSourcePreset_Tooltip</source>
        <translation>Colour correction for the kind of lighting.</translation>
    </message>
    <message>
        <source>LineDebouncerTime_Tooltip</source>
        <translation>Shortest pulse on the selected input line that is taken as a signal.</translation>
    </message>
    <message>
        <source>LineFormat_Tooltip</source>
        <translation>Electrical kind of the selected line.</translation>
    </message>
    <message>
        <source>LineInverter_Tooltip</source>
        <translation>Inverts the signal of the selected line.</translation>
    </message>
    <message>
        <source>LineMinimumOutputPulseWidth_Tooltip</source>
        <translation>Shortest pulse given out on the selected output line.</translation>
    </message>
    <message>
        <source>LineMode_Tooltip</source>
        <translation>Whether the selected line is an input or an output.</translation>
    </message>
    <message>
        <source>LinePitch_Tooltip</source>
        <translation>Bytes from the start of one image line to the next.</translation>
    </message>
    <message>
        <source>LineSelector_Tooltip</source>
        <translation>Chooses the I/O line to set up.</translation>
    </message>
    <message>
        <source>LineSource_Tooltip</source>
        <translation>Camera signal sent out on the selected output line.</translation>
    </message>
    <message>
        <source>LineStatus_Tooltip</source>
        <translation>Present level of the selected line.</translation>
    </message>
    <message>
        <source>LineStatusAll_Tooltip</source>
        <translation>Levels of all lines at once, one bit per line.</translation>
    </message>
    <message>
        <source>NoiseReduction_Tooltip</source>
        <translation>Noise reduction applied in high-quality demosaicing.</translation>
    </message>
    <message>
        <source>OffsetX_Tooltip</source>
        <translation>Horizontal position of the image area on the sensor, in pixels from the left.</translation>
    </message>
    <message>
        <source>OffsetY_Tooltip</source>
        <translation>Vertical position of the image area on the sensor, in pixels from the top.</translation>
    </message>
    <message>
        <source>PacketSize_Tooltip</source>
        <translation>Size of the isochronous packets, in bytes.</translation>
    </message>
    <message>
        <source>PayloadFinalTransfer1Size_Tooltip</source>
        <translation>Size of the first transfer of the remaining image data, in bytes.</translation>
    </message>
    <message>
        <source>PayloadFinalTransfer2Size_Tooltip</source>
        <translation>Size of the second transfer of the remaining image data, in bytes.</translation>
    </message>
    <message>
        <source>PayloadSize_Tooltip</source>
        <translation>Bytes the camera sends per image, chunk data included.</translation>
    </message>
    <message>
        <source>PayloadTransferCount_Tooltip</source>
        <translation>Number of full-size transfers per image.</translation>
    </message>
    <message>
        <source>PayloadTransferSize_Tooltip</source>
        <translation>Size of each USB transfer of the image data, in bytes.</translation>
    </message>
    <message>
        <source>PixelColorFilter_Tooltip</source>
        <translation>Colour filter pattern on the sensor.</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMax_Tooltip</source>
        <translation>Largest value a pixel can take in the present pixel format.</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMin_Tooltip</source>
        <translation>Smallest value a pixel can take in the present pixel format.</translation>
    </message>
    <message>
        <source>PixelFormat_Tooltip</source>
        <translation>Format of the pixels in the images the camera sends.</translation>
    </message>
    <message>
        <source>PixelFormatLegacy_Tooltip</source>
        <translation>Offers the older packed pixel formats in PixelFormat.</translation>
    </message>
    <message>
        <source>PixelSize_Tooltip</source>
        <translation>Number of bits in one pixel of the image.</translation>
    </message>
    <message>
        <source>PtpClockAccuracy_Tooltip</source>
        <translation>Accuracy the camera clock claims.</translation>
    </message>
    <message>
        <source>PtpControl_Tooltip</source>
        <translation>Clock synchronisation over the network (PTP).</translation>
    </message>
    <message>
        <source>PtpDataSetLatch_Tooltip</source>
        <translation>Copies the present synchronisation values for reading.</translation>
    </message>
    <message>
        <source>PtpEnable_Tooltip</source>
        <translation>Synchronises the camera clock with the network using PTP.</translation>
    </message>
    <message>
        <source>PtpGrandmasterClockID_Tooltip</source>
        <translation>Identity of the grandmaster clock at the last latch.</translation>
    </message>
    <message>
        <source>PtpOffsetFromMaster_Tooltip</source>
        <translation>How far the camera clock was from the master clock at the last latch.</translation>
    </message>
    <message>
        <source>PtpParentClockID_Tooltip</source>
        <translation>Identity of the parent clock at the last latch.</translation>
    </message>
    <message>
        <source>PtpServoStatus_Tooltip</source>
        <translation>Whether the camera clock follows the master clock.</translation>
    </message>
    <message>
        <source>PtpStatus_Tooltip</source>
        <translation>State of the PTP clock synchronisation.</translation>
    </message>
    <message>
        <source>ResultingFrameRate_Tooltip</source>
        <translation>Frame rate the camera reaches with the present exposure, readout and limits.</translation>
    </message>
    <message>
        <source>ReverseX_Tooltip</source>
        <translation>Mirrors the image from left to right.</translation>
    </message>
    <message>
        <source>ReverseY_Tooltip</source>
        <translation>Mirrors the image from top to bottom.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>All features of the camera.</translation>
    </message>
    <message>
        <source>Saturation_Tooltip</source>
        <translation>Strength of the colours.</translation>
    </message>
    <message>
        <source>SensorDigitizationTaps_Tooltip</source>
        <translation>Number of digitised outputs of the sensor.</translation>
    </message>
    <message>
        <source>SensorHeight_Tooltip</source>
        <translation>Height of the usable sensor area, in pixels.</translation>
    </message>
    <message>
        <source>SensorName_Tooltip</source>
        <translation>Name of the image sensor.</translation>
    </message>
    <message>
        <source>SensorPixelHeight_Tooltip</source>
        <translation>Physical height of one pixel, in micrometres.</translation>
    </message>
    <message>
        <source>SensorPixelWidth_Tooltip</source>
        <translation>Physical width of one pixel, in micrometres.</translation>
    </message>
    <message>
        <source>SensorReadoutMode_Tooltip</source>
        <translation>Fast readout shortens the readout time but adds noise.</translation>
    </message>
    <message>
        <source>SensorReadoutTime_Tooltip</source>
        <translation>Time the sensor needs to read out one image with the present settings.</translation>
    </message>
    <message>
        <source>SensorShutterMode_Tooltip</source>
        <translation>Shutter type of the sensor: global or rolling.</translation>
    </message>
    <message>
        <source>SensorTaps_Tooltip</source>
        <translation>Number of taps the sensor is read out through.</translation>
    </message>
    <message>
        <source>SensorWidth_Tooltip</source>
        <translation>Width of the usable sensor area, in pixels.</translation>
    </message>
    <message>
        <source>SequenceEnable_Tooltip</source>
        <translation>Older switch of the sequencer.</translation>
    </message>
    <message>
        <source>SequencerControl_Tooltip</source>
        <translation>Sequences of settings switched automatically; not on this model.</translation>
    </message>
    <message>
        <source>ShadingCorrectionMode_Tooltip</source>
        <translation>Evens out uneven lighting and sensor shading.</translation>
    </message>
    <message>
        <source>SharpnessEnhancement_Tooltip</source>
        <translation>Sharpening applied in high-quality demosaicing.</translation>
    </message>
    <message>
        <source>SoftwareSignalControl_Tooltip</source>
        <translation>Signals given by software.</translation>
    </message>
    <message>
        <source>SoftwareSignalPulse_Tooltip</source>
        <translation>Sends a pulse on the selected software signal.</translation>
    </message>
    <message>
        <source>SoftwareSignalSelector_Tooltip</source>
        <translation>Chooses the software signal to pulse.</translation>
    </message>
    <message>
        <source>TestControl_Tooltip</source>
        <translation>Features for trying out the host software.</translation>
    </message>
    <message>
        <source>TestEventGenerate_Tooltip</source>
        <translation>Makes the camera send a test event.</translation>
    </message>
    <message>
        <source>TestExposureFromZero_Tooltip</source>
        <translation>A logarithmic exposure value whose slider starts at zero.</translation>
    </message>
    <message>
        <source>TestFloatNoIncrement_Tooltip</source>
        <translation>A float value without a step: it can be typed but not stepped.</translation>
    </message>
    <message>
        <source>TestHexWide_Tooltip</source>
        <translation>A hexadecimal integer wider than 32 bits.</translation>
    </message>
    <message>
        <source>TestIPAddress_Tooltip</source>
        <translation>An IPv4 address you can change.</translation>
    </message>
    <message>
        <source>TestImageSelector_Tooltip</source>
        <translation>Older name of TestPattern.</translation>
    </message>
    <message>
        <source>TestInteger64_Tooltip</source>
        <translation>An integer whose range goes beyond 32 bits.</translation>
    </message>
    <message>
        <source>TestInteger64Wide_Tooltip</source>
        <translation>An integer over the whole 64-bit range.</translation>
    </message>
    <message>
        <source>TestLegacyMode_Tooltip</source>
        <translation>A choice whose present value is no longer on its list.</translation>
    </message>
    <message>
        <source>TestLinearFloat_Tooltip</source>
        <translation>A float value with a linear slider.</translation>
    </message>
    <message>
        <source>TestLogarithmicFloat_Tooltip</source>
        <translation>A float value with a logarithmic slider.</translation>
    </message>
    <message>
        <source>TestMACAddress_Tooltip</source>
        <translation>A MAC address you can change.</translation>
    </message>
    <message>
        <source>TestPattern_Tooltip</source>
        <translation>Replaces the sensor image by a test pattern.</translation>
    </message>
    <message>
        <source>TestPatternGeneratorSelector_Tooltip</source>
        <translation>Chooses which test pattern generator is set.</translation>
    </message>
    <message>
        <source>TestPendingAck_Tooltip</source>
        <translation>A write to this feature is answered late, to try out pending acknowledgements.</translation>
    </message>
    <message>
        <source>TestSlowCommand_Tooltip</source>
        <translation>A command that takes three seconds to finish.</translation>
    </message>
    <message>
        <source>TimerControls_Tooltip</source>
        <translation>Timers that give pulses on internal signals.</translation>
    </message>
    <message>
        <source>TimerDelay_Tooltip</source>
        <translation>Time from the start signal to the pulse of the selected timer, in microseconds.</translation>
    </message>
    <message>
        <source>TimerDuration_Tooltip</source>
        <translation>Length of the pulse of the selected timer, in microseconds.</translation>
    </message>
    <message>
        <source>TimerReset_Tooltip</source>
        <translation>Sets the selected timer back.</translation>
    </message>
    <message>
        <source>TimerSelector_Tooltip</source>
        <translation>Chooses the timer to set up.</translation>
    </message>
    <message>
        <source>TimerStatus_Tooltip</source>
        <translation>State of the selected timer.</translation>
    </message>
    <message>
        <source>TimerTriggerActivation_Tooltip</source>
        <translation>Which edge or level of the start signal starts the timer.</translation>
    </message>
    <message>
        <source>TimerTriggerSource_Tooltip</source>
        <translation>Signal that starts the selected timer.</translation>
    </message>
    <message>
        <source>TimerValue_Tooltip</source>
        <translation>Present value of the selected timer.</translation>
    </message>
    <message>
        <source>Timestamp_Tooltip</source>
        <translation>Present value of the camera time stamp counter, in nanoseconds since it was switched on.</translation>
    </message>
    <message>
        <source>TimestampLatch_Tooltip</source>
        <translation>Copies the present time stamp into TimestampLatchValue.</translation>
    </message>
    <message>
        <source>TimestampLatchValue_Tooltip</source>
        <translation>Time stamp copied by the last TimestampLatch.</translation>
    </message>
    <message>
        <source>TimestampReset_Tooltip</source>
        <translation>Sets the time stamp counter back to zero.</translation>
    </message>
    <message>
        <source>TransportLayer_Tooltip</source>
        <translation>How the camera is connected to this computer.</translation>
    </message>
    <message>
        <source>TriggerActivation_Tooltip</source>
        <translation>Which edge or level of the signal sets off the trigger.</translation>
    </message>
    <message>
        <source>TriggerDelay_Tooltip</source>
        <translation>Time between the trigger and the start of the exposure, in microseconds.</translation>
    </message>
    <message>
        <source>TriggerDivider_Tooltip</source>
        <translation>Uses only every n-th trigger signal.</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>Whether images are taken only when a trigger arrives.</translation>
    </message>
    <message>
        <source>TriggerOverlap_Tooltip</source>
        <translation>Whether a trigger is taken while the previous image is still being read out.</translation>
    </message>
    <message>
        <source>TriggerSelector_Tooltip</source>
        <translation>Chooses which trigger the other trigger features set.</translation>
    </message>
    <message>
        <source>TriggerSoftware_Tooltip</source>
        <translation>Sends a trigger from the application.</translation>
    </message>
    <message>
        <source>TriggerSource_Tooltip</source>
        <translation>Where the trigger comes from: a line, software, a counter or a timer.</translation>
    </message>
    <message>
        <source>U3VCurrentSpeed_Tooltip</source>
        <translation>USB speed at which the camera is connected.</translation>
    </message>
    <message>
        <source>U3VMaxAcknowledgeTransferLength_Tooltip</source>
        <translation>Largest answer transfer the camera sends, in bytes.</translation>
    </message>
    <message>
        <source>U3VMaxCommandTransferLength_Tooltip</source>
        <translation>Largest command transfer the camera takes, in bytes.</translation>
    </message>
    <message>
        <source>USB3Vision_Tooltip</source>
        <translation>USB3 Vision connection settings.</translation>
    </message>
    <message>
        <source>UserOutputSelector_Tooltip</source>
        <translation>Chooses the user output to set.</translation>
    </message>
    <message>
        <source>UserOutputValue_Tooltip</source>
        <translation>Level of the selected user output.</translation>
    </message>
    <message>
        <source>UserOutputValueAll_Tooltip</source>
        <translation>Levels of all user outputs, one bit each.</translation>
    </message>
    <message>
        <source>UserOutputValueAllMask_Tooltip</source>
        <translation>Which bits of UserOutputValueAll are written.</translation>
    </message>
    <message>
        <source>UserSetDefault_Tooltip</source>
        <translation>User set the camera loads when it is switched on.</translation>
    </message>
    <message>
        <source>UserSetDefaultSelector_Tooltip</source>
        <translation>Older name of UserSetDefault.</translation>
    </message>
    <message>
        <source>UserSetFactoryDefaultLoaded_Tooltip</source>
        <translation>True while the factory settings are active.</translation>
    </message>
    <message>
        <source>UserSetFeatureEnable_Tooltip</source>
        <translation>Whether the selected feature is stored in the user sets.</translation>
    </message>
    <message>
        <source>UserSetFeatureSelector_Tooltip</source>
        <translation>Chooses a feature to keep in or leave out of the user sets.</translation>
    </message>
    <message>
        <source>UserSetLoad_Tooltip</source>
        <translation>Loads the selected user set into the camera.</translation>
    </message>
    <message>
        <source>UserSetSave_Tooltip</source>
        <translation>Saves the present settings into the selected user set.</translation>
    </message>
    <message>
        <source>UserSetSelector_Tooltip</source>
        <translation>Chooses the user set to load or save.</translation>
    </message>
    <message>
        <source>UserSets_Tooltip</source>
        <translation>Storing and restoring camera settings.</translation>
    </message>
    <message>
        <source>Width_Tooltip</source>
        <translation>Width of the image the camera sends, in pixels.</translation>
    </message>
    <message>
        <source>WidthMax_Tooltip</source>
        <translation>Largest image width with the present binning and decimation.</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>CommandDuplicationEnable_Tooltip</source>
        <translation>Sends every command twice, for networks that lose packets.</translation>
    </message>
    <message>
        <source>Communication_Tooltip</source>
        <translation>Time-outs and retries of the control connection.</translation>
    </message>
    <message>
        <source>DeviceAccessStatus_Tooltip</source>
        <translation>How this application has opened the camera.</translation>
    </message>
    <message>
        <source>DeviceBcdUSB_Tooltip</source>
        <translation>USB version of the camera, in binary-coded decimal.</translation>
    </message>
    <message>
        <source>DeviceDisplayName_Tooltip</source>
        <translation>Name under which the camera is listed.</translation>
    </message>
    <message>
        <source>DeviceDriverVersion_Tooltip</source>
        <translation>Version of the USB driver in use.</translation>
    </message>
    <message>
        <source>DeviceEndianessMechanism_Tooltip</source>
        <translation>How the byte order of the camera registers is handled.</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>Product family of the camera.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>Version of the firmware in the camera.</translation>
    </message>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>Identifier of the camera on its transport layer.</translation>
    </message>
    <message>
        <source>DeviceInformation_Tooltip</source>
        <translation>What identifies the camera.</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>Further information from the camera maker.</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>Model name of the camera.</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>Serial number of the camera.</translation>
    </message>
    <message>
        <source>DeviceSpeed_Tooltip</source>
        <translation>USB speed at which the camera is connected.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor_Tooltip</source>
        <translation>Major version of the transport layer protocol in use.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor_Tooltip</source>
        <translation>Minor version of the transport layer protocol in use.</translation>
    </message>
    <message>
        <source>DeviceType_Tooltip</source>
        <translation>Interface technology of the camera, such as GigE Vision or USB3 Vision.</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>Name you gave the camera.</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>Name of the camera maker.</translation>
    </message>
    <message>
        <source>DeviceVersion_Tooltip</source>
        <translation>Version of the camera.</translation>
    </message>
    <message>
        <source>GevCCP_Tooltip</source>
        <translation>Access right this application holds on the camera: exclusive, control or monitor.</translation>
    </message>
    <message>
        <source>GevDeviceDefaultGateway_Tooltip</source>
        <translation>Default gateway of the camera.</translation>
    </message>
    <message>
        <source>GevDeviceForceGateway_Tooltip</source>
        <translation>Gateway that GevDeviceForceIP gives the camera.</translation>
    </message>
    <message>
        <source>GevDeviceForceIP_Tooltip</source>
        <translation>Gives a camera outside this computer's subnet a temporary address.</translation>
    </message>
    <message>
        <source>GevDeviceForceIPAddress_Tooltip</source>
        <translation>Address that GevDeviceForceIP gives the camera.</translation>
    </message>
    <message>
        <source>GevDeviceForceSubnetMask_Tooltip</source>
        <translation>Subnet mask that GevDeviceForceIP gives the camera.</translation>
    </message>
    <message>
        <source>GevDeviceIPAddress_Tooltip</source>
        <translation>IP address of the camera as the host sees it.</translation>
    </message>
    <message>
        <source>GevDeviceMACAddress_Tooltip</source>
        <translation>MAC address of the camera.</translation>
    </message>
    <message>
        <source>GevDevicePort_Tooltip</source>
        <translation>UDP port of the camera control connection.</translation>
    </message>
    <message>
        <source>GevDeviceSubnetMask_Tooltip</source>
        <translation>Subnet mask of the camera.</translation>
    </message>
    <message>
        <source>GevInterfaceIPAddress_Tooltip</source>
        <translation>Address of the network adapter of this computer that reaches the camera.</translation>
    </message>
    <message>
        <source>GevVersionMajor_Tooltip</source>
        <translation>Major GigE Vision version of the camera.</translation>
    </message>
    <message>
        <source>GevVersionMinor_Tooltip</source>
        <translation>Minor GigE Vision version of the camera.</translation>
    </message>
    <message>
        <source>GigEVisionDevice_Tooltip</source>
        <translation>Network identity of the camera.</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>Time without a heartbeat after which the camera gives up the connection, in milliseconds.</translation>
    </message>
    <message>
        <source>MaxRetryCountRead_Tooltip</source>
        <translation>How often a read without answer is sent again.</translation>
    </message>
    <message>
        <source>MaxRetryCountWrite_Tooltip</source>
        <translation>How often a write without answer is sent again.</translation>
    </message>
    <message>
        <source>MaxTransferSize_Tooltip</source>
        <translation>Largest control transfer, in bytes.</translation>
    </message>
    <message>
        <source>MaximumNumberOfRetries_Tooltip</source>
        <translation>How often a failed USB transfer is repeated.</translation>
    </message>
    <message>
        <source>MigrationModeEnable_Tooltip</source>
        <translation>Makes the camera behave like the older model family, for existing applications.</translation>
    </message>
    <message>
        <source>ReadTimeout_Tooltip</source>
        <translation>How long to wait for the answer to a read, in milliseconds.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>The camera as its transport layer sees it.</translation>
    </message>
    <message>
        <source>USB3VisionDevice_Tooltip</source>
        <translation>USB identity of the camera.</translation>
    </message>
    <message>
        <source>WriteTimeout_Tooltip</source>
        <translation>How long to wait for the answer to a write, in milliseconds.</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>AccessMode_Tooltip</source>
        <translation>How the image stream is opened.</translation>
    </message>
    <message>
        <source>DestinationAddr_Tooltip</source>
        <translation>Multicast address the images are sent to.</translation>
    </message>
    <message>
        <source>DestinationPort_Tooltip</source>
        <translation>Port the images arrive at; 0 picks a free one.</translation>
    </message>
    <message>
        <source>EnableResend_Tooltip</source>
        <translation>Asks the camera again for packets that got lost.</translation>
    </message>
    <message>
        <source>FrameRetention_Tooltip</source>
        <translation>Time after which an incomplete image is given up, in milliseconds.</translation>
    </message>
    <message>
        <source>GigEStream_Tooltip</source>
        <translation>Settings of the network image stream.</translation>
    </message>
    <message>
        <source>IIDCStream_Tooltip</source>
        <translation>Settings of the isochronous stream.</translation>
    </message>
    <message>
        <source>MaxBufferSize_Tooltip</source>
        <translation>Size of the largest buffer the stream fills, in bytes.</translation>
    </message>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>Number of image buffers the grabber allocates.</translation>
    </message>
    <message>
        <source>MaxNumQueuedBuffer_Tooltip</source>
        <translation>Largest number of buffers waiting to be filled at a time.</translation>
    </message>
    <message>
        <source>MaxTransferSize_Tooltip</source>
        <translation>Size of one USB transfer, in bytes.</translation>
    </message>
    <message>
        <source>MaximumNumberResendRequests_Tooltip</source>
        <translation>Largest number of resend requests for one image.</translation>
    </message>
    <message>
        <source>NumIsoPackets_Tooltip</source>
        <translation>Isochronous packets gathered in one request.</translation>
    </message>
    <message>
        <source>NumMaxQueuedUrbs_Tooltip</source>
        <translation>Number of USB requests kept waiting with the driver.</translation>
    </message>
    <message>
        <source>PacketResend_Tooltip</source>
        <translation>Recovery of lost network packets.</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>How long to wait for a missing packet before asking for it again, in milliseconds.</translation>
    </message>
    <message>
        <source>ReceiveThreadPriority_Tooltip</source>
        <translation>Priority of the thread that receives the images.</translation>
    </message>
    <message>
        <source>ReceiveThreadPriorityOverride_Tooltip</source>
        <translation>Gives the receiving thread the priority set in ReceiveThreadPriority.</translation>
    </message>
    <message>
        <source>ResendRequestBatching_Tooltip</source>
        <translation>Part of the image, in percent, over which resend requests are gathered.</translation>
    </message>
    <message>
        <source>ResendRequestResponseTimeout_Tooltip</source>
        <translation>How long to wait for a packet sent again, in milliseconds.</translation>
    </message>
    <message>
        <source>ResendRequestThreshold_Tooltip</source>
        <translation>Part of the image, in percent, after which a gap is reported.</translation>
    </message>
    <message>
        <source>ResendTimeout_Tooltip</source>
        <translation>How long to wait before asking for a lost packet, in milliseconds.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>Receives the images of the camera.</translation>
    </message>
    <message>
        <source>SocketBufferSize_Tooltip</source>
        <translation>Size of the receive buffer of the network socket, in kilobytes.</translation>
    </message>
    <message>
        <source>Statistic_Tooltip</source>
        <translation>Counters of the image stream.</translation>
    </message>
    <message>
        <source>StatisticReset_Tooltip</source>
        <translation>Sets the stream counters back to zero.</translation>
    </message>
    <message>
        <source>Statistic_Buffer_Fill_Level_Tooltip</source>
        <translation>Share of the waiting buffers that already hold an image, in percent.</translation>
    </message>
    <message>
        <source>Statistic_Buffer_Underrun_Count_Tooltip</source>
        <translation>Number of images lost because no buffer was waiting.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Buffer_Count_Tooltip</source>
        <translation>Number of buffers that came back with an error.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Packet_Count_Tooltip</source>
        <translation>Number of packets received with an error.</translation>
    </message>
    <message>
        <source>Statistic_Last_Block_Id_Tooltip</source>
        <translation>Number of the last image block received.</translation>
    </message>
    <message>
        <source>Statistic_Last_Failed_Buffer_Status_Tooltip</source>
        <translation>Status code of the last buffer that failed.</translation>
    </message>
    <message>
        <source>Statistic_Last_Failed_Buffer_Status_Text_Tooltip</source>
        <translation>What went wrong with the last buffer that failed.</translation>
    </message>
    <message>
        <source>Statistic_Missed_Frame_Count_Tooltip</source>
        <translation>Number of images the camera sent that never arrived.</translation>
    </message>
    <message>
        <source>Statistic_Resend_Packet_Count_Tooltip</source>
        <translation>Number of packets asked for again.</translation>
    </message>
    <message>
        <source>Statistic_Resend_Request_Count_Tooltip</source>
        <translation>Number of resend requests sent to the camera.</translation>
    </message>
    <message>
        <source>Statistic_Resynchronization_Count_Tooltip</source>
        <translation>How often the stream had to get back in step.</translation>
    </message>
    <message>
        <source>Statistic_Total_Buffer_Count_Tooltip</source>
        <translation>Number of buffers received since the statistics were last reset.</translation>
    </message>
    <message>
        <source>Statistic_Total_Packet_Count_Tooltip</source>
        <translation>Number of packets received.</translation>
    </message>
    <message>
        <source>Status_Tooltip</source>
        <translation>State of the image stream.</translation>
    </message>
    <message>
        <source>TransferLoopThreadPriority_Tooltip</source>
        <translation>Priority of the thread that queues the USB requests.</translation>
    </message>
    <message>
        <source>TransmissionType_Tooltip</source>
        <translation>How the image stream is addressed: to this computer alone or to a multicast group.</translation>
    </message>
    <message>
        <source>Type_Tooltip</source>
        <translation>Driver that receives the images.</translation>
    </message>
    <message>
        <source>Usb3Stream_Tooltip</source>
        <translation>Settings of the USB transfers.</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>BufferSize_Tooltip</source>
        <translation>Size of one event buffer, in bytes.</translation>
    </message>
    <message>
        <source>DestinationPort_Tooltip</source>
        <translation>Port the events arrive at; 0 picks a free one.</translation>
    </message>
    <message>
        <source>EventDeliveryMode_Tooltip</source>
        <translation>How received events reach the application.</translation>
    </message>
    <message>
        <source>EventStatistic_Tooltip</source>
        <translation>Counters of the event channel.</translation>
    </message>
    <message>
        <source>EventStatisticReset_Tooltip</source>
        <translation>Sets the event counters back to zero.</translation>
    </message>
    <message>
        <source>MaxEventSize_Tooltip</source>
        <translation>Largest event message the camera sends, with its data, in bytes.</translation>
    </message>
    <message>
        <source>MaxNumQueuedEvents_Tooltip</source>
        <translation>Events kept while the application does not fetch them.</translation>
    </message>
    <message>
        <source>NumBuffer_Tooltip</source>
        <translation>Number of buffers kept for incoming events.</translation>
    </message>
    <message>
        <source>NumMaxQueuedUrbs_Tooltip</source>
        <translation>Number of USB requests kept waiting for events.</translation>
    </message>
    <message>
        <source>ReceiveThreadPriority_Tooltip</source>
        <translation>Priority of the thread that receives the events.</translation>
    </message>
    <message>
        <source>ReceiveThreadPriorityOverride_Tooltip</source>
        <translation>Gives the event thread the priority set in ReceiveThreadPriority.</translation>
    </message>
    <message>
        <source>RetryCount_Tooltip</source>
        <translation>How often an event is asked for again before it is given up.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>Receives the event messages of the camera.</translation>
    </message>
    <message>
        <source>SocketBufferSize_Tooltip</source>
        <translation>Size of the receive buffer of the network socket, in kilobytes.</translation>
    </message>
    <message>
        <source>Statistic_Event_Overrun_Count_Tooltip</source>
        <translation>Number of events lost because no buffer was free.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Event_Count_Tooltip</source>
        <translation>Number of events received with an error.</translation>
    </message>
    <message>
        <source>Statistic_Last_Event_ID_Tooltip</source>
        <translation>Identifier of the last event received.</translation>
    </message>
    <message>
        <source>Statistic_Total_Event_Count_Tooltip</source>
        <translation>Number of events received.</translation>
    </message>
    <message>
        <source>Status_Tooltip</source>
        <translation>State of the event channel.</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>How long to wait for an event acknowledgement, in milliseconds.</translation>
    </message>
</context>
<context>
    <name>ImageFormatConverter</name>
    <message>
        <source>AdditionalLeftShift_Tooltip</source>
        <translation>Bits by which the data is shifted left before the low bits are dropped.</translation>
    </message>
    <message>
        <source>ColorAdjustmentControl_Tooltip</source>
        <translation>Hue and saturation for each colour.</translation>
    </message>
    <message>
        <source>ColorAdjustmentEnable_Tooltip</source>
        <translation>Applies the hue and saturation settings.</translation>
    </message>
    <message>
        <source>ColorAdjustmentHue_Tooltip</source>
        <translation>Hue shift of the selected colour.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSaturation_Tooltip</source>
        <translation>Saturation of the selected colour.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSelector_Tooltip</source>
        <translation>Chooses the colour to adjust.</translation>
    </message>
    <message>
        <source>ColorConversion_Tooltip</source>
        <translation>Conversion of colour images.</translation>
    </message>
    <message>
        <source>ColorTransformationControl_Tooltip</source>
        <translation>Colour transformation matrix.</translation>
    </message>
    <message>
        <source>ColorTransformationMatrixFactor_Tooltip</source>
        <translation>How strongly the colour transformation is applied.</translation>
    </message>
    <message>
        <source>ColorTransformationSelector_Tooltip</source>
        <translation>Chooses the colour transformation.</translation>
    </message>
    <message>
        <source>ColorTransformationValue_Tooltip</source>
        <translation>Value of the selected matrix coefficient.</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector_Tooltip</source>
        <translation>Chooses a coefficient of the matrix.</translation>
    </message>
    <message>
        <source>DemosaicingMethod_Tooltip</source>
        <translation>How full colour is worked out from the Bayer pattern.</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>Gamma correction applied during the conversion.</translation>
    </message>
    <message>
        <source>InconvertibleEdgeHandling_Tooltip</source>
        <translation>What happens to the edge pixels that cannot be demosaiced.</translation>
    </message>
    <message>
        <source>LightSourcePreset_Tooltip</source>
        <translation>Colour correction for the kind of lighting.</translation>
    </message>
    <message>
        <source>MaxNumThreads_Tooltip</source>
        <translation>Largest number of threads the converter may use.</translation>
    </message>
    <message>
        <source>MonoConversion_Tooltip</source>
        <translation>Reduction of the bit depth of monochrome data.</translation>
    </message>
    <message>
        <source>MonoConversionMethod_Tooltip</source>
        <translation>How pixel data wider than 8 bits is brought down to 8 bits.</translation>
    </message>
    <message>
        <source>NoiseReduction_Tooltip</source>
        <translation>Noise reduction applied in high-quality demosaicing.</translation>
    </message>
    <message>
        <source>OutputBitAlignment_Tooltip</source>
        <translation>Where pixel data narrower than its container sits: at the top or the bottom bits.</translation>
    </message>
    <message>
        <source>OutputFormat_Tooltip</source>
        <translation>Format of the converted image.</translation>
    </message>
    <message>
        <source>OutputOrientation_Tooltip</source>
        <translation>Order of the lines in the converted image: top down or bottom up.</translation>
    </message>
    <message>
        <source>OutputPaddingX_Tooltip</source>
        <translation>Bytes added at the end of every line of the converted image.</translation>
    </message>
    <message>
        <source>OutputPixelFormat_Tooltip</source>
        <translation>Pixel format of the converted images.</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>Converts received images for display and processing.</translation>
    </message>
    <message>
        <source>SharpnessEnhancement_Tooltip</source>
        <translation>Sharpening applied in high-quality demosaicing.</translation>
    </message>
</context>
</TS>
