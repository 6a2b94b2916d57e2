<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>host</name>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>is larger than %1 bytes</source>
        <translation>大于 %1 字节</translation>
    </message>
    <message>
        <source>there is no drawing to read into</source>
        <translation>没有可读入的图纸</translation>
    </message>
    <message>
        <source>there is no drawing to write</source>
        <translation>没有可写出的图纸</translation>
    </message>
    <message>
        <source>is not finite</source>
        <translation>不是有限数</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>is not JSON: %1 at byte %2</source>
        <translation>不是 JSON: %1, 位于第 %2 字节</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>不是对象</translation>
    </message>
    <message>
        <source>is not &quot;cadi2&quot;</source>
        <translation>不是 &quot;cadi2&quot;</translation>
    </message>
    <message>
        <source>is newer than %1</source>
        <translation>比 %1 新</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>不是 %1</translation>
    </message>
    <message>
        <source>has no text under &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 下没有文字</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>超出范围</translation>
    </message>
    <message>
        <source>is not the text of a line or an arc</source>
        <translation>不是直线或圆弧的文字</translation>
    </message>
    <message>
        <source>is empty or not finite</source>
        <translation>为空或不是有限数</translation>
    </message>
    <message>
        <source>stands twice in the drawing</source>
        <translation>在图纸中出现两次</translation>
    </message>
    <message>
        <source>is not above 0</source>
        <translation>不大于 0</translation>
    </message>
    <message>
        <source>is empty or stands twice in the drawing</source>
        <translation>为空或在图纸中出现两次</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行, 第 %2 列</translation>
    </message>
    <message>
        <source>has the unknown member &quot;%1&quot;</source>
        <translation>有未知成员 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation>没有 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>is not a text</source>
        <translation>不是文字</translation>
    </message>
    <message>
        <source>is not a number</source>
        <translation>不是数值</translation>
    </message>
    <message>
        <source>is not an integer from %1 to %2</source>
        <translation>不是 %1 到 %2 的整数</translation>
    </message>
    <message>
        <source>is not an array</source>
        <translation>不是数组</translation>
    </message>
    <message>
        <source>is not an array of %1 numbers</source>
        <translation>不是 %1 个数值的数组</translation>
    </message>
    <message>
        <source>closes the chain to a ring</source>
        <translation>使梁链闭合成环</translation>
    </message>
    <message>
        <source>was never given out</source>
        <translation>从未分配过</translation>
    </message>
    <message>
        <source>stands twice in the project</source>
        <translation>在项目中出现两次</translation>
    </message>
    <message>
        <source>names nothing that fits</source>
        <translation>所指的对象不存在或不合适</translation>
    </message>
    <message>
        <source>is no property of the object: &quot;%1&quot;</source>
        <translation>不是该对象的属性: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>is no %1</source>
        <translation>不是%1</translation>
    </message>
    <message>
        <source>stands twice: &quot;%1&quot;</source>
        <translation>出现两次: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>belongs to nothing that is in the file</source>
        <translation>不属于文件中的任何对象</translation>
    </message>
    <message>
        <source>is no type that the host knows</source>
        <translation>不是宿主认识的类型</translation>
    </message>
    <message>
        <source>is no position</source>
        <translation>不是位置</translation>
    </message>
    <message>
        <source>is a unit&apos;s, which stands in the units of its owner</source>
        <translation>是单元的类型, 应写在所属构件的 units 中</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands twice on the floor for type %2</source>
        <translation>类型 %2 的 &quot;%1&quot; 在该楼层出现两次</translation>
    </message>
    <message>
        <source>is no unit&apos;s</source>
        <translation>不是单元的类型</translation>
    </message>
    <message>
        <source>is not empty: a unit&apos;s are children of its owner&apos;s</source>
        <translation>不为空: 单元的图元是所属构件图元的子级</translation>
    </message>
    <message>
        <source>is not [type, element name, position]</source>
        <translation>不是 [类型, 构件名称, 位置]</translation>
    </message>
    <message>
        <source>is no position in the owner&apos;s units</source>
        <translation>不是所属构件 units 中的位置</translation>
    </message>
    <message>
        <source>has two children of one object</source>
        <translation>同一对象有两个子级</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands twice in the file</source>
        <translation>&quot;%1&quot; 在文件中出现两次</translation>
    </message>
    <message>
        <source>belongs to beams only</source>
        <translation>只属于梁</translation>
    </message>
    <message>
        <source>is no position in the element&apos;s drawObjects</source>
        <translation>不是该构件 drawObjects 中的位置</translation>
    </message>
    <message>
        <source>names an object that is another one&apos;s next, too</source>
        <translation>所指的图元已是另一图元的 next</translation>
    </message>
    <message>
        <source>belongs to the head of the chain</source>
        <translation>属于梁链的首段</translation>
    </message>
    <message>
        <source>belongs to doors, windows and holes only</source>
        <translation>只属于门、窗和洞口</translation>
    </message>
    <message>
        <source>names no draw object of &quot;%1&quot;</source>
        <translation>所指的不是 &quot;%1&quot; 的图元</translation>
    </message>
    <message>
        <source>has an empty ring</source>
        <translation>有空的环</translation>
    </message>
    <message>
        <source>has an open ring</source>
        <translation>有未闭合的环</translation>
    </message>
    <message>
        <source>has an edge of no length</source>
        <translation>有长度为零的边</translation>
    </message>
    <message>
        <source>crosses itself</source>
        <translation>自相交</translation>
    </message>
    <message>
        <source>has no area</source>
        <translation>没有面积</translation>
    </message>
    <message>
        <source>has a hole that is not inside or meets another</source>
        <translation>有不在内部或与其他孔相接的孔</translation>
    </message>
    <message>
        <source>is not the text of a polygon</source>
        <translation>不是多边形的文字</translation>
    </message>
    <message>
        <source>is not a valid polygon</source>
        <translation>不是有效的多边形</translation>
    </message>
    <message>
        <source>is not the text of a curve</source>
        <translation>不是曲线的文字</translation>
    </message>
    <message>
        <source>has no length</source>
        <translation>没有长度</translation>
    </message>
    <message>
        <source>is not an array of 2 numbers</source>
        <translation>不是 2 个数值的数组</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>既不是 true 也不是 false</translation>
    </message>
    <message>
        <source>is not an integer of 32 bits</source>
        <translation>不是 32 位整数</translation>
    </message>
    <message>
        <source>is neither a text nor a number</source>
        <translation>既不是文字也不是数值</translation>
    </message>
    <message>
        <source>is not the text of an elevation</source>
        <translation>不是标高的文字</translation>
    </message>
    <message>
        <source>is neither the key of a draw object nor -1</source>
        <translation>既不是图元的键也不是 -1</translation>
    </message>
    <message>
        <source>has the unknown property &quot;%1&quot;</source>
        <translation>有未知属性 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>has the property &quot;%1&quot; under two names</source>
        <translation>属性 &quot;%1&quot; 以两个名称出现</translation>
    </message>
    <message>
        <source>names the unknown draw object &quot;%1&quot;</source>
        <translation>所指的图元 &quot;%1&quot; 不存在</translation>
    </message>
    <message>
        <source>is below 0</source>
        <translation>小于 0</translation>
    </message>
    <message>
        <source>is not an array of 4 lists</source>
        <translation>不是 4 个列表的数组</translation>
    </message>
    <message>
        <source>has no &quot;kind&quot;</source>
        <translation>没有 &quot;kind&quot;</translation>
    </message>
    <message>
        <source>is none of face, line, point, section, face2d, line2d, grid</source>
        <translation>不是 face, line, point, section, face2d, line2d, grid 之一</translation>
    </message>
    <message>
        <source>names no wall</source>
        <translation>所指的不是墙</translation>
    </message>
    <message>
        <source>names no slab or raft</source>
        <translation>所指的不是板或筏板</translation>
    </message>
    <message>
        <source>The outline of the draw object has no edges.</source>
        <translation>图元的轮廓没有边。</translation>
    </message>
    <message>
        <source>The outline of the draw object is open.</source>
        <translation>图元的轮廓未闭合。</translation>
    </message>
    <message>
        <source>The outline of the draw object has an edge of no length.</source>
        <translation>图元的轮廓有长度为零的边。</translation>
    </message>
    <message>
        <source>The outline of the draw object has no area.</source>
        <translation>图元的轮廓没有面积。</translation>
    </message>
    <message>
        <source>The outline of the draw object crosses or overlaps itself.</source>
        <translation>图元的轮廓自相交或重叠。</translation>
    </message>
    <message>
        <source>A hole in the outline of the draw object is not inside it.</source>
        <translation>图元轮廓中的孔不在其内部。</translation>
    </message>
    <message>
        <source>The outline of the draw object is invalid.</source>
        <translation>图元的轮廓无效。</translation>
    </message>
    <message>
        <source>The curve of the draw object has no length.</source>
        <translation>图元的曲线没有长度。</translation>
    </message>
    <message>
        <source>There is no draw object of this building to check.</source>
        <translation>没有可检查的本建筑图元。</translation>
    </message>
    <message>
        <source>The draw object stands on no floor.</source>
        <translation>图元不在任何楼层上。</translation>
    </message>
    <message>
        <source>The draw object has no geometry.</source>
        <translation>图元没有几何。</translation>
    </message>
    <message>
        <source>The draw object is the same as draw object %1 of &quot;%2&quot;.</source>
        <translation>该图元与 &quot;%2&quot; 的图元 %1 相同。</translation>
    </message>
    <message>
        <source>is being written by another program</source>
        <translation>正在被其他程序写入</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>无法写入: %1</translation>
    </message>
    <message>
        <source>is damaged: %1</source>
        <translation>已损坏: %1</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取: %1</translation>
    </message>
    <message>
        <source>holds a save that was interrupted and cannot be undone: %1</source>
        <translation>含有中断的保存且无法撤销: %1</translation>
    </message>
    <message>
        <source>would name an object that is gone</source>
        <translation>将指向已不存在的对象</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>是目录</translation>
    </message>
    <message>
        <source>was changed by another program since it was opened</source>
        <translation>打开后已被其他程序修改</translation>
    </message>
    <message>
        <source>is no type that the host knows: %1</source>
        <translation>不是宿主认识的类型: %1</translation>
    </message>
    <message>
        <source>is not the text of its geometry</source>
        <translation>不是其几何的文字</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>is no kind of shape</source>
        <translation>不是形状的种类</translation>
    </message>
    <message>
        <source>is no group of axes</source>
        <translation>不是轴线组</translation>
    </message>
    <message>
        <source>has no axis in front of it</source>
        <translation>前面没有轴线</translation>
    </message>
    <message>
        <source>is no JSON object</source>
        <translation>不是 JSON 对象</translation>
    </message>
    <message>
        <source>has no row</source>
        <translation>没有数据行</translation>
    </message>
    <message>
        <source>has no shape</source>
        <translation>没有形状</translation>
    </message>
    <message>
        <source>has the foreign %1 %2</source>
        <translation>含有外来的 %1 %2</translation>
    </message>
    <message>
        <source>has the table %1 in another form</source>
        <translation>表 %1 的形式不同</translation>
    </message>
    <message>
        <source>is no project file</source>
        <translation>不是项目文件</translation>
    </message>
    <message>
        <source>is damaged: it ends in its header</source>
        <translation>已损坏: 文件在文件头内结束</translation>
    </message>
    <message>
        <source>is an SQLite file, but no project file</source>
        <translation>是 SQLite 文件, 但不是项目文件</translation>
    </message>
    <message>
        <source>is of form %1, newer than the form %2 that this program reads</source>
        <translation>格式为 %1, 比本程序可读的格式 %2 新</translation>
    </message>
    <message>
        <source>is of form %1, older than the form %2 that this program reads</source>
        <translation>格式为 %1, 比本程序可读的格式 %2 旧</translation>
    </message>
    <message>
        <source>is in a journal mode that project files do not use</source>
        <translation>处于项目文件不使用的日志模式</translation>
    </message>
    <message>
        <source>lacks tables of a project file</source>
        <translation>缺少项目文件的表</translation>
    </message>
    <message>
        <source>An element cannot have an empty name.</source>
        <translation>构件名称不能为空。</translation>
    </message>
    <message>
        <source>The floor has another element of the name &quot;%1&quot;.</source>
        <translation>该楼层已有名为 &quot;%1&quot; 的构件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands twice in the project</source>
        <translation>&quot;%1&quot; 在项目中出现两次</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands twice in the region</source>
        <translation>&quot;%1&quot; 在区域中出现两次</translation>
    </message>
    <message>
        <source>is not JSON: %1</source>
        <translation>不是 JSON: %1</translation>
    </message>
    <message>
        <source>is not &quot;hbx-project&quot;</source>
        <translation>不是 &quot;hbx-project&quot;</translation>
    </message>
    <message>
        <source>%1 stands twice in the file</source>
        <translation>%1 在文件中出现两次</translation>
    </message>
    <message>
        <source>has no file yet</source>
        <translation>还没有文件</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; is of the kind %2 and cannot take &quot;%3&quot;.</source>
        <translation>属性 &quot;%1&quot; 的类型是%2, 不能取 &quot;%3&quot;。</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>标高</translation>
    </message>
    <message>
        <source>point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>多边形</translation>
    </message>
</context>
<context>
    <name>orvcad</name>
    <message>
        <source>no name</source>
        <translation>无名称</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>略去 %1</translation>
    </message>
    <message>
        <source>%1, and %2 of the rest</source>
        <translation>%1, 其余略去 %2</translation>
    </message>
    <message>
        <source>part</source>
        <translation>部分</translation>
    </message>
    <message>
        <source>… and %1 more; --json lists all</source>
        <translation>… 另有 %1 项; --json 列出全部</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>略去: %1</translation>
    </message>
    <message>
        <source>%1 made where the same one stands already: was this applied before?</source>
        <translation>新建了 %1, 与原处已有的相同: 此前是否已写入过?</translation>
    </message>
    <message>
        <source>object</source>
        <translation>图元</translation>
    </message>
    <message>
        <source>Nothing was saved (--strict).</source>
        <translation>未保存任何内容 (--strict)。</translation>
    </message>
    <message>
        <source>%1 was sent, and %2 is what the host has</source>
        <translation>发送的是 %1, 宿主中是 %2</translation>
    </message>
    <message>
        <source>Wrote %1 of %2</source>
        <translation>已写出 %2 的 %1</translation>
    </message>
    <message>
        <source>floor</source>
        <translation>楼层</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>已写出 %1</translation>
    </message>
    <message>
        <source>File to write the document to</source>
        <translation>文档写入的文件</translation>
    </message>
    <message>
        <source>Document to write into the project</source>
        <translation>写入项目的文档</translation>
    </message>
    <message>
        <source>document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Beams and what they rest on</source>
        <translation>梁及其支座</translation>
    </message>
    <message>
        <source>Write the beams that are collected for recognition</source>
        <translation>写出为识别收集的梁</translation>
    </message>
    <message>
        <source>Write a reply into a project and save it</source>
        <translation>将回复写入项目并保存</translation>
    </message>
    <message>
        <source>Write what the recognition of beams is told of a floor</source>
        <translation>写出梁识别所需的楼层信息</translation>
    </message>
    <message>
        <source>File to write the input to</source>
        <translation>输入写入的文件</translation>
    </message>
    <message>
        <source>Read a result document and print its labels and their seats</source>
        <translation>读取结果文档, 列出其标注和支座</translation>
    </message>
    <message>
        <source>Result document</source>
        <translation>结果文档</translation>
    </message>
    <message>
        <source>Foundations, pile caps, piles and tie beams under beams</source>
        <translation>梁下的基础、桩承台、桩和拉梁</translation>
    </message>
    <message>
        <source>Write the seats that can be made anew</source>
        <translation>写出可重新生成的支座</translation>
    </message>
    <message>
        <source>Make the seats of a document in a project and save it</source>
        <translation>在项目中生成文档所含的支座并保存</translation>
    </message>
    <message>
        <source>%1 of beams, %2</source>
        <translation>梁的 %1, %2</translation>
    </message>
    <message>
        <source>segment</source>
        <translation>梁段</translation>
    </message>
    <message>
        <source>the payload written again is the same</source>
        <translation>重新写出的识别数据相同</translation>
    </message>
    <message>
        <source>the payload written again DIFFERS</source>
        <translation>重新写出的识别数据不同!</translation>
    </message>
    <message>
        <source>%1%2, %3 and %4 of %5</source>
        <translation>%5 的 %1%2, %3, %4</translation>
    </message>
    <message>
        <source>seat</source>
        <translation>支座</translation>
    </message>
    <message>
        <source>axis line</source>
        <translation>轴线</translation>
    </message>
    <message>
        <source>beam code</source>
        <translation>梁代号</translation>
    </message>
    <message>
        <source>%1 is not a whole number of millimetres</source>
        <translation>%1 不是以毫米计的整数</translation>
    </message>
    <message>
        <source>%1 is below 0</source>
        <translation>%1 小于 0</translation>
    </message>
    <message>
        <source>a beam of sub-type %1 has no outline, and %2 is one</source>
        <translation>子类型 %1 的梁没有轮廓, 而 %2 是轮廓</translation>
    </message>
    <message>
        <source>%1 does not end in &quot;;&quot;, and its last corner would be lost</source>
        <translation>%1 不以 &quot;;&quot; 结尾, 其最后一个角点会丢失</translation>
    </message>
    <message>
        <source>%1 is no outline</source>
        <translation>%1 不是轮廓</translation>
    </message>
    <message>
        <source>a beam of type %1 belongs into &quot;%2&quot;</source>
        <translation>类型 %1 的梁应在 &quot;%2&quot; 中</translation>
    </message>
    <message>
        <source>type %1 is no beam (15, 17, 47)</source>
        <translation>类型 %1 不是梁 (15, 17, 47)</translation>
    </message>
    <message>
        <source>is no object</source>
        <translation>不是对象</translation>
    </message>
    <message>
        <source>%1 %2 is written as a whole number of millimetres</source>
        <translation>%1 %2 写为以毫米计的整数</translation>
    </message>
    <message>
        <source>%1 is not four numbers, and is read as such</source>
        <translation>%1 不是四个数值, 却按四个数值读取</translation>
    </message>
    <message>
        <source>%1 is no array</source>
        <translation>%1 不是数组</translation>
    </message>
    <message>
        <source>has no segment</source>
        <translation>没有梁段</translation>
    </message>
    <message>
        <source>reply of beams</source>
        <translation>梁的回复</translation>
    </message>
    <message>
        <source>has the name of %1, whose values take the place of its own</source>
        <translation>与 %1 同名, 后者的值取代其自身的值</translation>
    </message>
    <message>
        <source>%1 is no object</source>
        <translation>%1 不是对象</translation>
    </message>
    <message>
        <source>has no name</source>
        <translation>没有名称</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(无名称)</translation>
    </message>
    <message>
        <source>is not read</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>is not read whole</source>
        <translation>未完整读取</translation>
    </message>
    <message>
        <source>is no array</source>
        <translation>不是数组</translation>
    </message>
    <message>
        <source>is not what is read here, and reads as nothing</source>
        <translation>不是此处可读的值, 读作空</translation>
    </message>
    <message>
        <source>is not what is read here, and reads as %1</source>
        <translation>不是此处可读的值, 读作 %1</translation>
    </message>
    <message>
        <source>label</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>section</source>
        <translation>截面</translation>
    </message>
    <message>
        <source>spans</source>
        <translation>跨数</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>梁链</translation>
    </message>
    <message>
        <source>pieces</source>
        <translation>段</translation>
    </message>
    <message>
        <source>seats</source>
        <translation>支座</translation>
    </message>
    <message>
        <source>to make</source>
        <translation>待建</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>%1, %2: %3 resolved, %4 not</source>
        <translation>%1, %2: 已解析 %3, 未解析 %4</translation>
    </message>
    <message>
        <source>is missing: no result of beams</source>
        <translation>缺失: 不是梁的结果</translation>
    </message>
    <message>
        <source>the numbers of its segments do not follow one another</source>
        <translation>其梁段的编号不连续</translation>
    </message>
    <message>
        <source>the host made no draw object</source>
        <translation>宿主未新建图元</translation>
    </message>
    <message>
        <source>the draw object is no line</source>
        <translation>图元不是线</translation>
    </message>
    <message>
        <source>the host took neither width nor offset</source>
        <translation>宿主未接受宽度和偏移</translation>
    </message>
    <message>
        <source>the host took neither elevation</source>
        <translation>宿主未接受两端标高</translation>
    </message>
    <message>
        <source>result %1</source>
        <translation>结果 %1</translation>
    </message>
    <message>
        <source>was not made, since the host did not take the element whole</source>
        <translation>未新建, 因为宿主未完整接受该构件</translation>
    </message>
    <message>
        <source>the host made no element</source>
        <translation>宿主未新建构件</translation>
    </message>
    <message>
        <source>a value was refused: %1</source>
        <translation>有值被拒绝: %1</translation>
    </message>
    <message>
        <source>stopped behind %1 of %2, which stay unlinked: %3</source>
        <translation>在 %2 中的前 %1 段之后中断, 各段未连接: %3</translation>
    </message>
    <message>
        <source>%1, %2 of %3, %4</source>
        <translation>%1, %2 (%3), %4</translation>
    </message>
    <message>
        <source>element</source>
        <translation>构件</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>梁链</translation>
    </message>
    <message>
        <source>span</source>
        <translation>跨</translation>
    </message>
    <message>
        <source>, %1 stopped</source>
        <translation>, %1 中断</translation>
    </message>
    <message>
        <source>%1 (%2) on %3: %4, %5 of %6, %7%8</source>
        <translation>%1 (%2), %3: %4, %5 (%6), %7%8</translation>
    </message>
    <message>
        <source>reused</source>
        <translation>复用</translation>
    </message>
    <message>
        <source>made</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>%1 read: %2 made (and %3 reused), %4</source>
        <translation>已读取 %1: 新建 %2 (复用 %3), %4</translation>
    </message>
    <message>
        <source>beam</source>
        <translation>梁</translation>
    </message>
    <message>
        <source>the host placed nothing</source>
        <translation>宿主未布置任何图元</translation>
    </message>
    <message>
        <source>the host did not take it whole</source>
        <translation>宿主未完整接受</translation>
    </message>
    <message>
        <source>the host tells no outline of it</source>
        <translation>宿主未给出其轮廓</translation>
    </message>
    <message>
        <source>, %1 below</source>
        <translation>, 下属 %1</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>单元</translation>
    </message>
    <message>
        <source>%1: %2 made (%3 times reused)%4, %5 placed</source>
        <translation>%1: 新建 %2 (复用 %3 次)%4, 已布置 %5</translation>
    </message>
    <message>
        <source>%1 read, %2</source>
        <translation>已读取 %1, %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a file nor a kind of document; &quot;%2&quot; is one</source>
        <translation>&quot;%1&quot; 既不是文件也不是文档类型; &quot;%2&quot; 是文档类型</translation>
    </message>
    <message>
        <source>FILE is required</source>
        <translation>缺少 FILE</translation>
    </message>
    <message>
        <source>%1: %2 faulty, %3 not read whole</source>
        <translation>%1: %2 个有误, %3 个未完整读取</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Tell what is wrong in documents, before anything is done with them</source>
        <translation>在使用文档之前, 指出其中的错误</translation>
    </message>
    <message>
        <source>Documents, with their kind in front where it cannot be told: %1</source>
        <translation>文档; 无法判断类型时在前面写明类型: %1</translation>
    </message>
    <message>
        <source>missing keys, read as 0, false or empty: %1</source>
        <translation>缺失的键 (读作 0、false 或空): %1</translation>
    </message>
    <message>
        <source>column record</source>
        <translation>柱记录</translation>
    </message>
    <message>
        <source>no column record: it has none of the keys of one</source>
        <translation>不是柱记录: 没有柱记录的任何键</translation>
    </message>
    <message>
        <source>Column records</source>
        <translation>柱记录</translation>
    </message>
    <message>
        <source>Tell what a column record holds, and what is wrong with it</source>
        <translation>列出柱记录的内容, 并指出其中的错误</translation>
    </message>
    <message>
        <source>Order to identify or check columns, or results</source>
        <translation>柱的识别任务、校核任务或结果</translation>
    </message>
    <message>
        <source>is written as &quot;%1&quot;: geometry has one form and six digits</source>
        <translation>写为 &quot;%1&quot;: 几何只有一种形式, 六位数字</translation>
    </message>
    <message>
        <source>is written as the number %1</source>
        <translation>写为数值 %1</translation>
    </message>
    <message>
        <source>is written as %1: a number has 53 bits</source>
        <translation>写为 %1: 数值只有 53 位</translation>
    </message>
    <message>
        <source>results of identification</source>
        <translation>识别结果</translation>
    </message>
    <message>
        <source>order to check</source>
        <translation>校核任务</translation>
    </message>
    <message>
        <source>order to identify</source>
        <translation>识别任务</translation>
    </message>
    <message>
        <source>hoop bar settings</source>
        <translation>箍筋设置</translation>
    </message>
    <message>
        <source>words of elevations</source>
        <translation>标高用语</translation>
    </message>
    <message>
        <source>has the id %1 of picture %2, and is left out</source>
        <translation>与图片 %2 的标识 %1 相同, 略去</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no picture in the hoop bar settings</source>
        <translation>&quot;%1&quot; 在箍筋设置中没有图片</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>不是%1</translation>
    </message>
    <message>
        <source>is no valid outline</source>
        <translation>不是有效的轮廓</translation>
    </message>
    <message>
        <source>is no text of an outline</source>
        <translation>不是轮廓的文字</translation>
    </message>
    <message>
        <source>is no text of a curve</source>
        <translation>不是曲线的文字</translation>
    </message>
    <message>
        <source>is no text of a point</source>
        <translation>不是点的文字</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>用法</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>SUBCOMMAND</source>
        <translation>子命令</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation>必填</translation>
    </message>
    <message>
        <source>Positionals</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Excludes</source>
        <translation>互斥</translation>
    </message>
    <message>
        <source>Moves buildings between a host model, recognition payloads and replies</source>
        <translation>在宿主模型、识别数据和回复之间传递建筑</translation>
    </message>
    <message>
        <source>Subcommands</source>
        <translation>子命令</translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <translation>显示本帮助并退出</translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <translation>显示程序版本并退出</translation>
    </message>
    <message>
        <source>Print the summary as one JSON object</source>
        <translation>以一个 JSON 对象输出摘要</translation>
    </message>
    <message>
        <source>Print no summary</source>
        <translation>不输出摘要</translation>
    </message>
    <message>
        <source>Compared with the original: %1</source>
        <translation>与原项目比较: %1</translation>
    </message>
    <message>
        <source>Complete the last word of a line, for shells</source>
        <translation>补全命令行的最后一个词, 供 shell 使用</translation>
    </message>
    <message>
        <source>Words of the line behind the name of the program</source>
        <translation>命令行中程序名之后的词</translation>
    </message>
    <message>
        <source>--floor is required behind the first project</source>
        <translation>第一个项目之后缺少 --floor</translation>
    </message>
    <message>
        <source>--floor behind the second project or --to-floor is required</source>
        <translation>缺少第二个项目之后的 --floor, 或 --to-floor</translation>
    </message>
    <message>
        <source>%1 stands before the project that it is of</source>
        <translation>%1 写在了所属项目之前</translation>
    </message>
    <message>
        <source>%1 names a second one: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1 重复指定: &quot;%2&quot; 和 &quot;%3&quot;</translation>
    </message>
    <message>
        <source>floor &quot;%1&quot; would be copied onto itself</source>
        <translation>楼层 &quot;%1&quot; 会复制到自身</translation>
    </message>
    <message>
        <source>Copy a floor to another one, of the same or another project</source>
        <translation>将一个楼层复制到同一或另一项目的另一楼层</translation>
    </message>
    <message>
        <source>Project file (.hbxdb) to copy from</source>
        <translation>复制来源的项目文件 (.hbxdb)</translation>
    </message>
    <message>
        <source>Project file (.hbxdb) to copy to; FROM if absent</source>
        <translation>复制目标的项目文件 (.hbxdb); 省略时为 FROM</translation>
    </message>
    <message>
        <source>Name of a region, behind its project; may be absent where there is only one</source>
        <translation>区域名称, 写在所属项目之后; 只有一个区域时可省略</translation>
    </message>
    <message>
        <source>Name or code of a floor, behind its project</source>
        <translation>楼层名称或编码, 写在所属项目之后</translation>
    </message>
    <message>
        <source>Name of the region to copy to, wherever it stands</source>
        <translation>目标区域名称, 位置不限</translation>
    </message>
    <message>
        <source>Name or code of the floor to copy to, wherever it stands</source>
        <translation>目标楼层名称或编码, 位置不限</translation>
    </message>
    <message>
        <source>What is copied, with commas between; everything if absent</source>
        <translation>复制的内容, 以逗号分隔; 省略时全部复制</translation>
    </message>
    <message>
        <source>copied floor</source>
        <translation>复制的楼层</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 个%2</translation>
    </message>
    <message>
        <source>%1 %2s</source>
        <translation>%1 个%2</translation>
    </message>
    <message>
        <source>Building: %1 (%2)</source>
        <translation>建筑: %1 (%2)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 of &quot;%2&quot;: base %3, first %4, highest %5</source>
        <translation>&quot;%2&quot; 的 %1: 基础层 %3, 首层 %4, 最高层 %5</translation>
    </message>
    <message>
        <source>%1 and %2, %3 of them in a wall, %4 bytes</source>
        <translation>%1, %2, 其中 %3 个在墙中, %4 字节</translation>
    </message>
    <message>
        <source>placed opening</source>
        <translation>已布置洞口</translation>
    </message>
    <message>
        <source>%1 at 1:%2</source>
        <translation>%1, 比例 1:%2</translation>
    </message>
    <message>
        <source>placed object</source>
        <translation>已布置图元</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%2 的 %1</translation>
    </message>
    <message>
        <source>A copy, restored.hbxdb, loses all doors and windows (%1) and the beams (%2) and slabs (%3) of %4, with all that is placed.</source>
        <translation>副本 restored.hbxdb 去掉全部门窗 (%1) 以及 %4 的梁 (%2) 和板 (%3), 连同其全部已布置图元。</translation>
    </message>
    <message>
        <source>A copy: %1</source>
        <translation>副本: %1</translation>
    </message>
    <message>
        <source>Everything stands in %1; before.svg and after.svg, hall-before.svg and hall-after.svg are the pictures, building.html and changes.html the pages.</source>
        <translation>全部文件位于 %1; 图片为 before.svg 和 after.svg, hall-before.svg 和 hall-after.svg, 页面为 building.html 和 changes.html。</translation>
    </message>
    <message>
        <source>Take a real building through every road, into a directory</source>
        <translation>以真实建筑演示全部流程, 结果写入目录</translation>
    </message>
    <message>
        <source>Directory for what the tour makes</source>
        <translation>存放演示结果的目录</translation>
    </message>
    <message>
        <source>Tell what differs between two projects; exit code 3 where something does</source>
        <translation>列出两个项目的差异; 有差异时退出码为 3</translation>
    </message>
    <message>
        <source>Project file that it is compared with</source>
        <translation>用于比较的项目文件</translation>
    </message>
    <message>
        <source>JSON file to write the difference to</source>
        <translation>差异写入的 JSON 文件</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>新增 %1</translation>
    </message>
    <message>
        <source>%1 gone</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>修改 %1</translation>
    </message>
    <message>
        <source>region %1</source>
        <translation>区域 %1</translation>
    </message>
    <message>
        <source>floor %1</source>
        <translation>楼层 %1</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>图元 %1</translation>
    </message>
    <message>
        <source>The same: %1 compared</source>
        <translation>相同: 比较了 %1</translation>
    </message>
    <message>
        <source>floors</source>
        <translation>楼层</translation>
    </message>
    <message>
        <source>elements</source>
        <translation>构件</translation>
    </message>
    <message>
        <source>placed objects</source>
        <translation>已布置图元</translation>
    </message>
    <message>
        <source>the project itself</source>
        <translation>项目本身</translation>
    </message>
    <message>
        <source>Different (matched by id): %1</source>
        <translation>不同 (按标识匹配): %1</translation>
    </message>
    <message>
        <source>Different (matched by name and shape): %1</source>
        <translation>不同 (按名称和形状匹配): %1</translation>
    </message>
    <message>
        <source>is a list of %1, which are not read from XML</source>
        <translation>是含 %1的列表, 不从 XML 读取</translation>
    </message>
    <message>
        <source>record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>project file</source>
        <translation>项目文件</translation>
    </message>
    <message>
        <source>the archive cannot be unpacked</source>
        <translation>压缩包无法解压</translation>
    </message>
    <message>
        <source>the archive holds %1</source>
        <translation>压缩包含 %1</translation>
    </message>
    <message>
        <source>drawing</source>
        <translation>图纸</translation>
    </message>
    <message>
        <source>the kind of document cannot be told from its keys; name one of: %1</source>
        <translation>无法从键判断文档类型; 请指明下列之一: %1</translation>
    </message>
    <message>
        <source>faulty</source>
        <translation>有误</translation>
    </message>
    <message>
        <source>clean</source>
        <translation>无误</translation>
    </message>
    <message>
        <source>not read whole</source>
        <translation>未完整读取</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <translation>%1未读取</translation>
    </message>
    <message>
        <source>value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>%1 (%2) as %3</source>
        <translation>%1 (%2) 为 %3</translation>
    </message>
    <message>
        <source>%1: missing keys read as: %2</source>
        <translation>%1: 缺失的键读作: %2</translation>
    </message>
    <message>
        <source>context of the identification of beams</source>
        <translation>梁识别的上下文</translation>
    </message>
    <message>
        <source>order to identify beams</source>
        <translation>梁的识别任务</translation>
    </message>
    <message>
        <source>result of the identification of beams</source>
        <translation>梁的识别结果</translation>
    </message>
    <message>
        <source>seats of beams</source>
        <translation>梁的支座</translation>
    </message>
    <message>
        <source>spans of beams by draw object</source>
        <translation>按图元列出的梁跨</translation>
    </message>
    <message>
        <source>beams for recognition</source>
        <translation>待识别的梁</translation>
    </message>
    <message>
        <source>drawing file</source>
        <translation>图纸文件</translation>
    </message>
    <message>
        <source>columns for recognition</source>
        <translation>待识别的柱</translation>
    </message>
    <message>
        <source>element types by drawing</source>
        <translation>按图纸列出的构件类型</translation>
    </message>
    <message>
        <source>drawings by floor</source>
        <translation>按楼层列出的图纸</translation>
    </message>
    <message>
        <source>layers by drawing and element type</source>
        <translation>按图纸和构件类型列出的图层</translation>
    </message>
    <message>
        <source>crossings of axes by drawing</source>
        <translation>按图纸列出的轴线交点</translation>
    </message>
    <message>
        <source>parts of drawings</source>
        <translation>图纸的子图</translation>
    </message>
    <message>
        <source>scales of drawings</source>
        <translation>图纸的比例</translation>
    </message>
    <message>
        <source>drawing-set file</source>
        <translation>图纸集文件</translation>
    </message>
    <message>
        <source>tables of drawings</source>
        <translation>图纸的表格</translation>
    </message>
    <message>
        <source>floor exchange</source>
        <translation>楼层交换文档</translation>
    </message>
    <message>
        <source>floors document</source>
        <translation>楼层文档</translation>
    </message>
    <message>
        <source>building file</source>
        <translation>建筑文件</translation>
    </message>
    <message>
        <source>identities by draw object</source>
        <translation>按图元列出的标识</translation>
    </message>
    <message>
        <source>result of a classification of layers</source>
        <translation>图层分类结果</translation>
    </message>
    <message>
        <source>layers from drawing analysis</source>
        <translation>图纸分析得到的图层</translation>
    </message>
    <message>
        <source>layers of one element type</source>
        <translation>一种构件类型的图层</translation>
    </message>
    <message>
        <source>options to identify openings</source>
        <translation>洞口的识别选项</translation>
    </message>
    <message>
        <source>reply of doors and windows</source>
        <translation>门窗的回复</translation>
    </message>
    <message>
        <source>slab IO document</source>
        <translation>板 IO 文档</translation>
    </message>
    <message>
        <source>slab model document</source>
        <translation>板模型文档</translation>
    </message>
    <message>
        <source>order to identify walls</source>
        <translation>墙的识别任务</translation>
    </message>
    <message>
        <source>reply of walls</source>
        <translation>墙的回复</translation>
    </message>
    <message>
        <source>; %1 without geometry</source>
        <translation>; %1 个没有几何图形</translation>
    </message>
    <message>
        <source>Drew %1 of %2 at 1:%3%4</source>
        <translation>已按 1:%3 绘制 %2 的 %1%4</translation>
    </message>
    <message>
        <source>Drew %1 on %2%3</source>
        <translation>已在 %2绘制 %1%3</translation>
    </message>
    <message>
        <source>Drew %1 on %2. %3</source>
        <translation>已在 %2绘制 %1。%3</translation>
    </message>
    <message>
        <source>is for png pictures, which a name ending in .png asks for</source>
        <translation>仅用于 png 图片, 由以 .png 结尾的文件名指定</translation>
    </message>
    <message>
        <source>is for html pages, which a name ending in .html asks for</source>
        <translation>仅用于 html 页面, 由以 .html 结尾的文件名指定</translation>
    </message>
    <message>
        <source>takes all floors, without --region and --floor</source>
        <translation>针对所有楼层, 不能与 --region 和 --floor 同用</translation>
    </message>
    <message>
        <source>svg, png or html; if absent, as the file&apos;s ending tells, else svg</source>
        <translation>svg、png 或 html; 不给出时按文件后缀, 否则为 svg</translation>
    </message>
    <message>
        <source>Width of a png picture in pixels</source>
        <translation>png 图片的宽度 (像素)</translation>
    </message>
    <message>
        <source>Project file; the html page shows what became of PROJECT in it</source>
        <translation>项目文件; html 页面显示 PROJECT 到该文件的变化</translation>
    </message>
    <message>
        <source>Draw a floor plan as an SVG page or a PNG picture, or all floors as a page for a browser</source>
        <translation>将楼层平面图绘制为 SVG 页面或 PNG 图片, 或将所有楼层绘制为浏览器页面</translation>
    </message>
    <message>
        <source>File to write the picture to</source>
        <translation>图片写入的文件</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source> colour %1 %2 lines %3 texts</source>
        <translation> 颜色 %1 %2 条线 %3 个文字</translation>
    </message>
    <message>
        <source>  extends over %1 x %2 m</source>
        <translation>  范围 %1 x %2 m</translation>
    </message>
    <message>
        <source>Drew %1 into %2: %3</source>
        <translation>已将 %1 绘制到 %2: %3</translation>
    </message>
    <message>
        <source>Drawing files (.cadi2)</source>
        <translation>图纸文件 (.cadi2)</translation>
    </message>
    <message>
        <source>Draw a floor as layers, lines and texts</source>
        <translation>将楼层绘制为图层、线和文字</translation>
    </message>
    <message>
        <source>Drawing file to make (.cadi2)</source>
        <translation>要生成的图纸文件 (.cadi2)</translation>
    </message>
    <message>
        <source>What a drawing file holds</source>
        <translation>显示图纸文件的内容</translation>
    </message>
    <message>
        <source>Drawing file (.cadi2)</source>
        <translation>图纸文件 (.cadi2)</translation>
    </message>
    <message>
        <source>id</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>code</source>
        <translation>编码</translation>
    </message>
    <message>
        <source>height</source>
        <translation>层高</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>标高</translation>
    </message>
    <message>
        <source>storeys</source>
        <translation>层数</translation>
    </message>
    <message>
        <source>region</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>Floor exchange of %1: %2</source>
        <translation>含 %1的楼层交换文档: %2</translation>
    </message>
    <message>
        <source>not kept</source>
        <translation>未保留</translation>
    </message>
    <message>
        <source>not stable</source>
        <translation>不稳定</translation>
    </message>
    <message>
        <source>Sets of drawings and the names of floors on them</source>
        <translation>图纸集及图纸上的楼层名称</translation>
    </message>
    <message>
        <source>What a drawing-set file holds: stages, floors, drawings, layers</source>
        <translation>显示图纸集文件的内容: 阶段、楼层、图纸、图层</translation>
    </message>
    <message>
        <source>Drawing-set file</source>
        <translation>图纸集文件</translation>
    </message>
    <message>
        <source>Read a floor exchange, write it again and compare the two</source>
        <translation>读取楼层交换文档, 重新写出并比较两者</translation>
    </message>
    <message>
        <source>Floor exchange</source>
        <translation>楼层交换文档</translation>
    </message>
    <message>
        <source>File to write the document to as it is written again</source>
        <translation>重新写出的文档所写入的文件</translation>
    </message>
    <message>
        <source>The ways in which drawings write a floor</source>
        <translation>图纸上楼层的各种写法</translation>
    </message>
    <message>
        <source>Number of a floor, or a word for one</source>
        <translation>楼层编号, 或楼层的写法</translation>
    </message>
    <message>
        <source>drawings split</source>
        <translation>图纸拆分</translation>
    </message>
    <message>
        <source>sub-drawing</source>
        <translation>子图</translation>
    </message>
    <message>
        <source>tables parsed</source>
        <translation>表格解析</translation>
    </message>
    <message>
        <source>table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>floors taken</source>
        <translation>楼层提取</translation>
    </message>
    <message>
        <source>floors matched</source>
        <translation>楼层匹配</translation>
    </message>
    <message>
        <source>mapping</source>
        <translation>对应关系</translation>
    </message>
    <message>
        <source>element types matched</source>
        <translation>构件类型匹配</translation>
    </message>
    <message>
        <source>layers classified</source>
        <translation>图层分类</translation>
    </message>
    <message>
        <source>group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>scales revised</source>
        <translation>比例修正</translation>
    </message>
    <message>
        <source>drawings located</source>
        <translation>图纸定位</translation>
    </message>
    <message>
        <source>Drawing set</source>
        <translation>图纸集</translation>
    </message>
    <message>
        <source>Drawing set of %1</source>
        <translation>%1 的图纸集</translation>
    </message>
    <message>
        <source>%1: %2 of %3 stages, %4, %5</source>
        <translation>%1: 已运行 %2/%3 个阶段, %4, %5</translation>
    </message>
    <message>
        <source>stage</source>
        <translation>阶段</translation>
    </message>
    <message>
        <source>key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>holds</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>has not run</source>
        <translation>未运行</translation>
    </message>
    <message>
        <source>Stages</source>
        <translation>阶段</translation>
    </message>
    <message>
        <source>bottom m</source>
        <translation>底标高 m</translation>
    </message>
    <message>
        <source>height m</source>
        <translation>层高 m</translation>
    </message>
    <message>
        <source>drawings</source>
        <translation>图纸</translation>
    </message>
    <message>
        <source>Floors</source>
        <translation>楼层</translation>
    </message>
    <message>
        <source>cut from</source>
        <translation>拆分自</translation>
    </message>
    <message>
        <source>element types</source>
        <translation>构件类型</translation>
    </message>
    <message>
        <source>tables</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>objects</source>
        <translation>图元</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>比例</translation>
    </message>
    <message>
        <source>axis points</source>
        <translation>轴线交点</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>图纸</translation>
    </message>
    <message>
        <source>element type</source>
        <translation>构件类型</translation>
    </message>
    <message>
        <source>names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Layers by element type</source>
        <translation>按构件类型分的图层</translation>
    </message>
    <message>
        <source>no drawing-set file: none of its stages is there</source>
        <translation>不是图纸集文件: 没有任何一个阶段</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>示例:</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>示例:</translation>
    </message>
    <message>
        <source>a whole number of 32 bits</source>
        <translation>整数 (32 位)</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>a whole number of 64 bits</source>
        <translation>整数 (64 位)</translation>
    </message>
    <message>
        <source>%1: %2 done, %3 with something left out, %4 failed</source>
        <translation>%1: %2 个完成, %3 个有略去, %4 个失败</translation>
    </message>
    <message>
        <source>%1 and %2 would both be written to %3</source>
        <translation>%1 和 %2 会写入同一个文件 %3</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>--output is required for several files: a directory</source>
        <translation>多个文件需要用 --output 给出目录</translation>
    </message>
    <message>
        <source>--output -: several files would run into each other</source>
        <translation>--output -: 多个文件会混在一起</translation>
    </message>
    <message>
        <source>is no directory, as several files need</source>
        <translation>不是目录, 而多个文件需要目录</translation>
    </message>
    <message>
        <source>files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>是目录</translation>
    </message>
    <message>
        <source>not JSON: %1</source>
        <translation>不是 JSON: %1</translation>
    </message>
    <message>
        <source>no %1: its top is no object</source>
        <translation>不是%1: 顶层不是对象</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>标准输出</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>无法写入: %1</translation>
    </message>
    <message>
        <source>the directory cannot be made</source>
        <translation>无法创建目录</translation>
    </message>
    <message>
        <source>Copied %1 to %2</source>
        <translation>已将 %1 复制到 %2</translation>
    </message>
    <message>
        <source>not carried: %1</source>
        <translation>未复制: %1</translation>
    </message>
    <message>
        <source>is no key of this format</source>
        <translation>不是该格式的键</translation>
    </message>
    <message>
        <source>is empty, so it is not written</source>
        <translation>为空, 因此不写出</translation>
    </message>
    <message>
        <source>is no text, so the field has no value</source>
        <translation>不是文字, 因此该字段没有值</translation>
    </message>
    <message>
        <source>is written and was not there</source>
        <translation>写出了原来没有的值</translation>
    </message>
    <message>
        <source>is written as another value</source>
        <translation>写出的值不同</translation>
    </message>
    <message>
        <source>is refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>no floor exchange: %1 is missing</source>
        <translation>不是楼层交换文档: 缺少 %1</translation>
    </message>
    <message>
        <source>unknown region &quot;%1&quot;</source>
        <translation>未知区域 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown %1 &quot;%2&quot; in region &quot;%3&quot;</source>
        <translation>区域 &quot;%3&quot; 中没有%1 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>no --region is given; known regions: %1</source>
        <translation>未给出 --region; 已有区域: %1</translation>
    </message>
    <message>
        <source>no region &quot;%1&quot;; known regions: %2</source>
        <translation>没有区域 &quot;%1&quot;; 已有区域: %2</translation>
    </message>
    <message>
        <source>no floor &quot;%1&quot; in region &quot;%2&quot;; known floors: %3</source>
        <translation>区域 &quot;%2&quot; 中没有楼层 &quot;%1&quot;; 已有楼层: %3</translation>
    </message>
    <message>
        <source>floor code</source>
        <translation>楼层编码</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 的 %1</translation>
    </message>
    <message>
        <source>no</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>top m</source>
        <translation>顶标高 m</translation>
    </message>
    <message>
        <source>upstairs</source>
        <translation>上一层</translation>
    </message>
    <message>
        <source>downstairs</source>
        <translation>下一层</translation>
    </message>
    <message>
        <source>Area %1</source>
        <translation>区域 %1</translation>
    </message>
    <message>
        <source>base %1, first %2, highest %3, lowest %4</source>
        <translation>基础层 %1, 首层 %2, 最高层 %3, 最低层 %4</translation>
    </message>
    <message>
        <source>Floors documents</source>
        <translation>楼层文档</translation>
    </message>
    <message>
        <source>Write the floors of a region as a floors document</source>
        <translation>将一个区域的楼层写成楼层文档</translation>
    </message>
    <message>
        <source>Read a floors document and print how its floors stand to each other</source>
        <translation>读取楼层文档并显示各楼层的上下关系</translation>
    </message>
    <message>
        <source>Floors document</source>
        <translation>楼层文档</translation>
    </message>
    <message>
        <source>lacks one of Name, BottomElev, Height, StdCount, Remark</source>
        <translation>缺少 Name, BottomElev, Height, StdCount, Remark 之一</translation>
    </message>
    <message>
        <source>%1: is not %2, and reads as %3</source>
        <translation>%1: 不是%2, 读作 %3</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1: is not text, and reads as nothing</source>
        <translation>%1: 不是文字, 读作无</translation>
    </message>
    <message>
        <source>no floors document: AreaName or Floors is missing</source>
        <translation>不是楼层文档: 缺少 AreaName 或 Floors</translation>
    </message>
    <message>
        <source>FLOOR: no floor has the number %1; floors go from 1 to %2 and from -1 to -%2</source>
        <translation>FLOOR: 没有编号为 %1 的楼层; 楼层编号为 1 到 %2 和 -1 到 -%2</translation>
    </message>
    <message>
        <source>Floor %1: %2
%3</source>
        <translation>楼层 %1: %2
%3</translation>
    </message>
    <message>
        <source>Top floor %1
%2</source>
        <translation>顶层 %1
%2</translation>
    </message>
    <message>
        <source>No floor is written &quot;%1&quot;</source>
        <translation>没有写作 &quot;%1&quot; 的楼层</translation>
    </message>
    <message>
        <source>does not begin with %1</source>
        <translation>不以 %1 开头</translation>
    </message>
    <message>
        <source> or </source>
        <translation> 或 </translation>
    </message>
    <message>
        <source>begins with &quot;%1&quot;: %2 is meant</source>
        <translation>以 &quot;%1&quot; 开头: 应为 %2</translation>
    </message>
    <message>
        <source>is no text of a curve in the short form</source>
        <translation>不是简写形式的曲线文字</translation>
    </message>
    <message>
        <source>is an outline that crosses itself or has no area</source>
        <translation>是自相交或没有面积的轮廓</translation>
    </message>
    <message>
        <source>is no text of an outline in the short form</source>
        <translation>不是简写形式的轮廓文字</translation>
    </message>
    <message>
        <source>is no well-known text of a line or an arc</source>
        <translation>不是直线或圆弧的 WKT 文字</translation>
    </message>
    <message>
        <source>written again, it is the same document</source>
        <translation>重新写出后文档相同</translation>
    </message>
    <message>
        <source>written again, it differs at %1</source>
        <translation>重新写出后有 %1不同</translation>
    </message>
    <message>
        <source>place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>不是文字</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>不是整数</translation>
    </message>
    <message>
        <source>is no whole number from -2147483647 to 2147483647</source>
        <translation>不是 -2147483647 到 2147483647 的整数</translation>
    </message>
    <message>
        <source>is no number above -1.7976931348623157e+308</source>
        <translation>不是大于 -1.7976931348623157e+308 的数值</translation>
    </message>
    <message>
        <source>is neither a number nor null</source>
        <translation>既不是数值也不是 null</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>不是数值</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>is no member of this format</source>
        <translation>不是该格式的成员</translation>
    </message>
    <message>
        <source>is no array of %1 entries</source>
        <translation>不是 %1 个元素的数组</translation>
    </message>
    <message>
        <source>is no member of this format, and not read</source>
        <translation>不是该格式的成员, 不会读取</translation>
    </message>
    <message>
        <source>not JSON: a character of code 0 stands behind the document.</source>
        <translation>不是 JSON: 文档后面有编码为 0 的字符。</translation>
    </message>
    <message>
        <source>stands twice in one object, and the last one would count</source>
        <translation>在同一对象中出现两次, 只有最后一个有效</translation>
    </message>
    <message>
        <source>; the project is saved all the same</source>
        <translation>; 项目仍已保存</translation>
    </message>
    <message>
        <source>; %1 is written all the same</source>
        <translation>; %1 仍已写出</translation>
    </message>
    <message>
        <source>Wrote %1 into %2</source>
        <translation>已将 %1写入 %2</translation>
    </message>
    <message>
        <source>manual page</source>
        <translation>手册页</translation>
    </message>
    <message>
        <source>Write the manual pages, for packagers</source>
        <translation>写出手册页, 供打包者使用</translation>
    </message>
    <message>
        <source>Directory for the pages</source>
        <translation>手册页的目录</translation>
    </message>
    <message>
        <source>All that was asked is done, and all that was sent arrived as it was sent.</source>
        <translation>要求的都已完成, 传递的数据都原样到达。</translation>
    </message>
    <message>
        <source>The arguments are wrong; nothing was done.</source>
        <translation>参数错误; 未做任何操作。</translation>
    </message>
    <message>
        <source>An input or a file cannot be used. No project file was changed, unless the message says so.</source>
        <translation>输入或文件无法使用。除非消息中另有说明, 没有改动任何项目文件。</translation>
    </message>
    <message>
        <source>Done, but some members, parts or values were left out; with --strict nothing was saved.</source>
        <translation>已完成, 但略去了一些成员、部分或值; 使用 --strict 时什么都没有保存。</translation>
    </message>
    <message>
        <source>The first of them that is set names the language of messages: English or Chinese. Documents, and summaries under --json, are the same in both.</source>
        <translation>其中第一个已设置的变量决定消息的语言: 英文或中文。文档和 --json 的摘要在两种语言下相同。</translation>
    </message>
    <message>
        <source>If set and not empty, messages have no colours.</source>
        <translation>设置且不为空时, 消息不带颜色。</translation>
    </message>
    <message>
        <source>If &quot;dumb&quot;, there are neither colours nor a progress bar. Files and pipes never get either.</source>
        <translation>为 &quot;dumb&quot; 时, 既没有颜色也没有进度条。写入文件和管道时始终没有。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>用户命令</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>概述</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>退出状态</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>环境变量</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>参见</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 不是%2</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>%1 is no curve</source>
        <translation>%1 不是曲线</translation>
    </message>
    <message>
        <source>%1 has no length</source>
        <translation>%1 长度为零</translation>
    </message>
    <message>
        <source>Wrote %1 and %2 (%3 in a wall) of %4</source>
        <translation>已写出 %4的 %1和 %2 (%3 个在墙中)</translation>
    </message>
    <message>
        <source>option</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Doors and windows</source>
        <translation>门窗</translation>
    </message>
    <message>
        <source>Write doors and windows in the form of a reply</source>
        <translation>将门窗写成回复的形式</translation>
    </message>
    <message>
        <source>File to write the reply to</source>
        <translation>回复写入的文件</translation>
    </message>
    <message>
        <source>Reply document</source>
        <translation>回复文档</translation>
    </message>
    <message>
        <source>reply</source>
        <translation>回复</translation>
    </message>
    <message>
        <source>Write the identify options of doors and windows</source>
        <translation>写出门窗的识别选项</translation>
    </message>
    <message>
        <source>File to write the options to</source>
        <translation>选项写入的文件</translation>
    </message>
    <message>
        <source>no wall</source>
        <translation>无墙</translation>
    </message>
    <message>
        <source>wall %1, piece %2</source>
        <translation>墙 %1, 段 %2</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>洞口</translation>
    </message>
    <message>
        <source>the payload written again is the same but for ids</source>
        <translation>重新写出的识别数据除 id 外相同</translation>
    </message>
    <message>
        <source>each in the wall it came from</source>
        <translation>各自仍在原来的墙中</translation>
    </message>
    <message>
        <source>deviation</source>
        <translation>偏差</translation>
    </message>
    <message>
        <source>%1 openings where there were %2</source>
        <translation>有 %1 个洞口, 原有 %2 个</translation>
    </message>
    <message>
        <source>%1: in %2, was in %3</source>
        <translation>%1: 现在 %2, 原在 %3</translation>
    </message>
    <message>
        <source>member %1%2 (%3): %4</source>
        <translation>成员 %1%2 (%3): %4</translation>
    </message>
    <message>
        <source>type %1 is no door or window (4, 5, 6, 7)</source>
        <translation>类型 %1 不是门或窗 (4, 5, 6, 7)</translation>
    </message>
    <message>
        <source>member %1 has that name on the floor already</source>
        <translation>成员 %1 在该楼层已使用此名称</translation>
    </message>
    <message>
        <source>the floor has an element of that name already; it is kept as it is</source>
        <translation>该楼层已有同名构件; 保持原样</translation>
    </message>
    <message>
        <source>element &quot;%1&quot; is no door or window</source>
        <translation>构件 &quot;%1&quot; 不是门或窗</translation>
    </message>
    <message>
        <source>its element &quot;%1&quot; stands behind it, as member %2</source>
        <translation>其构件 &quot;%1&quot; 在它之后, 是成员 %2</translation>
    </message>
    <message>
        <source>its element &quot;%1&quot;, member %2, was left out</source>
        <translation>其构件 &quot;%1&quot; (成员 %2) 已略去</translation>
    </message>
    <message>
        <source>the floor has no element &quot;%1&quot;, and the reply makes none</source>
        <translation>该楼层没有构件 &quot;%1&quot;, 回复中也未新建</translation>
    </message>
    <message>
        <source>the host did not make it</source>
        <translation>宿主未能新建</translation>
    </message>
    <message>
        <source>%1 read: %2 made, %3 placed (%4 in a wall, %5 in none), %6</source>
        <translation>已读取 %1: 新建 %2, 布置 %3 (%4 个在墙中, %5 个不在墙中), %6</translation>
    </message>
    <message>
        <source>member</source>
        <translation>成员</translation>
    </message>
    <message>
        <source>no object of that key: no reply of openings</source>
        <translation>该键下没有对象: 不是洞口回复</translation>
    </message>
    <message>
        <source>members</source>
        <translation>成员</translation>
    </message>
    <message>
        <source>is not there, and it makes PNG pictures (package librsvg2-bin)</source>
        <translation>未安装, 而 PNG 图片由它生成 (软件包 librsvg2-bin)</translation>
    </message>
    <message>
        <source>has failed: %1</source>
        <translation>运行失败: %1</translation>
    </message>
    <message>
        <source>Imported %1 into %2: %3</source>
        <translation>已将 %1 导入 %2: %3</translation>
    </message>
    <message>
        <source>Exported %1: %2</source>
        <translation>已导出 %1: %2</translation>
    </message>
    <message>
        <source>Project files of the embedded host</source>
        <translation>内嵌宿主的项目文件</translation>
    </message>
    <message>
        <source>Make a project file from a building (hbx-project JSON)</source>
        <translation>由建筑 (hbx-project JSON) 生成项目文件</translation>
    </message>
    <message>
        <source>Building as hbx-project JSON</source>
        <translation>hbx-project JSON 格式的建筑</translation>
    </message>
    <message>
        <source>Project file to make (.hbxdb)</source>
        <translation>要生成的项目文件 (.hbxdb)</translation>
    </message>
    <message>
        <source>Write a project as hbx-project JSON</source>
        <translation>将项目写成 hbx-project JSON</translation>
    </message>
    <message>
        <source>File to write the building to</source>
        <translation>建筑写入的文件</translation>
    </message>
    <message>
        <source>What is in a project: per region and floor the counts by type</source>
        <translation>项目的内容: 按区域和楼层列出各类型的数量</translation>
    </message>
    <message>
        <source>  %1 (code %2): bottom %3 m, height %4 m</source>
        <translation>  %1 (编码 %2): 底标高 %3 m, 层高 %4 m</translation>
    </message>
    <message>
        <source>    %1 %2 element  %3 placed</source>
        <translation>    %1 %2 个构件 %3 个已布置</translation>
    </message>
    <message>
        <source>    %1 %2 elements %3 placed</source>
        <translation>    %1 %2 个构件 %3 个已布置</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>来源: %1</translation>
    </message>
    <message>
        <source>Region %1</source>
        <translation>区域 %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>has none of the keys %1: no %2</source>
        <translation>没有 %1 中的任何一个键: 不是%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is meant</source>
        <translation>应为 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is expected</source>
        <translation>应为%1</translation>
    </message>
    <message>
        <source>is %1</source>
        <translation>是%1</translation>
    </message>
    <message>
        <source>is more than the form has</source>
        <translation>超出格式的规定</translation>
    </message>
    <message>
        <source>another value</source>
        <translation>其他值</translation>
    </message>
    <message>
        <source>is &quot;%1&quot;, but the other keys are those of another</source>
        <translation>是 &quot;%1&quot;, 但其余的键属于另一种</translation>
    </message>
    <message>
        <source>has the keys of more than one form</source>
        <translation>具有不止一种格式的键</translation>
    </message>
    <message>
        <source>is no key of this object</source>
        <translation>不是此对象的键</translation>
    </message>
    <message>
        <source>, and not read</source>
        <translation>, 不会被读取</translation>
    </message>
    <message>
        <source>; &quot;%1&quot; is meant</source>
        <translation>; 应为 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>, which is missing</source>
        <translation>, 而它缺失</translation>
    </message>
    <message>
        <source>, or &quot;%1&quot; in its place</source>
        <translation>, 或以 &quot;%1&quot; 代替</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>&quot; 或 &quot;</translation>
    </message>
    <message>
        <source>a number above %1</source>
        <translation>大于 %1 的数值</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 到 %2 的数值</translation>
    </message>
    <message>
        <source>a number from %1 up</source>
        <translation>不小于 %1 的数值</translation>
    </message>
    <message>
        <source>a number up to %1</source>
        <translation>不大于 %1 的数值</translation>
    </message>
    <message>
        <source>is an empty text</source>
        <translation>是空文字</translation>
    </message>
    <message>
        <source>one that is not</source>
        <translation>非空文字</translation>
    </message>
    <message>
        <source>another form</source>
        <translation>其他形式</translation>
    </message>
    <message>
        <source>is %1, which %2</source>
        <translation>是%1, %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>至少 %1 个</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>至多 %1 个</translation>
    </message>
    <message>
        <source>has %1 %2</source>
        <translation>有 %1 个%2</translation>
    </message>
    <message>
        <source>entries</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>键</translation>
    </message>
    <message>
        <source>type %1 is no %2</source>
        <translation>类型 %1 不是%2</translation>
    </message>
    <message>
        <source>document of seats</source>
        <translation>支座文档</translation>
    </message>
    <message>
        <source>slab</source>
        <translation>板</translation>
    </message>
    <message>
        <source>raft</source>
        <translation>筏板</translation>
    </message>
    <message>
        <source>slab opening</source>
        <translation>板洞</translation>
    </message>
    <message>
        <source>slab bar</source>
        <translation>板钢筋</translation>
    </message>
    <message>
        <source>slab negative bar</source>
        <translation>板负筋</translation>
    </message>
    <message>
        <source>straddling slab bar</source>
        <translation>跨板钢筋</translation>
    </message>
    <message>
        <source>raft bar</source>
        <translation>筏板钢筋</translation>
    </message>
    <message>
        <source>straddling raft bar</source>
        <translation>跨筏板钢筋</translation>
    </message>
    <message>
        <source>raft negative bar</source>
        <translation>筏板负筋</translation>
    </message>
    <message>
        <source>column</source>
        <translation>柱</translation>
    </message>
    <message>
        <source>wall</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>axis grid</source>
        <translation>轴网</translation>
    </message>
    <message>
        <source>Wrote %1 of %2%3</source>
        <translation>已写出 %2 的 %1%3</translation>
    </message>
    <message>
        <source>, with the drawing %1</source>
        <translation>, 附图纸 %1</translation>
    </message>
    <message>
        <source>Write what recognition gets of a floor&apos;s slabs</source>
        <translation>写出识别所需的楼层板数据</translation>
    </message>
    <message>
        <source>Sum of what is written: 2 supports, 4 slabs and holes, 8 bars of slabs, 32 rafts, 64 bars of rafts, 128 axis grids; everything if absent</source>
        <translation>写出内容之和: 2 支座, 4 板和板洞, 8 板钢筋, 32 筏板, 64 筏板钢筋, 128 轴网; 缺省为全部</translation>
    </message>
    <message>
        <source>Drawing to write along (.cadi2), with options and floor</source>
        <translation>一并写出的图纸 (.cadi2), 附选项和楼层</translation>
    </message>
    <message>
        <source>File to write the payload to</source>
        <translation>识别数据写入的文件</translation>
    </message>
    <message>
        <source>Write a reply into a floor and save the project</source>
        <translation>将回复写入楼层并保存项目</translation>
    </message>
    <message>
        <source>Take everything in the document as new, so that an export is a reply</source>
        <translation>将文档中的全部内容视为新建, 使导出的文档可作回复</translation>
    </message>
    <message>
        <source>File to write the ids of what was made to, with the reply&apos;s identities</source>
        <translation>写入新建图元 id 及其在回复中标识的文件</translation>
    </message>
    <message>
        <source>Slabs, rafts, their holes and bars</source>
        <translation>板、筏板及其板洞和钢筋</translation>
    </message>
    <message>
        <source>hole</source>
        <translation>板洞</translation>
    </message>
    <message>
        <source>around %1, %2</source>
        <translation>在 %1, %2 附近</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>无位置</translation>
    </message>
    <message>
        <source>%1 of slabs, %2</source>
        <translation>板的 %1, %2</translation>
    </message>
    <message>
        <source>nothing lost, added or moved</source>
        <translation>无丢失、增加或移动</translation>
    </message>
    <message>
        <source>lost: %1</source>
        <translation>丢失: %1</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>增加: %1</translation>
    </message>
    <message>
        <source>--parts %1 names no part; parts: 2 supports, 4 slabs and holes, 8 bars of slabs, 32 rafts, 64 bars of rafts, 128 axis grids, or a sum of them</source>
        <translation>--parts %1 不表示任何部分; 各部分: 2 支座, 4 板和板洞, 8 板钢筋, 32 筏板, 64 筏板钢筋, 128 轴网, 或其和</translation>
    </message>
    <message>
        <source>is no drawing that can be read</source>
        <translation>不是可读取的图纸</translation>
    </message>
    <message>
        <source>the drawing cannot be packed below the temporary folder</source>
        <translation>图纸无法在临时目录下打包</translation>
    </message>
    <message>
        <source>surface is no outline</source>
        <translation>surface 不是轮廓</translation>
    </message>
    <message>
        <source>line is no curve</source>
        <translation>line 不是曲线</translation>
    </message>
    <message>
        <source>line has no length</source>
        <translation>line 长度为零</translation>
    </message>
    <message>
        <source>it stretches to neither side of its line</source>
        <translation>它未伸出其线的任何一侧</translation>
    </message>
    <message>
        <source>its direction has no length</source>
        <translation>它的方向长度为零</translation>
    </message>
    <message>
        <source>%1 lies beyond %2 m</source>
        <translation>%1 超出 %2 m</translation>
    </message>
    <message>
        <source>has neither &quot;model&quot; nor an array of slabs, rafts, holes or bars: no reply of slabs</source>
        <translation>既没有 &quot;model&quot;, 也没有板、筏板、板洞或钢筋的数组: 不是板的回复</translation>
    </message>
    <message>
        <source>is no identity</source>
        <translation>不是标识</translation>
    </message>
    <message>
        <source>%1: %2 made, %3 in the host already, %4 left out</source>
        <translation>%1: 新建 %2 个, 宿主中已有 %3 个, 略去 %4 个</translation>
    </message>
    <message>
        <source>%1 read: %2 made in %3, %4 in the host already, %5</source>
        <translation>已读取 %1: 新建 %2 个 (%3), 宿主中已有 %4 个, %5</translation>
    </message>
    <message>
        <source>new element</source>
        <translation>新构件</translation>
    </message>
    <message>
        <source>passed over: %1 of supports and axis grids, which no reply makes</source>
        <translation>跳过: %1 (支座和轴网), 回复不新建它们</translation>
    </message>
    <message>
        <source>%1 with the identity of one before: the id map names both alike</source>
        <translation>%1与之前的标识相同: id 映射对两者给出同一标识</translation>
    </message>
    <message>
        <source>the host refused it: %1</source>
        <translation>宿主拒绝: %1</translation>
    </message>
    <message>
        <source>no slab and no raft of the floor holds its middle</source>
        <translation>楼层中没有板或筏板包含它的中心</translation>
    </message>
    <message>
        <source>bar_info &quot;%1&quot; tells no bars</source>
        <translation>bar_info &quot;%1&quot; 未表示钢筋</translation>
    </message>
    <message>
        <source>it lies over another negative bar at the level of its slab</source>
        <translation>它与同一板标高处的另一负筋重叠</translation>
    </message>
    <message>
        <source>The document is empty.</source>
        <translation>文档为空。</translation>
    </message>
    <message>
        <source>The document root must not be followed by other values.</source>
        <translation>文档的根之后不能有其他值。</translation>
    </message>
    <message>
        <source>Invalid value.</source>
        <translation>无效的值。</translation>
    </message>
    <message>
        <source>Missing a name for object member.</source>
        <translation>对象成员缺少名称。</translation>
    </message>
    <message>
        <source>Missing a colon after a name of object member.</source>
        <translation>对象成员的名称后缺少冒号。</translation>
    </message>
    <message>
        <source>Missing a comma or &apos;}&apos; after an object member.</source>
        <translation>对象成员后缺少逗号或 &apos;}&apos;。</translation>
    </message>
    <message>
        <source>Missing a comma or &apos;]&apos; after an array element.</source>
        <translation>数组元素后缺少逗号或 &apos;]&apos;。</translation>
    </message>
    <message>
        <source>Incorrect hex digit after \u escape in string.</source>
        <translation>字符串中 \u 转义后的十六进制数字不正确。</translation>
    </message>
    <message>
        <source>The surrogate pair in string is invalid.</source>
        <translation>字符串中的代理对无效。</translation>
    </message>
    <message>
        <source>Invalid escape character in string.</source>
        <translation>字符串中的转义字符无效。</translation>
    </message>
    <message>
        <source>Missing a closing quotation mark in string.</source>
        <translation>字符串缺少结束引号。</translation>
    </message>
    <message>
        <source>Invalid encoding in string.</source>
        <translation>字符串的编码无效。</translation>
    </message>
    <message>
        <source>Miss fraction part in number.</source>
        <translation>数值缺少小数部分。</translation>
    </message>
    <message>
        <source>Miss exponent in number.</source>
        <translation>数值缺少指数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands twice in one object</source>
        <translation>&quot;%1&quot; 在同一对象中出现两次</translation>
    </message>
    <message>
        <source>the number %1 is too large</source>
        <translation>数值 %1 过大</translation>
    </message>
    <message>
        <source>the number %1 would be read as %2</source>
        <translation>数值 %1 会被读成 %2</translation>
    </message>
    <message>
        <source>concrete wall</source>
        <translation>混凝土墙</translation>
    </message>
    <message>
        <source>partition wall</source>
        <translation>隔墙</translation>
    </message>
    <message>
        <source>door</source>
        <translation>门</translation>
    </message>
    <message>
        <source>window</source>
        <translation>窗</translation>
    </message>
    <message>
        <source>door and window</source>
        <translation>门联窗</translation>
    </message>
    <message>
        <source>wall opening</source>
        <translation>墙洞</translation>
    </message>
    <message>
        <source>link beam</source>
        <translation>连梁</translation>
    </message>
    <message>
        <source>tie beam</source>
        <translation>拉梁</translation>
    </message>
    <message>
        <source>tie column</source>
        <translation>构造柱</translation>
    </message>
    <message>
        <source>foundation beam</source>
        <translation>基础梁</translation>
    </message>
    <message>
        <source>isolated footing</source>
        <translation>独立基础</translation>
    </message>
    <message>
        <source>pile cap</source>
        <translation>桩承台</translation>
    </message>
    <message>
        <source>pile</source>
        <translation>桩</translation>
    </message>
    <message>
        <source>footing unit</source>
        <translation>独立基础单元</translation>
    </message>
    <message>
        <source>pile cap unit</source>
        <translation>桩承台单元</translation>
    </message>
    <message>
        <source>retaining wall</source>
        <translation>挡土墙</translation>
    </message>
    <message>
        <source>curtain wall</source>
        <translation>幕墙</translation>
    </message>
    <message>
        <source>masonry column</source>
        <translation>砌体柱</translation>
    </message>
    <message>
        <source>brick wall</source>
        <translation>砌体墙</translation>
    </message>
    <message>
        <source>is no key of this record, and not read</source>
        <translation>不是此记录的键, 不会被读取</translation>
    </message>
    <message>
        <source>%1: %2 is one</source>
        <translation>%1: 可用的键是 %2</translation>
    </message>
    <message>
        <source>A subcommand is required</source>
        <translation>缺少子命令</translation>
    </message>
    <message>
        <source>%1 is required</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>%1 excludes %2</source>
        <translation>%1 与 %2 不能同时使用</translation>
    </message>
    <message>
        <source>%1: %2 not in {%3}</source>
        <translation>%1: %2 不在 {%3} 中</translation>
    </message>
    <message>
        <source>%1: Value %2 not in range %3 to %4</source>
        <translation>%1: 值 %2 不在 %3 到 %4 的范围内</translation>
    </message>
    <message>
        <source>%1: %2 required %3 missing</source>
        <translation>%1: 缺少 %2 个值 (%3)</translation>
    </message>
    <message>
        <source>%1: At Most %2 required but received %3</source>
        <translation>%1: 至多 %2 个, 给出了 %3 个</translation>
    </message>
    <message>
        <source>Could not convert: %1 = %2</source>
        <translation>无法转换: %1 = %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood here</source>
        <translation>此处无法理解 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood here; &quot;%2&quot; may be meant</source>
        <translation>此处无法理解 &quot;%1&quot;; 可能应为 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>an empty text</source>
        <translation>空文字</translation>
    </message>
    <message>
        <source>the text &quot;%1&quot;</source>
        <translation>文字 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>数值 %1</translation>
    </message>
    <message>
        <source>Project file (.hbxdb)</source>
        <translation>项目文件 (.hbxdb)</translation>
    </message>
    <message>
        <source>%1, or several</source>
        <translation>%1, 可多个</translation>
    </message>
    <message>
        <source>Name of the region; may be absent where there is only one</source>
        <translation>区域名称; 只有一个时可省略</translation>
    </message>
    <message>
        <source>Name or code of the floor</source>
        <translation>楼层的名称或编码</translation>
    </message>
    <message>
        <source>Kind of walls: brick or force</source>
        <translation>墙的种类: brick (砌体墙) 或 force (混凝土墙)</translation>
    </message>
    <message>
        <source>; standard output if absent</source>
        <translation>; 缺省为标准输出</translation>
    </message>
    <message>
        <source>; the directory for several</source>
        <translation>; 多个时为目录</translation>
    </message>
    <message>
        <source>Save nothing when a member of the %1 is left out</source>
        <translation>%1有成员被略去时不保存</translation>
    </message>
    <message>
        <source>there is no cloud document of force walls</source>
        <translation>混凝土墙没有云端文档</translation>
    </message>
    <message>
        <source>will not parse again: %1</source>
        <translation>无法再次解析: %1</translation>
    </message>
    <message>
        <source>Write what the recognition of walls is told of a floor</source>
        <translation>写出识别墙所需的楼层数据</translation>
    </message>
    <message>
        <source>Form of the document: json, xml or cloud (brick only)</source>
        <translation>文档的格式: json、xml 或 cloud (仅 brick)</translation>
    </message>
    <message>
        <source>Drawing of the floor (.cadi2), whose lines and texts are added</source>
        <translation>楼层的图纸 (.cadi2), 加入其中的线和文字</translation>
    </message>
    <message>
        <source>Brick walls and load-bearing concrete walls</source>
        <translation>砌体墙和承重混凝土墙</translation>
    </message>
    <message>
        <source>Write walls in the form of a reply</source>
        <translation>以回复的形式写出墙</translation>
    </message>
    <message>
        <source>%1 on floor %2 of %3</source>
        <translation>%3 楼层 %2 的 %1</translation>
    </message>
    <message>
        <source>%1 of %2, %3</source>
        <translation>%2的 %1, %3</translation>
    </message>
    <message>
        <source>piece</source>
        <translation>段</translation>
    </message>
    <message>
        <source>the reply written again is the same but for ids</source>
        <translation>再次写出的回复除 id 外相同</translation>
    </message>
    <message>
        <source>the reply written again DIFFERS</source>
        <translation>再次写出的回复不同</translation>
    </message>
    <message>
        <source>%1, which the original lacks</source>
        <translation>%1, 原项目中没有</translation>
    </message>
    <message>
        <source>layer &quot;%1&quot; is no name in XML</source>
        <translation>图层 &quot;%1&quot; 不是 XML 名称</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; on layer &quot;%2&quot; is no name in XML behind its &quot;/&quot;</source>
        <translation>图层 &quot;%2&quot; 上的文字 &quot;%1&quot; 在 &quot;/&quot; 之后不是 XML 名称</translation>
    </message>
    <message>
        <source>a name of the floor is no name in XML behind its &quot;/&quot;</source>
        <translation>楼层中有名称在 &quot;/&quot; 之后不是 XML 名称</translation>
    </message>
    <message>
        <source>%1 element</source>
        <translation>%1构件</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4 and %5 of %6; %7 with %8 and %9</source>
        <translation>%6 的 %1, %2, %3, %4 和 %5; %7, 含 %8 和 %9</translation>
    </message>
    <message>
        <source>placed brick wall</source>
        <translation>已布置砌体墙</translation>
    </message>
    <message>
        <source>placed force wall</source>
        <translation>已布置混凝土墙</translation>
    </message>
    <message>
        <source>brick walls</source>
        <translation>砌体墙</translation>
    </message>
    <message>
        <source>force wall</source>
        <translation>混凝土墙</translation>
    </message>
    <message>
        <source>force walls</source>
        <translation>混凝土墙</translation>
    </message>
    <message>
        <source>draw object %1 is no solid along a line</source>
        <translation>图元 %1 不是沿线的实体</translation>
    </message>
    <message>
        <source> (%1 more of which none is placed)</source>
        <translation> (另有 %1 个未布置)</translation>
    </message>
    <message>
        <source>%1%2 in %3 of %4</source>
        <translation>%4的 %1%2, 共 %3</translation>
    </message>
    <message>
        <source>%1 is not text</source>
        <translation>%1 不是文字</translation>
    </message>
    <message>
        <source>%1 holds &quot;/&quot; or &quot;:&quot;, which cuts it</source>
        <translation>%1 含有 &quot;/&quot; 或 &quot;:&quot;, 会被截断</translation>
    </message>
    <message>
        <source>%1 is not the text of a whole number</source>
        <translation>%1 不是整数的文字</translation>
    </message>
    <message>
        <source>no object of that key: no reply of %1</source>
        <translation>没有该键的对象: 不是%1的回复</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is cut to &quot;%3&quot;</source>
        <translation>%1 &quot;%2&quot; 被截断为 &quot;%3&quot;</translation>
    </message>
    <message>
        <source>is the same element as %1</source>
        <translation>与 %1 是同一构件</translation>
    </message>
    <message>
        <source>is not read: half of the %1 keys are entries, counted from 0</source>
        <translation>不会被读取: %1 个键的一半是条目, 从 0 数起</translation>
    </message>
    <message>
        <source>its pieces are no array</source>
        <translation>它的段不是数组</translation>
    </message>
    <message>
        <source>type %1 is no %2 (%3)</source>
        <translation>类型 %1 不是%2 (%3)</translation>
    </message>
    <message>
        <source>width is not above 0</source>
        <translation>width 不大于 0</translation>
    </message>
    <message>
        <source>the floor has that name already: made as &quot;%1&quot;</source>
        <translation>楼层中已有该名称: 新建为 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the host made %1 of its %2</source>
        <translation>宿主新建了它的 %2 中的 %1 个</translation>
    </message>
    <message>
        <source>made as %1</source>
        <translation>新建为 %1</translation>
    </message>
    <message>
        <source>, %1 left out</source>
        <translation>, 略去 %1 个</translation>
    </message>
    <message>
        <source>%1 on floor %2: %3, %4 placed%5</source>
        <translation>楼层 %2 的 %1: %3, 已布置 %4%5</translation>
    </message>
    <message>
        <source>%1 read: %2 made (%3 under another name), %4 placed, %5</source>
        <translation>已读取 %1: 新建 %2 (其中 %3 个改名), 已布置 %4, %5</translation>
    </message>
    <message>
        <source>walls</source>
        <translation>墙</translation>
    </message>
    <message>
        <source>%1 loses the %2 of %3 (%4), with all that is placed.</source>
        <translation>%1 去掉 %3 的%2 (%4) 及其全部已布置图元。</translation>
    </message>
    <message>
        <source>not XML: %1</source>
        <translation>不是 XML: %1</translation>
    </message>
    <message>
        <source>has a document type declaration or more than %1 levels, and is not parsed</source>
        <translation>含有文档类型声明或超过 %1 层, 不予解析</translation>
    </message>
    <message>
        <source>is the name of %1, too: the wall is made under another one</source>
        <translation>也是 %1 的名称: 该墙将以另一名称新建</translation>
    </message>
</context>
</TS>
