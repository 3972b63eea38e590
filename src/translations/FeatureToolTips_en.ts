<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CameraDevice</name>
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
        <source>AcquisitionStop_Tooltip</source>
        <translation>Stops taking images after the current image.</translation>
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
        <source>BinningHorizontal_Tooltip</source>
        <translation>Number of neighbouring columns combined into one pixel.</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>Number of neighbouring rows combined into one pixel.</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>Offset added to every pixel value; raises or lowers the darkest tones.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>Version of the firmware in the camera.</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>Model name of the camera.</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>Restarts the camera. The connection is lost until it is back.</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>Serial number of the camera.</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>Temperature at the selected place in the camera, in degrees Celsius.</translation>
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
        <source>GevCurrentDefaultGateway_Tooltip</source>
        <translation>Default gateway the camera uses now.</translation>
    </message>
    <message>
        <source>GevCurrentIPAddress_Tooltip</source>
        <translation>IP address the camera uses now.</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>Subnet mask the camera uses now.</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>Height of the image the camera sends, in pixels.</translation>
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
        <source>PixelFormat_Tooltip</source>
        <translation>Format of the pixels in the images the camera sends.</translation>
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
        <source>TriggerActivation_Tooltip</source>
        <translation>Which edge or level of the signal sets off the trigger.</translation>
    </message>
    <message>
        <source>TriggerDelay_Tooltip</source>
        <translation>Time between the trigger and the start of the exposure, in microseconds.</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>Whether images are taken only when a trigger arrives.</translation>
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
        <source>Width_Tooltip</source>
        <translation>Width of the image the camera sends, in pixels.</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>Identifier of the camera on its transport layer.</translation>
    </message>
    <message>
        <source>GevDeviceIPAddress_Tooltip</source>
        <translation>IP address of the camera as the host sees it.</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>Time without a heartbeat after which the camera gives up the connection, in milliseconds.</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>Number of image buffers the grabber allocates.</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>How long to wait for a missing packet before asking for it again, in milliseconds.</translation>
    </message>
    <message>
        <source>Statistic_Total_Buffer_Count_Tooltip</source>
        <translation>Number of buffers received since the statistics were last reset.</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>NumBuffer_Tooltip</source>
        <translation>Number of buffers kept for incoming events.</translation>
    </message>
    <message>
        <source>RetryCount_Tooltip</source>
        <translation>How often an event is asked for again before it is given up.</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>How long to wait for an event acknowledgement, in milliseconds.</translation>
    </message>
</context>
<context>
    <name>ImageFormatConverter</name>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>Gamma correction applied during the conversion.</translation>
    </message>
    <message>
        <source>MaxNumThreads_Tooltip</source>
        <translation>Largest number of threads the converter may use.</translation>
    </message>
    <message>
        <source>OutputPixelFormat_Tooltip</source>
        <translation>Pixel format of the converted images.</translation>
    </message>
</context>
</TS>
