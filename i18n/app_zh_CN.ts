<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AdminAnalytics</name>
    <message>
        <source>Revenue Today</source>
        <translation>今日营业额</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>订单数</translation>
    </message>
    <message>
        <source>Average Order</source>
        <translation>单均金额</translation>
    </message>
    <message>
        <source>Items Sold</source>
        <translation>售出份数</translation>
    </message>
    <message>
        <source>Top Items Today</source>
        <translation>今日热销</translation>
    </message>
    <message>
        <source>Revenue by Hour</source>
        <translation>每小时营业额</translation>
    </message>
    <message>
        <source>Last 7 Days Revenue</source>
        <translation>近 7 天营业额</translation>
    </message>
</context>
<context>
    <name>AdminDatabaseSettings</name>
    <message>
        <source>Database backup created successfully.</source>
        <translation>数据库备份成功。</translation>
    </message>
    <message>
        <source>Failed to create database backup.</source>
        <translation>数据库备份失败。</translation>
    </message>
    <message>
        <source>Database restored successfully.</source>
        <translation>数据库恢复成功。</translation>
    </message>
    <message>
        <source>Failed to restore database.</source>
        <translation>数据库恢复失败。</translation>
    </message>
    <message>
        <source>Database moved successfully.</source>
        <translation>数据库移动成功。</translation>
    </message>
    <message>
        <source>Failed to move database.</source>
        <translation>数据库移动失败。</translation>
    </message>
    <message>
        <source>Database Settings</source>
        <translation>数据库设置</translation>
    </message>
    <message>
        <source>Current Database</source>
        <translation>当前数据库</translation>
    </message>
    <message>
        <source>This database contains restaurant information, orders, memberships, tables, reservations, application settings and other operational data.</source>
        <translation>此数据库保存餐厅信息、订单、会员、餐桌、预订、程序设置及其他营业数据。</translation>
    </message>
    <message>
        <source>Database Management</source>
        <translation>数据库管理</translation>
    </message>
    <message>
        <source>Backups are stored in a &apos;backups&apos; folder next to the database file.</source>
        <translation>备份保存在数据库文件旁的“backups”文件夹中。</translation>
    </message>
    <message>
        <source>Backup Database</source>
        <translation>备份数据库</translation>
    </message>
    <message>
        <source>Restore Database</source>
        <translation>恢复数据库</translation>
    </message>
    <message>
        <source>Move Database</source>
        <translation>移动数据库</translation>
    </message>
    <message>
        <source>Select Restore Database File</source>
        <translation>选择用于恢复的数据库文件</translation>
    </message>
    <message>
        <source>Select New Database Location</source>
        <translation>选择新的数据库位置</translation>
    </message>
    <message>
        <source>The database will be moved from its current location to the following location:</source>
        <translation>数据库将从当前位置移动到以下位置：</translation>
    </message>
    <message>
        <source>Current Location</source>
        <translation>当前位置</translation>
    </message>
    <message>
        <source>New Location</source>
        <translation>新位置</translation>
    </message>
    <message>
        <source>App will restart after moving.</source>
        <translation>移动后程序将重新启动。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>This will replace the current database and restart the application. It is recommended a backup to be created before restoration.</source>
        <translation>此操作将替换当前数据库并重新启动程序。建议在恢复前先备份。</translation>
    </message>
    <message>
        <source>Make sure you selected the correct restore file.</source>
        <translation>请确认所选的恢复文件正确无误。</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
</context>
<context>
    <name>AdminFloorPlanManagement</name>
    <message>
        <source>Delete Floor</source>
        <translation>删除楼层</translation>
    </message>
    <message>
        <source>Create Floor</source>
        <translation>新建楼层</translation>
    </message>
    <message>
        <source>Floor Name</source>
        <translation>楼层名称</translation>
    </message>
    <message>
        <source>Enter Floor Name</source>
        <translation>请输入楼层名称</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Create Table</source>
        <translation>新建餐桌</translation>
    </message>
    <message>
        <source>Table Label</source>
        <translation>桌号</translation>
    </message>
    <message>
        <source>Enter Table Label</source>
        <translation>请输入桌号</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>餐桌</translation>
    </message>
    <message>
        <source>Number Of Seats</source>
        <translation>座位数</translation>
    </message>
    <message>
        <source>Type Of Table</source>
        <translation>餐桌类型</translation>
    </message>
    <message>
        <source>Square Table</source>
        <translation>方桌</translation>
    </message>
    <message>
        <source>Rectangle Table</source>
        <translation>长桌</translation>
    </message>
    <message>
        <source>Circle Table</source>
        <translation>圆桌</translation>
    </message>
    <message>
        <source>+ New Floor</source>
        <translation>+ 新建楼层</translation>
    </message>
    <message>
        <source>Add Table</source>
        <translation>添加餐桌</translation>
    </message>
    <message>
        <source>Add Divider</source>
        <translation>添加隔断</translation>
    </message>
</context>
<context>
    <name>AdminKitchenSettings</name>
    <message>
        <source>Failed to save kitchen settings.</source>
        <translation>保存厨房设置失败。</translation>
    </message>
    <message>
        <source>Kitchen Settings</source>
        <translation>厨房设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Kitchen Workflow</source>
        <translation>厨房流程</translation>
    </message>
    <message>
        <source>Kitchen Mode</source>
        <translation>厨房模式</translation>
    </message>
    <message>
        <source>No kitchen system</source>
        <translation>不使用厨房系统</translation>
    </message>
    <message>
        <source>Kitchen Display System (KDS)</source>
        <translation>厨房显示屏（KDS）</translation>
    </message>
    <message>
        <source>Kitchen ticket printing</source>
        <translation>打印厨房单</translation>
    </message>
    <message>
        <source>KDS + ticket printing</source>
        <translation>厨房显示屏 + 打印厨房单</translation>
    </message>
    <message>
        <source>Kitchen Ticket Printing</source>
        <translation>厨房单打印</translation>
    </message>
    <message>
        <source>Print Ticket When</source>
        <translation>打印时机</translation>
    </message>
    <message>
        <source>Order is created</source>
        <translation>下单时</translation>
    </message>
    <message>
        <source>Manual only</source>
        <translation>仅手动</translation>
    </message>
    <message>
        <source>Checkout Rules</source>
        <translation>结账规则</translation>
    </message>
    <message>
        <source>Require kitchen ready before checkout</source>
        <translation>上菜后才能结账</translation>
    </message>
    <message>
        <source>Order Modification</source>
        <translation>订单修改</translation>
    </message>
    <message>
        <source>Allow edits after order creation</source>
        <translation>允许下单后修改订单</translation>
    </message>
</context>
<context>
    <name>AdminManagementSidebar</name>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Floor Plan</source>
        <translation>平面图</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>餐桌</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>会员</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
</context>
<context>
    <name>AdminMembersManagement</name>
    <message>
        <source>Member Management</source>
        <translation>会员管理</translation>
    </message>
    <message>
        <source>Search phone number</source>
        <translation>搜索电话号码</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>电话号码</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>积分</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Member Phone: %1</source>
        <translation>会员电话：%1</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>积分：%1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>积分记录</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Earn</source>
        <translation>获得</translation>
    </message>
    <message>
        <source>Redeem</source>
        <translation>兑换</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
</context>
<context>
    <name>AdminMembershipSettings</name>
    <message>
        <source>Failed to save membership settings.</source>
        <translation>保存会员设置失败。</translation>
    </message>
    <message>
        <source>Membership Settings</source>
        <translation>会员设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Enable Points Loyalty</source>
        <translation>启用会员积分</translation>
    </message>
    <message>
        <source>Earning Rules</source>
        <translation>积分获得规则</translation>
    </message>
    <message>
        <source>Earn</source>
        <translation>获得</translation>
    </message>
    <message>
        <source>point(s) for every %1</source>
        <translation>积分，每消费 %1</translation>
    </message>
    <message>
        <source>spent</source>
        <translation>计一次</translation>
    </message>
    <message>
        <source>Earn Based On</source>
        <translation>积分计算依据</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>小计</translation>
    </message>
    <message>
        <source>Redemption Rules</source>
        <translation>积分兑换规则</translation>
    </message>
    <message>
        <source>Redemption</source>
        <translation>兑换</translation>
    </message>
    <message>
        <source>points = %1</source>
        <translation>积分 = %1</translation>
    </message>
</context>
<context>
    <name>AdminMenuManagement</name>
    <message>
        <source>Are you sure you want to delete &quot;%1&quot;? All menu items within &quot;%1&quot; will be deleted.</source>
        <translation>确定要删除“%1”吗？“%1”中的所有菜品都将被删除。</translation>
    </message>
    <message>
        <source>Delete Category</source>
        <translation>删除分类</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>删除菜品</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &quot;%1&quot;?</source>
        <translation>确定要删除“%1”吗？</translation>
    </message>
    <message>
        <source>Menu Items</source>
        <translation>菜品</translation>
    </message>
    <message>
        <source>Select a category</source>
        <translation>请选择分类</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>菜品</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>价格</translation>
    </message>
    <message>
        <source>Portion</source>
        <translation>份量</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>在售</translation>
    </message>
    <message>
        <source>Taxable</source>
        <translation>应税</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Item Name</source>
        <translation>菜品名称</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>分类</translation>
    </message>
    <message>
        <source>New category name</source>
        <translation>新分类名称</translation>
    </message>
    <message>
        <source>Add Category</source>
        <translation>添加分类</translation>
    </message>
    <message>
        <source>Item name</source>
        <translation>菜品名称</translation>
    </message>
    <message>
        <source>Portion (optional)</source>
        <translation>份量（选填）</translation>
    </message>
    <message>
        <source>Add Menu Item</source>
        <translation>添加菜品</translation>
    </message>
</context>
<context>
    <name>AdminPrinterSettings</name>
    <message>
        <source>Receipt Printer</source>
        <translation>收据打印机</translation>
    </message>
    <message>
        <source>Kitchen Printer</source>
        <translation>厨房打印机</translation>
    </message>
    <message>
        <source>Receipt + Kitchen Printer</source>
        <translation>收据 + 厨房打印机</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Failed to remove printer</source>
        <translation>移除打印机失败</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>+ Add Printer</source>
        <translation>+ 添加打印机</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>No printers found</source>
        <translation>未找到打印机</translation>
    </message>
    <message>
        <source>Select a printer</source>
        <translation>请选择打印机</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>收据</translation>
    </message>
    <message>
        <source>Kitchen Ticket</source>
        <translation>厨房单</translation>
    </message>
    <message>
        <source>Receipt + Kitchen Ticket</source>
        <translation>收据 + 厨房单</translation>
    </message>
    <message>
        <source>Paper Width</source>
        <translation>纸张宽度</translation>
    </message>
    <message>
        <source>58 mm</source>
        <translation>58 毫米</translation>
    </message>
    <message>
        <source>80 mm</source>
        <translation>80 毫米</translation>
    </message>
    <message>
        <source>Cut Mode</source>
        <translation>切纸方式</translation>
    </message>
    <message>
        <source>Full Cut</source>
        <translation>全切</translation>
    </message>
    <message>
        <source>Partial Cut</source>
        <translation>半切</translation>
    </message>
    <message>
        <source>None</source>
        <translation>不切纸</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Test Printer</source>
        <translation>测试打印机</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>保存修改</translation>
    </message>
    <message>
        <source>Add Printer</source>
        <translation>添加打印机</translation>
    </message>
</context>
<context>
    <name>AdminRegionalSettings</name>
    <message>
        <source>Failed to save regional settings.</source>
        <translation>保存地区设置失败。</translation>
    </message>
    <message>
        <source>Region &amp; Format Settings</source>
        <translation>地区与格式设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Region &amp; Language</source>
        <translation>地区与语言</translation>
    </message>
    <message>
        <source>App Language</source>
        <translation>界面语言</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>货币</translation>
    </message>
</context>
<context>
    <name>AdminSettingsSidebar</name>
    <message>
        <source>Restaurant</source>
        <translation>餐厅</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>餐桌</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>税</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>会员</translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation>厨房</translation>
    </message>
    <message>
        <source>Region &amp; Formats</source>
        <translation>地区与格式</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>数据库</translation>
    </message>
</context>
<context>
    <name>AdminSidebar</name>
    <message>
        <source>Take Order</source>
        <translation>点单</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>结账</translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation>厨房</translation>
    </message>
    <message>
        <source>Analytics</source>
        <translation>营业分析</translation>
    </message>
    <message>
        <source>Tax Reports</source>
        <translation>税务报表</translation>
    </message>
    <message>
        <source>Management</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>AdminStoreSettings</name>
    <message>
        <source>Failed to save restaurant settings.</source>
        <translation>保存餐厅设置失败。</translation>
    </message>
    <message>
        <source>Restaurant Settings</source>
        <translation>餐厅设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Basic Information</source>
        <translation>基本信息</translation>
    </message>
    <message>
        <source>Restaurant Name</source>
        <translation>餐厅名称</translation>
    </message>
    <message>
        <source>Enter Restaurant Name</source>
        <translation>请输入餐厅名称</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Enter Address</source>
        <translation>请输入地址</translation>
    </message>
    <message>
        <source>Phone Number (optional)</source>
        <translation>电话号码（选填）</translation>
    </message>
    <message>
        <source>Enter Phone Number</source>
        <translation>请输入电话号码</translation>
    </message>
    <message>
        <source>Email (optional)</source>
        <translation>邮箱（选填）</translation>
    </message>
    <message>
        <source>Enter Email</source>
        <translation>请输入邮箱</translation>
    </message>
    <message>
        <source>Website (optional)</source>
        <translation>网址（选填）</translation>
    </message>
    <message>
        <source>Enter Website</source>
        <translation>请输入网址</translation>
    </message>
</context>
<context>
    <name>AdminTableManagement</name>
    <message>
        <source>Are you sure you want to delete table &quot;%1&quot;?</source>
        <translation>确定要删除餐桌“%1”吗？</translation>
    </message>
    <message>
        <source>Table Management</source>
        <translation>餐桌管理</translation>
    </message>
    <message>
        <source>Table Name</source>
        <translation>桌号</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>座位数</translation>
    </message>
    <message>
        <source>Table name</source>
        <translation>桌号</translation>
    </message>
    <message>
        <source>Add Table</source>
        <translation>添加餐桌</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>AdminTableSettings</name>
    <message>
        <source>Failed to save table settings.</source>
        <translation>保存餐桌设置失败。</translation>
    </message>
    <message>
        <source>Table Settings</source>
        <translation>餐桌设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Table Layout</source>
        <translation>餐桌布局</translation>
    </message>
    <message>
        <source>Layout Mode</source>
        <translation>布局方式</translation>
    </message>
    <message>
        <source>Simple Layout</source>
        <translation>简单布局</translation>
    </message>
    <message>
        <source>Visual Floor Plan</source>
        <translation>可视化平面图</translation>
    </message>
    <message>
        <source>Visual floor plans allow tables to be positioned freely and support advanced restaurant layouts.</source>
        <translation>可视化平面图可自由摆放餐桌，适合较复杂的餐厅布局。</translation>
    </message>
</context>
<context>
    <name>AdminTaxReports</name>
    <message>
        <source>Tax Report</source>
        <translation>税务报表</translation>
    </message>
    <message>
        <source>Select a date range</source>
        <translation>请选择日期范围</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>This Week</source>
        <translation>本周</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>本月</translation>
    </message>
    <message>
        <source>Last Month</source>
        <translation>上月</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Sales Before Tax</source>
        <translation>税前销售额</translation>
    </message>
    <message>
        <source>Tax Collected</source>
        <translation>已收税额</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>折扣</translation>
    </message>
    <message>
        <source>Total Sales</source>
        <translation>总销售额</translation>
    </message>
    <message>
        <source>transactions</source>
        <translation>笔交易</translation>
    </message>
    <message>
        <source>Daily Breakdown</source>
        <translation>每日明细</translation>
    </message>
    <message>
        <source>No data for this period</source>
        <translation>此期间没有数据</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>交易</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>小计</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>税</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>No transactions for this period</source>
        <translation>此期间没有交易</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>收据号</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>用餐方式</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>桌号</translation>
    </message>
    <message>
        <source>Closed At</source>
        <translation>结账时间</translation>
    </message>
</context>
<context>
    <name>AdminTaxSettings</name>
    <message>
        <source>Failed to save tax settings.</source>
        <translation>保存税务设置失败。</translation>
    </message>
    <message>
        <source>Tax Settings</source>
        <translation>税务设置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Enable Tax</source>
        <translation>启用税</translation>
    </message>
    <message>
        <source>Tax Name</source>
        <translation>税名</translation>
    </message>
    <message>
        <source>e.g. Sales Tax</source>
        <translation>例如：增值税</translation>
    </message>
    <message>
        <source>Tax Rate (%)</source>
        <translation>税率（%）</translation>
    </message>
    <message>
        <source>Registration Number</source>
        <translation>注册号</translation>
    </message>
</context>
<context>
    <name>AdminUserManagement</name>
    <message>
        <source>Deactivate User</source>
        <translation>停用用户</translation>
    </message>
    <message>
        <source>Deactivate &quot;%1&quot;?</source>
        <translation>要停用“%1”吗？</translation>
    </message>
    <message>
        <source>User Management</source>
        <translation>用户管理</translation>
    </message>
    <message>
        <source>Create User</source>
        <translation>新建用户</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Deactivate</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>确认密码</translation>
    </message>
    <message>
        <source>Admin</source>
        <translation>管理员</translation>
    </message>
    <message>
        <source>Service Staff</source>
        <translation>服务员</translation>
    </message>
    <message>
        <source>Kitchen Staff</source>
        <translation>厨房员工</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Edit User</source>
        <translation>修改用户</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>修改密码</translation>
    </message>
    <message>
        <source>Old Password</source>
        <translation>旧密码</translation>
    </message>
    <message>
        <source>New Password</source>
        <translation>新密码</translation>
    </message>
    <message>
        <source>Confirm New Password</source>
        <translation>确认新密码</translation>
    </message>
</context>
<context>
    <name>Checkout</name>
    <message>
        <source>Order </source>
        <translation>订单 </translation>
    </message>
    <message>
        <source>SERVED</source>
        <translation>已上菜</translation>
    </message>
    <message>
        <source>PENDING</source>
        <translation>未上菜</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>菜品</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单价</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>Member Phone (optional)</source>
        <translation>会员电话（选填）</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>Current Points: </source>
        <translation>当前积分：</translation>
    </message>
    <message>
        <source>New member will be created</source>
        <translation>将新建会员</translation>
    </message>
    <message>
        <source>Points to Earn: +</source>
        <translation>可获得积分：+</translation>
    </message>
    <message>
        <source>Redeem All</source>
        <translation>全部兑换</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Order #</source>
        <translation>订单 #</translation>
    </message>
    <message>
        <source>Subtotal: </source>
        <translation>小计：</translation>
    </message>
    <message>
        <source>Tax: </source>
        <translation>税：</translation>
    </message>
    <message>
        <source>Discount: -</source>
        <translation>折扣：-</translation>
    </message>
    <message>
        <source>Total: </source>
        <translation>总计：</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>结账</translation>
    </message>
    <message>
        <source>Reprint Receipt</source>
        <translation>补印收据</translation>
    </message>
    <message>
        <source>Table </source>
        <translation>餐桌 </translation>
    </message>
    <message>
        <source>Recent Paid Orders</source>
        <translation>最近已结账订单</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>确定吗？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>FloorCanvas</name>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>No floors yet. Press + New Floor to draw the first one.</source>
        <translation>还没有楼层。请按“+ 新建楼层”绘制第一个楼层。</translation>
    </message>
    <message>
        <source>No members yet. A phone number typed under Checkout becomes a member with the payment.</source>
        <translation>还没有会员。结账时输入的电话号码随付款成为会员。</translation>
    </message>
    <message>
        <source>No member has this number.</source>
        <translation>没有此号码的会员。</translation>
    </message>
    <message>
        <source>No dishes in this category yet. Type a name and a price below, then press Add Menu Item.</source>
        <translation>此分类还没有菜品。请在下方输入名称和价格，然后按“添加菜品”。</translation>
    </message>
    <message>
        <source>No tables yet. Type a name below, then press Add Table.</source>
        <translation>还没有餐桌。请在下方输入桌号，然后按“添加餐桌”。</translation>
    </message>
    <message>
        <source>No points earned or redeemed yet.</source>
        <translation>还没有积分记录。</translation>
    </message>
    <message>
        <source>No categories yet. Type a name below, then press Add Category.</source>
        <translation>还没有分类。请在下方输入名称，然后按“添加分类”。</translation>
    </message>
    <message>
        <source>No printers yet. Press + Add Printer to choose one.</source>
        <translation>还没有打印机。请按“+ 添加打印机”选择一台。</translation>
    </message>
    <message>
        <source>No open bills. An order that is placed opens one.</source>
        <translation>没有未结账单。下单后账单显示在这里。</translation>
    </message>
    <message>
        <source>Nothing paid yet. An order appears here once it is paid.</source>
        <translation>还没有已结账订单。结账后订单显示在这里。</translation>
    </message>
    <message>
        <source>New orders appear here.</source>
        <translation>新订单显示在这里。</translation>
    </message>
    <message>
        <source>No floors yet. An administrator draws them under Management › Floor Plan.</source>
        <translation>还没有楼层。请管理员在“管理 › 平面图”中绘制。</translation>
    </message>
    <message>
        <source>No order can be edited. Press New Order to take one.</source>
        <translation>没有可修改的订单。请按“新建订单”点单。</translation>
    </message>
    <message>
        <source>No dishes yet. An administrator writes the menu under Management › Menu.</source>
        <translation>还没有菜品。请管理员在“管理 › 菜单”中添加。</translation>
    </message>
    <message>
        <source>No dishes in this category yet. An administrator adds them under Management › Menu.</source>
        <translation>此分类还没有菜品。请管理员在“管理 › 菜单”中添加。</translation>
    </message>
    <message>
        <source>Choose a category, then press Add beside a dish.</source>
        <translation>请选择分类，然后按菜品旁的“添加”。</translation>
    </message>
    <message>
        <source>No tables yet. An administrator lists them under Management › Table.</source>
        <translation>还没有餐桌。请管理员在“管理 › 餐桌”中添加。</translation>
    </message>
</context>
<context>
    <name>KitchenOrders</name>
    <message>
        <source>NOTE: </source>
        <translation>备注：</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>新订单</translation>
    </message>
    <message>
        <source>START</source>
        <translation>开始制作</translation>
    </message>
    <message>
        <source>PREPARING</source>
        <translation>制作中</translation>
    </message>
    <message>
        <source>MARK READY</source>
        <translation>制作完成</translation>
    </message>
    <message>
        <source>READY</source>
        <translation>待上菜</translation>
    </message>
    <message>
        <source>SERVE</source>
        <translation>上菜</translation>
    </message>
</context>
<context>
    <name>Login</name>
    <message>
        <source>Invalid username or password.</source>
        <translation>用户名或密码错误。</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Enter username</source>
        <translation>请输入用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Enter password</source>
        <translation>请输入密码</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
</context>
<context>
    <name>OrderEditor</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Takeaway Order</source>
        <translation>打包订单</translation>
    </message>
    <message>
        <source>Delivery Order</source>
        <translation>外卖订单</translation>
    </message>
    <message>
        <source>Takeaway</source>
        <translation>打包</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>外卖</translation>
    </message>
    <message>
        <source>Dine In</source>
        <translation>堂食</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>分类</translation>
    </message>
    <message>
        <source>Menu Items</source>
        <translation>菜品</translation>
    </message>
    <message>
        <source>Select a category</source>
        <translation>请选择分类</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>菜品</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>价格</translation>
    </message>
    <message>
        <source>Portion</source>
        <translation>份量</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>停售</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Current Order</source>
        <translation>当前订单</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Items:</source>
        <translation>份数：</translation>
    </message>
    <message>
        <source>Subtotal:</source>
        <translation>小计：</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>总计：</translation>
    </message>
    <message>
        <source>Update Order</source>
        <translation>更新订单</translation>
    </message>
    <message>
        <source>Place Order</source>
        <translation>下单</translation>
    </message>
</context>
<context>
    <name>OrderTakingFloorPlan</name>
    <message>
        <source>Reservation Details</source>
        <translation>预订详情</translation>
    </message>
    <message>
        <source>Customer: </source>
        <translation>客人：</translation>
    </message>
    <message>
        <source>Phone: </source>
        <translation>电话：</translation>
    </message>
    <message>
        <source>Guests: </source>
        <translation>人数：</translation>
    </message>
    <message>
        <source>Time: </source>
        <translation>时间：</translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>时长：</translation>
    </message>
    <message>
        <source> mins</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>Status: </source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Notes: </source>
        <translation>备注：</translation>
    </message>
    <message>
        <source>Update Reservation</source>
        <translation>更新预订</translation>
    </message>
    <message>
        <source>Cancel Reservation</source>
        <translation>取消预订</translation>
    </message>
    <message>
        <source>Create Reservation</source>
        <translation>新建预订</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>客人姓名</translation>
    </message>
    <message>
        <source>Customer Phone</source>
        <translation>客人电话</translation>
    </message>
    <message>
        <source>Number Of Guests</source>
        <translation>人数</translation>
    </message>
    <message>
        <source>Reservation Date</source>
        <translation>预订日期</translation>
    </message>
    <message>
        <source>Reservation Time</source>
        <translation>预订时间</translation>
    </message>
    <message>
        <source>Duration (minutes)</source>
        <translation>时长（分钟）</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Enter notes</source>
        <translation>请输入备注</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Table Session</source>
        <translation>餐桌信息</translation>
    </message>
    <message>
        <source>Select a table for dine in</source>
        <translation>请选择堂食餐桌</translation>
    </message>
    <message>
        <source>Quick Orders</source>
        <translation>快速下单</translation>
    </message>
    <message>
        <source>Takeaway</source>
        <translation>打包</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>外卖</translation>
    </message>
    <message>
        <source>Unknown Table</source>
        <translation>未知餐桌</translation>
    </message>
    <message>
        <source>Capacity: </source>
        <translation>座位数：</translation>
    </message>
    <message>
        <source>Create Dine-In Order</source>
        <translation>新建堂食订单</translation>
    </message>
</context>
<context>
    <name>OrderTakingSimple</name>
    <message>
        <source>Dine In</source>
        <translation>堂食</translation>
    </message>
    <message>
        <source>Takeaway</source>
        <translation>打包</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>外卖</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>分类</translation>
    </message>
    <message>
        <source>Menu Items</source>
        <translation>菜品</translation>
    </message>
    <message>
        <source>Select a category</source>
        <translation>请选择分类</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>菜品</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>价格</translation>
    </message>
    <message>
        <source>Portion</source>
        <translation>份量</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>停售</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>New Order</source>
        <translation>新建订单</translation>
    </message>
    <message>
        <source>Edit Order</source>
        <translation>修改订单</translation>
    </message>
    <message>
        <source>Print Ticket</source>
        <translation>打印厨房单</translation>
    </message>
    <message>
        <source>Current Order</source>
        <translation>当前订单</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>餐桌</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Add a remark</source>
        <translation>添加备注</translation>
    </message>
    <message>
        <source>Total Items:</source>
        <translation>总份数：</translation>
    </message>
    <message>
        <source>Subtotal:</source>
        <translation>小计：</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>总计：</translation>
    </message>
    <message>
        <source>Place Order</source>
        <translation>下单</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 Reg. No.: %2</source>
        <translation>%1注册号：%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Balance After: %1</source>
        <translation>Balance After: %1</translation>
    </message>
    <message>
        <source>Balance Before: %1</source>
        <translation>Balance Before: %1</translation>
    </message>
    <message>
        <source>Cashier: %1</source>
        <translation>收银员：%1</translation>
    </message>
    <message>
        <source>Cut Mode: %1</source>
        <translation>切纸方式: %1</translation>
    </message>
    <message>
        <source>Date: %1 %2</source>
        <translation>日期：%1 %2</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>外卖</translation>
    </message>
    <message>
        <source>Dine In</source>
        <translation>堂食</translation>
    </message>
    <message>
        <source>Dine In | Table %1</source>
        <translation>堂食 | 餐桌 %1</translation>
    </message>
    <message>
        <source>Discount: %1</source>
        <translation>折扣: %1</translation>
    </message>
    <message>
        <source>Discount: -%1</source>
        <translation>折扣: -%1</translation>
    </message>
    <message>
        <source>Full Cut</source>
        <translation>全切</translation>
    </message>
    <message>
        <source>Kitchen Printer</source>
        <translation>厨房打印机</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>不切纸</translation>
    </message>
    <message>
        <source>Order #%1</source>
        <translation>订单 #%1</translation>
    </message>
    <message>
        <source>Order #: %1</source>
        <translation>订单号：%1</translation>
    </message>
    <message>
        <source>Order Type: %1</source>
        <translation>用餐方式：%1</translation>
    </message>
    <message>
        <source>PRINTER TEST</source>
        <translation>打印机测试</translation>
    </message>
    <message>
        <source>Paper Width: %1mm</source>
        <translation>纸张宽度: %1</translation>
    </message>
    <message>
        <source>Partial Cut</source>
        <translation>半切</translation>
    </message>
    <message>
        <source>Points Earned: +%1</source>
        <translation>获得的积分: +%1</translation>
    </message>
    <message>
        <source>Points Redeemed: -%1</source>
        <translation>已兑换积分: -%1</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>打印机: %1</translation>
    </message>
    <message>
        <source>Receipt #: %1</source>
        <translation>收据号：%1</translation>
    </message>
    <message>
        <source>Receipt + Kitchen Printer</source>
        <translation>收据 + 厨房打印机</translation>
    </message>
    <message>
        <source>Receipt Printer</source>
        <translation>收据打印机</translation>
    </message>
    <message>
        <source>Reprint: %1 %2</source>
        <translation>补印时间：%1 %2</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>角色: %1</translation>
    </message>
    <message>
        <source>Sale: %1</source>
        <translation>交易时间：%1</translation>
    </message>
    <message>
        <source>Subtotal: %1</source>
        <translation>小计: %1</translation>
    </message>
    <message>
        <source>Table: %1</source>
        <translation>桌号：%1</translation>
    </message>
    <message>
        <source>Takeaway</source>
        <translation>打包</translation>
    </message>
    <message>
        <source>Takeout</source>
        <translation>打包</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>税</translation>
    </message>
    <message>
        <source>Tax (%1 %2%)</source>
        <translation>税（%1 %2%）</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>谢谢！</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>总计: %1</translation>
    </message>
</context>
<context>
    <name>ServiceStaffSidebar</name>
    <message>
        <source>Take Order</source>
        <translation>点单</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>结账</translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation>厨房</translation>
    </message>
</context>
<context>
    <name>SetupAdmin</name>
    <message>
        <source>Create your admin account</source>
        <translation>新建管理员账号</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Enter username</source>
        <translation>请输入用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Enter password</source>
        <translation>请输入密码</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>确认密码</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>注册</translation>
    </message>
</context>
<context>
    <name>SetupBetaWelcome</name>
    <message>
        <source>Thanks for setting up Zelvan</source>
        <translation>感谢您使用 Zelvan</translation>
    </message>
    <message>
        <source>This is an early beta. If you&apos;d like updates, leave your email below.</source>
        <translation>这是早期测试版。如需接收更新消息，请在下方留下邮箱。</translation>
    </message>
    <message>
        <source>Name / Business (optional)</source>
        <translation>姓名 / 店名（选填）</translation>
    </message>
    <message>
        <source>e.g. Alice’s Cafe</source>
        <translation>例如：小李餐厅</translation>
    </message>
    <message>
        <source>Email (optional)</source>
        <translation>邮箱（选填）</translation>
    </message>
    <message>
        <source>you@example.com</source>
        <translation>you@example.com</translation>
    </message>
    <message>
        <source>Sending...</source>
        <translation>正在发送……</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Skip for now</source>
        <translation>暂时跳过</translation>
    </message>
</context>
<context>
    <name>SetupDBChoice</name>
    <message>
        <source>Replace Existing Database</source>
        <translation>替换现有数据库</translation>
    </message>
    <message>
        <source>This will permanently delete the existing database and create a new one.</source>
        <translation>此操作将永久删除现有数据库并新建一个数据库。</translation>
    </message>
    <message>
        <source>All data stored in this database will be lost. This action cannot be undone.</source>
        <translation>此数据库中的所有数据都将丢失，且无法撤销。</translation>
    </message>
    <message>
        <source>To continue, type &quot;REPLACE&quot; below.</source>
        <translation>如要继续，请在下方输入“REPLACE”。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Replace Database</source>
        <translation>替换数据库</translation>
    </message>
    <message>
        <source>Set up Zelvan</source>
        <translation>设置 Zelvan</translation>
    </message>
    <message>
        <source>Database Already Exists</source>
        <translation>数据库已存在</translation>
    </message>
    <message>
        <source>Database Not Found</source>
        <translation>未找到数据库</translation>
    </message>
    <message>
        <source>Database Cannot Be Opened or Is Not a Valid Zelvan Database</source>
        <translation>数据库无法打开，或不是有效的 Zelvan 数据库</translation>
    </message>
    <message>
        <source>Choose how you would like to set up your database.</source>
        <translation>请选择数据库的设置方式。</translation>
    </message>
    <message>
        <source>A Zelvan database already exists at this location.</source>
        <translation>此位置已有 Zelvan 数据库。</translation>
    </message>
    <message>
        <source>Zelvan couldn&apos;t find the database at the location saved on this computer.</source>
        <translation>在本机保存的位置未找到数据库。</translation>
    </message>
    <message>
        <source>A database was found at the location saved on this computer, but Zelvan could not use it.</source>
        <translation>在本机保存的位置找到了数据库，但 Zelvan 无法使用它。</translation>
    </message>
    <message>
        <source>Invalid path</source>
        <translation>路径无效</translation>
    </message>
    <message>
        <source>Setup failed. Please try again.</source>
        <translation>设置失败，请重试。</translation>
    </message>
    <message>
        <source>Start with a new, empty database.</source>
        <translation>使用全新的空数据库。</translation>
    </message>
    <message>
        <source>Create New Database</source>
        <translation>新建数据库</translation>
    </message>
    <message>
        <source>Use a Zelvan database that already exists.</source>
        <translation>使用已有的 Zelvan 数据库。</translation>
    </message>
    <message>
        <source>Open Existing Database</source>
        <translation>打开现有数据库</translation>
    </message>
    <message>
        <source>Create a new database at the saved location.</source>
        <translation>在已保存的位置新建数据库。</translation>
    </message>
    <message>
        <source>Create New Database Here</source>
        <translation>在此新建数据库</translation>
    </message>
    <message>
        <source>Open a different Zelvan database.</source>
        <translation>打开另一个 Zelvan 数据库。</translation>
    </message>
    <message>
        <source>Choose Another Database</source>
        <translation>选择其他数据库</translation>
    </message>
    <message>
        <source>Open the database already at this location.</source>
        <translation>打开此位置已有的数据库。</translation>
    </message>
    <message>
        <source>Use Existing Database</source>
        <translation>使用现有数据库</translation>
    </message>
    <message>
        <source>Choose a different location for your database.</source>
        <translation>为数据库选择另一个位置。</translation>
    </message>
    <message>
        <source>Choose Another Location</source>
        <translation>选择其他位置</translation>
    </message>
</context>
<context>
    <name>SetupDBCreation</name>
    <message>
        <source>Invalid path</source>
        <translation>路径无效</translation>
    </message>
    <message>
        <source>Setup failed. Please try again.</source>
        <translation>设置失败，请重试。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Choose database location</source>
        <translation>选择数据库位置</translation>
    </message>
    <message>
        <source>Select where the database file will be stored.</source>
        <translation>请选择数据库文件的保存位置。</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Setting up...</source>
        <translation>正在设置……</translation>
    </message>
    <message>
        <source>Select Database Folder</source>
        <translation>选择数据库文件夹</translation>
    </message>
</context>
<context>
    <name>SetupDBLocation</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Choose database location</source>
        <translation>选择数据库位置</translation>
    </message>
    <message>
        <source>Select where the database file will be stored.</source>
        <translation>请选择数据库文件的保存位置。</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Setting up...</source>
        <translation>正在设置……</translation>
    </message>
    <message>
        <source>Select Database Folder</source>
        <translation>选择数据库文件夹</translation>
    </message>
</context>
<context>
    <name>SetupDBOpen</name>
    <message>
        <source>The selected file could not be opened as a Zelvan database.</source>
        <translation>所选文件无法作为 Zelvan 数据库打开。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Open Existing Database</source>
        <translation>打开现有数据库</translation>
    </message>
    <message>
        <source>Select an existing Zelvan database to use.</source>
        <translation>请选择要使用的 Zelvan 数据库。</translation>
    </message>
    <message>
        <source>No database selected</source>
        <translation>未选择数据库</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>打开数据库</translation>
    </message>
    <message>
        <source>Opening database...</source>
        <translation>正在打开数据库……</translation>
    </message>
    <message>
        <source>Zelvan Database (*.db)</source>
        <translation>Zelvan 数据库 (*.db)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Select Zelvan Database</source>
        <translation>选择 Zelvan 数据库</translation>
    </message>
</context>
<context>
    <name>FieldMenu</name>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
</TS>
