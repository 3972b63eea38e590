<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>CameraDevice</name>
    <message>
        <source>ADCBitDepth_Tooltip</source>
        <translation>A/D 変換の分解能 (ビット)。</translation>
    </message>
    <message>
        <source>AcquisitionAbort_Tooltip</source>
        <translation>撮像をすぐに中止します。撮像中の画像は失われます。</translation>
    </message>
    <message>
        <source>AcquisitionBurstFrameCount_Tooltip</source>
        <translation>バーストトリガー 1 回ごとに撮る画像の枚数。</translation>
    </message>
    <message>
        <source>AcquisitionControl_Tooltip</source>
        <translation>撮像、トリガー、露光。</translation>
    </message>
    <message>
        <source>AcquisitionFrameCount_Tooltip</source>
        <translation>マルチフレームモードで撮像する枚数。</translation>
    </message>
    <message>
        <source>AcquisitionFrameCounter_Tooltip</source>
        <translation>電源投入から撮像した画像の枚数。</translation>
    </message>
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
        <source>AcquisitionStatus_Tooltip</source>
        <translation>カメラが撮像中のとき真。</translation>
    </message>
    <message>
        <source>TLParamsLocked_Tooltip</source>
        <translation>撮像中は 1。その間は画像のサイズと形式を変更できません。</translation>
    </message>
    <message>
        <source>AcquisitionStop_Tooltip</source>
        <translation>現在の画像の後で撮像を停止します。</translation>
    </message>
    <message>
        <source>ActionControl_Tooltip</source>
        <translation>ネットワーク経由のアクションコマンド。</translation>
    </message>
    <message>
        <source>ActionDeviceKey_Tooltip</source>
        <translation>カメラがアクションコマンドを受け付けるためのキー。</translation>
    </message>
    <message>
        <source>ActionGroupKey_Tooltip</source>
        <translation>選んだアクションのグループキー。</translation>
    </message>
    <message>
        <source>ActionGroupMask_Tooltip</source>
        <translation>選んだアクションのグループマスク。</translation>
    </message>
    <message>
        <source>ActionQueueSize_Tooltip</source>
        <translation>カメラが保持できる予約済みアクションコマンドの数。</translation>
    </message>
    <message>
        <source>ActionSelector_Tooltip</source>
        <translation>設定するアクションを選びます。</translation>
    </message>
    <message>
        <source>ActionUnconditionalMode_Tooltip</source>
        <translation>どのアプリケーションも制御していないときでもアクションコマンドを受け付けます。</translation>
    </message>
    <message>
        <source>AnalogControl_Tooltip</source>
        <translation>ゲイン、黒レベル、ガンマ、色。</translation>
    </message>
    <message>
        <source>AutoExposureTimeLowerLimit_Tooltip</source>
        <translation>自動露光が選べる最短の露光時間。</translation>
    </message>
    <message>
        <source>AutoExposureTimeUpperLimit_Tooltip</source>
        <translation>自動露光が選べる最長の露光時間。</translation>
    </message>
    <message>
        <source>AutoFunctionControl_Tooltip</source>
        <translation>自動機能の目標値、制限、領域。</translation>
    </message>
    <message>
        <source>AutoFunctionProfile_Tooltip</source>
        <translation>自動制御がゲインと露光時間のどちらを低く抑えるか。</translation>
    </message>
    <message>
        <source>AutoFunctionROIHeight_Tooltip</source>
        <translation>選んだ自動機能領域の高さ (画素)。</translation>
    </message>
    <message>
        <source>AutoFunctionROIOffsetX_Tooltip</source>
        <translation>選んだ自動機能領域の水平位置。</translation>
    </message>
    <message>
        <source>AutoFunctionROIOffsetY_Tooltip</source>
        <translation>選んだ自動機能領域の垂直位置。</translation>
    </message>
    <message>
        <source>AutoFunctionROISelector_Tooltip</source>
        <translation>自動機能が評価する画像領域を選びます。</translation>
    </message>
    <message>
        <source>AutoFunctionROIUseBrightness_Tooltip</source>
        <translation>自動露光と自動ゲインが選んだ領域を評価します。</translation>
    </message>
    <message>
        <source>AutoFunctionROIUseWhiteBalance_Tooltip</source>
        <translation>自動ホワイトバランスが選んだ領域を評価します。</translation>
    </message>
    <message>
        <source>AutoFunctionROIWidth_Tooltip</source>
        <translation>選んだ自動機能領域の幅 (画素)。</translation>
    </message>
    <message>
        <source>AutoGainLowerLimit_Tooltip</source>
        <translation>自動ゲインが選べる最小のゲイン。</translation>
    </message>
    <message>
        <source>AutoGainUpperLimit_Tooltip</source>
        <translation>自動ゲインが選べる最大のゲイン。</translation>
    </message>
    <message>
        <source>AutoTargetBrightness_Tooltip</source>
        <translation>自動露光と自動ゲインが目指す平均の明るさ。</translation>
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
        <source>BandwidthAllocation_Tooltip</source>
        <translation>バス上でカメラ用に確保したアイソクロナス帯域。</translation>
    </message>
    <message>
        <source>BinningHorizontal_Tooltip</source>
        <translation>1 画素にまとめる隣接列の数。</translation>
    </message>
    <message>
        <source>BinningHorizontalMode_Tooltip</source>
        <translation>ビニングした列の合成方法: 加算または平均。</translation>
    </message>
    <message>
        <source>BinningSelector_Tooltip</source>
        <translation>ビニングを行う場所 (センサーまたはカメラ内部処理) を選びます。</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>1 画素にまとめる隣接行の数。</translation>
    </message>
    <message>
        <source>BinningVerticalMode_Tooltip</source>
        <translation>ビニングした行の合成方法: 加算または平均。</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>すべての画素値に加えるオフセット。最も暗い部分の明るさを上下します。</translation>
    </message>
    <message>
        <source>BlackLevelAuto_Tooltip</source>
        <translation>カメラが黒レベルを自動で調整します。</translation>
    </message>
    <message>
        <source>BlackLevelSelector_Tooltip</source>
        <translation>BlackLevel で設定する黒レベルを選びます。</translation>
    </message>
    <message>
        <source>CameraEmulation_Tooltip</source>
        <translation>エミュレートカメラの画像の取得元。</translation>
    </message>
    <message>
        <source>CenterX_Tooltip</source>
        <translation>画像領域を水平方向の中央に保ちます。OffsetX は自動で決まります。</translation>
    </message>
    <message>
        <source>CenterY_Tooltip</source>
        <translation>画像領域を垂直方向の中央に保ちます。OffsetY は自動で決まります。</translation>
    </message>
    <message>
        <source>ChunkCounterSelector_Tooltip</source>
        <translation>ChunkCounterValue に表示するカウンターを選びます。</translation>
    </message>
    <message>
        <source>ChunkCounterValue_Tooltip</source>
        <translation>最後の画像を露光したときの選んだカウンターの値。</translation>
    </message>
    <message>
        <source>ChunkData_Tooltip</source>
        <translation>最後の画像のチャンクから読んだ値。</translation>
    </message>
    <message>
        <source>ChunkDataControl_Tooltip</source>
        <translation>各画像に付けるデータ。</translation>
    </message>
    <message>
        <source>ChunkDataStreams_Tooltip</source>
        <translation>最後の画像のチャンクから読んだストリームの値。</translation>
    </message>
    <message>
        <source>ChunkEnable_Tooltip</source>
        <translation>選んだチャンクを各画像に入れます。</translation>
    </message>
    <message>
        <source>ChunkExposureTime_Tooltip</source>
        <translation>最後の画像の露光時間 (チャンクから)。</translation>
    </message>
    <message>
        <source>ChunkFrameID_Tooltip</source>
        <translation>最後の画像の番号。</translation>
    </message>
    <message>
        <source>ChunkGain_Tooltip</source>
        <translation>最後の画像のゲイン (チャンクから)。</translation>
    </message>
    <message>
        <source>ChunkGainSelector_Tooltip</source>
        <translation>ChunkGain に表示するゲインを選びます。</translation>
    </message>
    <message>
        <source>ChunkHeight_Tooltip</source>
        <translation>最後の画像の高さ (チャンクから)。</translation>
    </message>
    <message>
        <source>ChunkLineStatusAll_Tooltip</source>
        <translation>最後の画像を露光したときの全ラインのレベル。</translation>
    </message>
    <message>
        <source>ChunkModeActive_Tooltip</source>
        <translation>有効にしたチャンクデータを各画像に付けます。</translation>
    </message>
    <message>
        <source>ChunkOffsetX_Tooltip</source>
        <translation>最後の画像の水平位置 (チャンクから)。</translation>
    </message>
    <message>
        <source>ChunkOffsetY_Tooltip</source>
        <translation>最後の画像の垂直位置 (チャンクから)。</translation>
    </message>
    <message>
        <source>ChunkPayloadCRC16_Tooltip</source>
        <translation>最後の画像のデータのチェックサム。</translation>
    </message>
    <message>
        <source>ChunkPixelFormat_Tooltip</source>
        <translation>最後の画像の画素フォーマット (チャンクから)。</translation>
    </message>
    <message>
        <source>ChunkSelector_Tooltip</source>
        <translation>オンまたはオフにするチャンクを選びます。</translation>
    </message>
    <message>
        <source>ChunkStride_Tooltip</source>
        <translation>最後の画像の 1 ラインの先頭から次のラインまでのバイト数。</translation>
    </message>
    <message>
        <source>ChunkTimestamp_Tooltip</source>
        <translation>最後の画像のタイムスタンプ (チャンクから)。</translation>
    </message>
    <message>
        <source>ChunkWidth_Tooltip</source>
        <translation>最後の画像の幅 (チャンクから)。</translation>
    </message>
    <message>
        <source>ColorControls_Tooltip</source>
        <translation>ホワイトバランスと色処理。</translation>
    </message>
    <message>
        <source>ColorTransformationControl_Tooltip</source>
        <translation>色変換マトリクス。</translation>
    </message>
    <message>
        <source>ColorTransformationEnable_Tooltip</source>
        <translation>色変換マトリクスを適用します。</translation>
    </message>
    <message>
        <source>ColorTransformationSelector_Tooltip</source>
        <translation>以下の機能で設定する色変換を選びます。</translation>
    </message>
    <message>
        <source>ColorTransformationValue_Tooltip</source>
        <translation>選んだマトリクス係数の値。</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector_Tooltip</source>
        <translation>マトリクスの係数を選びます。</translation>
    </message>
    <message>
        <source>CounterAndTimerControl_Tooltip</source>
        <translation>カウンターとタイマー。</translation>
    </message>
    <message>
        <source>CounterControls_Tooltip</source>
        <translation>イベントのカウンター。</translation>
    </message>
    <message>
        <source>CounterDuration_Tooltip</source>
        <translation>選んだカウンターが止まる値。</translation>
    </message>
    <message>
        <source>CounterEventActivation_Tooltip</source>
        <translation>数える信号のどのエッジで 1 増やすか。</translation>
    </message>
    <message>
        <source>CounterEventSource_Tooltip</source>
        <translation>選んだカウンターが数える信号。</translation>
    </message>
    <message>
        <source>CounterReset_Tooltip</source>
        <translation>選んだカウンターを 0 に戻します。</translation>
    </message>
    <message>
        <source>CounterResetActivation_Tooltip</source>
        <translation>リセット信号のどのエッジでカウンターを戻すか。</translation>
    </message>
    <message>
        <source>CounterResetSource_Tooltip</source>
        <translation>選んだカウンターを 0 に戻す信号。</translation>
    </message>
    <message>
        <source>CounterSelector_Tooltip</source>
        <translation>設定するカウンターを選びます。</translation>
    </message>
    <message>
        <source>CounterStatus_Tooltip</source>
        <translation>選んだカウンターの状態。</translation>
    </message>
    <message>
        <source>CounterValue_Tooltip</source>
        <translation>選んだカウンターの現在値。</translation>
    </message>
    <message>
        <source>CounterValueAtReset_Tooltip</source>
        <translation>最後にリセットしたときの選んだカウンターの値。</translation>
    </message>
    <message>
        <source>DecimationHorizontal_Tooltip</source>
        <translation>n 列ごとに 1 列だけ読み出します。</translation>
    </message>
    <message>
        <source>DecimationVertical_Tooltip</source>
        <translation>n 行ごとに 1 行だけ読み出します。</translation>
    </message>
    <message>
        <source>DefectPixelCorrectionMode_Tooltip</source>
        <translation>既知の欠陥画素の値を置き換えます。</translation>
    </message>
    <message>
        <source>DemosaicingMode_Tooltip</source>
        <translation>カメラ内でベイヤー配列からフルカラーを求める方法。</translation>
    </message>
    <message>
        <source>DeviceCharacterSet_Tooltip</source>
        <translation>カメラ内の文字列の文字セット。</translation>
    </message>
    <message>
        <source>DeviceClockFrequency_Tooltip</source>
        <translation>選んだクロックの周波数。</translation>
    </message>
    <message>
        <source>DeviceClockSelector_Tooltip</source>
        <translation>周波数を表示するクロックを選びます。</translation>
    </message>
    <message>
        <source>DeviceControl_Tooltip</source>
        <translation>カメラの識別情報と全般設定。</translation>
    </message>
    <message>
        <source>DeviceEventChannelCount_Tooltip</source>
        <translation>カメラのイベントチャンネルの数。</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>カメラが属する製品ファミリー。</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceEnd_Tooltip</source>
        <translation>機能の値のカメラへの保存を終えます。</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceStart_Tooltip</source>
        <translation>現在の機能の値をカメラに保存し始めます。</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>カメラのファームウェアのバージョン。</translation>
    </message>
    <message>
        <source>DeviceGenCPVersionMajor_Tooltip</source>
        <translation>カメラの制御プロトコルのメジャーバージョン。</translation>
    </message>
    <message>
        <source>DeviceGenCPVersionMinor_Tooltip</source>
        <translation>カメラの制御プロトコルのマイナーバージョン。</translation>
    </message>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>カメラの旧識別子。代わりに DeviceSerialNumber を使ってください。</translation>
    </message>
    <message>
        <source>DeviceIndicatorMode_Tooltip</source>
        <translation>カメラのステータスランプの表示内容。</translation>
    </message>
    <message>
        <source>DeviceLinkCommandTimeout_Tooltip</source>
        <translation>カメラがコマンドに応答するまでの最長時間。</translation>
    </message>
    <message>
        <source>DeviceLinkCurrentThroughput_Tooltip</source>
        <translation>カメラが現在リンクで送っているデータレート (バイト/秒)。</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatTimeout_Tooltip</source>
        <translation>ハートビートがないまま経過すると、カメラが接続を切る時間。</translation>
    </message>
    <message>
        <source>DeviceLinkSelector_Tooltip</source>
        <translation>設定するカメラのリンクを選びます。</translation>
    </message>
    <message>
        <source>DeviceLinkSpeed_Tooltip</source>
        <translation>リンクで確立された速度 (バイト/秒)。</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimit_Tooltip</source>
        <translation>カメラがリンクで送る最大データレート (バイト/秒)。</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimitMode_Tooltip</source>
        <translation>データレートの上限をオンまたはオフにします。オンにするとフレームレートが下がることがあります。</translation>
    </message>
    <message>
        <source>DeviceManifestEntrySelector_Tooltip</source>
        <translation>読み出す記述ファイル一覧の項目を選びます。</translation>
    </message>
    <message>
        <source>DeviceManifestXMLMajorVersion_Tooltip</source>
        <translation>選んだ項目の記述ファイルのメジャーバージョン。</translation>
    </message>
    <message>
        <source>DeviceManifestXMLMinorVersion_Tooltip</source>
        <translation>選んだ項目の記述ファイルのマイナーバージョン。</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>カメラメーカーからの追加情報。</translation>
    </message>
    <message>
        <source>DeviceMaxThroughput_Tooltip</source>
        <translation>カメラが維持できる最大データレート (バイト/秒)。</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>カメラの型式名。</translation>
    </message>
    <message>
        <source>DeviceRegistersCheck_Tooltip</source>
        <translation>レジスタ設定に矛盾がないか確認します。</translation>
    </message>
    <message>
        <source>DeviceRegistersEndianness_Tooltip</source>
        <translation>カメラのレジスタのバイト順。</translation>
    </message>
    <message>
        <source>DeviceRegistersStreamingEnd_Tooltip</source>
        <translation>一連のレジスタ書き込みを終えます。カメラが内容を確認します。</translation>
    </message>
    <message>
        <source>DeviceRegistersStreamingStart_Tooltip</source>
        <translation>一連のレジスタ書き込みに備えてカメラを準備します。</translation>
    </message>
    <message>
        <source>DeviceRegistersValid_Tooltip</source>
        <translation>レジスタ設定に矛盾がなければ 1。</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>カメラを再起動します。復帰するまで接続は切れます。</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMajor_Tooltip</source>
        <translation>カメラが準拠する機能命名規約のメジャーバージョン。</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMinor_Tooltip</source>
        <translation>カメラが準拠する機能命名規約のマイナーバージョン。</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionSubMinor_Tooltip</source>
        <translation>カメラが準拠する機能命名規約のサブマイナーバージョン。</translation>
    </message>
    <message>
        <source>DeviceScanType_Tooltip</source>
        <translation>センサーがエリアで撮るかラインで撮るか。</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>カメラのシリアル番号。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelCount_Tooltip</source>
        <translation>カメラの画像ストリームチャンネルの数。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelEndianness_Tooltip</source>
        <translation>ストリーム内の 1 バイトを超える画素データのバイト順。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelPacketSize_Tooltip</source>
        <translation>選んだストリームチャンネルのパケットサイズ (バイト)。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelSelector_Tooltip</source>
        <translation>設定するストリームチャンネルを選びます。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelType_Tooltip</source>
        <translation>選んだストリームチャンネルが送信か受信か。</translation>
    </message>
    <message>
        <source>DeviceTLType_Tooltip</source>
        <translation>カメラの接続インターフェースの種類。</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor_Tooltip</source>
        <translation>カメラの伝送プロトコルのメジャーバージョン。</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor_Tooltip</source>
        <translation>カメラの伝送プロトコルのマイナーバージョン。</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>カメラ内の選んだ場所の温度 (摂氏)。</translation>
    </message>
    <message>
        <source>DeviceTemperatureSelector_Tooltip</source>
        <translation>温度を表示するカメラ内の場所を選びます。</translation>
    </message>
    <message>
        <source>DeviceTemperatureStatus_Tooltip</source>
        <translation>カメラの温度が正常か、高いか、危険か。</translation>
    </message>
    <message>
        <source>DeviceType_Tooltip</source>
        <translation>リンク上でのカメラの役割 (送信側など)。</translation>
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
        <source>DeviceVersion_Tooltip</source>
        <translation>カメラのハードウェアバージョン。</translation>
    </message>
    <message>
        <source>DigitalIO_Tooltip</source>
        <translation>I/O コネクターのラインとユーザー出力。</translation>
    </message>
    <message>
        <source>DigitalShift_Tooltip</source>
        <translation>画素値をこのビット数だけ左へシフトし、画像を明るくします。</translation>
    </message>
    <message>
        <source>EncoderControl_Tooltip</source>
        <translation>2 相ロータリーエンコーダーの入力。</translation>
    </message>
    <message>
        <source>EncoderDivider_Tooltip</source>
        <translation>エンコーダーのステップを n 回ごとに 1 回だけ数えます。</translation>
    </message>
    <message>
        <source>EncoderMode_Tooltip</source>
        <translation>エンコーダー信号のエッジの数え方。</translation>
    </message>
    <message>
        <source>EncoderOutputMode_Tooltip</source>
        <translation>どの方向の動きで出力パルスを出すか。</translation>
    </message>
    <message>
        <source>EncoderReset_Tooltip</source>
        <translation>エンコーダーの位置を 0 に戻します。</translation>
    </message>
    <message>
        <source>EncoderResetSource_Tooltip</source>
        <translation>エンコーダーの位置を 0 に戻す信号。</translation>
    </message>
    <message>
        <source>EncoderSelector_Tooltip</source>
        <translation>設定するエンコーダーを選びます。</translation>
    </message>
    <message>
        <source>EncoderSourceA_Tooltip</source>
        <translation>エンコーダーの A 相信号の入力ライン。</translation>
    </message>
    <message>
        <source>EncoderSourceB_Tooltip</source>
        <translation>エンコーダーの B 相信号の入力ライン。</translation>
    </message>
    <message>
        <source>EncoderStatus_Tooltip</source>
        <translation>エンコーダーの回転方向。</translation>
    </message>
    <message>
        <source>EncoderTimeout_Tooltip</source>
        <translation>ステップがないまま経過すると、エンコーダーが停止中とみなされる時間。</translation>
    </message>
    <message>
        <source>EncoderValue_Tooltip</source>
        <translation>エンコーダーの現在位置。</translation>
    </message>
    <message>
        <source>EncoderValueAtReset_Tooltip</source>
        <translation>最後にリセットしたときのエンコーダーの位置。</translation>
    </message>
    <message>
        <source>EventAcquisitionEnd_Tooltip</source>
        <translation>「Acquisition End」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventAcquisitionEndData_Tooltip</source>
        <translation>「Acquisition End」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventAcquisitionEndTimestamp_Tooltip</source>
        <translation>最後の「Acquisition End」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventAcquisitionStart_Tooltip</source>
        <translation>「Acquisition Start」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventAcquisitionStartData_Tooltip</source>
        <translation>「Acquisition Start」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventAcquisitionStartTimestamp_Tooltip</source>
        <translation>最後の「Acquisition Start」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventCounter0End_Tooltip</source>
        <translation>「Counter 0 End」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventCounter0EndData_Tooltip</source>
        <translation>「Counter 0 End」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventCounter0EndTimestamp_Tooltip</source>
        <translation>最後の「Counter 0 End」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventCriticalTemperature_Tooltip</source>
        <translation>「Critical Temperature」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventCriticalTemperatureData_Tooltip</source>
        <translation>「Critical Temperature」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventCriticalTemperatureTimestamp_Tooltip</source>
        <translation>最後の「Critical Temperature」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventEventOverrun_Tooltip</source>
        <translation>「Event Overrun」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventEventOverrunData_Tooltip</source>
        <translation>「Event Overrun」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventEventOverrunTimestamp_Tooltip</source>
        <translation>最後の「Event Overrun」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventExposureEnd_Tooltip</source>
        <translation>「Exposure End」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventExposureEndData_Tooltip</source>
        <translation>「Exposure End」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventExposureEndFrameID_Tooltip</source>
        <translation>最後の「Exposure End」イベントが属する画像。</translation>
    </message>
    <message>
        <source>EventExposureEndTimestamp_Tooltip</source>
        <translation>最後の「Exposure End」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventExposureStart_Tooltip</source>
        <translation>「Exposure Start」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventExposureStartData_Tooltip</source>
        <translation>「Exposure Start」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventExposureStartFrameID_Tooltip</source>
        <translation>最後の「Exposure Start」イベントが属する画像。</translation>
    </message>
    <message>
        <source>EventExposureStartTimestamp_Tooltip</source>
        <translation>最後の「Exposure Start」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventFrameBurstStart_Tooltip</source>
        <translation>「Frame Burst Start」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartData_Tooltip</source>
        <translation>「Frame Burst Start」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartFrameID_Tooltip</source>
        <translation>最後の「Frame Burst Start」イベントが属する画像。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartTimestamp_Tooltip</source>
        <translation>最後の「Frame Burst Start」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventFrameEnd_Tooltip</source>
        <translation>「Frame End」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventFrameEndData_Tooltip</source>
        <translation>「Frame End」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventFrameEndFrameID_Tooltip</source>
        <translation>最後の「Frame End」イベントが属する画像。</translation>
    </message>
    <message>
        <source>EventFrameEndTimestamp_Tooltip</source>
        <translation>最後の「Frame End」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventFrameStart_Tooltip</source>
        <translation>「Frame Start」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventFrameStartData_Tooltip</source>
        <translation>「Frame Start」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventFrameStartFrameID_Tooltip</source>
        <translation>最後の「Frame Start」イベントが属する画像。</translation>
    </message>
    <message>
        <source>EventFrameStartTimestamp_Tooltip</source>
        <translation>最後の「Frame Start」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissed_Tooltip</source>
        <translation>「Frame Trigger Missed」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedData_Tooltip</source>
        <translation>「Frame Trigger Missed」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedFrameID_Tooltip</source>
        <translation>最後の「Frame Trigger Missed」イベントが属する画像。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedTimestamp_Tooltip</source>
        <translation>最後の「Frame Trigger Missed」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdge_Tooltip</source>
        <translation>「Line 0 Rising Edge」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeData_Tooltip</source>
        <translation>「Line 0 Rising Edge」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeTimestamp_Tooltip</source>
        <translation>最後の「Line 0 Rising Edge」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventLine2RisingEdge_Tooltip</source>
        <translation>「Line 2 Rising Edge」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventLine2RisingEdgeData_Tooltip</source>
        <translation>「Line 2 Rising Edge」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventLine2RisingEdgeTimestamp_Tooltip</source>
        <translation>最後の「Line 2 Rising Edge」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventNotification_Tooltip</source>
        <translation>選んだイベントをカメラがアプリケーションに通知するかどうか。</translation>
    </message>
    <message>
        <source>EventOverTemperature_Tooltip</source>
        <translation>「Over Temperature」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventOverTemperatureData_Tooltip</source>
        <translation>「Over Temperature」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventOverTemperatureTimestamp_Tooltip</source>
        <translation>最後の「Over Temperature」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventSelector_Tooltip</source>
        <translation>通知を設定するイベントを選びます。</translation>
    </message>
    <message>
        <source>EventTest_Tooltip</source>
        <translation>「Test」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventTestData_Tooltip</source>
        <translation>「Test」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventTestTimestamp_Tooltip</source>
        <translation>最後の「Test」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventTimer0End_Tooltip</source>
        <translation>「Timer 0 End」イベントの識別子。</translation>
    </message>
    <message>
        <source>EventTimer0EndData_Tooltip</source>
        <translation>「Timer 0 End」イベントでカメラが知らせる内容。</translation>
    </message>
    <message>
        <source>EventTimer0EndTimestamp_Tooltip</source>
        <translation>最後の「Timer 0 End」イベントのタイムスタンプ。</translation>
    </message>
    <message>
        <source>EventsGeneration_Tooltip</source>
        <translation>「Generation」イベントの識別子。</translation>
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
        <source>ExposureTimeAbs_Tooltip</source>
        <translation>露光時間 (マイクロ秒) の旧名称。</translation>
    </message>
    <message>
        <source>ExposureTimeBaseAbs_Tooltip</source>
        <translation>旧方式の露光設定で使う ExposureTimeRaw の時間単位。</translation>
    </message>
    <message>
        <source>ExposureTimeBaseAbsEnable_Tooltip</source>
        <translation>旧方式の露光設定: ExposureTimeRaw × ExposureTimeBaseAbs。</translation>
    </message>
    <message>
        <source>ExposureTimeMode_Tooltip</source>
        <translation>設定できる露光時間の範囲: 標準または超短時間。</translation>
    </message>
    <message>
        <source>ExposureTimeRaw_Tooltip</source>
        <translation>旧方式の露光時間 (ExposureTimeBaseAbs 単位)。</translation>
    </message>
    <message>
        <source>FileAccess_Tooltip</source>
        <translation>カメラ内に保存されたファイル。</translation>
    </message>
    <message>
        <source>FileAccessBuffer_Tooltip</source>
        <translation>ファイルから読んだデータ、または書き込むデータ。</translation>
    </message>
    <message>
        <source>FileAccessControl_Tooltip</source>
        <translation>カメラ内のファイルの読み書き。</translation>
    </message>
    <message>
        <source>FileAccessLength_Tooltip</source>
        <translation>読み書きするバイト数。</translation>
    </message>
    <message>
        <source>FileAccessOffset_Tooltip</source>
        <translation>次の読み書きを始めるファイル内の位置。</translation>
    </message>
    <message>
        <source>FileOpenMode_Tooltip</source>
        <translation>ファイルを読み取り、書き込み、またはその両方で開くか。</translation>
    </message>
    <message>
        <source>FileOperationExecute_Tooltip</source>
        <translation>選んだファイルに選んだ操作を実行します。</translation>
    </message>
    <message>
        <source>FileOperationResult_Tooltip</source>
        <translation>最後の読み書きで転送したバイト数。</translation>
    </message>
    <message>
        <source>FileOperationSelector_Tooltip</source>
        <translation>FileOperationExecute で行う操作 (開く、読む、書く、閉じる、削除) を選びます。</translation>
    </message>
    <message>
        <source>FileOperationStatus_Tooltip</source>
        <translation>最後のファイル操作が成功したかどうか。</translation>
    </message>
    <message>
        <source>FileSelector_Tooltip</source>
        <translation>操作するファイルを選びます。</translation>
    </message>
    <message>
        <source>FileSize_Tooltip</source>
        <translation>選んだファイルのサイズ (バイト)。</translation>
    </message>
    <message>
        <source>FileStatus_Tooltip</source>
        <translation>選んだファイルが開いているかどうか。</translation>
    </message>
    <message>
        <source>ForceFailedBuffer_Tooltip</source>
        <translation>エラー処理を試すため、次のバッファを失敗扱いにします。</translation>
    </message>
    <message>
        <source>ForceFailedBufferCount_Tooltip</source>
        <translation>ForceFailedBuffer で失敗扱いにするバッファの数。</translation>
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
        <source>GammaEnable_Tooltip</source>
        <translation>ガンマ補正を適用します。</translation>
    </message>
    <message>
        <source>GammaSelector_Tooltip</source>
        <translation>ユーザー指定のガンマ値か sRGB カーブかを選びます。</translation>
    </message>
    <message>
        <source>GevCCP_Tooltip</source>
        <translation>制御チャンネルでのこのアプリケーションのアクセス権。</translation>
    </message>
    <message>
        <source>GevControlChannel_Tooltip</source>
        <translation>制御チャンネルとメッセージチャンネル。</translation>
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
        <source>GevCurrentIPConfiguration_Tooltip</source>
        <translation>アドレス設定のビット表現: 固定アドレス、DHCP、リンクローカル。</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationDHCP_Tooltip</source>
        <translation>カメラは DHCP サーバーからアドレスを取得します。</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationLLA_Tooltip</source>
        <translation>リンクローカルアドレス。常に有効です。</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationPersistentIP_Tooltip</source>
        <translation>カメラは下で設定した固定アドレスを使います。</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>カメラが現在使っているサブネットマスク。</translation>
    </message>
    <message>
        <source>GevDeviceModeCharacterSet_Tooltip</source>
        <translation>カメラのブートストラップレジスタ内の文字列の文字セット。</translation>
    </message>
    <message>
        <source>GevDeviceModeIsBigEndian_Tooltip</source>
        <translation>カメラのレジスタがビッグエンディアンなら 1。</translation>
    </message>
    <message>
        <source>GevFirstURL_Tooltip</source>
        <translation>カメラ記述ファイルの 1 番目の場所。</translation>
    </message>
    <message>
        <source>GevGVCPHeartbeatDisable_Tooltip</source>
        <translation>デバッグ用にハートビートを無効にします。</translation>
    </message>
    <message>
        <source>GevGVCPPendingAck_Tooltip</source>
        <translation>時間のかかるコマンドの間、カメラがアプリケーションに待つよう知らせます。</translation>
    </message>
    <message>
        <source>GevGVSPExtendedIDMode_Tooltip</source>
        <translation>画像ストリームで拡張されたブロック番号とパケット番号を使います。</translation>
    </message>
    <message>
        <source>GevHeartbeatTimeout_Tooltip</source>
        <translation>ハートビートがないまま経過すると、カメラが接続を切る時間 (ミリ秒)。</translation>
    </message>
    <message>
        <source>GevIEEE1588_Tooltip</source>
        <translation>タイムスタンプを PTP マスタークロックに同期させます。</translation>
    </message>
    <message>
        <source>GevIEEE1588Status_Tooltip</source>
        <translation>PTP 同期の状態。</translation>
    </message>
    <message>
        <source>GevInterfaceControl_Tooltip</source>
        <translation>ネットワークポートの設定。</translation>
    </message>
    <message>
        <source>GevInterfaceSelector_Tooltip</source>
        <translation>設定するネットワークポートを選びます。</translation>
    </message>
    <message>
        <source>GevLinkSpeed_Tooltip</source>
        <translation>選んだネットワークポートの速度 (Mbps)。</translation>
    </message>
    <message>
        <source>GevMACAddress_Tooltip</source>
        <translation>選んだネットワークポートの MAC アドレス。</translation>
    </message>
    <message>
        <source>GevMCDA_Tooltip</source>
        <translation>カメラがイベントメッセージを送るアドレス。</translation>
    </message>
    <message>
        <source>GevMCPHostPort_Tooltip</source>
        <translation>イベントメッセージを受信するこのコンピューターのポート。</translation>
    </message>
    <message>
        <source>GevMCRC_Tooltip</source>
        <translation>応答のないイベントメッセージをカメラが再送する回数。</translation>
    </message>
    <message>
        <source>GevMCTT_Tooltip</source>
        <translation>カメラがイベントメッセージの応答を待つ時間 (ミリ秒)。</translation>
    </message>
    <message>
        <source>GevMessageChannelCount_Tooltip</source>
        <translation>カメラのメッセージチャンネルの数。</translation>
    </message>
    <message>
        <source>GevNumberOfInterfaces_Tooltip</source>
        <translation>カメラのネットワークポートの数。</translation>
    </message>
    <message>
        <source>GevPersistentDefaultGateway_Tooltip</source>
        <translation>電源投入後にカメラが使う固定デフォルトゲートウェイ。</translation>
    </message>
    <message>
        <source>GevPersistentIPAddress_Tooltip</source>
        <translation>電源投入後にカメラが使う固定 IP アドレス。</translation>
    </message>
    <message>
        <source>GevPersistentSubnetMask_Tooltip</source>
        <translation>電源投入後にカメラが使う固定サブネットマスク。</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationIPAddress_Tooltip</source>
        <translation>カメラを制御しているアプリケーションの IP アドレス。</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSocket_Tooltip</source>
        <translation>カメラを制御しているアプリケーションの UDP ポート。</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSwitchoverKey_Tooltip</source>
        <translation>別のアプリケーションが制御を引き継ぐためのキー。</translation>
    </message>
    <message>
        <source>GevSCBWR_Tooltip</source>
        <translation>再送パケット用に空けておく帯域の割合 (%)。</translation>
    </message>
    <message>
        <source>GevSCBWRA_Tooltip</source>
        <translation>再送が集中したときに一度に使える予備帯域の倍率。</translation>
    </message>
    <message>
        <source>GevSCDA_Tooltip</source>
        <translation>カメラが画像を送る宛先アドレス。</translation>
    </message>
    <message>
        <source>GevSCFTD_Tooltip</source>
        <translation>カメラが画像を送る前の遅延 (タイムスタンプ単位)。</translation>
    </message>
    <message>
        <source>GevSCPD_Tooltip</source>
        <translation>画像パケット間の待ち時間 (タイムスタンプ単位)。ネットワークの負荷を分散します。</translation>
    </message>
    <message>
        <source>GevSCPHostPort_Tooltip</source>
        <translation>画像を受信するこのコンピューターの UDP ポート。</translation>
    </message>
    <message>
        <source>GevSCPInterfaceIndex_Tooltip</source>
        <translation>選んだストリームチャンネルが使うネットワークポート。</translation>
    </message>
    <message>
        <source>GevSCPSBigEndian_Tooltip</source>
        <translation>1 バイトを超える画素データをビッグエンディアンで送ります。</translation>
    </message>
    <message>
        <source>GevSCPSDoNotFragment_Tooltip</source>
        <translation>ネットワークで画像パケットを分割させないようにします。</translation>
    </message>
    <message>
        <source>GevSCPSFireTestPacket_Tooltip</source>
        <translation>設定したサイズのテストパケットをカメラに 1 つ送らせます。</translation>
    </message>
    <message>
        <source>GevSCPSPacketSize_Tooltip</source>
        <translation>ヘッダーを含む画像パケットのサイズ。ジャンボフレームには対応したネットワークが必要です。</translation>
    </message>
    <message>
        <source>GevSCSP_Tooltip</source>
        <translation>カメラが画像を送信する元の UDP ポート。</translation>
    </message>
    <message>
        <source>GevSecondURL_Tooltip</source>
        <translation>カメラ記述ファイルの 2 番目の場所。</translation>
    </message>
    <message>
        <source>GevStreamChannelControl_Tooltip</source>
        <translation>画像ストリームチャンネルの設定。</translation>
    </message>
    <message>
        <source>GevStreamChannelCount_Tooltip</source>
        <translation>カメラの画像ストリームチャンネルの数。</translation>
    </message>
    <message>
        <source>GevStreamChannelSelector_Tooltip</source>
        <translation>設定するストリームチャンネルを選びます。</translation>
    </message>
    <message>
        <source>GevSupportedOption_Tooltip</source>
        <translation>カメラが選んだオプションに対応しているか。</translation>
    </message>
    <message>
        <source>GevSupportedOptionSelector_Tooltip</source>
        <translation>GevSupportedOption で確認するオプションを選びます。</translation>
    </message>
    <message>
        <source>GevTimestamp_Tooltip</source>
        <translation>タイムスタンプと時計同期。</translation>
    </message>
    <message>
        <source>GevTimestampControlLatch_Tooltip</source>
        <translation>タイムスタンプを GevTimestampValue に保持する旧方式。</translation>
    </message>
    <message>
        <source>GevTimestampControlReset_Tooltip</source>
        <translation>タイムスタンプカウンターを 0 に戻す旧方式。</translation>
    </message>
    <message>
        <source>GevTimestampTickFrequency_Tooltip</source>
        <translation>1 秒あたりのタイムスタンプのカウント数。</translation>
    </message>
    <message>
        <source>GevTimestampValue_Tooltip</source>
        <translation>GevTimestampControlLatch で保持したタイムスタンプ。</translation>
    </message>
    <message>
        <source>GevVersionMajor_Tooltip</source>
        <translation>カメラが対応する GigE Vision のメジャーバージョン。</translation>
    </message>
    <message>
        <source>GevVersionMinor_Tooltip</source>
        <translation>カメラが対応する GigE Vision のマイナーバージョン。</translation>
    </message>
    <message>
        <source>GigEVision_Tooltip</source>
        <translation>GigE Vision 接続の設定。</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>カメラが送る画像の高さ (画素)。</translation>
    </message>
    <message>
        <source>HeightMax_Tooltip</source>
        <translation>現在のビニングと間引きでの最大画像高さ。</translation>
    </message>
    <message>
        <source>Hue_Tooltip</source>
        <translation>色相を回転させます。</translation>
    </message>
    <message>
        <source>IIDC_Tooltip</source>
        <translation>IEEE 1394 接続の設定。</translation>
    </message>
    <message>
        <source>IIDCVersion_Tooltip</source>
        <translation>カメラが準拠する IIDC 規格のバージョン。</translation>
    </message>
    <message>
        <source>ImageFileMode_Tooltip</source>
        <translation>内蔵のテスト画像の代わりに ImageFilename の画像を送ります。</translation>
    </message>
    <message>
        <source>ImageFilename_Tooltip</source>
        <translation>エミュレートカメラが送る画像ファイルまたは画像フォルダー。</translation>
    </message>
    <message>
        <source>ImageFormatControl_Tooltip</source>
        <translation>画像のサイズ、位置、フォーマット。</translation>
    </message>
    <message>
        <source>ImageQualityControl_Tooltip</source>
        <translation>カメラ内で行う補正。</translation>
    </message>
    <message>
        <source>IsoSpeed_Tooltip</source>
        <translation>バス上のアイソクロナス転送の速度。</translation>
    </message>
    <message>
        <source>LUTControls_Tooltip</source>
        <translation>画素値を変換するルックアップテーブル。</translation>
    </message>
    <message>
        <source>LUTEnable_Tooltip</source>
        <translation>選んだルックアップテーブルを画素値に適用します。</translation>
    </message>
    <message>
        <source>LUTIndex_Tooltip</source>
        <translation>LUTValue で読み書きするルックアップテーブルの項目。</translation>
    </message>
    <message>
        <source>LUTSelector_Tooltip</source>
        <translation>設定するルックアップテーブルを選びます。</translation>
    </message>
    <message>
        <source>LUTValue_Tooltip</source>
        <translation>LUTIndex で選んだルックアップテーブル項目の値。</translation>
    </message>
    <message>
        <source>LUTValueAll_Tooltip</source>
        <translation>選んだルックアップテーブルの全項目 (16 進テキスト)。</translation>
    </message>
    <message>
        <source>LightSourcePreset_Tooltip</source>
        <translation>照明の種類に合わせた色補正。</translation>
    </message>
    <message>
        <source>LineDebouncerTime_Tooltip</source>
        <translation>選んだ入力ラインで信号として受け付ける最短のパルス。</translation>
    </message>
    <message>
        <source>LineFormat_Tooltip</source>
        <translation>選んだラインの電気的な方式。</translation>
    </message>
    <message>
        <source>LineInverter_Tooltip</source>
        <translation>選んだラインの信号を反転します。</translation>
    </message>
    <message>
        <source>LineMinimumOutputPulseWidth_Tooltip</source>
        <translation>選んだ出力ラインに出す最短のパルス。</translation>
    </message>
    <message>
        <source>LineMode_Tooltip</source>
        <translation>選んだラインが入力か出力か。</translation>
    </message>
    <message>
        <source>LinePitch_Tooltip</source>
        <translation>画像の 1 ラインの先頭から次のラインまでのバイト数。</translation>
    </message>
    <message>
        <source>LineSelector_Tooltip</source>
        <translation>設定する I/O ラインを選びます。</translation>
    </message>
    <message>
        <source>LineSource_Tooltip</source>
        <translation>選んだ出力ラインに出すカメラ内部の信号。</translation>
    </message>
    <message>
        <source>LineStatus_Tooltip</source>
        <translation>選んだラインの現在のレベル。</translation>
    </message>
    <message>
        <source>LineStatusAll_Tooltip</source>
        <translation>全ラインのレベルを 1 ラインにつき 1 ビットで表します。</translation>
    </message>
    <message>
        <source>NoiseReduction_Tooltip</source>
        <translation>高画質デモザイク時にかけるノイズ低減。</translation>
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
        <source>PacketSize_Tooltip</source>
        <translation>アイソクロナスパケットのサイズ (バイト)。</translation>
    </message>
    <message>
        <source>PayloadFinalTransfer1Size_Tooltip</source>
        <translation>残りの画像データの 1 回目の転送サイズ (バイト)。</translation>
    </message>
    <message>
        <source>PayloadFinalTransfer2Size_Tooltip</source>
        <translation>残りの画像データの 2 回目の転送サイズ (バイト)。</translation>
    </message>
    <message>
        <source>PayloadSize_Tooltip</source>
        <translation>カメラが 1 枚の画像で送るバイト数 (チャンクデータを含む)。</translation>
    </message>
    <message>
        <source>PayloadTransferCount_Tooltip</source>
        <translation>1 枚の画像あたりのフルサイズ転送の回数。</translation>
    </message>
    <message>
        <source>PayloadTransferSize_Tooltip</source>
        <translation>画像データの各 USB 転送のサイズ (バイト)。</translation>
    </message>
    <message>
        <source>PixelColorFilter_Tooltip</source>
        <translation>センサーのカラーフィルター配列。</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMax_Tooltip</source>
        <translation>現在の画素フォーマットで画素が取りうる最大値。</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMin_Tooltip</source>
        <translation>現在の画素フォーマットで画素が取りうる最小値。</translation>
    </message>
    <message>
        <source>PixelFormat_Tooltip</source>
        <translation>カメラが送る画像の画素フォーマット。</translation>
    </message>
    <message>
        <source>PixelFormatLegacy_Tooltip</source>
        <translation>PixelFormat に旧式のパック画素フォーマットを表示します。</translation>
    </message>
    <message>
        <source>PixelSize_Tooltip</source>
        <translation>画像の 1 画素のビット数。</translation>
    </message>
    <message>
        <source>PtpClockAccuracy_Tooltip</source>
        <translation>カメラの時計が示す精度。</translation>
    </message>
    <message>
        <source>PtpControl_Tooltip</source>
        <translation>ネットワーク経由の時計同期 (PTP)。</translation>
    </message>
    <message>
        <source>PtpDataSetLatch_Tooltip</source>
        <translation>現在の同期値を読み出し用に保持します。</translation>
    </message>
    <message>
        <source>PtpEnable_Tooltip</source>
        <translation>PTP でカメラの時計をネットワークに同期させます。</translation>
    </message>
    <message>
        <source>PtpGrandmasterClockID_Tooltip</source>
        <translation>最後に保持したときのグランドマスタークロックの ID。</translation>
    </message>
    <message>
        <source>PtpOffsetFromMaster_Tooltip</source>
        <translation>最後に保持したときの、マスタークロックに対するカメラ時計のずれ。</translation>
    </message>
    <message>
        <source>PtpParentClockID_Tooltip</source>
        <translation>最後に保持したときの親クロックの ID。</translation>
    </message>
    <message>
        <source>PtpServoStatus_Tooltip</source>
        <translation>カメラの時計がマスタークロックに追従しているか。</translation>
    </message>
    <message>
        <source>PtpStatus_Tooltip</source>
        <translation>PTP による時計同期の状態。</translation>
    </message>
    <message>
        <source>ResultingFrameRate_Tooltip</source>
        <translation>現在の露光、読み出し、制限で実際に出るフレームレート。</translation>
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
        <source>Root_Tooltip</source>
        <translation>カメラのすべての機能。</translation>
    </message>
    <message>
        <source>Saturation_Tooltip</source>
        <translation>色の鮮やかさ。</translation>
    </message>
    <message>
        <source>SensorDigitizationTaps_Tooltip</source>
        <translation>センサーのデジタル出力の数。</translation>
    </message>
    <message>
        <source>SensorHeight_Tooltip</source>
        <translation>センサーの有効高さ (画素)。</translation>
    </message>
    <message>
        <source>SensorName_Tooltip</source>
        <translation>イメージセンサーの名前。</translation>
    </message>
    <message>
        <source>SensorPixelHeight_Tooltip</source>
        <translation>1 画素の物理的な高さ (マイクロメートル)。</translation>
    </message>
    <message>
        <source>SensorPixelWidth_Tooltip</source>
        <translation>1 画素の物理的な幅 (マイクロメートル)。</translation>
    </message>
    <message>
        <source>SensorReadoutMode_Tooltip</source>
        <translation>高速読み出しは読み出し時間を短くしますが、ノイズが増えます。</translation>
    </message>
    <message>
        <source>SensorReadoutTime_Tooltip</source>
        <translation>現在の設定でセンサーが 1 枚の画像を読み出すのにかかる時間。</translation>
    </message>
    <message>
        <source>SensorShutterMode_Tooltip</source>
        <translation>センサーのシャッター方式: グローバルまたはローリング。</translation>
    </message>
    <message>
        <source>SensorTaps_Tooltip</source>
        <translation>センサーの読み出しタップ数。</translation>
    </message>
    <message>
        <source>SensorWidth_Tooltip</source>
        <translation>センサーの有効幅 (画素)。</translation>
    </message>
    <message>
        <source>SequenceEnable_Tooltip</source>
        <translation>シーケンサーの旧スイッチ。</translation>
    </message>
    <message>
        <source>SequencerControl_Tooltip</source>
        <translation>自動で切り替わる設定のシーケンス。このモデルにはありません。</translation>
    </message>
    <message>
        <source>ShadingCorrectionMode_Tooltip</source>
        <translation>照明むらとセンサーのシェーディングを補正します。</translation>
    </message>
    <message>
        <source>SharpnessEnhancement_Tooltip</source>
        <translation>高画質デモザイク時にかけるシャープ処理。</translation>
    </message>
    <message>
        <source>SoftwareSignalControl_Tooltip</source>
        <translation>ソフトウェアから出す信号。</translation>
    </message>
    <message>
        <source>SoftwareSignalPulse_Tooltip</source>
        <translation>選んだソフトウェア信号にパルスを出します。</translation>
    </message>
    <message>
        <source>SoftwareSignalSelector_Tooltip</source>
        <translation>パルスを出すソフトウェア信号を選びます。</translation>
    </message>
    <message>
        <source>TestControl_Tooltip</source>
        <translation>ホストソフトウェアを試すための機能。</translation>
    </message>
    <message>
        <source>TestEventGenerate_Tooltip</source>
        <translation>カメラにテストイベントを送らせます。</translation>
    </message>
    <message>
        <source>TestExposureFromZero_Tooltip</source>
        <translation>スライダーが 0 から始まる対数の露光値。</translation>
    </message>
    <message>
        <source>TestFloatNoIncrement_Tooltip</source>
        <translation>増分のない浮動小数点値。入力はできますがステップ操作はできません。</translation>
    </message>
    <message>
        <source>TestHexWide_Tooltip</source>
        <translation>32 ビットを超える 16 進整数。</translation>
    </message>
    <message>
        <source>TestIPAddress_Tooltip</source>
        <translation>変更できる IPv4 アドレス。</translation>
    </message>
    <message>
        <source>TestImageSelector_Tooltip</source>
        <translation>TestPattern の旧名称。</translation>
    </message>
    <message>
        <source>TestInteger64_Tooltip</source>
        <translation>範囲が 32 ビットを超える整数。</translation>
    </message>
    <message>
        <source>TestInteger64Wide_Tooltip</source>
        <translation>64 ビット全域の整数。</translation>
    </message>
    <message>
        <source>TestLegacyMode_Tooltip</source>
        <translation>現在の値が選択肢にもう含まれていない列挙値。</translation>
    </message>
    <message>
        <source>TestLinearFloat_Tooltip</source>
        <translation>リニアスライダー付きの浮動小数点値。</translation>
    </message>
    <message>
        <source>TestLogarithmicFloat_Tooltip</source>
        <translation>対数スライダー付きの浮動小数点値。</translation>
    </message>
    <message>
        <source>TestMACAddress_Tooltip</source>
        <translation>変更できる MAC アドレス。</translation>
    </message>
    <message>
        <source>TestPattern_Tooltip</source>
        <translation>センサー画像をテストパターンに置き換えます。</translation>
    </message>
    <message>
        <source>TestPatternGeneratorSelector_Tooltip</source>
        <translation>設定するテストパターン生成器を選びます。</translation>
    </message>
    <message>
        <source>TestPendingAck_Tooltip</source>
        <translation>この機能への書き込みは応答が遅れます。保留応答の確認用です。</translation>
    </message>
    <message>
        <source>TestSlowCommand_Tooltip</source>
        <translation>完了まで 3 秒かかるコマンド。</translation>
    </message>
    <message>
        <source>TimerControls_Tooltip</source>
        <translation>内部信号にパルスを出すタイマー。</translation>
    </message>
    <message>
        <source>TimerDelay_Tooltip</source>
        <translation>開始信号から選んだタイマーのパルスまでの時間 (マイクロ秒)。</translation>
    </message>
    <message>
        <source>TimerDuration_Tooltip</source>
        <translation>選んだタイマーのパルス幅 (マイクロ秒)。</translation>
    </message>
    <message>
        <source>TimerReset_Tooltip</source>
        <translation>選んだタイマーをリセットします。</translation>
    </message>
    <message>
        <source>TimerSelector_Tooltip</source>
        <translation>設定するタイマーを選びます。</translation>
    </message>
    <message>
        <source>TimerStatus_Tooltip</source>
        <translation>選んだタイマーの状態。</translation>
    </message>
    <message>
        <source>TimerTriggerActivation_Tooltip</source>
        <translation>開始信号のどのエッジまたはレベルでタイマーを開始するか。</translation>
    </message>
    <message>
        <source>TimerTriggerSource_Tooltip</source>
        <translation>選んだタイマーを開始させる信号。</translation>
    </message>
    <message>
        <source>TimerValue_Tooltip</source>
        <translation>選んだタイマーの現在値。</translation>
    </message>
    <message>
        <source>Timestamp_Tooltip</source>
        <translation>カメラのタイムスタンプカウンターの現在値 (電源投入からのナノ秒)。</translation>
    </message>
    <message>
        <source>TimestampLatch_Tooltip</source>
        <translation>現在のタイムスタンプを TimestampLatchValue に保持します。</translation>
    </message>
    <message>
        <source>TimestampLatchValue_Tooltip</source>
        <translation>最後の TimestampLatch で保持したタイムスタンプ。</translation>
    </message>
    <message>
        <source>TimestampReset_Tooltip</source>
        <translation>タイムスタンプカウンターを 0 に戻します。</translation>
    </message>
    <message>
        <source>TransportLayer_Tooltip</source>
        <translation>カメラとこのコンピューターの接続。</translation>
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
        <source>TriggerDivider_Tooltip</source>
        <translation>n 回ごとに 1 回のトリガー信号だけを使います。</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>トリガーを受けたときだけ撮像するかどうか。</translation>
    </message>
    <message>
        <source>TriggerOverlap_Tooltip</source>
        <translation>前の画像の読み出し中にトリガーを受け付けるかどうか。</translation>
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
        <source>U3VCurrentSpeed_Tooltip</source>
        <translation>カメラの USB 接続速度。</translation>
    </message>
    <message>
        <source>U3VMaxAcknowledgeTransferLength_Tooltip</source>
        <translation>カメラが送る応答転送の最大長 (バイト)。</translation>
    </message>
    <message>
        <source>U3VMaxCommandTransferLength_Tooltip</source>
        <translation>カメラが受け付けるコマンド転送の最大長 (バイト)。</translation>
    </message>
    <message>
        <source>USB3Vision_Tooltip</source>
        <translation>USB3 Vision 接続の設定。</translation>
    </message>
    <message>
        <source>UserOutputSelector_Tooltip</source>
        <translation>設定するユーザー出力を選びます。</translation>
    </message>
    <message>
        <source>UserOutputValue_Tooltip</source>
        <translation>選んだユーザー出力のレベル。</translation>
    </message>
    <message>
        <source>UserOutputValueAll_Tooltip</source>
        <translation>全ユーザー出力のレベル (1 出力 1 ビット)。</translation>
    </message>
    <message>
        <source>UserOutputValueAllMask_Tooltip</source>
        <translation>UserOutputValueAll のうち書き込むビット。</translation>
    </message>
    <message>
        <source>UserSetDefault_Tooltip</source>
        <translation>電源投入時にカメラが読み込むユーザーセット。</translation>
    </message>
    <message>
        <source>UserSetDefaultSelector_Tooltip</source>
        <translation>UserSetDefault の旧名称。</translation>
    </message>
    <message>
        <source>UserSetFactoryDefaultLoaded_Tooltip</source>
        <translation>工場出荷時の設定が有効な間は真。</translation>
    </message>
    <message>
        <source>UserSetFeatureEnable_Tooltip</source>
        <translation>選んだ機能をユーザーセットに保存するかどうか。</translation>
    </message>
    <message>
        <source>UserSetFeatureSelector_Tooltip</source>
        <translation>ユーザーセットに含めるか除外する機能を選びます。</translation>
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
        <source>UserSets_Tooltip</source>
        <translation>カメラ設定の保存と復元。</translation>
    </message>
    <message>
        <source>Width_Tooltip</source>
        <translation>カメラが送る画像の幅 (画素)。</translation>
    </message>
    <message>
        <source>WidthMax_Tooltip</source>
        <translation>現在のビニングと間引きでの最大画像幅。</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>CommandDuplicationEnable_Tooltip</source>
        <translation>パケットが失われやすいネットワーク向けに、各コマンドを 2 回送ります。</translation>
    </message>
    <message>
        <source>Communication_Tooltip</source>
        <translation>制御接続のタイムアウトと再試行。</translation>
    </message>
    <message>
        <source>DeviceAccessStatus_Tooltip</source>
        <translation>このアプリケーションがカメラをどのように開いているか。</translation>
    </message>
    <message>
        <source>DeviceBcdUSB_Tooltip</source>
        <translation>カメラの USB バージョン (BCD)。</translation>
    </message>
    <message>
        <source>DeviceDisplayName_Tooltip</source>
        <translation>カメラが一覧に表示される名前。</translation>
    </message>
    <message>
        <source>DeviceDriverVersion_Tooltip</source>
        <translation>使用中の USB ドライバーのバージョン。</translation>
    </message>
    <message>
        <source>DeviceEndianessMechanism_Tooltip</source>
        <translation>カメラのレジスタのバイト順の扱い方。</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>カメラの製品ファミリー。</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>カメラのファームウェアのバージョン。</translation>
    </message>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>トランスポート層でのカメラの識別子。</translation>
    </message>
    <message>
        <source>DeviceInformation_Tooltip</source>
        <translation>カメラを識別する情報。</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>カメラメーカーからの追加情報。</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>カメラの型式名。</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>カメラのシリアル番号。</translation>
    </message>
    <message>
        <source>DeviceSpeed_Tooltip</source>
        <translation>カメラの USB 接続速度。</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor_Tooltip</source>
        <translation>使用中のトランスポート層プロトコルのメジャーバージョン。</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor_Tooltip</source>
        <translation>使用中のトランスポート層プロトコルのマイナーバージョン。</translation>
    </message>
    <message>
        <source>DeviceType_Tooltip</source>
        <translation>GigE Vision や USB3 Vision などのカメラのインターフェース規格。</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>ユーザーがカメラに付けた名前。</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>カメラメーカーの名前。</translation>
    </message>
    <message>
        <source>DeviceVersion_Tooltip</source>
        <translation>カメラのバージョン。</translation>
    </message>
    <message>
        <source>GevCCP_Tooltip</source>
        <translation>このアプリケーションが持つカメラへのアクセス権: 排他、制御、監視。</translation>
    </message>
    <message>
        <source>GevDeviceDefaultGateway_Tooltip</source>
        <translation>カメラのデフォルトゲートウェイ。</translation>
    </message>
    <message>
        <source>GevDeviceForceGateway_Tooltip</source>
        <translation>GevDeviceForceIP でカメラに割り当てるゲートウェイ。</translation>
    </message>
    <message>
        <source>GevDeviceForceIP_Tooltip</source>
        <translation>このコンピューターのサブネット外にあるカメラに一時的なアドレスを割り当てます。</translation>
    </message>
    <message>
        <source>GevDeviceForceIPAddress_Tooltip</source>
        <translation>GevDeviceForceIP でカメラに割り当てるアドレス。</translation>
    </message>
    <message>
        <source>GevDeviceForceSubnetMask_Tooltip</source>
        <translation>GevDeviceForceIP でカメラに割り当てるサブネットマスク。</translation>
    </message>
    <message>
        <source>GevDeviceIPAddress_Tooltip</source>
        <translation>ホストから見たカメラの IP アドレス。</translation>
    </message>
    <message>
        <source>GevDeviceMACAddress_Tooltip</source>
        <translation>カメラの MAC アドレス。</translation>
    </message>
    <message>
        <source>GevDevicePort_Tooltip</source>
        <translation>カメラ制御接続の UDP ポート。</translation>
    </message>
    <message>
        <source>GevDeviceSubnetMask_Tooltip</source>
        <translation>カメラのサブネットマスク。</translation>
    </message>
    <message>
        <source>GevInterfaceIPAddress_Tooltip</source>
        <translation>カメラにつながるこのコンピューターのネットワークアダプターのアドレス。</translation>
    </message>
    <message>
        <source>GevVersionMajor_Tooltip</source>
        <translation>カメラの GigE Vision メジャーバージョン。</translation>
    </message>
    <message>
        <source>GevVersionMinor_Tooltip</source>
        <translation>カメラの GigE Vision マイナーバージョン。</translation>
    </message>
    <message>
        <source>GigEVisionDevice_Tooltip</source>
        <translation>カメラのネットワーク上の識別情報。</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>ハートビートがないままこの時間 (ミリ秒) が過ぎると、カメラは接続を切ります。</translation>
    </message>
    <message>
        <source>MaxRetryCountRead_Tooltip</source>
        <translation>応答のない読み出し要求を再送する回数。</translation>
    </message>
    <message>
        <source>MaxRetryCountWrite_Tooltip</source>
        <translation>応答のない書き込み要求を再送する回数。</translation>
    </message>
    <message>
        <source>MaxTransferSize_Tooltip</source>
        <translation>制御転送の最大サイズ (バイト)。</translation>
    </message>
    <message>
        <source>MaximumNumberOfRetries_Tooltip</source>
        <translation>失敗した USB 転送を繰り返す回数。</translation>
    </message>
    <message>
        <source>MigrationModeEnable_Tooltip</source>
        <translation>既存のアプリケーションのために、カメラを旧モデルファミリーと同じように動作させます。</translation>
    </message>
    <message>
        <source>ReadTimeout_Tooltip</source>
        <translation>読み出し要求の応答を待つ時間 (ミリ秒)。</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>トランスポート層から見たカメラ。</translation>
    </message>
    <message>
        <source>USB3VisionDevice_Tooltip</source>
        <translation>カメラの USB 識別情報。</translation>
    </message>
    <message>
        <source>WriteTimeout_Tooltip</source>
        <translation>書き込み要求の応答を待つ時間 (ミリ秒)。</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>AccessMode_Tooltip</source>
        <translation>画像ストリームの開き方。</translation>
    </message>
    <message>
        <source>DestinationAddr_Tooltip</source>
        <translation>画像の送信先マルチキャストアドレス。</translation>
    </message>
    <message>
        <source>DestinationPort_Tooltip</source>
        <translation>画像を受信するポート。0 なら空きポートを使います。</translation>
    </message>
    <message>
        <source>EnableResend_Tooltip</source>
        <translation>失われたパケットをカメラに再要求します。</translation>
    </message>
    <message>
        <source>FrameRetention_Tooltip</source>
        <translation>不完全な画像をあきらめるまでの時間 (ミリ秒)。</translation>
    </message>
    <message>
        <source>GigEStream_Tooltip</source>
        <translation>ネットワーク画像ストリームの設定。</translation>
    </message>
    <message>
        <source>IIDCStream_Tooltip</source>
        <translation>アイソクロナスストリームの設定。</translation>
    </message>
    <message>
        <source>MaxBufferSize_Tooltip</source>
        <translation>ストリームが埋める最大バッファのサイズ (バイト)。</translation>
    </message>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>グラバーが確保する画像バッファの数。</translation>
    </message>
    <message>
        <source>MaxNumQueuedBuffer_Tooltip</source>
        <translation>同時に受信待ちにできるバッファの最大数。</translation>
    </message>
    <message>
        <source>MaxTransferSize_Tooltip</source>
        <translation>1 回の USB 転送のサイズ (バイト)。</translation>
    </message>
    <message>
        <source>MaximumNumberResendRequests_Tooltip</source>
        <translation>1 枚の画像に対する再送要求の最大数。</translation>
    </message>
    <message>
        <source>NumIsoPackets_Tooltip</source>
        <translation>1 回の要求でまとめるアイソクロナスパケットの数。</translation>
    </message>
    <message>
        <source>NumMaxQueuedUrbs_Tooltip</source>
        <translation>ドライバーに待機させておく USB 要求の数。</translation>
    </message>
    <message>
        <source>PacketResend_Tooltip</source>
        <translation>失われたネットワークパケットの回復。</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>欠けたパケットを再要求するまで待つ時間 (ミリ秒)。</translation>
    </message>
    <message>
        <source>ReceiveThreadPriority_Tooltip</source>
        <translation>画像を受信するスレッドの優先度。</translation>
    </message>
    <message>
        <source>ReceiveThreadPriorityOverride_Tooltip</source>
        <translation>受信スレッドに ReceiveThreadPriority の優先度を使います。</translation>
    </message>
    <message>
        <source>ResendRequestBatching_Tooltip</source>
        <translation>再送要求をまとめる画像の範囲 (%)。</translation>
    </message>
    <message>
        <source>ResendRequestResponseTimeout_Tooltip</source>
        <translation>再送されたパケットを待つ時間 (ミリ秒)。</translation>
    </message>
    <message>
        <source>ResendRequestThreshold_Tooltip</source>
        <translation>欠落を報告するまでに受け取る画像の割合 (%)。</translation>
    </message>
    <message>
        <source>ResendTimeout_Tooltip</source>
        <translation>失われたパケットを再要求するまでの待ち時間 (ミリ秒)。</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>カメラの画像を受信します。</translation>
    </message>
    <message>
        <source>SocketBufferSize_Tooltip</source>
        <translation>ネットワークソケットの受信バッファのサイズ (KB)。</translation>
    </message>
    <message>
        <source>Statistic_Tooltip</source>
        <translation>画像ストリームのカウンター。</translation>
    </message>
    <message>
        <source>StatisticReset_Tooltip</source>
        <translation>ストリームのカウンターを 0 に戻します。</translation>
    </message>
    <message>
        <source>Statistic_Buffer_Fill_Level_Tooltip</source>
        <translation>待機中のバッファのうち画像が入っている割合 (%)。</translation>
    </message>
    <message>
        <source>Statistic_Buffer_Underrun_Count_Tooltip</source>
        <translation>待機中のバッファがなく失われた画像の数。</translation>
    </message>
    <message>
        <source>Statistic_Failed_Buffer_Count_Tooltip</source>
        <translation>エラーで戻ったバッファの数。</translation>
    </message>
    <message>
        <source>Statistic_Failed_Packet_Count_Tooltip</source>
        <translation>エラー付きで受信したパケットの数。</translation>
    </message>
    <message>
        <source>Statistic_Last_Block_Id_Tooltip</source>
        <translation>最後に受信した画像ブロックの番号。</translation>
    </message>
    <message>
        <source>Statistic_Last_Failed_Buffer_Status_Tooltip</source>
        <translation>最後に失敗したバッファのステータスコード。</translation>
    </message>
    <message>
        <source>Statistic_Last_Failed_Buffer_Status_Text_Tooltip</source>
        <translation>最後に失敗したバッファで何が起きたか。</translation>
    </message>
    <message>
        <source>Statistic_Missed_Frame_Count_Tooltip</source>
        <translation>カメラが送ったのに届かなかった画像の数。</translation>
    </message>
    <message>
        <source>Statistic_Resend_Packet_Count_Tooltip</source>
        <translation>再要求したパケットの数。</translation>
    </message>
    <message>
        <source>Statistic_Resend_Request_Count_Tooltip</source>
        <translation>カメラに送った再送要求の数。</translation>
    </message>
    <message>
        <source>Statistic_Resynchronization_Count_Tooltip</source>
        <translation>ストリームの再同期が必要になった回数。</translation>
    </message>
    <message>
        <source>Statistic_Total_Buffer_Count_Tooltip</source>
        <translation>統計を最後にリセットしてから受信したバッファの数。</translation>
    </message>
    <message>
        <source>Statistic_Total_Packet_Count_Tooltip</source>
        <translation>受信したパケットの数。</translation>
    </message>
    <message>
        <source>Status_Tooltip</source>
        <translation>画像ストリームの状態。</translation>
    </message>
    <message>
        <source>TransferLoopThreadPriority_Tooltip</source>
        <translation>USB 要求をキューに入れるスレッドの優先度。</translation>
    </message>
    <message>
        <source>TransmissionType_Tooltip</source>
        <translation>画像ストリームの宛先: このコンピューターのみ、またはマルチキャストグループ。</translation>
    </message>
    <message>
        <source>Type_Tooltip</source>
        <translation>画像を受信するドライバー。</translation>
    </message>
    <message>
        <source>Usb3Stream_Tooltip</source>
        <translation>USB 転送の設定。</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>BufferSize_Tooltip</source>
        <translation>イベントバッファ 1 つのサイズ (バイト)。</translation>
    </message>
    <message>
        <source>DestinationPort_Tooltip</source>
        <translation>イベントを受信するポート。0 なら空きポートを使います。</translation>
    </message>
    <message>
        <source>EventDeliveryMode_Tooltip</source>
        <translation>受信したイベントをアプリケーションに渡す方法。</translation>
    </message>
    <message>
        <source>EventStatistic_Tooltip</source>
        <translation>イベントチャンネルのカウンター。</translation>
    </message>
    <message>
        <source>EventStatisticReset_Tooltip</source>
        <translation>イベントのカウンターを 0 に戻します。</translation>
    </message>
    <message>
        <source>MaxEventSize_Tooltip</source>
        <translation>カメラが送るイベントメッセージの最大サイズ (データを含む、バイト)。</translation>
    </message>
    <message>
        <source>MaxNumQueuedEvents_Tooltip</source>
        <translation>アプリケーションが取り出さない間に保持するイベントの数。</translation>
    </message>
    <message>
        <source>NumBuffer_Tooltip</source>
        <translation>受信するイベント用に確保するバッファの数。</translation>
    </message>
    <message>
        <source>NumMaxQueuedUrbs_Tooltip</source>
        <translation>イベント用に待機させておく USB 要求の数。</translation>
    </message>
    <message>
        <source>ReceiveThreadPriority_Tooltip</source>
        <translation>イベントを受信するスレッドの優先度。</translation>
    </message>
    <message>
        <source>ReceiveThreadPriorityOverride_Tooltip</source>
        <translation>イベントスレッドに ReceiveThreadPriority の優先度を使います。</translation>
    </message>
    <message>
        <source>RetryCount_Tooltip</source>
        <translation>イベントをあきらめるまでに再要求する回数。</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>カメラのイベントメッセージを受信します。</translation>
    </message>
    <message>
        <source>SocketBufferSize_Tooltip</source>
        <translation>ネットワークソケットの受信バッファのサイズ (KB)。</translation>
    </message>
    <message>
        <source>Statistic_Event_Overrun_Count_Tooltip</source>
        <translation>空きバッファがなく失われたイベントの数。</translation>
    </message>
    <message>
        <source>Statistic_Failed_Event_Count_Tooltip</source>
        <translation>エラー付きで受信したイベントの数。</translation>
    </message>
    <message>
        <source>Statistic_Last_Event_ID_Tooltip</source>
        <translation>最後に受信したイベントの識別子。</translation>
    </message>
    <message>
        <source>Statistic_Total_Event_Count_Tooltip</source>
        <translation>受信したイベントの数。</translation>
    </message>
    <message>
        <source>Status_Tooltip</source>
        <translation>イベントチャンネルの状態。</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>イベントの応答を待つ時間 (ミリ秒)。</translation>
    </message>
</context>
<context>
    <name>ImageFormatConverter</name>
    <message>
        <source>AdditionalLeftShift_Tooltip</source>
        <translation>下位ビットを捨てる前にデータを左へシフトするビット数。</translation>
    </message>
    <message>
        <source>ColorAdjustmentControl_Tooltip</source>
        <translation>色ごとの色相と彩度。</translation>
    </message>
    <message>
        <source>ColorAdjustmentEnable_Tooltip</source>
        <translation>色相と彩度の設定を適用します。</translation>
    </message>
    <message>
        <source>ColorAdjustmentHue_Tooltip</source>
        <translation>選んだ色の色相のずれ。</translation>
    </message>
    <message>
        <source>ColorAdjustmentSaturation_Tooltip</source>
        <translation>選んだ色の彩度。</translation>
    </message>
    <message>
        <source>ColorAdjustmentSelector_Tooltip</source>
        <translation>調整する色を選びます。</translation>
    </message>
    <message>
        <source>ColorConversion_Tooltip</source>
        <translation>カラー画像の変換。</translation>
    </message>
    <message>
        <source>ColorTransformationControl_Tooltip</source>
        <translation>色変換マトリクス。</translation>
    </message>
    <message>
        <source>ColorTransformationMatrixFactor_Tooltip</source>
        <translation>色変換をかける強さ。</translation>
    </message>
    <message>
        <source>ColorTransformationSelector_Tooltip</source>
        <translation>色変換の種類を選びます。</translation>
    </message>
    <message>
        <source>ColorTransformationValue_Tooltip</source>
        <translation>選んだマトリクス係数の値。</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector_Tooltip</source>
        <translation>マトリクスの係数を選びます。</translation>
    </message>
    <message>
        <source>DemosaicingMethod_Tooltip</source>
        <translation>ベイヤー配列からフルカラーを求める方法。</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>変換時にかけるガンマ補正。</translation>
    </message>
    <message>
        <source>InconvertibleEdgeHandling_Tooltip</source>
        <translation>デモザイクできない端の画素の扱い。</translation>
    </message>
    <message>
        <source>LightSourcePreset_Tooltip</source>
        <translation>照明の種類に合わせた色補正。</translation>
    </message>
    <message>
        <source>MaxNumThreads_Tooltip</source>
        <translation>変換に使うスレッドの最大数。</translation>
    </message>
    <message>
        <source>MonoConversion_Tooltip</source>
        <translation>モノクロデータのビット深度の削減。</translation>
    </message>
    <message>
        <source>MonoConversionMethod_Tooltip</source>
        <translation>8 ビットを超える画素データを 8 ビットにする方法。</translation>
    </message>
    <message>
        <source>NoiseReduction_Tooltip</source>
        <translation>高画質デモザイク時にかけるノイズ低減。</translation>
    </message>
    <message>
        <source>OutputBitAlignment_Tooltip</source>
        <translation>コンテナより狭い画素データを上位ビットと下位ビットのどちらに揃えるか。</translation>
    </message>
    <message>
        <source>OutputFormat_Tooltip</source>
        <translation>変換後の画像のフォーマット。</translation>
    </message>
    <message>
        <source>OutputOrientation_Tooltip</source>
        <translation>変換後の画像のライン順: 上から下、または下から上。</translation>
    </message>
    <message>
        <source>OutputPaddingX_Tooltip</source>
        <translation>変換後の画像の各ラインの末尾に加えるバイト数。</translation>
    </message>
    <message>
        <source>OutputPixelFormat_Tooltip</source>
        <translation>変換後の画像の画素フォーマット。</translation>
    </message>
    <message>
        <source>Root_Tooltip</source>
        <translation>受信した画像を表示や処理のために変換します。</translation>
    </message>
    <message>
        <source>SharpnessEnhancement_Tooltip</source>
        <translation>高画質デモザイク時にかけるシャープ処理。</translation>
    </message>
</context>
</TS>
