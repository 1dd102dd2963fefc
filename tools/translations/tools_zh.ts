<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>Texts</name>
    <message>
        <source>cannot read %1</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>cannot open %1</source>
        <translation>无法打开 %1</translation>
    </message>
    <message>
        <source>%1 is not JSON: it cannot be read from byte %2 on</source>
        <extracomment>%1 is what was read, %2 a number</extracomment>
        <translation>%1 不是 JSON：从第 %2 个字节起无法读取</translation>
    </message>
    <message>
        <source>nothing may follow the JSON object with the arguments</source>
        <translation>包含参数的 JSON 对象之后不能再有内容</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>the argument</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; is neither name=value nor a JSON object</source>
        <translation>参数“%1”既不是“名称=值”，也不是 JSON 对象</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; is given twice</source>
        <translation>参数“%1”重复</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; (%2)</source>
        <extracomment>%1 is the name, %2 the type</extracomment>
        <translation>参数“%1”（%2）</translation>
    </message>
    <message>
        <source>first byte after %1 ms, end after %2 ms</source>
        <extracomment>Times in milliseconds</extracomment>
        <translation>%1 毫秒后收到首字节，%2 毫秒后结束</translation>
    </message>
    <message>
        <source>Arguments: none</source>
        <translation>参数：无</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>参数：</translation>
    </message>
    <message>
        <source>Result: none</source>
        <translation>结果：无</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>结果：%1</translation>
    </message>
    <message>
        <source>there is no call &quot;%1&quot;; did you mean &quot;%2&quot;?</source>
        <translation>没有名为“%1”的调用；您是指“%2”吗？</translation>
    </message>
    <message>
        <source>there is no call &quot;%1&quot;; apicall --list names them</source>
        <translation>没有名为“%1”的调用；apicall --list 可列出全部调用</translation>
    </message>
    <message>
        <source>the server says %1</source>
        <extracomment>%1 is the server&apos;s own text in quotation marks</extracomment>
        <translation>服务器称 %1</translation>
    </message>
    <message>
        <source>the reply holds no readable %1</source>
        <extracomment>%1 is a key of a JSON object in quotation marks</extracomment>
        <translation>应答中没有可读的 %1</translation>
    </message>
    <message>
        <source>the server speaks no TLS on this port, which may be the one for http://</source>
        <translation>服务器在此端口不使用 TLS，该端口可能用于 http://</translation>
    </message>
    <message>
        <source>--server is missing</source>
        <translation>缺少 --server</translation>
    </message>
    <message>
        <source>--pin and --ca need a server with https://</source>
        <translation>--pin 和 --ca 需要 https:// 的服务器</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of this language, for the texts of error codes</extracomment>
        <translation>zh</translation>
    </message>
    <message>
        <source>%1 failed with %2: %3</source>
        <extracomment>%1 is the call, %2 a code, %3 its text</extracomment>
        <translation>%1 失败，代码 %2：%3</translation>
    </message>
    <message>
        <source>--merge: no call reads what %1 writes</source>
        <extracomment>%1 is a call</extracomment>
        <translation>--merge：没有调用读取 %1 所写入的内容</translation>
    </message>
    <message>
        <source>the result cannot be written</source>
        <translation>无法写出结果</translation>
    </message>
    <message>
        <source>no call is named; apicall --help tells how it is used</source>
        <translation>未指定调用；用法请见 apicall --help</translation>
    </message>
    <message>
        <source>Arguments of a call:
  name=value        a text as it stands, anything else as JSON
  name/field=value  a field of a record; name/0 is the first element of a list
  {&quot;name&quot;: value}   all of them in one JSON object; @FILE or - reads it from a file or from standard input

Examples:
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

Standard output carries the result alone, null for a call without one; log lines and errors go to standard error.
Exit status: 0 success, 1 failed call, 2 wrong usage.</source>
        <translation>调用的参数：
  名称=值          文本按原样给出，其他值写成 JSON
  名称/字段=值     记录的一个字段；名称/0 是列表的第一个元素
  {&quot;名称&quot;: 值}     全部参数写在一个 JSON 对象中；@文件 或 - 表示从文件或标准输入读取

示例：
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

标准输出只包含结果，没有结果的调用输出 null；日志和错误写到标准错误输出。
退出状态：0 成功，1 调用失败，2 用法错误。</translation>
    </message>
    <message>
        <source>Runs one call of the library against a platform server and prints its record as JSON.</source>
        <translation>对平台服务器执行库的一个调用，并以 JSON 输出其记录。</translation>
    </message>
    <message>
        <source>Print this help, or the arguments and the result of CALL</source>
        <translation>输出此帮助，或 CALL 的参数和结果</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>输出版本</translation>
    </message>
    <message>
        <source>List the calls</source>
        <translation>列出所有调用</translation>
    </message>
    <message>
        <source>Print names alone: of the calls, or of the arguments of CALL</source>
        <translation>只打印名称：所有调用的名称，或 CALL 的参数名称</translation>
    </message>
    <message>
        <source>Write log lines only when the call fails</source>
        <translation>仅在调用失败时输出日志行</translation>
    </message>
    <message>
        <source>Write request and reply to standard error, without the token</source>
        <translation>将请求和响应写到标准错误输出，不含令牌</translation>
    </message>
    <message>
        <source>Print the request, without the token, and send nothing</source>
        <translation>打印请求（不含令牌），不发送任何内容</translation>
    </message>
    <message>
        <source>For a call that writes: read what it replaces, change what ARGUMENT names, and write that</source>
        <translation>用于写入类调用：先读取将被替换的内容，修改 ARGUMENT 指定的部分，再写入</translation>
    </message>
    <message>
        <source>Platform server: https://host[:port] or http://host[:port]</source>
        <translation>平台服务器：https://主机[:端口] 或 http://主机[:端口]</translation>
    </message>
    <message>
        <source>Session token; the environment keeps it out of the process list</source>
        <translation>会话令牌；通过环境变量给出时不会出现在进程列表中</translation>
    </message>
    <message>
        <source>Trust only servers with this SHA-256 digest of their certificate or public key; repeatable</source>
        <translation>只信任证书或公钥具有此 SHA-256 摘要的服务器；可重复</translation>
    </message>
    <message>
        <source>DIGEST</source>
        <extracomment>Stands for the value of --pin</extracomment>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Trust only servers whose certificate an authority of this PEM file signed; repeatable</source>
        <translation>只信任证书由此 PEM 文件中的颁发机构签名的服务器；可重复</translation>
    </message>
    <message>
        <source>FILE</source>
        <extracomment>Stands for the value of --ca</extracomment>
        <translation>文件</translation>
    </message>
    <message>
        <source>Language of the server&apos;s texts, otherwise English, and of the error texts</source>
        <translation>服务器文本（默认英语）和错误文本的语言</translation>
    </message>
    <message>
        <source>Server identifier that the call is made with</source>
        <translation>调用所用的服务器标识</translation>
    </message>
    <message>
        <source>Longest wait, instead of the call&apos;s own 10 s</source>
        <translation>最长等待时间，代替调用自身的 10 秒</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <extracomment>Stands for the value of --timeout</extracomment>
        <translation>SECONDS</translation>
    </message>
    <message>
        <source>Name of the call</source>
        <translation>调用的名称</translation>
    </message>
    <message>
        <source>Arguments of the call</source>
        <translation>调用的参数</translation>
    </message>
    <message>
        <source>this is no URL</source>
        <translation>不是有效的 URL</translation>
    </message>
    <message>
        <source>it must begin with https:// or http://</source>
        <translation>必须以 https:// 或 http:// 开头</translation>
    </message>
    <message>
        <source>it names no host</source>
        <translation>没有主机名</translation>
    </message>
    <message>
        <source>only a host and a port may follow the scheme</source>
        <translation>协议之后只能是主机和端口</translation>
    </message>
    <message>
        <source>a SHA-256 digest has 64 hexadecimal digits, with or without colons</source>
        <translation>SHA-256 摘要有 64 个十六进制数字，可带冒号</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>无法读取该文件</translation>
    </message>
    <message>
        <source>the file holds no certificate in PEM</source>
        <translation>该文件中没有 PEM 格式的证书</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;: it takes none</source>
        <extracomment>%1 is a call</extracomment>
        <translation>%1 没有参数“%2”：此调用不接受参数</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;; did you mean &quot;%3&quot;?</source>
        <extracomment>%1 is a call, %3 the name of one of its arguments</extracomment>
        <translation>%1 没有参数“%2”；您是指“%3”吗？</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;: it takes %3</source>
        <extracomment>%1 is a call, %3 the names of its arguments</extracomment>
        <translation>%1 没有参数“%2”：此调用接受 %3</translation>
    </message>
    <message>
        <source>the arguments of %1 must be a JSON object that holds each under its name</source>
        <translation>%1 的参数必须是一个 JSON 对象，每个参数以其名称为键</translation>
    </message>
    <message>
        <source>%1 needs the argument &quot;%2&quot; (%3)</source>
        <extracomment>%1 is a call, %3 a type</extracomment>
        <translation>%1 需要参数“%2”（%3）</translation>
    </message>
    <message>
        <source>%1, which is read first, needs &quot;%2&quot; of %3</source>
        <extracomment>%1 is a call, %2 the argument that it needs, %3 another call, which the user runs</extracomment>
        <translation>首先要读取的 %1 需要 %3 的“%2”</translation>
    </message>
    <message>
        <source>/%1: %2 has no such place</source>
        <extracomment>%1 is a path such as /config/interval, %2 a type</extracomment>
        <translation>/%1：%2 没有这个位置</translation>
    </message>
    <message>
        <source>text</source>
        <extracomment>A type beside bool, int, int64 and double</extracomment>
        <translation>文本</translation>
    </message>
    <message>
        <source>list of %1</source>
        <extracomment>%1 is the type of its elements</extracomment>
        <translation>%1 列表</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>number that is no 64-bit integer</source>
        <translation>非 64 位整数的数字</translation>
    </message>
    <message>
        <source>list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>expected %1, got %2</source>
        <extracomment>Both are types</extracomment>
        <translation>应为 %1，实为 %2</translation>
    </message>
    <message>
        <source>%1 is out of the range of %2</source>
        <extracomment>%1 is a number, %2 a type</extracomment>
        <translation>%1 超出 %2 的范围</translation>
    </message>
    <message>
        <source>%1 has no such field</source>
        <extracomment>%1 is a type</extracomment>
        <translation>%1 没有此字段</translation>
    </message>
    <message>
        <source>key &apos;%1&apos; is there twice</source>
        <translation>键“%1”重复</translation>
    </message>
    <message>
        <source>%1: $ref is a text and stands alone</source>
        <translation>%1：$ref 必须是文本，且不能与其他键并列</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; names no file of the contract</source>
        <translation>%1：“%2”不是契约中的文件</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; leads back to itself</source>
        <translation>%1：“%2”循环引用</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; leads nowhere</source>
        <translation>%1：“%2”引用的目标不存在</translation>
    </message>
    <message>
        <source>%1: a schema is an object</source>
        <translation>%1：模式必须是对象</translation>
    </message>
    <message>
        <source>%1: draft 7 and 2020-12 do not share this keyword</source>
        <translation>%1：此关键字不是 draft 7 与 2020-12 共有的</translation>
    </message>
    <message>
        <source>%1: no reply has the code 1000</source>
        <translation>%1：没有代码为 1000 的应答</translation>
    </message>
    <message>
        <source>%1: operation &apos;%2&apos; is told twice</source>
        <translation>%1：操作“%2”重复定义</translation>
    </message>
    <message>
        <source>no operation in the contract folder %1</source>
        <translation>契约文件夹 %1 中没有任何操作</translation>
    </message>
    <message>
        <source>the port is taken</source>
        <translation>端口已被占用</translation>
    </message>
    <message>
        <source>this machine does not have the address</source>
        <translation>本机没有该地址</translation>
    </message>
    <message>
        <source>no permission for the port</source>
        <translation>没有使用该端口的权限</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>未知的地址</translation>
    </message>
    <message>
        <source>cannot listen on %1: %2</source>
        <translation>无法监听 %1：%2</translation>
    </message>
    <message>
        <source>platform-emulator: a platform server to develop and test against. It answers the services of the contract with state, over HTTP and HTTPS at once, and prints each address when it listens.</source>
        <translation>platform-emulator：用于开发和测试的平台服务器。它有状态地应答契约中的服务，同时支持 HTTP 和 HTTPS，并在开始监听时输出各个地址。</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>输出此帮助</translation>
    </message>
    <message>
        <source>Address to listen on</source>
        <translation>监听地址</translation>
    </message>
    <message>
        <source>Port for HTTP, 0 for any free one</source>
        <translation>HTTP 端口，0 表示任意空闲端口</translation>
    </message>
    <message>
        <source>Port for HTTPS, 0 for any free one</source>
        <translation>HTTPS 端口，0 表示任意空闲端口</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>Token that callers must send as X-Subject-Token (default: see docs/emulator.md); the environment keeps it out of the process list</source>
        <translation>调用方必须以 X-Subject-Token 发送的令牌（默认值见 docs/emulator.md）；通过环境变量给出时不会出现在进程列表中</translation>
    </message>
    <message>
        <source>Token that the control path asks for as X-Subject-Token (default: none)</source>
        <translation>控制路径以 X-Subject-Token 要求的令牌（默认无）</translation>
    </message>
    <message>
        <source>DIR</source>
        <extracomment>Stands for the value of --contract and of --seed</extracomment>
        <translation>DIR</translation>
    </message>
    <message>
        <source>Folder of the contract (default: ../share/apimodule/contract)</source>
        <translation>契约所在文件夹（默认：../share/apimodule/contract）</translation>
    </message>
    <message>
        <source>Folder of the seed data (default: ../share/apimodule/seed)</source>
        <translation>初始数据所在文件夹（默认：../share/apimodule/seed）</translation>
    </message>
    <message>
        <source>Makes the seeded lists so many times as long</source>
        <translation>将初始数据中的列表放大相应倍数</translation>
    </message>
    <message>
        <source>Seconds after which an idle connection, or one whose request does not end, is closed</source>
        <translation>空闲连接或请求未结束的连接在多少秒后关闭</translation>
    </message>
    <message>
        <source>Refuse the control path /emulator/v1/</source>
        <translation>拒绝访问控制路径 /emulator/v1/</translation>
    </message>
    <message>
        <source>Print a line for each request</source>
        <translation>为每个请求输出一行</translation>
    </message>
    <message>
        <source>no seed file in the folder %1</source>
        <translation>文件夹 %1 中没有初始数据文件</translation>
    </message>
    <message>
        <source>the server certificate cannot be made</source>
        <translation>无法生成服务器证书</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>用法</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>In &quot;Usage: apicall [OPTIONS]&quot;</extracomment>
        <translation>选项</translation>
    </message>
    <message>
        <source>Positionals</source>
        <extracomment>Heading over the arguments that are no options</extracomment>
        <translation>参数</translation>
    </message>
    <message>
        <source>Env</source>
        <extracomment>Before the name of an environment variable, short for &quot;environment&quot;</extracomment>
        <translation>环境变量</translation>
    </message>
    <message>
        <source>TEXT</source>
        <extracomment>Stands for the value of an option</extracomment>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Heading over the options</extracomment>
        <translation>选项</translation>
    </message>
    <message>
        <source>not expected: %1</source>
        <translation>多余的参数：%1</translation>
    </message>
    <message>
        <source>%1 takes exactly one value</source>
        <translation>%1 只接受一个值</translation>
    </message>
    <message>
        <source>cannot be used: %1</source>
        <extracomment>%1 is an option with its value</extracomment>
        <translation>无法使用：%1</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 不是 %2 到 %3 之间的整数</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>文件夹 %1 不存在</translation>
    </message>
</context>
<context>
    <name>catalogue::Call</name>
    <message>
        <source>System configuration</source>
        <translation>系统配置</translation>
    </message>
    <message>
        <source>Reads the time synchronisation settings</source>
        <translation>读取校时设置</translation>
    </message>
    <message>
        <source>Writes the time synchronisation settings</source>
        <translation>写入校时设置</translation>
    </message>
    <message>
        <source>Synchronises the time of all devices now</source>
        <translation>立即为所有设备校时</translation>
    </message>
    <message>
        <source>Reads the remote log settings</source>
        <translation>读取远程日志设置</translation>
    </message>
    <message>
        <source>Writes the remote log settings</source>
        <translation>写入远程日志设置</translation>
    </message>
    <message>
        <source>Reads the login model of devices</source>
        <translation>读取设备登录模式</translation>
    </message>
    <message>
        <source>Writes the login model of devices</source>
        <translation>写入设备登录模式</translation>
    </message>
    <message>
        <source>Reads whether messages are pushed to the mobile app</source>
        <translation>读取是否向手机应用推送消息</translation>
    </message>
    <message>
        <source>Switches the push of messages to the mobile app</source>
        <translation>开启或关闭向手机应用推送消息</translation>
    </message>
    <message>
        <source>Reads which outside databases are supported</source>
        <translation>读取支持的外部数据库类型</translation>
    </message>
    <message>
        <source>Reads one of the client&apos;s settings</source>
        <translation>读取客户端的一项设置</translation>
    </message>
    <message>
        <source>Writes the client&apos;s setting</source>
        <translation>写入客户端设置</translation>
    </message>
    <message>
        <source>Reads the AI privacy switch</source>
        <translation>读取 AI 隐私开关</translation>
    </message>
    <message>
        <source>Sets the AI privacy switch</source>
        <translation>设置 AI 隐私开关</translation>
    </message>
    <message>
        <source>Device and channel configuration</source>
        <translation>设备与通道配置</translation>
    </message>
    <message>
        <source>Reads the network settings of a device</source>
        <translation>读取设备的网络设置</translation>
    </message>
    <message>
        <source>Writes the network settings of a device</source>
        <translation>写入设备的网络设置</translation>
    </message>
    <message>
        <source>Reads the encoding of a channel&apos;s streams</source>
        <translation>读取通道各码流的编码设置</translation>
    </message>
    <message>
        <source>Writes the encoding of a channel&apos;s streams</source>
        <translation>写入通道各码流的编码设置</translation>
    </message>
    <message>
        <source>Reads what the encoder of a stream offers</source>
        <translation>读取码流的编码能力</translation>
    </message>
    <message>
        <source>Reads the image adjustment of a channel</source>
        <translation>读取通道的图像参数</translation>
    </message>
    <message>
        <source>Writes the image adjustment of a channel</source>
        <translation>写入通道的图像参数</translation>
    </message>
    <message>
        <source>Reads the multicast settings of a channel</source>
        <translation>读取通道的组播设置</translation>
    </message>
    <message>
        <source>Writes the multicast settings of a channel</source>
        <translation>写入通道的组播设置</translation>
    </message>
    <message>
        <source>Switches the multicast of one stream</source>
        <translation>开启或关闭一路码流的组播</translation>
    </message>
    <message>
        <source>Device control</source>
        <translation>设备控制</translation>
    </message>
    <message>
        <source>Starts the discovery of several devices</source>
        <translation>批量发现设备</translation>
    </message>
    <message>
        <source>Switches alarm outputs</source>
        <translation>控制报警输出</translation>
    </message>
    <message>
        <source>Switches audio-light alarms</source>
        <translation>控制声光报警</translation>
    </message>
    <message>
        <source>Lets IP speakers play audio files</source>
        <translation>让 IP 音柱播放音频文件</translation>
    </message>
    <message>
        <source>Server status warnings</source>
        <translation>服务器状态告警</translation>
    </message>
    <message>
        <source>Asks for a switch-over to the hot-spare server</source>
        <translation>查询是否已切换到热备服务器</translation>
    </message>
    <message>
        <source>Asks whether only the basic services were started</source>
        <translation>查询是否只启动了基础服务</translation>
    </message>
    <message>
        <source>Lists the servers with disks that raise warnings</source>
        <translation>列出有磁盘告警的服务器</translation>
    </message>
    <message>
        <source>Lists the servers that ran out of memory</source>
        <translation>列出内存不足的服务器</translation>
    </message>
    <message>
        <source>Lists the networks that the system knows</source>
        <translation>列出系统已知的网络</translation>
    </message>
    <message>
        <source>User groups</source>
        <translation>用户组</translation>
    </message>
    <message>
        <source>Lists the user groups</source>
        <translation>列出用户组</translation>
    </message>
    <message>
        <source>Reads one user group</source>
        <translation>读取一个用户组</translation>
    </message>
    <message>
        <source>Creates a user group</source>
        <translation>新建用户组</translation>
    </message>
    <message>
        <source>Renames or describes a user group</source>
        <translation>修改用户组的名称或说明</translation>
    </message>
    <message>
        <source>Moves users into one group</source>
        <translation>将用户移入一个用户组</translation>
    </message>
    <message>
        <source>Empties a user group</source>
        <translation>清空用户组</translation>
    </message>
    <message>
        <source>Deletes user groups</source>
        <translation>删除用户组</translation>
    </message>
    <message>
        <source>Quick commands</source>
        <translation>快捷指令</translation>
    </message>
    <message>
        <source>Creates a quick command</source>
        <translation>新建快捷指令</translation>
    </message>
    <message>
        <source>Changes a quick command</source>
        <translation>修改快捷指令</translation>
    </message>
    <message>
        <source>Deletes quick commands</source>
        <translation>删除快捷指令</translation>
    </message>
    <message>
        <source>Reads one quick command</source>
        <translation>读取一条快捷指令</translation>
    </message>
    <message>
        <source>Lists the quick commands</source>
        <translation>列出快捷指令</translation>
    </message>
    <message>
        <source>Lists the quick commands of an alarm plan</source>
        <translation>列出报警预案的快捷指令</translation>
    </message>
    <message>
        <source>Alarm and event information</source>
        <translation>报警与事件信息</translation>
    </message>
    <message>
        <source>Reads one page of the alarm plans</source>
        <translation>分页读取报警预案</translation>
    </message>
    <message>
        <source>Reads what an alarm sets off</source>
        <translation>读取报警的联动内容</translation>
    </message>
    <message>
        <source>Reads the map layer on which an alarm resource lies</source>
        <translation>读取报警资源所在的地图图层</translation>
    </message>
    <message>
        <source>Reads the recorded files of an alarm</source>
        <translation>读取报警的录制文件</translation>
    </message>
    <message>
        <source>Asks for the state of an audio file task</source>
        <translation>查询音频文件任务的状态</translation>
    </message>
    <message>
        <source>Lists the event types of plug-in logs</source>
        <translation>列出插件日志的事件类型</translation>
    </message>
    <message>
        <source>Lists the general events</source>
        <translation>列出通用事件</translation>
    </message>
    <message>
        <source>Account and web access</source>
        <translation>账户与网页访问</translation>
    </message>
    <message>
        <source>Asks where the web page of a channel is reached</source>
        <translation>查询通道网页的访问地址</translation>
    </message>
    <message>
        <source>Asks how to log in to the web page of a channel</source>
        <translation>查询通道网页的登录方式</translation>
    </message>
    <message>
        <source>Asks whether a channel&apos;s web page may be opened</source>
        <translation>查询是否允许打开通道的网页</translation>
    </message>
    <message>
        <source>Asks whether a device&apos;s web page may be opened</source>
        <translation>查询是否允许打开设备的网页</translation>
    </message>
    <message>
        <source>Asks whether a menu is available</source>
        <translation>查询菜单是否可用</translation>
    </message>
    <message>
        <source>Has a token derived from the account&apos;s session</source>
        <translation>由账户会话派生令牌</translation>
    </message>
    <message>
        <source>Reads what the account may use</source>
        <translation>读取账户可使用的资源</translation>
    </message>
    <message>
        <source>Asks whether the account may use a function on a channel</source>
        <translation>查询账户能否使用通道的某项功能</translation>
    </message>
    <message>
        <source>Counts the devices of each category</source>
        <translation>统计各类别的设备数量</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>云台</translation>
    </message>
    <message>
        <source>Switches the wash function of a channel on</source>
        <translation>开启通道的清洗功能</translation>
    </message>
    <message>
        <source>Switches the wash function of several channels on</source>
        <translation>批量开启通道的清洗功能</translation>
    </message>
    <message>
        <source>Makes the position of a channel its home position</source>
        <translation>将通道的当前位置设为守望位</translation>
    </message>
    <message>
        <source>Moves a channel to its home position</source>
        <translation>将通道转到守望位</translation>
    </message>
    <message>
        <source>Analysis tasks</source>
        <translation>分析任务</translation>
    </message>
    <message>
        <source>Marks the file uploads of tasks as failed</source>
        <translation>将任务的文件上传标记为失败</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>停车场</translation>
    </message>
    <message>
        <source>Lists parking lots with their positions and points</source>
        <translation>列出停车场及其位置和点位</translation>
    </message>
    <message>
        <source>Lists parking lots with their spaces and channels</source>
        <translation>列出停车场及其车位和通道</translation>
    </message>
    <message>
        <source>Lists the organisations of the parking lots</source>
        <translation>列出停车场的组织</translation>
    </message>
    <message>
        <source>Corrects the plate number of a capture record</source>
        <translation>修正抓拍记录的车牌号</translation>
    </message>
    <message>
        <source>Access-control persons and rules</source>
        <translation>门禁人员与规则</translation>
    </message>
    <message>
        <source>Reads one page of the persons with access</source>
        <translation>分页读取已授权的人员</translation>
    </message>
    <message>
        <source>Lists the persons managed on a device</source>
        <translation>列出设备上的管理人员</translation>
    </message>
    <message>
        <source>Replaces the persons managed on a device</source>
        <translation>替换设备上的管理人员</translation>
    </message>
    <message>
        <source>Lists the rules of an access point</source>
        <translation>列出门禁点的规则</translation>
    </message>
    <message>
        <source>Resets the anti-pass time of a person</source>
        <translation>重置人员的反潜回时间</translation>
    </message>
    <message>
        <source>Cards, intercom and alarm hosts</source>
        <translation>卡片、对讲与报警主机</translation>
    </message>
    <message>
        <source>Reads the card configuration</source>
        <translation>读取卡片配置</translation>
    </message>
    <message>
        <source>Writes the card configuration</source>
        <translation>写入卡片配置</translation>
    </message>
    <message>
        <source>Reads one page of the devices that failed to take the card configuration</source>
        <translation>分页读取卡片配置下发失败的设备</translation>
    </message>
    <message>
        <source>Sends the card configuration to those devices again</source>
        <translation>向这些设备重新下发卡片配置</translation>
    </message>
    <message>
        <source>Deletes contacts of an outdoor station</source>
        <translation>删除门口机的联系人</translation>
    </message>
    <message>
        <source>Has a snapshot taken of an alarm host&apos;s zone</source>
        <translation>对报警主机的防区抓图</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>运维</translation>
    </message>
    <message>
        <source>Lists the alert types</source>
        <translation>列出告警类型</translation>
    </message>
    <message>
        <source>Reads the maintenance view of a channel</source>
        <translation>读取通道的运维信息</translation>
    </message>
    <message>
        <source>Reads the maintenance view of a device</source>
        <translation>读取设备的运维信息</translation>
    </message>
</context>
</TS>
