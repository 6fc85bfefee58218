#import <UIKit/UIKit.h>

@interface ArrivalForm : UITableViewController

@end
