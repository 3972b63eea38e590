<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>CameraDevice</name>
    <message>
        <source>AcquisitionFrameRate_Tooltip</source>
        <translation>カメラの撮像レート (フレーム/秒)。</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateEnable_Tooltip</source>
        <translation>フレームレートを AcquisitionFrameRate の値に制限します。</translation>
    </message>
    <message>
        <source>AcquisitionMode_Tooltip</source>
        <translation>1 枚、指定枚数、または停止するまで連続で撮像するかを決めます。</translation>
    </message>
    <message>
        <source>AcquisitionStart_Tooltip</source>
        <translation>撮像を開始します。</translation>
    </message>
    <message>
        <source>AcquisitionStop_Tooltip</source>
        <translation>現在の画像の後で撮像を停止します。</translation>
    </message>
    <message>
        <source>BalanceRatio_Tooltip</source>
        <translation>ホワイトバランス用の、選んだ色チャンネルの相対ゲイン。</translation>
    </message>
    <message>
        <source>BalanceRatioSelector_Tooltip</source>
        <translation>BalanceRatio で設定する色チャンネルを選びます。</translation>
    </message>
    <message>
        <source>BalanceWhiteAuto_Tooltip</source>
        <translation>カメラがホワイトバランスを自動で調整します: オフ、1 回、連続。</translation>
    </message>
    <message>
        <source>BinningHorizontal_Tooltip</source>
        <translation>1 画素にまとめる隣接列の数。</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>1 画素にまとめる隣接行の数。</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>すべての画素値に加えるオフセット。最も暗い部分の明るさを上下します。</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>カメラのファームウェアのバージョン。</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>カメラの型式名。</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>カメラを再起動します。復帰するまで接続は切れます。</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>カメラのシリアル番号。</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>カメラ内の選んだ場所の温度 (摂氏)。</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>カメラに保存される、ユーザーが付けるカメラの名前。</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>カメラメーカーの名前。</translation>
    </message>
    <message>
        <source>ExposureAuto_Tooltip</source>
        <translation>カメラが露光時間を自動で調整します: オフ、1 回、連続。</translation>
    </message>
    <message>
        <source>ExposureMode_Tooltip</source>
        <translation>露光の制御方法: 露光時間またはトリガー信号の幅。</translation>
    </message>
    <message>
        <source>ExposureTime_Tooltip</source>
        <translation>1 枚の画像でセンサーが光を取り込む時間 (マイクロ秒)。</translation>
    </message>
    <message>
        <source>Gain_Tooltip</source>
        <translation>センサー信号の増幅率。上げると画像は明るくなりますがノイズも増えます。</translation>
    </message>
    <message>
        <source>GainAuto_Tooltip</source>
        <translation>カメラがゲインを自動で調整します: オフ、1 回、連続。</translation>
    </message>
    <message>
        <source>GainSelector_Tooltip</source>
        <translation>Gain で設定するゲインの種類を選びます。</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>画素値のガンマ補正。</translation>
    </message>
    <message>
        <source>GevCurrentDefaultGateway_Tooltip</source>
        <translation>カメラが現在使っているデフォルトゲートウェイ。</translation>
    </message>
    <message>
        <source>GevCurrentIPAddress_Tooltip</source>
        <translation>カメラが現在使っている IP アドレス。</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>カメラが現在使っているサブネットマスク。</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>カメラが送る画像の高さ (画素)。</translation>
    </message>
    <message>
        <source>OffsetX_Tooltip</source>
        <translation>センサー上の画像領域の水平位置 (左端からの画素数)。</translation>
    </message>
    <message>
        <source>OffsetY_Tooltip</source>
        <translation>センサー上の画像領域の垂直位置 (上端からの画素数)。</translation>
    </message>
    <message>
        <source>PixelFormat_Tooltip</source>
        <translation>カメラが送る画像の画素フォーマット。</translation>
    </message>
    <message>
        <source>ReverseX_Tooltip</source>
        <translation>画像を左右反転します。</translation>
    </message>
    <message>
        <source>ReverseY_Tooltip</source>
        <translation>画像を上下反転します。</translation>
    </message>
    <message>
        <source>TriggerActivation_Tooltip</source>
        <translation>トリガーとなる信号のエッジまたはレベル。</translation>
    </message>
    <message>
        <source>TriggerDelay_Tooltip</source>
        <translation>トリガーから露光開始までの時間 (マイクロ秒)。</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>トリガーを受けたときだけ撮像するかどうか。</translation>
    </message>
    <message>
        <source>TriggerSelector_Tooltip</source>
        <translation>他のトリガー機能で設定するトリガーを選びます。</translation>
    </message>
    <message>
        <source>TriggerSoftware_Tooltip</source>
        <translation>アプリケーションからトリガーを送ります。</translation>
    </message>
    <message>
        <source>TriggerSource_Tooltip</source>
        <translation>トリガーの入力元: ライン、ソフトウェア、カウンター、タイマー。</translation>
    </message>
    <message>
        <source>UserSetLoad_Tooltip</source>
        <translation>選んだユーザーセットをカメラに読み込みます。</translation>
    </message>
    <message>
        <source>UserSetSave_Tooltip</source>
        <translation>現在の設定を選んだユーザーセットに保存します。</translation>
    </message>
    <message>
        <source>UserSetSelector_Tooltip</source>
        <translation>読み込みまたは保存するユーザーセットを選びます。</translation>
    </message>
    <message>
        <source>Width_Tooltip</source>
        <translation>カメラが送る画像の幅 (画素)。</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>トランスポート層でのカメラの識別子。</translation>
    </message>
    <message>
        <source>GevDeviceIPAddress_Tooltip</source>
        <translation>ホストから見たカメラの IP アドレス。</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>ハートビートがないままこの時間 (ミリ秒) が過ぎると、カメラは接続を切ります。</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>グラバーが確保する画像バッファの数。</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>欠けたパケットを再要求するまで待つ時間 (ミリ秒)。</translation>
    </message>
    <message>
        <source>Statistic_Total_Buffer_Count_Tooltip</source>
        <translation>統計を最後にリセットしてから受信したバッファの数。</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>NumBuffer_Tooltip</source>
        <translation>受信するイベント用に確保するバッファの数。</translation>
    </message>
    <message>
        <source>RetryCount_Tooltip</source>
        <translation>イベントをあきらめるまでに再要求する回数。</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>イベントの応答を待つ時間 (ミリ秒)。</translation>
    </message>
</context>
<context>
    <name>ImageFormatConverter</name>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>変換時にかけるガンマ補正。</translation>
    </message>
    <message>
        <source>MaxNumThreads_Tooltip</source>
        <translation>変換に使うスレッドの最大数。</translation>
    </message>
    <message>
        <source>OutputPixelFormat_Tooltip</source>
        <translation>変換後の画像の画素フォーマット。</translation>
    </message>
</context>
</TS>
