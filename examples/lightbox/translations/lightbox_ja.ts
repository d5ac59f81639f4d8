<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>CHelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;User guide</source>
        <translation>ユーザーガイド(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Learning</source>
        <translation>学習(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>サポート(&amp;S)</translation>
    </message>
    <message>
        <source>H&amp;ome page</source>
        <translation>ホームページ(&amp;O)</translation>
    </message>
    <message>
        <source>Sho&amp;p</source>
        <translation>ショップ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Improvement program</source>
        <translation>改善プログラム(&amp;I)</translation>
    </message>
    <message>
        <source>P&amp;atents</source>
        <translation>特許(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Check the data files</source>
        <translation>データファイルを確認(&amp;C)</translation>
    </message>
    <message>
        <source>A&amp;bout Zyx Grainlab</source>
        <translation>Zyx Grainlab について(&amp;B)</translation>
    </message>
</context>
<context>
    <name>CLanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Lightbox</source>
        <translation>ライトボックス</translation>
    </message>
    <message>
        <source>&amp;Photograph</source>
        <translation>写真(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Open a &amp;folder...</source>
        <translation>フォルダーを開く(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>前へ(&amp;P)</translation>
    </message>
    <message>
        <source>Tu&amp;rn</source>
        <translation>回転(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save the print...</source>
        <translation>プリントを保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Ask the service</source>
        <translation>サービスに問い合わせ(&amp;A)</translation>
    </message>
    <message>
        <source>Save a &amp;copy...</source>
        <translation>コピーを保存(&amp;C)...</translation>
    </message>
    <message>
        <source>Move to the &amp;trash...</source>
        <translation>ごみ箱に移動(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Whole photograph</source>
        <translation>写真全体(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Fill the window</source>
        <translation>ウィンドウいっぱいに表示(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>%1 will be spoken from the next start on</source>
        <translation>次回の起動時から %1 で表示されます</translation>
    </message>
    <message>
        <source>No photographs in this folder</source>
        <translation>このフォルダーには写真がありません</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>%1 を読み込んでいます</translation>
    </message>
    <message>
        <source>%1 takes too long</source>
        <translation>%1 の読み込みに時間がかかりすぎています</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown</source>
        <translation>%1 を表示できません</translation>
    </message>
    <message>
        <source>%1 of %2: %3, %4, %5</source>
        <translation>%1/%2：%3、%4、%5</translation>
    </message>
    <message>
        <source>Open a photograph</source>
        <translation>写真を開く</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>写真 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Open a folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>サービスに問い合わせ</translation>
    </message>
    <message>
        <source>Address of the service:</source>
        <translation>サービスのアドレス：</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>%1 に問い合わせています</translation>
    </message>
</context>
<context>
    <name>CPhotoFiles</name>
    <message>
        <source>%1 can&apos;t be moved to the trash</source>
        <translation>%1 をごみ箱に移動できません</translation>
    </message>
    <message>
        <source>Move to the trash</source>
        <translation>ごみ箱に移動</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; to the trash?</source>
        <translation>「%1」をごみ箱に移動しますか？</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>今後は確認しない</translation>
    </message>
    <message>
        <source>Save the print</source>
        <translation>プリントを保存</translation>
    </message>
    <message>
        <source>JPEG (*.jpg)</source>
        <translation>JPEG (*.jpg)</translation>
    </message>
    <message>
        <source>PNG (*.png)</source>
        <translation>PNG (*.png)</translation>
    </message>
    <message>
        <source>%1 can&apos;t be saved</source>
        <translation>%1 を保存できません</translation>
    </message>
    <message>
        <source>Saved the print as %1</source>
        <translation>プリントを %1 として保存しました</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was turned. Save the print?</source>
        <translation>「%1」は回転されています。プリントを保存しますか？</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>コピーを保存</translation>
    </message>
    <message>
        <source>Name of the copy:</source>
        <translation>コピーの名前：</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 のコピー</translation>
    </message>
    <message>
        <source>%1 print</source>
        <translation>%1 のプリント</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a file</source>
        <translation>「%1」はファイル名として使用できません</translation>
    </message>
    <message>
        <source>There is no room for a copy of %1</source>
        <translation>%1 のコピーを保存する空き容量がありません</translation>
    </message>
    <message>
        <source>Saved a copy as %1</source>
        <translation>コピーを %1 として保存しました</translation>
    </message>
    <message>
        <source>%1 is there already</source>
        <translation>%1 は既に存在します</translation>
    </message>
    <message>
        <source>%1 can&apos;t be copied to %2</source>
        <translation>%1 を %2 にコピーできません</translation>
    </message>
</context>
<context>
    <name>CPhotoService</name>
    <message>
        <source>No description: %1</source>
        <translation>説明がありません：%1</translation>
    </message>
    <message>
        <source>The service says: %1</source>
        <translation>サービスからの回答：%1</translation>
    </message>
    <message>
        <source>The service takes too long</source>
        <translation>サービスの応答に時間がかかりすぎています</translation>
    </message>
</context>
<context>
    <name>CPhotoView</name>
    <message>
        <source>Photograph</source>
        <translation>写真</translation>
    </message>
</context>
<context>
    <name>CSettingsPanel</name>
    <message>
        <source>Black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>Shows the photograph without its colours</source>
        <translation>写真をモノクロで表示します</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Shows the slide from its back</source>
        <translation>スライドを裏側から表示します</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>枠</translation>
    </message>
    <message>
        <source>Puts a white border around the photograph</source>
        <translation>写真の周りに白い縁を付けます</translation>
    </message>
</context>
<context>
    <name>CUnitMenu</name>
    <message>
        <source>&amp;Unit of sizes</source>
        <translation>サイズの単位(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Pixels</source>
        <translation>ピクセル(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>インチ(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Centimetres</source>
        <translation>センチメートル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>ミリメートル(&amp;M)</translation>
    </message>
</context>
<context>
    <name>CXmlFile</name>
    <message>
        <source>“%1” stands where “%2” is expected</source>
        <translation>「%2」があるべき所に「%1」があります</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 を読み込めません：%2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1、%2 行目：%3</translation>
    </message>
    <message>
        <source>“%1” has no “%2”</source>
        <translation>「%1」に「%2」がありません</translation>
    </message>
    <message>
        <source>“%1” is not Base64 of a text</source>
        <translation>「%1」はテキストの Base64 ではありません</translation>
    </message>
</context>
<context>
    <name>CFilmHistory</name>
    <message>
        <source>“%1” is no number</source>
        <translation>「%1」は数値ではありません</translation>
    </message>
</context>
<context>
    <name>CPresetBrowser</name>
    <message>
        <source>Film</source>
        <translation>フィルム</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Time machine</source>
        <translation>タイムマシン</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>ネガ</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>デザイナー</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>リバーサル</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>デジタル</translation>
    </message>
    <message>
        <source>Toned</source>
        <translation>調色</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>周辺減光</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>粒状感</translation>
    </message>
    <message>
        <source>Cinematic</source>
        <translation>映画調</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Also presets of the expert mode</source>
        <translation>エキスパートモードのプリセットも表示</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Presets shown: %1</source>
        <translation>表示中のプリセット：%1</translation>
    </message>
    <message>
        <source>Tags: %1</source>
        <translation>タグ：%1</translation>
    </message>
    <message>
        <source>Parameters: %1</source>
        <translation>パラメーター：%1</translation>
    </message>
</context>
<context>
    <name>CTimeLine</name>
    <message>
        <source>Film history</source>
        <translation>フィルムの歴史</translation>
    </message>
    <message>
        <source>The decade before</source>
        <translation>前の年代</translation>
    </message>
    <message>
        <source>The next decade</source>
        <translation>次の年代</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>フィルム</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>出来事</translation>
    </message>
    <message>
        <source>To try: %1</source>
        <translation>試してみる：%1</translation>
    </message>
</context>
<context>
    <name>CCalibrationCatalogue</name>
    <message>
        <source>The catalogue can&apos;t be copied to %1: %2</source>
        <translation>カタログを %1 にコピーできません：%2</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be opened: %1</source>
        <translation>カタログを開けません：%1</translation>
    </message>
</context>
<context>
    <name>CCalibrationPanel</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>RAW only</source>
        <translation>RAW のみ</translation>
    </message>
    <message>
        <source>RGB only</source>
        <translation>RGB のみ</translation>
    </message>
    <message>
        <source>RAW and RGB</source>
        <translation>RAW と RGB</translation>
    </message>
    <message>
        <source>Calibration modules</source>
        <translation>補正モジュール</translation>
    </message>
    <message>
        <source>No photograph is open</source>
        <translation>写真が開かれていません</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>モジュール</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>レンズ</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦点距離</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>The photograph does not tell its camera</source>
        <translation>写真にカメラの情報がありません</translation>
    </message>
    <message>
        <source>These modules serve it:</source>
        <translation>使用できるモジュール：</translation>
    </message>
    <message>
        <source>One of these modules may serve it:</source>
        <translation>次のモジュールのいずれかが対応する可能性があります：</translation>
    </message>
    <message>
        <source>No module of this camera serves the photograph</source>
        <translation>このカメラのモジュールで、この写真に対応するものはありません</translation>
    </message>
    <message>
        <source>No module was found for this lens. The camera has these:</source>
        <translation>このレンズに対応するモジュールが見つかりません。このカメラには次のものがあります：</translation>
    </message>
    <message>
        <source>The photograph does not tell its lens. The camera has these:</source>
        <translation>写真にレンズの情報がありません。このカメラには次のものがあります：</translation>
    </message>
    <message>
        <source>The catalogue does not have this camera</source>
        <translation>このカメラはカタログにありません</translation>
    </message>
</context>
<context>
    <name>CPhotoMetadata</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 を読み込めません：%2</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
</context>
<context>
    <name>CReferenceMenu</name>
    <message>
        <source>&amp;Reference</source>
        <translation>資料(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>プリセット(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Film history</source>
        <translation>フィルムの歴史(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Calibration modules</source>
        <translation>補正モジュール(&amp;C)</translation>
    </message>
</context>
</TS>
