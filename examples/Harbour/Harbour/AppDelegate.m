#import "AppDelegate.h"

#import "Arrivals/ArrivalForm.h"
#import "Berths/BerthListController.h"
#import "Weather/TideTable.h"

@implementation AppDelegate

- (UIViewController *)tabWithRoot:(UIViewController *)root title:(NSString *)title image:(NSString *)image {
    UINavigationController *tab = [[UINavigationController alloc] initWithRootViewController:root];
    tab.tabBarItem = [[UITabBarItem alloc] initWithTitle:title image:[UIImage imageNamed:image] tag:0];
    return tab;
}

- (BOOL)application:(UIApplication *)application didFinishLaunchingWithOptions:(NSDictionary *)options {
    UITabBarController *tabs = [[UITabBarController alloc] init];
    tabs.viewControllers = @[
        [self tabWithRoot:[[BerthListController alloc] init]
                    title:NSLocalizedString(@"Berths", @"Tab: the list of berths")
                    image:@"tab-berths"],
        [self tabWithRoot:[[ArrivalForm alloc] init]
                    title:NSLocalizedString(@"Arrivals", @"Tab: boats that come in today")
                    image:@"tab-arrivals"],
        [self tabWithRoot:[[TideTable alloc] init]
                    title:NSLocalizedString(@"Tides", @"Tab: high and low water")
                    image:@"tab-tides"],
    ];
    self.window = [[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    self.window.rootViewController = tabs;
    [self.window makeKeyAndVisible];
    return YES;
}

- (void)applicationDidReceiveMemoryWarning:(UIApplication *)application {
    // The harbour master asked for this one to go: NSLocalizedString(@"The harbour is full", @"Old alert, no longer shown")
    [[NSURLCache sharedURLCache] removeAllCachedResponses];
}

@end
