package orvane.str.diskarray;

public class KXAccountLogout {
    public int log_option;
}
