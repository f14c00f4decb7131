<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Workbench</name>
    <message>
        <source>Opening %1</source>
        <translation>正在打开 %1</translation>
    </message>
    <message>
        <source>Reading layer %1 (F1 stops)</source>
        <translation>正在读取层 %1（按 F1 停止）</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>无法写入文件“%1”。</translation>
    </message>
    <message>
        <source>The name of a report must end in .json or .csv; that of &quot;%1&quot; does not.</source>
        <translation>报告的文件名须以 .json 或 .csv 结尾，“%1”不是。</translation>
    </message>
    <message>
        <source>red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Open the folder of a job</source>
        <translation>打开任务文件夹</translation>
    </message>
    <message>
        <source>Open an archive with a job</source>
        <translation>打开任务压缩包</translation>
    </message>
    <message>
        <source>Archives (*.tgz *.tar.gz *.tar *.zip);;All files (*)</source>
        <translation>压缩包 (*.tgz *.tar.gz *.tar *.zip);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>Workbench::AttributesPage</name>
    <message>
        <source>A wildcard pattern, for example *pad or .imp*</source>
        <translation>通配符，例如 *pad 或 .imp*</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Takes a value</source>
        <translation>带值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Values of the file</source>
        <translation>文件中的值</translation>
    </message>
    <message>
        <source>Values offered by the library</source>
        <translation>库提供的值</translation>
    </message>
    <message>
        <source>Attribute catalogue</source>
        <translation>属性目录</translation>
    </message>
    <message>
        <source>CAM-mate nodes</source>
        <translation>CAM-mate 节点</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>Workbench::BoardView</name>
    <message>
        <source>Board picture</source>
        <translation>板图</translation>
    </message>
    <message>
        <source>No layer is shown</source>
        <translation>没有显示任何层</translation>
    </message>
    <message>
        <source>The job holds only the tables of the layer %1</source>
        <translation>料号中只有层 %1 的表头，没有图形</translation>
    </message>
    <message>
        <source>The layer %1 cannot be read: see the log</source>
        <translation>层 %1 无法读取，请看日志</translation>
    </message>
    <message>
        <source>The layer %1 has no features in this step</source>
        <translation>层 %1 在此步骤中没有图形</translation>
    </message>
</context>
<context>
    <name>Workbench::KeysDialog</name>
    <message>
        <source>Hot keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Own file</source>
        <translation>自定义文件</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>功能名</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>发现</translation>
    </message>
    <message>
        <source>Load the file again</source>
        <translation>重新加载文件</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>导出...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Written to "%1".</source>
        <translation>已写入“%1”。</translation>
    </message>
    <message>
        <source>%1 is left out: the file has no name for what it does.</source>
        <translation>%1 未写入：文件中没有其功能的名称。</translation>
    </message>
    <message>
        <source>Export the hot keys</source>
        <translation>导出快捷键</translation>
    </message>
    <message>
        <source>never answers</source>
        <translation>从不响应</translation>
    </message>
    <message>
        <source>not available in this host</source>
        <translation>本程序中不可用</translation>
    </message>
    <message>
        <source>%1 holds %2 bindings. Findings: %3.</source>
        <translation>%1 含 %2 个绑定，发现 %3 条。</translation>
    </message>
    <message>
        <source>%1 cannot be loaded; the keys stay as they are.</source>
        <translation>%1 无法加载；按键保持不变。</translation>
    </message>
    <message>
        <source>There is no file %1; the default keys are in use.</source>
        <translation>没有文件 %1；使用默认按键。</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>搜索命令和按键</translation>
    </message>
    <message>
        <source>Press the new keys here</source>
        <translation>在此按下新的按键</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Gives the selected command these keys instead of its own</source>
        <translation>将所选命令的按键改为这些按键</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Gives the selected command these keys as well</source>
        <translation>为所选命令再添加这些按键</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Takes the keys from the selected command</source>
        <translation>取消所选命令的按键</translation>
    </message>
    <message>
        <source>Default keys</source>
        <translation>恢复默认按键</translation>
    </message>
    <message>
        <source>Gives all commands their default keys; the file with yours is kept as a copy</source>
        <translation>所有命令恢复默认按键；您的文件保留为副本</translation>
    </message>
    <message>
        <source>The keys are not saved: %1</source>
        <translation>按键未保存：%1</translation>
    </message>
    <message>
        <source>The file that was there is now &quot;%1&quot;.</source>
        <translation>原有文件已另存为“%1”。</translation>
    </message>
    <message>
        <source>no keys</source>
        <translation>无按键</translation>
    </message>
    <message>
        <source>Select a command to change its keys.</source>
        <translation>请选择要更改按键的命令。</translation>
    </message>
    <message>
        <source>Press a key with Ctrl or Shift, or two plain keys one after the other.</source>
        <translation>请按 Ctrl 或 Shift 加一个键，或依次按两个普通键。</translation>
    </message>
    <message>
        <source>%1 begins a sequence: press the second key.</source>
        <translation>%1 是组合键序列的第一个键：请按第二个键。</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 未被占用。</translation>
    </message>
    <message>
        <source>The command has %1.</source>
        <translation>该命令已使用 %1。</translation>
    </message>
    <message>
        <source>%1 belongs to &quot;%2&quot;, which loses it.</source>
        <translation>%1 已被“%2”占用，更改后“%2”将失去该按键。</translation>
    </message>
    <message>
        <source>%1 cannot be a hot key: only letters, digits, arrows and some signs can, with Ctrl or Shift or in a pair of plain keys.</source>
        <translation>%1 不能用作快捷键：只能使用字母、数字、方向键和部分符号，并配合 Ctrl 或 Shift，或由两个普通键组成。</translation>
    </message>
</context>
<context>
    <name>Workbench::ComparePage</name>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Only the part in view</source>
        <translation>仅比较可见部分</translation>
    </message>
    <message>
        <source>Looks at a smaller part with the same number of pixels, and so more finely</source>
        <translation>以同样多的像素查看较小的区域，因而更精细</translation>
    </message>
    <message>
        <source>The first layer</source>
        <translation>第一层</translation>
    </message>
    <message>
        <source>The second layer</source>
        <translation>第二层</translation>
    </message>
    <message>
        <source>Only in</source>
        <translation>仅存在于</translation>
    </message>
    <message>
        <source>Area (mm²)</source>
        <translation>面积 (mm²)</translation>
    </message>
    <message>
        <source>Size (mm)</source>
        <translation>尺寸 (mm)</translation>
    </message>
    <message>
        <source>Size (inch)</source>
        <translation>尺寸 (英寸)</translation>
    </message>
    <message>
        <source>Place (mm)</source>
        <translation>位置 (mm)</translation>
    </message>
    <message>
        <source>Place (inch)</source>
        <translation>位置 (英寸)</translation>
    </message>
    <message>
        <source>only in %1</source>
        <translation>仅在 %1 中</translation>
    </message>
    <message>
        <source>in both</source>
        <translation>两层共有</translation>
    </message>
    <message>
        <source>Choose two layers and compare them. Compared is what they draw in the step in front; the polarity of the matrix does not count.</source>
        <translation>选择两层进行比较。比较的是它们在当前步骤中绘制的图形，不考虑矩阵中的极性。</translation>
    </message>
    <message>
        <source>Comparing...</source>
        <translation>正在比较...</translation>
    </message>
    <message>
        <source>The comparison was stopped.</source>
        <translation>比较已停止。</translation>
    </message>
    <message>
        <source>There is not enough memory for the comparison.</source>
        <translation>内存不足，无法比较。</translation>
    </message>
    <message>
        <source>Both layers are empty in this step.</source>
        <translation>两层在此步骤中均为空。</translation>
    </message>
    <message>
        <source>The step has changed since: compare again.</source>
        <translation>此后步骤已更改，请重新比较。</translation>
    </message>
    <message>
        <source>No difference was seen.</source>
        <translation>未发现差异。</translation>
    </message>
    <message>
        <source>Only in %1: %2 mm² in %3 regions. Only in %4: %5 mm² in %6 regions.</source>
        <translation>仅在 %1 中：%2 mm²，共 %3 个区域。仅在 %4 中：%5 mm²，共 %6 个区域。</translation>
    </message>
    <message>
        <source>The largest region has %1 mm², the smallest %2 mm².</source>
        <translation>最大区域 %1 mm²，最小区域 %2 mm²。</translation>
    </message>
    <message>
        <source>In both: %1 mm².</source>
        <translation>两层共有：%1 mm²。</translation>
    </message>
    <message>
        <source>Listed are the largest and the smallest: %1 of %2.</source>
        <translation>仅列出最大和最小的区域：%2 个中的 %1 个。</translation>
    </message>
    <message>
        <source>Seen in pixels of %1 µm (%2 mil): what is thinner may be missed or seem a pixel wide, sizes are uncertain by as much, and edges that differ by half a pixel count as equal.</source>
        <translation>比较的像素为 %1 µm (%2 mil)：更细的图形可能漏检或显示为一个像素宽，尺寸误差不超过一个像素，边缘相差半个像素以内视为相同。</translation>
    </message>
    <message>
        <source>Only a part was compared, %1 x %2 mm; regions may be cut at its edge.</source>
        <translation>只比较了 %1 x %2 mm 的部分，区域可能在其边缘被截断。</translation>
    </message>
</context>
<context>
    <name>Workbench::CompareView</name>
    <message>
        <source>Comparison of two layers</source>
        <translation>两层的比较图</translation>
    </message>
</context>
<context>
    <name>Workbench::EdaPage</name>
    <message>
        <source>JSON object</source>
        <translation>JSON 对象</translation>
    </message>
    <message>
        <source>invalid</source>
        <translation>无效</translation>
    </message>
    <message>
        <source>Message to send</source>
        <translation>要发送的消息</translation>
    </message>
    <message>
        <source>JSON &amp;object</source>
        <translation>JSON 对象(&amp;O)</translation>
    </message>
    <message>
        <source>To &amp;port</source>
        <translation>发送到端口(&amp;P)</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>例如：%1</translation>
    </message>
    <message>
        <source>The port of this computer that the EDA tool listens on</source>
        <translation>EDA 工具在本机上监听的端口</translation>
    </message>
    <message>
        <source>Sen&amp;d</source>
        <translation>发送(&amp;D)</translation>
    </message>
    <message>
        <source>Sends the object without blanks and line ends</source>
        <translation>发送时去掉空格和换行</translation>
    </message>
    <message>
        <source>Received messages</source>
        <translation>收到的消息</translation>
    </message>
    <message>
        <source>L&amp;ist of the latest %1</source>
        <translation>最近 %1 条的列表(&amp;I)</translation>
    </message>
    <message>
        <source>Nothing to send yet.</source>
        <translation>还没有要发送的内容。</translation>
    </message>
    <message>
        <source>A JSON object; %1 bytes are sent.</source>
        <translation>是 JSON 对象；将发送 %1 字节。</translation>
    </message>
    <message>
        <source>Nothing has been sent from here yet.</source>
        <translation>还没有从这里发送过。</translation>
    </message>
    <message>
        <source>Sent %1 bytes to port %2. It is not known whether anybody listens there.</source>
        <translation>已向端口 %2 发送 %1 字节。无法得知是否有程序在监听。</translation>
    </message>
    <message>
        <source>Not sent: there is no link.</source>
        <translation>未发送：没有链接。</translation>
    </message>
    <message>
        <source>Not sent: %1 is not a port.</source>
        <translation>未发送：%1 不是端口号。</translation>
    </message>
    <message>
        <source>Not sent: %1 bytes do not fit into one message.</source>
        <translation>未发送：一条消息容不下 %1 字节。</translation>
    </message>
    <message>
        <source>Not sent: %1</source>
        <translation>未发送：%1</translation>
    </message>
    <message>
        <source>There is no link.</source>
        <translation>没有链接。</translation>
    </message>
    <message>
        <source>The link is open: messages are received on port %1.</source>
        <translation>链接已打开：在端口 %1 接收消息。</translation>
    </message>
    <message>
        <source>No link to receive on: port %1 could not be opened. Messages can be sent all the same.
Reason: %2</source>
        <translation>没有可接收的链接：无法打开端口 %1。仍然可以发送消息。
原因：%2</translation>
    </message>
    <message>
        <source>Sent: %1     Not sent: %2     Received: %3</source>
        <translation>已发送：%1     未发送：%2     已接收：%3</translation>
    </message>
    <message>
        <source>Latest error: %1</source>
        <translation>最近的错误：%1</translation>
    </message>
    <message>
        <source>Nothing has been received yet.
What an EDA tool sends to port %1 of this computer is listed here.</source>
        <translation>还没有收到消息。
EDA 工具发到本机端口 %1 的消息会列在这里。</translation>
    </message>
    <message>
        <source>Nothing can be received.
Close the program that has port %1, then start this one again.</source>
        <translation>无法接收消息。
请关闭占用端口 %1 的程序，再重新启动本程序。</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>The selected message, indented</source>
        <translation>选中的消息（已缩进）</translation>
    </message>
</context>
<context>
    <name>Workbench::EnginePane</name>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>Workbench::FeatureDialog</name>
    <message>
        <source>Feature</source>
        <translation>图形</translation>
    </message>
    <message>
        <source>Pad %1 of layer %2 at %3</source>
        <translation>焊盘 %1，层 %2，位置 %3</translation>
    </message>
    <message>
        <source>Width %1 nm, offset %2 nm</source>
        <translation>宽 %1 nm，偏移 %2 nm</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>Pad</source>
        <translation>焊盘</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>A number or a calculation such as 10+2.5 or 0.3mm-2mil</source>
        <translation>数字或算式，例如 10+2.5 或 0.3mm-2mil</translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation>极性</translation>
    </message>
    <message>
        <source>Positive</source>
        <translation>正</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>负</translation>
    </message>
    <message>
        <source>Plated</source>
        <translation>金属化</translation>
    </message>
    <message>
        <source>This side</source>
        <translation>本面</translation>
    </message>
    <message>
        <source>Both sides</source>
        <translation>两面</translation>
    </message>
    <message>
        <source>Applies to</source>
        <translation>适用于</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Attach files</source>
        <translation>附加文件</translation>
    </message>
    <message>
        <source>Switch unit</source>
        <translation>切换单位</translation>
    </message>
    <message>
        <source>Save form</source>
        <translation>保存表单</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Workbench::FilterBar</name>
    <message>
        <source>Ty&amp;pe</source>
        <translation>类型(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Context</source>
        <translation>类别(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;ide</source>
        <translation>面(&amp;I)</translation>
    </message>
    <message>
        <source>P&amp;olarity</source>
        <translation>极性(&amp;O)</translation>
    </message>
    <message>
        <source>every layer</source>
        <translation>所有层</translation>
    </message>
    <message>
        <source>Words separated by |; case matters. A | at the end adds the empty word, which accepts layers without a value here.</source>
        <translation>以 | 连接的词，区分大小写。末尾的 | 之后是空词，匹配此项为空的层。</translation>
    </message>
    <message>
        <source>Hi&amp;de others</source>
        <translation>隐藏其他层(&amp;D)</translation>
    </message>
    <message>
        <source>Hides layers that do not match instead of greying them</source>
        <translation>隐藏不匹配的层，否则以灰色显示</translation>
    </message>
    <message>
        <source>For analysis</source>
        <translation>分析用层</translation>
    </message>
    <message>
        <source>Shows the layers that analysis and checks read</source>
        <translation>显示分析和检查所读取的层</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清除(&amp;L)</translation>
    </message>
    <message>
        <source>Shows all layers</source>
        <translation>显示所有层</translation>
    </message>
    <message>
        <source>%1 of %2 layers</source>
        <translation>%1 / %2 层</translation>
    </message>
    <message>
        <source>%1: "%2" is not a word of this field.</source>
        <translation>%1：此项没有“%2”这个词。</translation>
    </message>
    <message>
        <source>%1: no layer of the job is "%2".</source>
        <translation>%1：料号中没有“%2”的层。</translation>
    </message>
    <message>
        <source>These are the layers that analysis and checks read.</source>
        <translation>这些是分析和检查所读取的层。</translation>
    </message>
    <message>
        <source>"%1" is not one of them.</source>
        <translation>“%1”不在其中。</translation>
    </message>
    <message>
        <source>All layers are shown.</source>
        <translation>显示所有层。</translation>
    </message>
    <message>
        <source>No layer matches.</source>
        <translation>没有匹配的层。</translation>
    </message>
    <message>
        <source>"%1" matches.</source>
        <translation>“%1”匹配。</translation>
    </message>
    <message>
        <source>"%1" is left out by: %2.</source>
        <translation>“%1”被此项排除：%2。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Parts of names separated by |, with * for any text and ? for any letter; case does not matter.</source>
        <translation>层名的一部分，多个以 | 分隔；* 代表任意文字，? 代表任意一个字符；不区分大小写。</translation>
    </message>
</context>
<context>
    <name>Workbench::HotkeyCommands</name>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Reverse the selection</source>
        <translation>反选</translation>
    </message>
    <message>
        <source>CAM guide</source>
        <translation>CAM 向导</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>负片</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Width mode</source>
        <translation>线宽模式</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Move within the layer</source>
        <translation>同层移动</translation>
    </message>
    <message>
        <source>Copy to the edit buffer</source>
        <translation>复制到编辑缓冲区</translation>
    </message>
    <message>
        <source>Paste from the edit buffer</source>
        <translation>从编辑缓冲区粘贴</translation>
    </message>
    <message>
        <source>The function without a name</source>
        <translation>无名称的功能</translation>
    </message>
    <message>
        <source>Move: snap</source>
        <translation>移动: 捕捉</translation>
    </message>
    <message>
        <source>Move: home</source>
        <translation>移动: 全图</translation>
    </message>
    <message>
        <source>Move: up</source>
        <translation>移动: 上</translation>
    </message>
    <message>
        <source>Move: down</source>
        <translation>移动: 下</translation>
    </message>
    <message>
        <source>Move: right</source>
        <translation>移动: 右</translation>
    </message>
    <message>
        <source>Move: left</source>
        <translation>移动: 左</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Contourize</source>
        <translation>轮廓化</translation>
    </message>
    <message>
        <source>Pan: up</source>
        <translation>平移: 上</translation>
    </message>
    <message>
        <source>Pan: down</source>
        <translation>平移: 下</translation>
    </message>
    <message>
        <source>Pan: right</source>
        <translation>平移: 右</translation>
    </message>
    <message>
        <source>Pan: left</source>
        <translation>平移: 左</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Centre at the pointer</source>
        <translation>以指针处为中心</translation>
    </message>
    <message>
        <source>Copy the original</source>
        <translation>复制原件</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>变换</translation>
    </message>
    <message>
        <source>Select the same features</source>
        <translation>选择相同图形</translation>
    </message>
    <message>
        <source>operations left: %1</source>
        <translation>剩余操作：%1</translation>
    </message>
    <message>
        <source>selected features: %1</source>
        <translation>选中的图形：%1</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Snap: skeleton</source>
        <translation>捕捉: 骨架</translation>
    </message>
    <message>
        <source>Snap: off</source>
        <translation>捕捉: 关闭</translation>
    </message>
    <message>
        <source>Snap: grid</source>
        <translation>捕捉: 网格</translation>
    </message>
    <message>
        <source>Snap: centre</source>
        <translation>捕捉: 中心</translation>
    </message>
    <message>
        <source>Snap: arc</source>
        <translation>捕捉: 圆弧</translation>
    </message>
    <message>
        <source>Snap: edge</source>
        <translation>捕捉: 边缘</translation>
    </message>
    <message>
        <source>Snap: crossing</source>
        <translation>捕捉: 交点</translation>
    </message>
    <message>
        <source>Snap: middle</source>
        <translation>捕捉: 中点</translation>
    </message>
    <message>
        <source>Snap: profile</source>
        <translation>捕捉: 轮廓</translation>
    </message>
    <message>
        <source>Snap: advanced</source>
        <translation>捕捉: 高级</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>高亮</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>not available in this host</source>
        <translation>本程序中不可用</translation>
    </message>
    <message>
        <source>from %1; press again at the other end</source>
        <translation>从 %1；在另一端再按一次</translation>
    </message>
</context>
<context>
    <name>Workbench::JsonText</name>
    <message>
        <source>A JSON object is expected; it begins with a brace.</source>
        <translation>应为以花括号开头的 JSON 对象。</translation>
    </message>
    <message>
        <source>Line %1, near column %2: %3</source>
        <translation>第 %1 行，第 %2 列附近：%3</translation>
    </message>
    <message>
        <source>a name in quotation marks, a comma or a closing brace is expected.</source>
        <translation>应为带引号的名称、逗号或右花括号。</translation>
    </message>
    <message>
        <source>a comma or a closing bracket is expected.</source>
        <translation>应为逗号或右方括号。</translation>
    </message>
    <message>
        <source>a colon is expected after the name.</source>
        <translation>名称后面应有冒号。</translation>
    </message>
    <message>
        <source>a name or a value is expected.</source>
        <translation>应为名称或值。</translation>
    </message>
    <message>
        <source>the text ends too early.</source>
        <translation>文本过早结束。</translation>
    </message>
    <message>
        <source>this is not a number.</source>
        <translation>这不是数字。</translation>
    </message>
    <message>
        <source>the string has no closing quotation mark.</source>
        <translation>字符串缺少结束的引号。</translation>
    </message>
    <message>
        <source>the string has a backslash that begins no escape.</source>
        <translation>字符串中的反斜杠不构成转义。</translation>
    </message>
    <message>
        <source>the string is not UTF-8.</source>
        <translation>字符串不是 UTF-8。</translation>
    </message>
    <message>
        <source>the values are nested too deeply.</source>
        <translation>值嵌套得太深。</translation>
    </message>
    <message>
        <source>the text is too long.</source>
        <translation>文本太长。</translation>
    </message>
    <message>
        <source>more text follows after the object.</source>
        <translation>对象之后还有多余的文本。</translation>
    </message>
    <message>
        <source>a value is expected.</source>
        <translation>应为一个值。</translation>
    </message>
</context>
<context>
    <name>Workbench::LayerTable</name>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation>极性</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>图形数</translation>
    </message>
    <message>
        <source>Ticked layers are drawn beside the selected one (Space)</source>
        <translation>勾选的层与选中的层一起显示（空格键）</translation>
    </message>
    <message>
        <source>not counted, since reading was stopped</source>
        <translation>读取被停止，未计数</translation>
    </message>
    <message>
        <source>the job holds only the tables of this layer</source>
        <translation>料号中只有此层的表头</translation>
    </message>
    <message>
        <source>Colour of the layer %1</source>
        <translation>层 %1 的颜色</translation>
    </message>
    <message>
        <source>Show only %1</source>
        <translation>仅显示 %1</translation>
    </message>
    <message>
        <source>Show all copper</source>
        <translation>显示所有铜层</translation>
    </message>
    <message>
        <source>Untick</source>
        <translation>取消勾选</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>勾选</translation>
    </message>
    <message>
        <source>Compare %1 with %2</source>
        <translation>比较 %1 与 %2</translation>
    </message>
    <message>
        <source>Compare with...</source>
        <translation>与其他层比较...</translation>
    </message>
    <message>
        <source>Copy the name</source>
        <translation>复制层名</translation>
    </message>
    <message>
        <source>Colour...</source>
        <translation>颜色...</translation>
    </message>
    <message>
        <source>Its own colour</source>
        <translation>恢复默认颜色</translation>
    </message>
</context>
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>Repeats the step %1: %2 times</source>
        <translation>重复步骤 %1：%2 次</translation>
    </message>
    <message>
        <source>&amp;Hot keys</source>
        <translation>快捷键(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Whole board</source>
        <translation>整板(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;All features</source>
        <translation>全部图形(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Tick all layers</source>
        <translation>勾选全部层(&amp;T)</translation>
    </message>
    <message>
        <source>U&amp;ntick all layers</source>
        <translation>取消全部勾选(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>页面(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Using the board picture</source>
        <translation>板图的使用(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Using the board picture</source>
        <translation>板图的使用</translation>
    </message>
    <message>
        <source>The wheel zooms about the pointer, dragging moves the board, a click opens a pad or picks a mark.
With the picture in focus the arrow keys move the board, + and - zoom, Home shows the whole board.
Ticked layers are drawn beside the selected one; Space in the list of layers sets and clears the tick.
Ctrl with a click selects or deselects a feature; the Delete key deletes the selection.</source>
        <translation>滚轮以指针为中心缩放，拖动移动板图，单击打开焊盘或选取标记。
板图获得焦点时，方向键移动，+ 和 - 缩放，Home 显示整板。
勾选的层与选中的层一起显示；在层列表中按空格键勾选或取消。
按住 Ctrl 单击可选中图形或取消；Delete 键删除选中的图形。</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Delete the selected features</source>
        <translation>删除选中的图形</translation>
    </message>
    <message>
        <source>Nothing is selected. Ctrl with a click selects a feature.</source>
        <translation>没有选中的图形：按住 Ctrl 单击可选中。</translation>
    </message>
    <message>
        <source>Nothing was deleted: %1</source>
        <translation>未删除：%1</translation>
    </message>
    <message>
        <source>Deleted features: %1</source>
        <translation>已删除的图形：%1</translation>
    </message>
    <message>
        <source>Refere&amp;nces</source>
        <translation>参考层(&amp;N)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>The reference host of UIAPICommon %1: shows a board's job through the library and the default engine.</source>
        <translation>UIAPICommon %1 的参考宿主：通过库和默认引擎显示料号。</translation>
    </message>
    <message>
        <source>&amp;Board</source>
        <translation>板图(&amp;B)</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>步骤 %1</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>What the engine was told</source>
        <translation>引擎收到的内容</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Switches the unit of the shown step's view</source>
        <translation>切换当前步骤视图的单位</translation>
    </message>
    <message>
        <source>&amp;Save flag</source>
        <translation>保存标志(&amp;S)</translation>
    </message>
    <message>
        <source>Makes the engine also write what it is told to %1</source>
        <translation>让引擎把收到的内容同时写入 %1</translation>
    </message>
    <message>
        <source>&amp;Feature</source>
        <translation>图形(&amp;F)</translation>
    </message>
    <message>
        <source>Opens the dialog on a pad, as a click on it does</source>
        <translation>打开焊盘对话框；单击焊盘也可以</translation>
    </message>
    <message>
        <source>Language of all texts</source>
        <translation>界面语言</translation>
    </message>
    <message>
        <source>S&amp;ymbols</source>
        <translation>符号(&amp;Y)</translation>
    </message>
    <message>
        <source>Se&amp;ttings</source>
        <translation>设置(&amp;T)</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>模板(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Attributes</source>
        <translation>属性(&amp;A)</translation>
    </message>
    <message>
        <source>EDA lin&amp;k</source>
        <translation>EDA 链接(&amp;K)</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>This layer has no pads.</source>
        <translation>此层没有焊盘。</translation>
    </message>
    <message>
        <source>%1 - UIAPICommon workbench</source>
        <translation>%1 - UIAPICommon 工作台</translation>
    </message>
    <message>
        <source>Move the pointer over the board</source>
        <translation>请把指针移到板图上</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <translation>缩放 %1 %</translation>
    </message>
    <message>
        <source>&amp;Unit: %1</source>
        <translation>单位：%1(&amp;U)</translation>
    </message>
    <message>
        <source>Board outline of step %1: %2</source>
        <translation>步骤 %1 的板框：%2</translation>
    </message>
    <message>
        <source>Step %1 has no profile</source>
        <translation>步骤 %1 没有板框</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>检查结果(&amp;R)</translation>
    </message>
    <message>
        <source>the checks were stopped</source>
        <translation>检查已停止</translation>
    </message>
    <message>
        <source>the checks failed: %1</source>
        <translation>检查失败：%1</translation>
    </message>
    <message>
        <source>Open f&amp;older...</source>
        <translation>打开文件夹(&amp;O)...</translation>
    </message>
    <message>
        <source>Open &amp;archive...</source>
        <translation>打开压缩包(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Recent boards</source>
        <translation>最近的板(&amp;R)</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
</context>
<context>
    <name>Workbench::ReferenceEditor</name>
    <message>
        <source>Job</source>
        <translation>料号</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>料号(&amp;J)</translation>
    </message>
    <message>
        <source>Ste&amp;p</source>
        <translation>步骤(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>层(&amp;L)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>添加(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>更改(&amp;C)</translation>
    </message>
    <message>
        <source>Rem&amp;ove</source>
        <translation>移除(&amp;O)</translation>
    </message>
    <message>
        <source>Reference layers of %1, step %2</source>
        <translation>%1 的参考层，步骤 %2</translation>
    </message>
    <message>
        <source>This step has no reference layers. Tick some and add them.</source>
        <translation>此步骤没有参考层。请勾选后添加。</translation>
    </message>
    <message>
        <source>A reference needs a job, a step and at least one layer.</source>
        <translation>参考需要料号、步骤和至少一个层。</translation>
    </message>
</context>
<context>
    <name>Workbench::ReferencesPage</name>
    <message>
        <source>What the library keeps</source>
        <translation>库中保存的内容</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>The library keeps no reference layers.</source>
        <translation>库中没有参考层。</translation>
    </message>
    <message>
        <source>Ne&amp;w name</source>
        <translation>新名称(&amp;W)</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>删除...</translation>
    </message>
    <message>
        <source>The library is told as if the host had renamed or deleted it; the files of the job stay as they are.</source>
        <translation>如同宿主已重命名或删除一样通知库；料号的文件保持不变。</translation>
    </message>
    <message>
        <source>job with references</source>
        <translation>有参考层的料号</translation>
    </message>
    <message>
        <source>its step</source>
        <translation>其步骤</translation>
    </message>
    <message>
        <source>refers to the job</source>
        <translation>参考的料号</translation>
    </message>
    <message>
        <source>step of it</source>
        <translation>该料号的步骤</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>A name is needed.</source>
        <translation>需要名称。</translation>
    </message>
    <message>
        <source>This name is taken.</source>
        <translation>此名称已被使用。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Tell the library that "%1" is deleted? All references to it go as well.</source>
        <translation>通知库“%1”已删除？对它的所有参考也将移除。</translation>
    </message>
</context>
<context>
    <name>Workbench::SettingsPage</name>
    <message>
        <source>Server address</source>
        <translation>服务器地址</translation>
    </message>
    <message>
        <source>Client address</source>
        <translation>客户端地址</translation>
    </message>
    <message>
        <source>Server port</source>
        <translation>服务器端口</translation>
    </message>
    <message>
        <source>Database path</source>
        <translation>数据库路径</translation>
    </message>
    <message>
        <source>Share path</source>
        <translation>共享路径</translation>
    </message>
    <message>
        <source>Operating system code</source>
        <translation>操作系统代码</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>Selection-outside hint</source>
        <translation>选择区域外提示</translation>
    </message>
    <message>
        <source>Calculation threads</source>
        <translation>计算线程数</translation>
    </message>
    <message>
        <source>Backup layers take the suffix</source>
        <translation>备份层使用后缀</translation>
    </message>
    <message>
        <source>Backup layer suffix</source>
        <translation>备份层后缀</translation>
    </message>
    <message>
        <source>Layer copy suffix</source>
        <translation>层复制后缀</translation>
    </message>
    <message>
        <source>Movement factor</source>
        <translation>移动系数</translation>
    </message>
    <message>
        <source>Shift factor</source>
        <translation>偏移系数</translation>
    </message>
    <message>
        <source>Contour accuracy</source>
        <translation>轮廓精度</translation>
    </message>
    <message>
        <source>Hot keys may be modified</source>
        <translation>允许修改快捷键</translation>
    </message>
    <message>
        <source>Python home</source>
        <translation>Python 目录</translation>
    </message>
    <message>
        <source>missing file</source>
        <translation>文件缺失</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>not JSON</source>
        <translation>不是 JSON</translation>
    </message>
    <message>
        <source>missing key</source>
        <translation>缺少键</translation>
    </message>
    <message>
        <source>wrong type</source>
        <translation>类型错误</translation>
    </message>
    <message>
        <source>unknown key</source>
        <translation>未知键</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>不会读回</translation>
    </message>
    <message>
        <source>index taken</source>
        <translation>序号已占用</translation>
    </message>
    <message>
        <source>no backup</source>
        <translation>没有备份</translation>
    </message>
    <message>
        <source>Settings of server.json</source>
        <translation>server.json 的设置</translation>
    </message>
    <message>
        <source>What the loaders found</source>
        <translation>读取时的发现</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>read at start only</source>
        <translation>仅启动时读取</translation>
    </message>
    <message>
        <source>saved at once</source>
        <translation>立即保存</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>All files were read, and nothing is wrong with them.</source>
        <translation>全部文件已读取，没有问题。</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>发现：%1</translation>
    </message>
</context>
<context>
    <name>Workbench::SymbolsPage</name>
    <message>
        <source>As stored</source>
        <translation>存储名称</translation>
    </message>
    <message>
        <source>Stored in</source>
        <translation>存储单位</translation>
    </message>
    <message>
        <source>In mil</source>
        <translation>以 mil 表示</translation>
    </message>
    <message>
        <source>In micrometres (my)</source>
        <translation>以微米 (my) 表示</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>图形数</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>%1 by each function, unit %2</source>
        <translation>%1 经各函数处理，单位 %2</translation>
    </message>
</context>
<context>
    <name>Workbench::TemplatesPage</name>
    <message>
        <source>Index</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>How the layers are recognised</source>
        <translation>层的识别方式</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Name begins with</source>
        <translation>名称开头</translation>
    </message>
    <message>
        <source>Name ends with</source>
        <translation>名称结尾</translation>
    </message>
    <message>
        <source>Use as current</source>
        <translation>设为当前</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as new</source>
        <translation>另存为新模板</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Current template: %1</source>
        <translation>当前模板：%1</translation>
    </message>
    <message>
        <source>Save and Delete change the file "%1".</source>
        <translation>保存和删除会更改文件“%1”。</translation>
    </message>
    <message>
        <source>This template is a shipped one.</source>
        <translation>此模板是随附的。</translation>
    </message>
    <message>
        <source>This template shares the file "%1" with others.</source>
        <translation>此模板与其他模板共用文件“%1”。</translation>
    </message>
    <message>
        <source>Save makes a copy of it under a new index; Delete lasts until the next start.</source>
        <translation>保存会以新序号另存副本；删除只在下次启动前有效。</translation>
    </message>
    <message>
        <source>The file "%1" was not saved; what you see lasts until the next start.</source>
        <translation>文件“%1”未能保存；所见内容只保留到下次启动。</translation>
    </message>
    <message>
        <source>The file "%1" already exists. Choose another name.</source>
        <translation>文件“%1”已存在，请换一个名称。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>The file "%1" cannot be deleted.</source>
        <translation>文件“%1”无法删除。</translation>
    </message>
</context>
<context>
    <name>Workbench::LevelsEditor</name>
    <message>
        <source>Re&amp;d</source>
        <translation>红(&amp;D)</translation>
    </message>
    <message>
        <source>Yell&amp;ow</source>
        <translation>黄(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation>绿(&amp;G)</translation>
    </message>
</context>
<context>
    <name>Workbench::ResultsModel</name>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>未发现</translation>
    </message>
    <message>
        <source>For a check or layer, the worst</source>
        <translation>检查项或层的最差等级</translation>
    </message>
    <message>
        <source>Measured in whole micrometres; for a check or layer, the smallest</source>
        <translation>以整微米测量；检查项或层显示最小值</translation>
    </message>
    <message>
        <source>The level that gave the colour; for a check, its levels red / yellow / green</source>
        <translation>决定颜色的级别；检查项显示红 / 黄 / 绿级别</translation>
    </message>
    <message>
        <source>Check, layer, measurement</source>
        <translation>检查项、层、测量</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Measured (%1)</source>
        <translation>测量值 (%1)</translation>
    </message>
    <message>
        <source>Limit (%1)</source>
        <translation>限值 (%1)</translation>
    </message>
    <message>
        <source>Position (%1)</source>
        <translation>位置 (%1)</translation>
    </message>
</context>
<context>
    <name>Workbench::ResultsPage</name>
    <message>
        <source>Export the summary</source>
        <translation>导出汇总</translation>
    </message>
    <message>
        <source>Summary (*.json)</source>
        <translation>汇总 (*.json)</translation>
    </message>
    <message>
        <source>Export the report</source>
        <translation>导出报告</translation>
    </message>
    <message>
        <source>JSON report (*.json);;CSV report (*.csv)</source>
        <translation>JSON 报告 (*.json);;CSV 报告 (*.csv)</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Measuring step %1 (F1 stops)</source>
        <translation>正在测量 步骤 %1（按 F1 停止）</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Run the &amp;checks</source>
        <translation>运行检查(&amp;C)</translation>
    </message>
    <message>
        <source>Measures the step that the board page shows and files the results</source>
        <translation>测量板图页所示的步骤并归档结果</translation>
    </message>
    <message>
        <source>Sho&amp;w on the board</source>
        <translation>在板图上显示(&amp;W)</translation>
    </message>
    <message>
        <source>E&amp;xport summary...</source>
        <translation>导出汇总(&amp;X)...</translation>
    </message>
    <message>
        <source>Ex&amp;port report...</source>
        <translation>导出报告(&amp;P)...</translation>
    </message>
    <message>
        <source>Save &amp;levels</source>
        <translation>保存级别(&amp;L)</translation>
    </message>
    <message>
        <source>Results by check and layer</source>
        <translation>按检查项和层的结果</translation>
    </message>
    <message>
        <source>Smallest track width of each layer</source>
        <translation>各层最小线宽</translation>
    </message>
    <message>
        <source>Smallest track width of each layer (%1)</source>
        <translation>各层最小线宽 (%1)</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未检查</translation>
    </message>
    <message>
        <source>Check or layer</source>
        <translation>检查项或层</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>There was nothing to check in step %1.</source>
        <translation>步骤 %1 中没有可检查的内容。</translation>
    </message>
    <message>
        <source>The checks have not been run yet. They measure step %1, the one on the board page.</source>
        <translation>尚未运行检查。检查将测量板图页所示的步骤 %1。</translation>
    </message>
    <message>
        <source>The checks of step %1 failed: %2</source>
        <translation>步骤 %1 的检查失败：%2</translation>
    </message>
    <message>
        <source>The checks were stopped; these are the results of the run before.</source>
        <translation>检查已停止；以下为上一次的结果。</translation>
    </message>
    <message>
        <source>The checks were stopped.</source>
        <translation>检查已停止。</translation>
    </message>
    <message>
        <source>No levels: everything is shown without colour.</source>
        <translation>没有级别：全部不着色显示。</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>步骤 %1</translation>
    </message>
    <message>
        <source>Levels (%1)</source>
        <translation>级别 (%1)</translation>
    </message>
    <message>
        <source>Select a check to see its levels.</source>
        <translation>选择检查项以查看其级别。</translation>
    </message>
    <message>
        <source>Levels of %1 (%2)</source>
        <translation>%1 的级别 (%2)</translation>
    </message>
    <message>
        <source>The range files have no levels for this check: it is shown without colour.</source>
        <translation>范围文件中没有此检查项的级别：不着色显示。</translation>
    </message>
    <message>
        <source>These levels contradict each other and grade nothing.</source>
        <translation>这些级别相互矛盾：不着色。</translation>
    </message>
    <message>
        <source>Not saved: levels of %1 were changed.</source>
        <translation>未保存：%1 的级别已更改。</translation>
    </message>
    <message>
        <source>As in the range file %1.json.</source>
        <translation>与范围文件 %1.json 一致。</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>级别</translation>
    </message>
</context>
<context>
    <name>Workbench::TrackWidthChart</name>
    <message>
        <source>no tracks</source>
        <translation>无线路</translation>
    </message>
    <message>
        <source>No copper layer was measured.</source>
        <translation>没有测量任何铜层。</translation>
    </message>
</context>
<context>
    <name>Workbench::Desk</name>
    <message>
        <source>The job has no step &quot;%1&quot;.</source>
        <translation>该任务没有步骤“%1”。</translation>
    </message>
    <message>
        <source>Open a board</source>
        <translation>打开板</translation>
    </message>
</context>
<context>
    <name>Workbench::StartPage</name>
    <message>
        <source>UIAPICommon workbench</source>
        <translation>UIAPICommon 工作台</translation>
    </message>
    <message>
        <source>Open the job of a board, or drop its folder or archive onto this window.</source>
        <translation>打开一块板的任务，或将其文件夹或压缩包拖放到此窗口。</translation>
    </message>
    <message>
        <source>Open &amp;folder...</source>
        <translation>打开文件夹(&amp;F)...</translation>
    </message>
    <message>
        <source>Open &amp;archive...</source>
        <translation>打开压缩包(&amp;A)...</translation>
    </message>
    <message>
        <source>Open the &amp;sample board</source>
        <translation>打开示例板(&amp;S)</translation>
    </message>
    <message>
        <source>Opened lately:</source>
        <translation>最近打开：</translation>
    </message>
</context>
</TS>
