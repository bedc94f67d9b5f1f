package orvane.str.diskarray;

public class DeleteHGList {
    public DeleteHGCtlList[] ctl;
}
