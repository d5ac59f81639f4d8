<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT -->
<!-- Copyright (c) 2026 the UtilsDllzglv6 authors -->
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CHelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;User guide</source>
        <translation>用户指南(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Learning</source>
        <translation>学习(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>支持(&amp;S)</translation>
    </message>
    <message>
        <source>H&amp;ome page</source>
        <translation>主页(&amp;O)</translation>
    </message>
    <message>
        <source>Sho&amp;p</source>
        <translation>商店(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Improvement program</source>
        <translation>改进计划(&amp;I)</translation>
    </message>
    <message>
        <source>P&amp;atents</source>
        <translation>专利(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Check the data files</source>
        <translation>检查数据文件(&amp;C)</translation>
    </message>
    <message>
        <source>A&amp;bout Zyx Grainlab</source>
        <translation>关于 Zyx Grainlab(&amp;B)</translation>
    </message>
</context>
<context>
    <name>CLanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Lightbox</source>
        <translation>灯箱</translation>
    </message>
    <message>
        <source>&amp;Photograph</source>
        <translation>照片(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Open a &amp;folder...</source>
        <translation>打开文件夹(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一张(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>上一张(&amp;P)</translation>
    </message>
    <message>
        <source>Tu&amp;rn</source>
        <translation>旋转(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save the print...</source>
        <translation>保存成片(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Ask the service</source>
        <translation>询问服务(&amp;A)</translation>
    </message>
    <message>
        <source>Save a &amp;copy...</source>
        <translation>保存副本(&amp;C)...</translation>
    </message>
    <message>
        <source>Move to the &amp;trash...</source>
        <translation>移到回收站(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Whole photograph</source>
        <translation>整张照片(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Fill the window</source>
        <translation>填满窗口(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>%1 will be spoken from the next start on</source>
        <translation>下次启动时将使用 %1</translation>
    </message>
    <message>
        <source>No photographs in this folder</source>
        <translation>此文件夹中没有照片</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>正在加载 %1</translation>
    </message>
    <message>
        <source>%1 takes too long</source>
        <translation>加载 %1 用时过长</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown</source>
        <translation>无法显示 %1</translation>
    </message>
    <message>
        <source>%1 of %2: %3, %4, %5</source>
        <translation>第 %1 张，共 %2 张：%3，%4，%5</translation>
    </message>
    <message>
        <source>Open a photograph</source>
        <translation>打开照片</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>照片 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Open a folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>询问服务</translation>
    </message>
    <message>
        <source>Address of the service:</source>
        <translation>服务地址：</translation>
    </message>
    <message>
        <source>Asking %1</source>
        <translation>正在询问 %1</translation>
    </message>
</context>
<context>
    <name>CPhotoFiles</name>
    <message>
        <source>%1 can&apos;t be moved to the trash</source>
        <translation>无法将 %1 移到回收站</translation>
    </message>
    <message>
        <source>Move to the trash</source>
        <translation>移到回收站</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot; to the trash?</source>
        <translation>要将“%1”移到回收站吗？</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>不再询问</translation>
    </message>
    <message>
        <source>Save the print</source>
        <translation>保存成片</translation>
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
        <translation>无法保存 %1</translation>
    </message>
    <message>
        <source>Saved the print as %1</source>
        <translation>成片已另存为 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was turned. Save the print?</source>
        <translation>“%1”已旋转。要保存成片吗？</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>保存副本</translation>
    </message>
    <message>
        <source>Name of the copy:</source>
        <translation>副本名称：</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 副本</translation>
    </message>
    <message>
        <source>%1 print</source>
        <translation>%1 成片</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a file</source>
        <translation>“%1”不能用作文件名</translation>
    </message>
    <message>
        <source>There is no room for a copy of %1</source>
        <translation>空间不足，无法保存 %1 的副本</translation>
    </message>
    <message>
        <source>Saved a copy as %1</source>
        <translation>副本已另存为 %1</translation>
    </message>
    <message>
        <source>%1 is there already</source>
        <translation>%1 已存在</translation>
    </message>
    <message>
        <source>%1 can&apos;t be copied to %2</source>
        <translation>无法将 %1 复制到 %2</translation>
    </message>
</context>
<context>
    <name>CPhotoService</name>
    <message>
        <source>No description: %1</source>
        <translation>没有说明：%1</translation>
    </message>
    <message>
        <source>The service says: %1</source>
        <translation>服务的回答：%1</translation>
    </message>
    <message>
        <source>The service takes too long</source>
        <translation>服务响应时间过长</translation>
    </message>
</context>
<context>
    <name>CPhotoView</name>
    <message>
        <source>Photograph</source>
        <translation>照片</translation>
    </message>
</context>
<context>
    <name>CSettingsPanel</name>
    <message>
        <source>Black and white</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>Shows the photograph without its colours</source>
        <translation>以黑白效果显示照片</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Shows the slide from its back</source>
        <translation>从背面显示幻灯片</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Puts a white border around the photograph</source>
        <translation>在照片四周添加白边</translation>
    </message>
</context>
<context>
    <name>CUnitMenu</name>
    <message>
        <source>&amp;Unit of sizes</source>
        <translation>尺寸单位(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Pixels</source>
        <translation>像素(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>英寸(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Centimetres</source>
        <translation>厘米(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>毫米(&amp;M)</translation>
    </message>
</context>
<context>
    <name>CXmlFile</name>
    <message>
        <source>“%1” stands where “%2” is expected</source>
        <translation>应为“%2”的位置出现了“%1”</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1，第 %2 行：%3</translation>
    </message>
    <message>
        <source>“%1” has no “%2”</source>
        <translation>“%1”缺少“%2”</translation>
    </message>
    <message>
        <source>“%1” is not Base64 of a text</source>
        <translation>“%1”不是文本的 Base64 编码</translation>
    </message>
</context>
<context>
    <name>CFilmHistory</name>
    <message>
        <source>“%1” is no number</source>
        <translation>“%1”不是数字</translation>
    </message>
</context>
<context>
    <name>CPresetBrowser</name>
    <message>
        <source>Film</source>
        <translation>胶片</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Time machine</source>
        <translation>时光机</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>负片</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>设计风格</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>反转片</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>数码</translation>
    </message>
    <message>
        <source>Toned</source>
        <translation>调色</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>暗角</translation>
    </message>
    <message>
        <source>Grain</source>
        <translation>颗粒</translation>
    </message>
    <message>
        <source>Cinematic</source>
        <translation>电影感</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Also presets of the expert mode</source>
        <translation>同时显示专家模式的预设</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Presets shown: %1</source>
        <translation>显示的预设：%1</translation>
    </message>
    <message>
        <source>Tags: %1</source>
        <translation>标签：%1</translation>
    </message>
    <message>
        <source>Parameters: %1</source>
        <translation>参数：%1</translation>
    </message>
</context>
<context>
    <name>CTimeLine</name>
    <message>
        <source>Film history</source>
        <translation>胶片历史</translation>
    </message>
    <message>
        <source>The decade before</source>
        <translation>上一个年代</translation>
    </message>
    <message>
        <source>The next decade</source>
        <translation>下一个年代</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>胶片</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>To try: %1</source>
        <translation>可尝试：%1</translation>
    </message>
</context>
<context>
    <name>CCalibrationCatalogue</name>
    <message>
        <source>The catalogue can&apos;t be copied to %1: %2</source>
        <translation>无法将校准数据库复制到 %1：%2</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be opened: %1</source>
        <translation>无法打开校准数据库：%1</translation>
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
        <translation>仅 RAW</translation>
    </message>
    <message>
        <source>RGB only</source>
        <translation>仅 RGB</translation>
    </message>
    <message>
        <source>RAW and RGB</source>
        <translation>RAW 和 RGB</translation>
    </message>
    <message>
        <source>Calibration modules</source>
        <translation>校准模块</translation>
    </message>
    <message>
        <source>No photograph is open</source>
        <translation>未打开照片</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>模块</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>The photograph does not tell its camera</source>
        <translation>照片中没有相机信息</translation>
    </message>
    <message>
        <source>These modules serve it:</source>
        <translation>适用的模块：</translation>
    </message>
    <message>
        <source>One of these modules may serve it:</source>
        <translation>以下模块之一可能适用：</translation>
    </message>
    <message>
        <source>No module of this camera serves the photograph</source>
        <translation>此相机没有适用于这张照片的模块</translation>
    </message>
    <message>
        <source>No module was found for this lens. The camera has these:</source>
        <translation>未找到适用于此镜头的模块。此相机有以下模块：</translation>
    </message>
    <message>
        <source>The photograph does not tell its lens. The camera has these:</source>
        <translation>照片中没有镜头信息。此相机有以下模块：</translation>
    </message>
    <message>
        <source>The catalogue does not have this camera</source>
        <translation>校准数据库中没有此相机</translation>
    </message>
</context>
<context>
    <name>CPhotoMetadata</name>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>文件太大</translation>
    </message>
</context>
<context>
    <name>CReferenceMenu</name>
    <message>
        <source>&amp;Reference</source>
        <translation>参考(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>预设(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Film history</source>
        <translation>胶片历史(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Calibration modules</source>
        <translation>校准模块(&amp;C)</translation>
    </message>
</context>
</TS>
