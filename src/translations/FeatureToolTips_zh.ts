<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CameraDevice</name>
    <message>
        <source>AcquisitionAbort_Tooltip</source>
        <translation>立即停止采集，正在采集的图像将丢失。</translation>
    </message>
    <message>
        <source>AcquisitionFrameCount_Tooltip</source>
        <translation>多帧模式下采集的图像数量。</translation>
    </message>
    <message>
        <source>AcquisitionFrameRate_Tooltip</source>
        <translation>相机采集图像的速率（帧/秒）。</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateEnable_Tooltip</source>
        <translation>将帧率限制为 AcquisitionFrameRate 的值。</translation>
    </message>
    <message>
        <source>AcquisitionMode_Tooltip</source>
        <translation>决定相机采集一幅图像、指定数量的图像，还是持续采集直到停止。</translation>
    </message>
    <message>
        <source>AcquisitionStart_Tooltip</source>
        <translation>开始采集图像。</translation>
    </message>
    <message>
        <source>AcquisitionStop_Tooltip</source>
        <translation>在当前图像之后停止采集。</translation>
    </message>
    <message>
        <source>ActionDeviceKey_Tooltip</source>
        <translation>相机接受动作命令所需的密钥。</translation>
    </message>
    <message>
        <source>AutoTargetBrightness_Tooltip</source>
        <translation>自动曝光和自动增益力求达到的平均亮度。</translation>
    </message>
    <message>
        <source>BalanceRatio_Tooltip</source>
        <translation>用于白平衡的所选颜色通道的相对增益。</translation>
    </message>
    <message>
        <source>BalanceRatioSelector_Tooltip</source>
        <translation>选择由 BalanceRatio 设置的颜色通道。</translation>
    </message>
    <message>
        <source>BalanceWhiteAuto_Tooltip</source>
        <translation>由相机自动调整白平衡：关闭、一次或连续。</translation>
    </message>
    <message>
        <source>BinningHorizontal_Tooltip</source>
        <translation>合并为一个像素的相邻列数。</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>合并为一个像素的相邻行数。</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>加到每个像素值上的偏移量，用于提高或降低最暗的色调。</translation>
    </message>
    <message>
        <source>ChunkEnable_Tooltip</source>
        <translation>将所选数据块加入每幅图像。</translation>
    </message>
    <message>
        <source>ChunkModeActive_Tooltip</source>
        <translation>在每幅图像中附加已启用的块数据。</translation>
    </message>
    <message>
        <source>ChunkSelector_Tooltip</source>
        <translation>选择要启用或禁用的数据块。</translation>
    </message>
    <message>
        <source>ChunkTimestamp_Tooltip</source>
        <translation>最后一幅图像的时间戳（来自其数据块）。</translation>
    </message>
    <message>
        <source>CounterEventSource_Tooltip</source>
        <translation>所选计数器计数的信号。</translation>
    </message>
    <message>
        <source>CounterReset_Tooltip</source>
        <translation>将所选计数器清零。</translation>
    </message>
    <message>
        <source>CounterSelector_Tooltip</source>
        <translation>选择要设置的计数器。</translation>
    </message>
    <message>
        <source>CounterValue_Tooltip</source>
        <translation>所选计数器的当前计数值。</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>相机所属的产品系列。</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>相机固件的版本。</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>相机制造商提供的附加信息。</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>相机的型号名称。</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>重新启动相机。在相机恢复之前连接会中断。</translation>
    </message>
    <message>
        <source>DeviceScanType_Tooltip</source>
        <translation>传感器按面阵还是按线阵采集。</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>相机的序列号。</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>相机内所选位置的温度（摄氏度）。</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>用户为相机取的名称，保存在相机中。</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>相机制造商的名称。</translation>
    </message>
    <message>
        <source>DeviceVersion_Tooltip</source>
        <translation>相机的硬件版本。</translation>
    </message>
    <message>
        <source>EncoderDivider_Tooltip</source>
        <translation>每 n 个编码器步进只计一次。</translation>
    </message>
    <message>
        <source>EncoderMode_Tooltip</source>
        <translation>编码器信号边沿的计数方式。</translation>
    </message>
    <message>
        <source>EncoderOutputMode_Tooltip</source>
        <translation>编码器的哪些运动会产生输出脉冲。</translation>
    </message>
    <message>
        <source>EncoderReset_Tooltip</source>
        <translation>将编码器位置清零。</translation>
    </message>
    <message>
        <source>EncoderSelector_Tooltip</source>
        <translation>选择要设置的编码器。</translation>
    </message>
    <message>
        <source>EncoderSourceA_Tooltip</source>
        <translation>编码器 A 相信号的输入线。</translation>
    </message>
    <message>
        <source>EncoderSourceB_Tooltip</source>
        <translation>编码器 B 相信号的输入线。</translation>
    </message>
    <message>
        <source>EncoderStatus_Tooltip</source>
        <translation>编码器的转动方向。</translation>
    </message>
    <message>
        <source>EncoderValue_Tooltip</source>
        <translation>编码器的当前位置。</translation>
    </message>
    <message>
        <source>EventAcquisitionEnd_Tooltip</source>
        <translation>“Acquisition End”事件的标识符。</translation>
    </message>
    <message>
        <source>EventAcquisitionEndData_Tooltip</source>
        <translation>相机随“Acquisition End”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventAcquisitionEndTimestamp_Tooltip</source>
        <translation>最后一次“Acquisition End”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventAcquisitionStart_Tooltip</source>
        <translation>“Acquisition Start”事件的标识符。</translation>
    </message>
    <message>
        <source>EventAcquisitionStartData_Tooltip</source>
        <translation>相机随“Acquisition Start”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventAcquisitionStartTimestamp_Tooltip</source>
        <translation>最后一次“Acquisition Start”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventCounter0End_Tooltip</source>
        <translation>“Counter 0 End”事件的标识符。</translation>
    </message>
    <message>
        <source>EventCounter0EndData_Tooltip</source>
        <translation>相机随“Counter 0 End”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventCounter0EndTimestamp_Tooltip</source>
        <translation>最后一次“Counter 0 End”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventCriticalTemperature_Tooltip</source>
        <translation>“Critical Temperature”事件的标识符。</translation>
    </message>
    <message>
        <source>EventCriticalTemperatureData_Tooltip</source>
        <translation>相机随“Critical Temperature”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventCriticalTemperatureTimestamp_Tooltip</source>
        <translation>最后一次“Critical Temperature”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventEventOverrun_Tooltip</source>
        <translation>“Event Overrun”事件的标识符。</translation>
    </message>
    <message>
        <source>EventEventOverrunData_Tooltip</source>
        <translation>相机随“Event Overrun”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventEventOverrunTimestamp_Tooltip</source>
        <translation>最后一次“Event Overrun”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventExposureEnd_Tooltip</source>
        <translation>“Exposure End”事件的标识符。</translation>
    </message>
    <message>
        <source>EventExposureEndData_Tooltip</source>
        <translation>相机随“Exposure End”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventExposureEndFrameID_Tooltip</source>
        <translation>最后一次“Exposure End”事件所属的图像。</translation>
    </message>
    <message>
        <source>EventExposureEndTimestamp_Tooltip</source>
        <translation>最后一次“Exposure End”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventExposureStart_Tooltip</source>
        <translation>“Exposure Start”事件的标识符。</translation>
    </message>
    <message>
        <source>EventExposureStartData_Tooltip</source>
        <translation>相机随“Exposure Start”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventExposureStartFrameID_Tooltip</source>
        <translation>最后一次“Exposure Start”事件所属的图像。</translation>
    </message>
    <message>
        <source>EventExposureStartTimestamp_Tooltip</source>
        <translation>最后一次“Exposure Start”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventFrameBurstStart_Tooltip</source>
        <translation>“Frame Burst Start”事件的标识符。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartData_Tooltip</source>
        <translation>相机随“Frame Burst Start”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartFrameID_Tooltip</source>
        <translation>最后一次“Frame Burst Start”事件所属的图像。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartTimestamp_Tooltip</source>
        <translation>最后一次“Frame Burst Start”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventFrameEnd_Tooltip</source>
        <translation>“Frame End”事件的标识符。</translation>
    </message>
    <message>
        <source>EventFrameEndData_Tooltip</source>
        <translation>相机随“Frame End”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventFrameEndFrameID_Tooltip</source>
        <translation>最后一次“Frame End”事件所属的图像。</translation>
    </message>
    <message>
        <source>EventFrameEndTimestamp_Tooltip</source>
        <translation>最后一次“Frame End”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventFrameStart_Tooltip</source>
        <translation>“Frame Start”事件的标识符。</translation>
    </message>
    <message>
        <source>EventFrameStartData_Tooltip</source>
        <translation>相机随“Frame Start”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventFrameStartFrameID_Tooltip</source>
        <translation>最后一次“Frame Start”事件所属的图像。</translation>
    </message>
    <message>
        <source>EventFrameStartTimestamp_Tooltip</source>
        <translation>最后一次“Frame Start”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissed_Tooltip</source>
        <translation>“Frame Trigger Missed”事件的标识符。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedData_Tooltip</source>
        <translation>相机随“Frame Trigger Missed”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedFrameID_Tooltip</source>
        <translation>最后一次“Frame Trigger Missed”事件所属的图像。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedTimestamp_Tooltip</source>
        <translation>最后一次“Frame Trigger Missed”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdge_Tooltip</source>
        <translation>“Line 0 Rising Edge”事件的标识符。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeData_Tooltip</source>
        <translation>相机随“Line 0 Rising Edge”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeTimestamp_Tooltip</source>
        <translation>最后一次“Line 0 Rising Edge”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventLine2RisingEdge_Tooltip</source>
        <translation>“Line 2 Rising Edge”事件的标识符。</translation>
    </message>
    <message>
        <source>EventLine2RisingEdgeData_Tooltip</source>
        <translation>相机随“Line 2 Rising Edge”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventLine2RisingEdgeTimestamp_Tooltip</source>
        <translation>最后一次“Line 2 Rising Edge”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventNotification_Tooltip</source>
        <translation>相机是否向应用程序报告所选事件。</translation>
    </message>
    <message>
        <source>EventOverTemperature_Tooltip</source>
        <translation>“Over Temperature”事件的标识符。</translation>
    </message>
    <message>
        <source>EventOverTemperatureData_Tooltip</source>
        <translation>相机随“Over Temperature”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventOverTemperatureTimestamp_Tooltip</source>
        <translation>最后一次“Over Temperature”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventSelector_Tooltip</source>
        <translation>选择要设置通知的事件。</translation>
    </message>
    <message>
        <source>EventTest_Tooltip</source>
        <translation>“Test”事件的标识符。</translation>
    </message>
    <message>
        <source>EventTestData_Tooltip</source>
        <translation>相机随“Test”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventTestTimestamp_Tooltip</source>
        <translation>最后一次“Test”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventTimer0End_Tooltip</source>
        <translation>“Timer 0 End”事件的标识符。</translation>
    </message>
    <message>
        <source>EventTimer0EndData_Tooltip</source>
        <translation>相机随“Timer 0 End”事件报告的内容。</translation>
    </message>
    <message>
        <source>EventTimer0EndTimestamp_Tooltip</source>
        <translation>最后一次“Timer 0 End”事件的时间戳。</translation>
    </message>
    <message>
        <source>EventsGeneration_Tooltip</source>
        <translation>“Generation”事件的标识符。</translation>
    </message>
    <message>
        <source>ExposureAuto_Tooltip</source>
        <translation>由相机自动调整曝光时间：关闭、一次或连续。</translation>
    </message>
    <message>
        <source>ExposureMode_Tooltip</source>
        <translation>曝光的控制方式：按曝光时间或按触发信号宽度。</translation>
    </message>
    <message>
        <source>ExposureTime_Tooltip</source>
        <translation>传感器为每幅图像采集光线的时间（微秒）。</translation>
    </message>
    <message>
        <source>Gain_Tooltip</source>
        <translation>传感器信号的放大量。增益越高图像越亮，但噪声也越大。</translation>
    </message>
    <message>
        <source>GainAuto_Tooltip</source>
        <translation>由相机自动调整增益：关闭、一次或连续。</translation>
    </message>
    <message>
        <source>GainSelector_Tooltip</source>
        <translation>选择由 Gain 功能设置的增益。</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>像素值的伽马校正。</translation>
    </message>
    <message>
        <source>GevCurrentDefaultGateway_Tooltip</source>
        <translation>相机当前使用的默认网关。</translation>
    </message>
    <message>
        <source>GevCurrentIPAddress_Tooltip</source>
        <translation>相机当前使用的 IP 地址。</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>相机当前使用的子网掩码。</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>相机发送的图像高度（像素）。</translation>
    </message>
    <message>
        <source>LUTEnable_Tooltip</source>
        <translation>将所选查找表应用于像素值。</translation>
    </message>
    <message>
        <source>LUTIndex_Tooltip</source>
        <translation>LUTValue 读写的查找表条目。</translation>
    </message>
    <message>
        <source>LUTSelector_Tooltip</source>
        <translation>选择要设置的查找表。</translation>
    </message>
    <message>
        <source>LUTValue_Tooltip</source>
        <translation>LUTIndex 所选查找表条目的值。</translation>
    </message>
    <message>
        <source>LineInverter_Tooltip</source>
        <translation>反转所选线的信号。</translation>
    </message>
    <message>
        <source>LineMode_Tooltip</source>
        <translation>所选线是输入还是输出。</translation>
    </message>
    <message>
        <source>LineSelector_Tooltip</source>
        <translation>选择要设置的 I/O 线。</translation>
    </message>
    <message>
        <source>LineSource_Tooltip</source>
        <translation>在所选输出线上输出的相机内部信号。</translation>
    </message>
    <message>
        <source>LineStatus_Tooltip</source>
        <translation>所选线的当前电平。</translation>
    </message>
    <message>
        <source>LineStatusAll_Tooltip</source>
        <translation>一次给出所有线的电平，每条线一位。</translation>
    </message>
    <message>
        <source>OffsetX_Tooltip</source>
        <translation>图像区域在传感器上的水平位置（距左边缘的像素数）。</translation>
    </message>
    <message>
        <source>OffsetY_Tooltip</source>
        <translation>图像区域在传感器上的垂直位置（距上边缘的像素数）。</translation>
    </message>
    <message>
        <source>PixelFormat_Tooltip</source>
        <translation>相机发送图像的像素格式。</translation>
    </message>
    <message>
        <source>PtpEnable_Tooltip</source>
        <translation>通过 PTP 使相机时钟与网络同步。</translation>
    </message>
    <message>
        <source>PtpStatus_Tooltip</source>
        <translation>PTP 时钟同步的状态。</translation>
    </message>
    <message>
        <source>ReverseX_Tooltip</source>
        <translation>左右镜像翻转图像。</translation>
    </message>
    <message>
        <source>ReverseY_Tooltip</source>
        <translation>上下镜像翻转图像。</translation>
    </message>
    <message>
        <source>SoftwareSignalPulse_Tooltip</source>
        <translation>在所选软件信号上发出一个脉冲。</translation>
    </message>
    <message>
        <source>SoftwareSignalSelector_Tooltip</source>
        <translation>选择要发出脉冲的软件信号。</translation>
    </message>
    <message>
        <source>TimerDelay_Tooltip</source>
        <translation>从启动信号到所选定时器脉冲的时间（微秒）。</translation>
    </message>
    <message>
        <source>TimerDuration_Tooltip</source>
        <translation>所选定时器的脉冲宽度（微秒）。</translation>
    </message>
    <message>
        <source>TimerSelector_Tooltip</source>
        <translation>选择要设置的定时器。</translation>
    </message>
    <message>
        <source>TimerTriggerSource_Tooltip</source>
        <translation>启动所选定时器的信号。</translation>
    </message>
    <message>
        <source>TriggerActivation_Tooltip</source>
        <translation>引起触发的信号边沿或电平。</translation>
    </message>
    <message>
        <source>TriggerDelay_Tooltip</source>
        <translation>从触发到开始曝光的时间（微秒）。</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>是否仅在收到触发信号时采集图像。</translation>
    </message>
    <message>
        <source>TriggerSelector_Tooltip</source>
        <translation>选择其他触发功能所设置的触发器。</translation>
    </message>
    <message>
        <source>TriggerSoftware_Tooltip</source>
        <translation>从应用程序发送触发信号。</translation>
    </message>
    <message>
        <source>TriggerSource_Tooltip</source>
        <translation>触发来源：输入线、软件、计数器或定时器。</translation>
    </message>
    <message>
        <source>UserOutputSelector_Tooltip</source>
        <translation>选择要设置的用户输出。</translation>
    </message>
    <message>
        <source>UserOutputValue_Tooltip</source>
        <translation>所选用户输出的电平。</translation>
    </message>
    <message>
        <source>UserSetDefault_Tooltip</source>
        <translation>相机通电时加载的用户集。</translation>
    </message>
    <message>
        <source>UserSetLoad_Tooltip</source>
        <translation>将所选用户集加载到相机中。</translation>
    </message>
    <message>
        <source>UserSetSave_Tooltip</source>
        <translation>将当前设置保存到所选用户集。</translation>
    </message>
    <message>
        <source>UserSetSelector_Tooltip</source>
        <translation>选择要加载或保存的用户集。</translation>
    </message>
    <message>
        <source>Width_Tooltip</source>
        <translation>相机发送的图像宽度（像素）。</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>相机在传输层上的标识符。</translation>
    </message>
    <message>
        <source>GevDeviceIPAddress_Tooltip</source>
        <translation>主机所见的相机 IP 地址。</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>超过此时间（毫秒）未收到心跳，相机即断开连接。</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>采集器分配的图像缓冲区数量。</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>在重新请求丢失的数据包之前等待的时间（毫秒）。</translation>
    </message>
    <message>
        <source>Statistic_Total_Buffer_Count_Tooltip</source>
        <translation>自上次重置统计以来接收的缓冲区数量。</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>NumBuffer_Tooltip</source>
        <translation>为接收事件保留的缓冲区数量。</translation>
    </message>
    <message>
        <source>RetryCount_Tooltip</source>
        <translation>放弃某事件前重新请求的次数。</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>等待事件确认的时间（毫秒）。</translation>
    </message>
</context>
<context>
    <name>ImageFormatConverter</name>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>转换时应用的伽马校正。</translation>
    </message>
    <message>
        <source>MaxNumThreads_Tooltip</source>
        <translation>转换器可使用的最大线程数。</translation>
    </message>
    <message>
        <source>OutputPixelFormat_Tooltip</source>
        <translation>转换后图像的像素格式。</translation>
    </message>
</context>
</TS>
